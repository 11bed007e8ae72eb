#include "dialogs/probe/ProbeWidget.h"

#include "dialogs/probe/ProbeAtDialog.h"
#include "dialogs/probe/ProbeWidgetImpl.h"

namespace vantrix::sdk::ui::dialogs {

ProbeWidget::ProbeWidget(QWidget* parent)
    : QWidget(parent)
    , m_impl(std::make_unique<Impl>(*this))
{}

ProbeWidget::~ProbeWidget() = default;

void ProbeWidget::setCallback(Callback told)
{
    m_impl->setCallback(told);
}

ProbeWidget::Callback ProbeWidget::callback() const
{
    return m_impl->callback();
}

void ProbeWidget::setCurrentPage(FieldProbeDialogPage_e page)
{
    m_impl->setCurrentPage(page);
}

void ProbeWidget::changeTabPosition(QTabWidget::TabPosition position)
{
    m_impl->changeTabPosition(position);
}

bool ProbeWidget::probeWidgetHasInfo() const
{
    return m_impl->hasInfo();
}

bool ProbeWidget::isReprobing() const
{
    return m_impl->isReprobing();
}

void ProbeWidget::probeCallback(bool isNearestPoint, bool probeSucceeded)
{
    m_impl->takeProbe(isNearestPoint, probeSucceeded);
}

void ProbeWidget::probeAtButtonClicked()
{
    auto const relevance = ProbeAtDialog::relevance();
    if (relevance->isRelevant()) {
        ProbeAtDialog::getInstance(*window()).launch();
    }
}

void ProbeWidget::cartesianTabWidgetPageChanged(int page)
{
    m_impl->showTab(page);
}

void ProbeWidget::varValues_tableWidget_resized(int column, int /*oldSize*/, int newSize)
{
    m_impl->keepNameColumnSize(column, newSize);
}

void ProbeWidget::createContextMenu(QPoint const& place)
{
    m_impl->showContextMenu(sender(), place);
}

} // namespace vantrix::sdk::ui::dialogs
