#include "app/StatusLine.h"

#include "api/VtxEnumerations.h"
#include "app/InterfaceSetting.h"
#include "app/ProgressBar.h"

#include <QLabel>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

bool mayConcernSettings(const toolbox::StateChangeEventInterface& event)
{
    switch (event.kind()) {
    case StateChange_Style:
        return event.styleParam(1) == "Interface";
    case StateChange_NewLayout:
    case StateChange_CompleteReset:
    case StateChange_UpdatesResumed:
        return true;
    default:
        return false;
    }
}

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent)
    , m_text(new QLabel(this))
    , m_progressBar(new ProgressBar(this))
    , m_coordinates(new QLabel(this))
    , m_follower(mayConcernSettings, [this] { followSettings(); })
{
    setObjectName(u"statusLine"_s);
    m_coordinates->setObjectName(u"coordinates"_s);
    m_coordinates->setMinimumWidth(fontMetrics().horizontalAdvance(u"X: -0.000000e+00  Y: -0.000000e+00"_s));
    m_coordinates->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_text->setObjectName(u"statusText"_s);
    m_text->setTextFormat(Qt::PlainText);
    // A long text is cut off rather than making the window wider.
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(m_text, 1);
    addPermanentWidget(m_progressBar);
    addPermanentWidget(m_coordinates);
    followSettings();
}

void StatusLine::followSettings()
{
    setVisible(isInterfaceFlagSet("ShowStatusLine"));
    m_coordinates->setVisible(isInterfaceFlagSet("ShowCoordinates"));
    m_progressBar->setQuiet(!isInterfaceFlagSet("ShowContinuousStatus"));
}

void StatusLine::setText(const QString& text)
{
    m_text->setText(text);
    m_text->setToolTip(text);
}

void StatusLine::setCoordinates(const QString& text)
{
    m_coordinates->setText(text);
}

} // namespace vantrix::app
