#pragma once

#include <QCoreApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>

namespace vantrix::test {

/// Lets the event loop turn often enough for deferred work, and what it defers again, to be done.
inline void idle()
{
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::processEvents();
    }
}

/// Moves the mouse over a widget. QTest::mouseMove() moves the pointer of the display, which other programs move as
/// well.
inline void moveMouse(QWidget& widget, QPointF place, Qt::MouseButtons buttons = {}, Qt::KeyboardModifiers keys = {})
{
    QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, buttons, keys);
    QCoreApplication::sendEvent(&widget, &move);
}

/// Types into the field in place of what it holds, without leaving it.
inline void typeInto(QLineEdit& field, char const* text)
{
    field.setFocus();
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromUtf8(text));
}

/// Types into the field and confirms with Enter.
inline void enter(QLineEdit& field, char const* text)
{
    typeInto(field, text);
    QTest::keyClick(&field, Qt::Key_Return);
    idle();
}

inline std::string textOf(QLineEdit const& field)
{
    return field.text().toStdString();
}

/// The widget with that object name below the root; a test that finds none fails in the next line that uses it.
template<typename Widget = QWidget>
Widget& find(QWidget const& root, char const* name)
{
    auto* const widget = root.findChild<Widget*>(QString::fromUtf8(name));
    if (!widget) {
        throw std::runtime_error(std::string("no widget ") + name);
    }
    return *widget;
}

} // namespace vantrix::test
