#pragma once

#include <QDialog>

class QPlainTextEdit;
class QPushButton;

namespace vantrix::app {

/* Asks for the words of a text, on as many lines as are needed. They can be accepted, with Ctrl+Enter as well, as soon
 * as there are any but spaces. */
class TextDialog : public QDialog
{
    Q_OBJECT

public:
    TextDialog(const QString& title, QWidget* parent);

    QString text() const;

    /* All of it is selected. */
    void setText(const QString& text);

private:
    void update();

    QPlainTextEdit* m_edit;
    QPushButton* m_ok;
};

} // namespace vantrix::app
