#pragma once

#include <QObject>

class QWidget;

namespace vantrix::app {

/* What the application does when the user asks for a text or clicks one twice. Everything that knows how texts are
 * edited is behind this. */
class TextPlacement : public QObject
{
    Q_OBJECT

public:
    explicit TextPlacement(QWidget* window);

    /* Asks for the words of a new text, in % of the active frame, and inserts it as one step; it is then picked, and
     * the mouse back in selector mode. Without words nothing is inserted. */
    void place(double x, double y);

    /* Asks for other words for a text; without any it stays as it is. */
    void edit(long text);

private:
    QWidget& m_window;
};

} // namespace vantrix::app
