#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

namespace vantrix::app {

/* What vxplot was asked to do. */
struct CommandLine
{
    enum class Task
    {
        Window,   /* the application's window, with what was named opened */
        Batch,    /* open, export, end; no window */
        Dialogs,  /* save a picture of every dialog; no window */
        Answer,   /* print `text` and end well: --help, --version */
        Rejected, /* print `text`, which tells what is wrong with the command line, and end badly */
    };

    Task task = Task::Window;
    QString text;
    QStringList files; /* absolute paths; of data, or one of a layout */
    QString sample;    /* empty without one */
    QString macro;     /* absolute path of one to play when everything is open */
    QString exportPath;
    QSize exportSize;      /* not valid unless --size was given */
    int exportDensity = 0; /* dots per inch; 0 unless --density was given */
    QString dialogsDirectory;

    /* The program's name and its arguments; needs a QCoreApplication. Never fails: see `Task::Rejected`. */
    static CommandLine parse(const QStringList& arguments);
};

} // namespace vantrix::app
