#pragma once

#include "toolbox/StyleValue.h"

#include <QComboBox>

namespace vantrix::app {

/* Chooses the variable that a style value of the active frame names. */
class VariableBox : public QComboBox
{
    Q_OBJECT

public:
    /* `offset` is that of the style value, -1 for none; with `canBeNone` the first choice is no variable. */
    VariableBox(const toolbox::StyleValue& style, long offset, bool canBeNone, QWidget* parent);

    /* Shows the variables of the active frame's data set, and which of them is chosen. */
    void refresh();

private:
    void choose();

    toolbox::StyleValue m_style;
    long m_offset;
    bool m_canBeNone;
};

} // namespace vantrix::app
