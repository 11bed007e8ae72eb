#include "app/VariableBox.h"

#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "toolbox/HostString.h"

namespace vantrix::app {
namespace {

QStringList variableNames()
{
    QStringList names;
    const long count = VtxUtilDataSetGetNumVars();
    for (long variable = 1; variable <= count; ++variable) {
        char* name = nullptr;
        VtxUtilVarGetName(variable, &name);
        names << QString::fromStdString(toolbox::takeHostString(name));
    }
    return names;
}

} // namespace

VariableBox::VariableBox(const toolbox::StyleValue& style, long offset, bool canBeNone, QWidget* parent)
    : QComboBox(parent)
    , m_style(style)
    , m_offset(offset)
    , m_canBeNone(canBeNone)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(8);
    connect(this, &QComboBox::activated, this, &VariableBox::choose);
}

void VariableBox::refresh()
{
    QStringList names = variableNames();
    if (m_canBeNone) {
        names.prepend(tr("none"));
    }
    QStringList shown;
    for (int i = 0; i < count(); ++i) {
        shown << itemText(i);
    }
    if (names != shown) {
        clear();
        addItems(names);
    }
    long variable = 0;
    m_style.getValue(&variable, m_offset);
    setCurrentIndex(int(variable) - (m_canBeNone ? 0 : 1));
}

void VariableBox::choose()
{
    {
        const sdk::AppLock lock;
        VtxUtilUndoSetStepName("Variable");
        m_style.setValue(long{currentIndex()} + (m_canBeNone ? 0 : 1), m_offset);
    }
    refresh();
}

} // namespace vantrix::app
