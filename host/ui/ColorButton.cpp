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

constexpr int COLUMNS = 8;

QIcon swatch(int color, QSize size)
{
    QPixmap pixmap(size);
    pixmap.fill(QColor::fromRgb(toolbox::basicColor(color)));
    QPainter painter(&pixmap); // a frame, for colours like that of the button
    painter.setPen(QColor(0, 0, 0, 90));
    painter.drawRect(QRect(QPoint(), size - QSize(1, 1)));
    return pixmap;
}

/// The buttons of the colours; the arrow keys move the focus among them.
class ColorGrid : public QWidget
{
public:
    void add(QToolButton* button)
    {
        if (!m_layout) {
            m_layout = new QGridLayout(this);
            m_layout->setSpacing(2);
        }
        m_layout->addWidget(button, m_count / COLUMNS, m_count % COLUMNS);
        ++m_count;
    }

    void focus(int color)
    {
        if (QLayoutItem* item = color >= 0 && color < m_count ? m_layout->itemAt(color) : nullptr) {
            item->widget()->setFocus();
        }
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        int const present = m_layout->indexOf(focusWidget());
        switch (event->key()) {
        case Qt::Key_Left:
            focus(present - 1);
            break;
        case Qt::Key_Right:
            focus(present + 1);
            break;
        case Qt::Key_Up:
            focus(present - COLUMNS);
            break;
        case Qt::Key_Down:
            focus(present + COLUMNS);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (auto* button = qobject_cast<QToolButton*>(focusWidget())) {
                button->click();
            }
            break;
        default:
            QWidget::keyPressEvent(event);
        }
    }

private:
    QGridLayout* m_layout = nullptr;
    int m_count = 0;
};

} // namespace

ColorButton::ColorButton(QWidget* parent)
    : QPushButton(parent)
    , m_popup(new QMenu(this))
{
    fillPopup();
    connect(this, &QPushButton::clicked, this, [this] { m_popup->popup(mapToGlobal(rect().bottomLeft())); });
    setColor(0);
}

void ColorButton::fillPopup()
{
    auto* grid = new ColorGrid;
    for (int color = 0; color < toolbox::BASIC_COLOR_COUNT; ++color) {
        auto* button = new QToolButton(grid);
        button->setIcon(swatch(color, QSize(16, 16)));
        button->setToolTip(QString::fromLatin1(toolbox::basicColorName(color)));
        button->setAccessibleName(button->toolTip());
        button->setProperty("color", color);
        connect(button, &QToolButton::clicked, this, [this, color] { choose(color); });
        grid->add(button);
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
    setToolTip(QString::fromLatin1(toolbox::basicColorName(color)));
}

void ColorButton::choose(int color)
{
    m_popup->hide();
    setColor(color);
    Q_EMIT colorChosen(color);
}

} // namespace vantrix::sdk::ui::common
