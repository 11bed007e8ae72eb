#include "dialogs/DialogRegistry.h"

#include "api/VtxUtil.h"
#include "dialogs/axis/AxisEditDialog.h"
#include "dialogs/frame/FrameEditDialog.h"
#include "dialogs/frame/OptionsRulerGridDialog.h"
#include "dialogs/frame/PaperSetupDialog.h"
#include "dialogs/frame/PerformanceDialog.h"
#include "dialogs/frame/PrintRenderOptsDialog.h"
#include "dialogs/probe/ProbeAtDialog.h"
#include "dialogs/probe/ProbeDialog.h"
#include "dialogs/probe/ProbeHistoryDialog.h"
#include "dialogs/zone/CreateCircularZoneDialog.h"
#include "dialogs/zone/CreateRectangularZoneDialog.h"
#include "dialogs/zone/DeleteZoneDialog.h"
#include "property/ExceptionBase.h"

#include <algorithm>

namespace vantrix::sdk::ui::dialogs {

using vantrix::dialogs::common::QtDialogAbstract;

DialogEntry::DialogEntry(QString menuPath, QString name, GetInstance getInstance)
    : m_menuPath(std::move(menuPath))
    , m_name(std::move(name))
    , m_getInstance(std::move(getInstance))
{}

QtDialogAbstract* DialogEntry::launch(QWidget& parent) const
{
    return launch(m_getInstance, parent);
}

DialogEntry DialogEntry::editing(PickObject_e type, GetInstance getPicked) const
{
    DialogEntry entry = *this;
    entry.m_getPicked = std::move(getPicked);
    entry.m_pickedType = type;
    return entry;
}

QtDialogAbstract* DialogEntry::launchForPicked(QWidget& parent) const
{
    return launch(m_getPicked, parent);
}

QtDialogAbstract* DialogEntry::launch(GetInstance const& getInstance, QWidget& parent) const
{
    try {
        m_dialog = &getInstance(parent);
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
        entry<PaperSetupDialog>("&File/Paper Set&up...", "paper_setup"),
        entry<PrintRenderOptsDialog>("&File/Print Render Op&tions...", "print_render_options"),
        entry<CreateCircularZoneDialog>("&Data/&Create Zone/&Circular...", "create_zone_circular"),
        entry<CreateRectangularZoneDialog>("&Data/&Create Zone/&Rectangular...", "create_zone_rectangular"),
        entry<DeleteZoneDialog>("&Data/&Delete Zone...", "delete_zone"),
        entry<ProbeDialog>("&Data/&Probe...", "probe"),
        entry<ProbeAtDialog>("&Data/Probe &At...", "probe_at"),
        entry<ProbeHistoryDialog>("&Data/Probe &History...", "probe_history"),
        entry<AxisEditDialog>("P&lot/&Axis...", "axis_details")
            .editing(PickObject_Axis,
                     [](QWidget& parent) -> QtDialogAbstract& {
                         return AxisEditDialog::getInstance(parent, DialogInitialization_Picked);
                     }),
        entry<FrameEditDialog>("F&rame/&Edit Active Frame...", "frame_edit")
            .editing(PickObject_Frame,
                     [](QWidget& parent) -> QtDialogAbstract& { return FrameEditDialog::getInstance(parent); }),
        entry<OptionsRulerGridDialog>("&Options/&Ruler and Grid...", "options_ruler_grid"),
        entry<PerformanceDialog>("&Options/&Performance...", "performance"),
    };
    return entries;
}

bool launchDialogForPicked(PickObject_e type, QWidget& parent)
{
    auto const& entries = dialogRegistry();
    auto const found =
        std::find_if(entries.begin(), entries.end(), [&](DialogEntry const& each) { return each.edits(type); });
    return found != entries.end() && found->launchForPicked(parent);
}

} // namespace vantrix::sdk::ui::dialogs
