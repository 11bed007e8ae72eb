#include "view/latex/LatexCompiler.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>

namespace vantrix::view {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t mostDocuments = 64;

/* The source begins on the line behind the head. */
const QString head =
    u"\\documentclass{article}\n\\usepackage{amsmath}\n\\pagestyle{empty}\n\\begin{document}\n\\noindent\n"_s;
const QString tail = u"\n\\end{document}\n"_s;

[[noreturn]] void fail(const QString& text)
{
    throw LatexError(text.toStdString());
}

QByteArray read(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& name, const QByteArray& content)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        fail(u"LaTeX texts need room for temporary files; \"%1\" cannot be written."_s.arg(name));
    }
}

/* The first error that LaTeX tells of, "./text.tex:6: Undefined control sequence." or "! Emergency stop.", with its
 * line of the source and what stands there, which follow as "l.6 \nosuch". */
QString errorIn(const QString& output)
{
    static const QRegularExpression error(u"^(?:.*text\\.tex:\\d+: |! )(.+)$"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression place(u"^l\\.(\\d+) (.*)$"_s, QRegularExpression::MultilineOption);
    const auto found = error.match(output);
    if (!found.hasMatch()) {
        return u"it gives no reason"_s;
    }
    QString what = found.captured(1).trimmed();
    const auto at = place.match(output, found.capturedEnd());
    if (!at.hasMatch()) {
        return what;
    }
    const auto line = at.captured(1).toInt() - head.count(u'\n');
    return u"line %1: %2 (%3)"_s.arg(line).arg(what, at.captured(2).trimmed());
}

QProcessEnvironment confined()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"openin_any"_s, u"p"_s); // p: nothing above the folder, no absolute names, no hidden files
    environment.insert(u"openout_any"_s, u"p"_s);
    environment.insert(u"shell_escape"_s, u"f"_s);
    environment.remove(u"TEXMFOUTPUT"_s);
    environment.insert(u"max_print_line"_s, u"1000"_s); // errors are not broken into lines
    return environment;
}

} // namespace

void LatexCompiler::run(const QString& folder, const QString& program, const QStringList& arguments,
                        QByteArray& output) const
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        fail(u"LaTeX texts need the program \"%1\", which is not in the PATH."_s.arg(program));
    }
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(confined());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(path, arguments);
    if (!process.waitForFinished(m_timeLimit)) {
        const bool isRunning = process.state() != QProcess::NotRunning;
        process.kill();
        process.waitForFinished();
        fail(isRunning ? u"\"%1\" took longer than %2 seconds and was stopped."_s.arg(program).arg(m_timeLimit / 1000.0)
                       : u"\"%1\" cannot be started: %2."_s.arg(path, process.errorString()));
    }
    output = process.readAll();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        fail(program == "latex"_L1 ? u"LaTeX, "_s + errorIn(QString::fromUtf8(output))
                                   : u"\"%1\" failed: %2"_s.arg(program, QString::fromUtf8(output).trimmed()));
    }
}

QByteArray LatexCompiler::dvi(const QString& source)
{
    if (const auto known = m_dvi.find(source); known != m_dvi.end()) {
        return known->second;
    }
    const QTemporaryDir folder;
    write(folder.filePath(u"text.tex"_s), (head + source + tail).toUtf8());
    QByteArray output;
    run(folder.path(), u"latex"_s,
        {u"-no-shell-escape"_s, u"-interaction=nonstopmode"_s, u"-halt-on-error"_s, u"-file-line-error"_s,
         u"text.tex"_s},
        output);
    QByteArray made = read(folder.filePath(u"text.dvi"_s));
    if (made.isEmpty()) {
        fail(u"LaTeX made no page of the text; does it say anything?"_s);
    }
    if (m_dvi.size() >= mostDocuments) {
        m_dvi.clear();
    }
    m_dvi[source] = made;
    return made;
}

QImage LatexCompiler::picture(const QString& source, const QColor& color, int dpi)
{
    const QByteArray page = dvi(source);
    const QTemporaryDir folder;
    write(folder.filePath(u"text.dvi"_s), page);
    const QString ink = u"rgb %1 %2 %3"_s.arg(color.redF()).arg(color.greenF()).arg(color.blueF());
    QByteArray output;
    run(folder.path(), u"dvipng"_s,
        {u"-T"_s, u"tight"_s, u"-D"_s, QString::number(dpi), u"-bg"_s, u"Transparent"_s, u"-fg"_s, ink, u"--nogs"_s,
         u"-pp"_s, u"1"_s, u"-o"_s, u"text.png"_s, u"text.dvi"_s},
        output);
    QImage image(folder.filePath(u"text.png"_s));
    if (image.isNull()) {
        fail(u"\"dvipng\" made no picture: %1"_s.arg(QString::fromUtf8(output).trimmed()));
    }
    return image;
}

} // namespace vantrix::view
