#include "app/CommandLine.h"

#include "app/LayoutFiles.h"
#include "app/PictureExport.h"
#include "kernel/SampleData.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

QStringList sampleNames()
{
    QStringList names;
    for (const std::string& sample : kernel::SampleData::names()) {
        names << QString::fromStdString(sample);
    }
    return names;
}

/* Not valid for anything but two numbers of 1 to `PictureExport::mostPixels` with an x between. */
QSize sizeFrom(const QString& text)
{
    static const QRegularExpression form(u"^(\\d{1,5})[xX](\\d{1,5})$"_s);
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const bool isGood =
        !size.isEmpty() && size.width() <= PictureExport::mostPixels && size.height() <= PictureExport::mostPixels;
    return match.hasMatch() && isGood ? size : QSize();
}

/* 0 for anything but a whole number of the allowed ones. */
int densityFrom(const QString& text)
{
    const int density = text.toInt();
    return density >= 10 && density <= PictureExport::mostDensity ? density : 0;
}

struct Options
{
    QCommandLineOption batch{u"batch"_s, u"Run without a window: open the files, export, end."_s};
    QCommandLineOption exportTo{u"export"_s, u"With --batch: save the plot as a picture (.png, .jpg, .pdf)."_s,
                                u"FILE"_s};
    QCommandLineOption size{u"size"_s, u"Pixels of the exported image, for example 1200x900."_s, u"WxH"_s};
    QCommandLineOption density{u"density"_s, u"Dots per inch of the exported image, in place of --size."_s, u"DPI"_s};
    QCommandLineOption macro{u"macro"_s, u"Play a macro when the files are open."_s, u"FILE"_s};
    QCommandLineOption sample{u"sample"_s, u"Open a built-in data set: %1."_s.arg(sampleNames().join(u", "_s)),
                              u"NAME"_s};
    QCommandLineOption dialogs{u"dialogs"_s, u"Save a picture of every dialog in a folder, and end."_s, u"DIR"_s};
    QCommandLineOption help{{u"h"_s, u"help"_s}, u"Show this help."_s};
    QCommandLineOption version{{u"v"_s, u"version"_s}, u"Show the version."_s};

    QList<QCommandLineOption> all() const
    {
        return {batch, exportTo, size, density, macro, sample, dialogs, help, version};
    }
};

CommandLine answer(CommandLine::Task task, const QString& text)
{
    CommandLine result;
    result.task = task;
    result.text = text;
    return result;
}

/* The first thing that is wrong with what belongs together; empty when nothing is. */
QString inconsistency(const QCommandLineParser& parser, const Options& options, const CommandLine& line)
{
    if (parser.isSet(options.sample) && !sampleNames().contains(line.sample)) {
        return u"There is no sample \"%1\"; there are %2."_s.arg(line.sample, sampleNames().join(u", "_s));
    }
    if (parser.isSet(options.sample) && !line.files.isEmpty()) {
        return u"Give either files or --sample, not both."_s;
    }
    if (parser.isSet(options.size) && !line.exportSize.isValid()) {
        return u"\"%1\" is no size; write width and height in pixels, 1 to %2, as in 1200x900."_s
            .arg(parser.value(options.size))
            .arg(PictureExport::mostPixels);
    }
    if (parser.isSet(options.density) && line.exportDensity == 0) {
        return u"\"%1\" is no density; write dots per inch, 10 to %2."_s.arg(parser.value(options.density))
            .arg(PictureExport::mostDensity);
    }
    if (parser.isSet(options.density) && parser.isSet(options.size)) {
        return u"Give either --size or --density, not both."_s;
    }
    if (!line.macro.isEmpty() && !QFileInfo(line.macro).isFile()) {
        return u"There is no macro \"%1\"."_s.arg(line.macro);
    }
    if (line.files.size() > 1 && std::any_of(line.files.begin(), line.files.end(), LayoutFiles::isLayout)) {
        return u"Give a layout alone, without other files."_s;
    }
    if (line.task == CommandLine::Task::Dialogs) {
        return {};
    }
    if (line.task == CommandLine::Task::Window) {
        if (parser.isSet(options.exportTo) || parser.isSet(options.size) || parser.isSet(options.density)) {
            return u"--export, --size and --density need --batch."_s;
        }
        return {};
    }
    if (line.exportPath.isEmpty() && line.macro.isEmpty()) {
        return u"--batch needs --export FILE, or --macro FILE."_s;
    }
    if (line.files.isEmpty() && line.sample.isEmpty() && line.macro.isEmpty()) {
        return u"--batch needs a file to open, --sample NAME, or --macro FILE."_s;
    }
    return line.exportPath.isEmpty() ? QString() : PictureExport::problemWith(line.exportPath);
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Plots scientific data in 2D, 3D and as lines."_s);
    parser.addOptions(options.all());
    parser.addPositionalArgument(
        u"FILES"_s, u"Data files to open, or a layout; a PLOT3D grid and its solution are given together."_s,
        u"[FILES...]"_s);
    if (!parser.parse(arguments)) {
        return answer(Task::Rejected, parser.errorText() + u" See vxplot --help."_s);
    }
    if (parser.isSet(options.help)) {
        return answer(Task::Answer, parser.helpText());
    }
    if (parser.isSet(options.version)) {
        return answer(Task::Answer,
                      u"%1 %2\n"_s.arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion()));
    }

    CommandLine line;
    if (parser.isSet(options.dialogs)) {
        line.task = Task::Dialogs;
    } else if (parser.isSet(options.batch)) {
        line.task = Task::Batch;
    }
    for (const QString& file : parser.positionalArguments()) {
        line.files << QFileInfo(file).absoluteFilePath();
    }
    line.sample = parser.value(options.sample);
    if (parser.isSet(options.macro)) {
        line.macro = QFileInfo(parser.value(options.macro)).absoluteFilePath();
    }
    line.exportDensity = densityFrom(parser.value(options.density));
    line.exportPath = parser.value(options.exportTo);
    line.exportSize = sizeFrom(parser.value(options.size));
    line.dialogsDirectory = parser.value(options.dialogs);
    const QString problem = inconsistency(parser, options, line);
    return problem.isEmpty() ? line : answer(Task::Rejected, problem);
}

} // namespace vantrix::app
