#include "dialogs/DialogRegistry.h"

#include "api/VtxUtil.h"
#include "dialogs/zone/CreateCircularZoneDialog.h"
#include "dialogs/zone/CreateRectangularZoneDialog.h"
#include "property/ExceptionBase.h"

namespace vantrix::sdk::ui::dialogs {

using vantrix::dialogs::common::QtDialogAbstract;

DialogEntry::DialogEntry(QString menuPath, QString name, GetInstance getInstance)
    : m_menuPath(std::move(menuPath))
    , m_name(std::move(name))
    , m_getInstance(std::move(getInstance))
{}

QtDialogAbstract* DialogEntry::launch(QWidget& parent) const
{
    try {
        m_dialog = &m_getInstance(parent);
        m_dialog->launch();
        return m_dialog;
    } catch (ExceptionBase const& exception) {
        VtxUtilDialogErrMsg(exception.what());
        return nullptr;
    }
}

void DialogEntry::drop() const
{
    if (m_dialog) {
        m_dialog->drop();
    }
}

namespace {

template<typename Dialog>
DialogEntry entry(char const* menuPath, char const* name)
{
    return {QString::fromUtf8(menuPath), QString::fromUtf8(name),
            [](QWidget& parent) -> QtDialogAbstract& { return Dialog::getInstance(parent); }};
}

} // namespace

std::vector<DialogEntry> const& dialogRegistry()
{
    static std::vector<DialogEntry> const entries = {
        entry<CreateCircularZoneDialog>("&Data/&Create Zone/&Circular...", "create_zone_circular"),
        entry<CreateRectangularZoneDialog>("&Data/&Create Zone/&Rectangular...", "create_zone_rectangular"),
    };
    return entries;
}

} // namespace vantrix::sdk::ui::dialogs
