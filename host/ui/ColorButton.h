#pragma once

#include <QPushButton>

class QMenu;

namespace vantrix::sdk::ui::common {

/// A button that shows one of the basic colours; pressing it opens a grid of all of them to choose from. The arrow keys
/// move in the grid, Return and Space choose, Escape leaves the colour as it is.
class ColorButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ColorButton(QWidget* parent = nullptr);

    /// The number of the basic colour.
    int color() const { return m_color; }

    /// Shows another colour; does not signal.
    void setColor(int color);

    /// The popup with a tool button for each colour, which has the colour's number as its property "color".
    QMenu& popup();

Q_SIGNALS:
    /// The user chose a colour, perhaps the present one.
    void colorChosen(int color);

private:
    void fillPopup();
    void choose(int color);

    int m_color = 0;
    QMenu* m_popup; ///< empty until it is shown first: a dialog may have many buttons
};

} // namespace vantrix::sdk::ui::common
