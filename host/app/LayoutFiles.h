#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace vantrix::kernel {
class Kernel;
class Layout;
} // namespace vantrix::kernel

namespace vantrix::app {

/* Layout files as the user handles them: asks for names, asks before work is lost, tells what went wrong. */
class LayoutFiles : public QObject
{
    Q_OBJECT

public:
    /* The window is the parent of what is asked. */
    LayoutFiles(kernel::Kernel& kernel, QWidget& window);

    /* The suffix of layout files, with the dot. */
    static QString suffix();
    static bool isLayout(const QString& file) { return file.endsWith(suffix(), Qt::CaseInsensitive); }

    /* Each is false when the user changed their mind or it failed; nothing has changed then. */
    bool clear();
    bool choose();
    bool open(const QString& file);
    bool save();
    bool saveAs();

    /* Asks whether to save what was changed; false when the user wants to stay. */
    bool mayDrop();

    /* "flow.vxlay[*]" for a window's title; the name of a layout without a file is given. */
    QString title(const QString& untitled) const;

    /* What the file dialogs of layouts offer. */
    static QString filter();

private:
    bool attempt(bool isDone);
    bool saveTo(const QString& file);
    QString ask(const QString& title, bool isSaving) const;

    kernel::Layout& m_layout;
    QWidget& m_window;
};

} // namespace vantrix::app
