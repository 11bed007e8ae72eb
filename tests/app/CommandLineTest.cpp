#include "app/CommandLine.h"

#include "AppTestSupport.h"

namespace vantrix::test {
namespace {

using namespace Qt::StringLiterals;
using app::CommandLine;
using Task = CommandLine::Task;

CommandLine parse(const QStringList& arguments)
{
    return CommandLine::parse(QStringList{u"vxplot"_s} + arguments);
}

TEST(CommandLineTest, FilesAreOpenedInAWindowByTheirAbsolutePaths)
{
    const CommandLine line = parse({u"grid.xyz"_s, u"flow.q"_s});
    EXPECT_EQ(line.task, Task::Window);
    EXPECT_EQ(line.files,
              QStringList({QDir::current().filePath(u"grid.xyz"_s), QDir::current().filePath(u"flow.q"_s)}));
    EXPECT_EQ(parse({}).task, Task::Window);
}

TEST(CommandLineTest, BatchTakesWhatToOpenWhereToExportAndHowLarge)
{
    const CommandLine line =
        parse({u"--batch"_s, u"--sample"_s, u"flow3d"_s, u"--export"_s, u"out.png"_s, u"--size"_s, u"320x200"_s});
    EXPECT_EQ(line.task, Task::Batch) << line.text.toStdString();
    EXPECT_EQ(line.sample, u"flow3d"_s);
    EXPECT_EQ(line.exportPath, u"out.png"_s);
    EXPECT_EQ(line.exportSize, QSize(320, 200));
}

TEST(CommandLineTest, HelpListsOptionsAndSamples)
{
    const CommandLine line = parse({u"--help"_s});
    EXPECT_EQ(line.task, Task::Answer);
    for (const char* text : {"--batch", "--export", "--size", "--dialogs", "flow3d", "fe2d", "lines"}) {
        EXPECT_TRUE(line.text.contains(QLatin1StringView(text))) << text;
    }
}

TEST(CommandLineTest, WhatIsWrongIsNamed)
{
    const struct
    {
        QStringList arguments;
        const char* named;
    } cases[] = {
        {{u"--frobnicate"_s}, "frobnicate"},
        {{u"--batch"_s, u"a.vts"_s}, "--export"},
        {{u"--batch"_s, u"--export"_s, u"o.png"_s}, "--sample"},
        {{u"--export"_s, u"o.png"_s, u"a.vts"_s}, "--batch"},
        {{u"--sample"_s, u"nonsense"_s}, "nonsense"},
        {{u"--sample"_s, u"flow3d"_s, u"a.vts"_s}, "not both"},
        {{u"--batch"_s, u"a.vts"_s, u"--export"_s, u"o.png"_s, u"--size"_s, u"800"_s}, "800"},
        {{u"--batch"_s, u"a.vts"_s, u"--export"_s, u"o.png"_s, u"--size"_s, u"0x5"_s}, "0x5"},
        {{u"--batch"_s, u"a.vts"_s, u"--export"_s, u"o.png"_s, u"--size"_s, u"99999x5"_s}, "99999x5"},
        {{u"--batch"_s, u"a.vts"_s, u"--export"_s, u"o.zzz"_s}, "o.zzz"},
        {{u"--batch"_s, u"a.vts"_s, u"--export"_s, u"/no/such/folder/o.png"_s}, "/no/such/folder"},
        {{u"--batch"_s, u"a.vts"_s, u"--export"_s, u"/tmp"_s}, "/tmp"},
        {{u"--macro"_s, u"none.vxmac"_s}, "none.vxmac"},
        {{u"--batch"_s, u"a.vts"_s, u"--export"_s, u"o.png"_s, u"--density"_s, u"5"_s}, "\"5\""},
        {{u"--batch"_s, u"a.vts"_s, u"--export"_s, u"o.png"_s, u"--density"_s, u"90"_s, u"--size"_s, u"9x9"_s},
         "not both"},
        {{u"a.vts"_s, u"b.vxlay"_s}, "alone"},
    };
    for (const auto& wrong : cases) {
        const CommandLine line = parse(wrong.arguments);
        EXPECT_EQ(line.task, Task::Rejected) << wrong.named;
        EXPECT_TRUE(line.text.contains(QLatin1StringView(wrong.named))) << line.text.toStdString();
    }
}

} // namespace
} // namespace vantrix::test
