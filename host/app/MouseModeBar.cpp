#include "app/MouseModeBar.h"

#include "api/VtxUtilFrame.h"
#include "app/VectorVariablesDialog.h"
#include "dialogs/probe/ProbeDialog.h"
#include "sdk/AppLock.h"

#include <QActionGroup>
#include <QIcon>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

struct Mode
{
    MouseMode_e number;
    const char* text;
    const char* hint;
    const char* icon;
    Qt::Key shortcut;
};

const Mode modes[] = {
    {MouseMode_Selector, QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "&Selector"),
     QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "Click to pick, drag to move or resize a frame"), "selector",
     Qt::Key_S},
    {MouseMode_Zoom, QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "&Zoom"),
     QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "Drag a rectangle to enlarge it"), "zoom", Qt::Key_Z},
    {MouseMode_Translate, QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "&Translate"),
     QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "Drag the plot to another place"), "translate", Qt::Key_T},
    {MouseMode_Rotate, QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "&Rotate"),
     QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "Drag to turn a 3D plot"), "rotate", Qt::Key_R},
    {MouseMode_Probe, QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "&Probe"),
     QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "Click to see the values at a place"), "probe", Qt::Key_P},
    {MouseMode_Streamtrace, QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "Strea&mtraces"),
     QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "Click to place a streamtrace, drag to place a rake of them"),
     "streamtrace", Qt::Key_F},
    {MouseMode_Text, QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "Te&xt"),
     QT_TRANSLATE_NOOP("vantrix::app::MouseModeBar", "Click in a frame to put a text there"), "text", Qt::Key_X},
};

} // namespace

MouseModeBar::MouseModeBar(QWidget* parent)
    : QToolBar(tr("Mouse Modes"), parent)
    , m_modes(new QActionGroup(this))
    , m_updater([](const toolbox::StateChangeEventInterface&) { return true; }, [this] { update(); })
{
    setObjectName(u"mouseModeBar"_s);
    // None is down while another mode is on, such as creating frames.
    m_modes->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const Mode& mode : modes) {
        const QIcon icon(u":/vxplot/icons/%1.svg"_s.arg(QLatin1StringView(mode.icon)));
        QAction* action = addAction(icon, tr(mode.text));
        action->setObjectName(u"mouseMode_%1"_s.arg(QLatin1StringView(mode.icon)));
        action->setCheckable(true);
        action->setData(static_cast<int>(mode.number));
        action->setShortcut(mode.shortcut);
        action->setToolTip(tr("%1 (%2)").arg(tr(mode.hint), action->shortcut().toString(QKeySequence::NativeText)));
        action->setStatusTip(tr(mode.hint));
        m_modes->addAction(action);
    }
    connect(m_modes, &QActionGroup::triggered, this, [this](const QAction* action) {
        setMode(static_cast<MouseMode_e>(action->data().toInt()));
        update();
    });
    update();
}

QList<QAction*> MouseModeBar::modeActions() const
{
    return m_modes->actions();
}

void MouseModeBar::setMode(MouseMode_e mode)
{
    if (mode == MouseMode_Probe) { // what is probed has to be shown to be of use
        sdk::ui::dialogs::ProbeDialog::getInstance(*window()).launch();
        return;
    }
    if (mode == MouseMode_Streamtrace && !VectorVariablesDialog::ensureAssigned(window())) {
        return;
    }
    sdk::AppLock lock;
    VtxUtilMouseSetMode(mode);
}

void MouseModeBar::update()
{
    const MouseMode_e current = VtxUtilMouseGetCurrentMode();
    for (QAction* action : m_modes->actions()) {
        const auto mode = static_cast<MouseMode_e>(action->data().toInt());
        action->setEnabled(VtxUtilMouseIsValidMode(mode));
        action->setChecked(mode == current);
    }
}

} // namespace vantrix::app
