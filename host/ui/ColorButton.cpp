#include "ui/ColorButton.h"

#include "toolbox/BasicColors.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>
#include <QWidgetAction>

namespace vantrix::sdk::ui::common {

namespace {

QIcon swatch(int color, QSize size)
{
    QPixmap pixmap(size);
    pixmap.fill(QColor::fromRgb(toolbox::basicColor(color)));
    QPainter painter(&pixmap); // a frame, for colours like that of the button
    painter.setPen(QColor(0, 0, 0, 90));
    painter.drawRect(QRect(QPoint(), size - QSize(1, 1)));
    return pixmap;
}

/// The buttons of the colours: the basic ones, greys, and rows of hues. The arrow keys move the focus among them.
class ColorGrid : public QWidget
{
public:
    ColorGrid()
        : m_layout(new QGridLayout(this))
    {
        m_layout->setSpacing(0);
        setStyleSheet(QStringLiteral("QToolButton { border: 2px solid transparent; padding: 1px; }"
                                     "QToolButton:hover { border-color: palette(mid); }"
                                     "QToolButton:focus { border-color: palette(highlight); }"));
    }

    void add(QToolButton* button, int color)
    {
        Place const place = placeOf(color);
        m_layout->addWidget(button, place.row, place.column);
        button->installEventFilter(this);
    }

    void focus(int color)
    {
        Place const place = placeOf(color >= 0 && color < toolbox::BASIC_COLOR_COUNT ? color : 0);
        focus(place);
    }

protected:
    // Buttons take arrow keys for the next and the previous one in the order of tabs.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        return event->type() == QEvent::KeyPress &&
               takeKey(static_cast<QKeyEvent*>(event)->key(), *static_cast<QToolButton*>(watched));
    }

private:
    struct Place
    {
        int row = 0;
        int column = 0;
    };

    static Place placeOf(int color)
    {
        constexpr int inShortRow = 8;
        if (color < toolbox::FIRST_HUE) {
            return {color / inShortRow, color % inShortRow};
        }
        int const hue = color - toolbox::FIRST_HUE;
        return {toolbox::FIRST_HUE / inShortRow + hue / toolbox::HUE_COUNT, hue % toolbox::HUE_COUNT};
    }

    bool takeKey(int key, QToolButton& button)
    {
        Place place;
        int span = 1;
        m_layout->getItemPosition(m_layout->indexOf(&button), &place.row, &place.column, &span, &span);
        switch (key) {
        case Qt::Key_Left:
            focus({place.row, place.column - 1});
            return true;
        case Qt::Key_Right:
            focus({place.row, place.column + 1});
            return true;
        case Qt::Key_Up:
            focus({place.row - 1, place.column});
            return true;
        case Qt::Key_Down:
            focus({place.row + 1, place.column});
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            button.click();
            return true;
        default:
            return false;
        }
    }

    void focus(Place place)
    {
        if (QLayoutItem* const item = m_layout->itemAtPosition(place.row, place.column)) {
            item->widget()->setFocus();
        }
    }

    QGridLayout* m_layout;
};

} // namespace

ColorButton::ColorButton(QWidget* parent)
    : QPushButton(parent)
    , m_popup(new QMenu(this))
{
    connect(this, &QPushButton::clicked, this, [this] { popup().popup(mapToGlobal(rect().bottomLeft())); });
    setColor(0);
}

QMenu& ColorButton::popup()
{
    if (m_popup->isEmpty()) {
        fillPopup();
    }
    return *m_popup;
}

void ColorButton::fillPopup()
{
    auto* grid = new ColorGrid;
    for (int color = 0; color < toolbox::BASIC_COLOR_COUNT; ++color) {
        auto* button = new QToolButton(grid);
        button->setIcon(swatch(color, QSize(16, 16)));
        button->setToolTip(QString::fromStdString(toolbox::basicColorName(color)));
        button->setAccessibleName(button->toolTip());
        button->setProperty("color", color);
        connect(button, &QToolButton::clicked, this, [this, color] { choose(color); });
        grid->add(button, color);
    }
    auto* action = new QWidgetAction(m_popup);
    action->setDefaultWidget(grid);
    m_popup->addAction(action);
    connect(m_popup, &QMenu::aboutToShow, grid, [this, grid] { grid->focus(m_color); });
}

void ColorButton::setColor(int color)
{
    m_color = color;
    setIconSize(QSize(32, 16));
    setIcon(swatch(color, iconSize()));
    setToolTip(QString::fromStdString(toolbox::basicColorName(color)));
}

void ColorButton::choose(int color)
{
    m_popup->hide();
    setColor(color);
    Q_EMIT colorChosen(color);
}

} // namespace vantrix::sdk::ui::common
