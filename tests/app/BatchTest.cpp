#include "dialogs/DialogRegistry.h"

#include "AppTestSupport.h"

#include <QProcess>

namespace vantrix::test {
namespace {

using namespace Qt::StringLiterals;

struct Outcome
{
    int status = -1;
    std::string errors;
    std::string output;
};

class BatchTest : public AppTest
{
protected:
    Outcome run(const QStringList& arguments,
                QProcessEnvironment environment = QProcessEnvironment::systemEnvironment()) const
    {
        // Where there is none Qt says so on the error stream, which is not what the tests look for there.
        environment.insert(u"XDG_RUNTIME_DIR"_s, folder.path());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationDirPath() + u"/vxplot"_s, arguments);
        EXPECT_TRUE(process.waitForFinished(100000)) << process.errorString().toStdString();
        // A crash is no exit status.
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardError().toStdString(), process.readAllStandardOutput().toStdString()};
    }

    /* How many different colours a picture has: more than a handful only where something was plotted. */
    static int colorCount(const QImage& image)
    {
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                colors << image.pixel(x, y);
            }
        }
        return static_cast<int>(colors.size());
    }
};

TEST_F(BatchTest, AMacroIsPlayedAndALayoutIsOpened)
{
    const QString macro = write("make.vxmac", "DataReadSample Name=fe2d\nFrameCreate Left=1 Top=1 Width=2 Height=2\n");
    const QString picture = path("out.png");
    Outcome outcome = run({u"--batch"_s, u"--macro"_s, macro, u"--export"_s, picture, u"--density"_s, u"40"_s});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(QImage(picture).size(), QSize(440, 340)) << "letter paper";
    EXPECT_GT(colorCount(QImage(picture)), 50);
    QFile::remove(picture);

    const QString layout = write("a.vxlay", "Layout Version=1\nDataSet Id=1\nDataReadSample Name=fe2d\nPage\n"
                                            "Frame DataSet=1\nStyleSet Path=PlotType Value=Cartesian2D\n");
    outcome = run({u"--batch"_s, layout, u"--export"_s, picture});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_TRUE(QFile::exists(picture));

    const QString wrong = write("wrong.vxmac", "PageCreate\nPageDelete Page=7\n");
    outcome = run({u"--batch"_s, u"--macro"_s, wrong});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("line 2"), std::string::npos) << outcome.errors;
}

TEST_F(BatchTest, FilesAndSamplesAreExportedInTheSizeAskedFor)
{
    const QString file = write("small.vtk", smallVtkFile());
    for (const QStringList& what : {QStringList{file}, QStringList{u"--sample"_s, u"flow3d"_s}}) {
        const QString picture = path("out.png");
        const Outcome outcome =
            run(QStringList{u"--batch"_s, u"--export"_s, picture, u"--size"_s, u"400x300"_s} + what);
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        EXPECT_EQ(outcome.errors, "");
        const QImage image(picture);
        EXPECT_EQ(image.size(), QSize(400, 300));
        EXPECT_GT(colorCount(image), 50) << what.last().toStdString();
        QFile::remove(picture);
    }
}

TEST_F(BatchTest, WithoutADisplayAVirtualOneIsStartedForTheRun)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"DISPLAY"_s);
    const QStringList arguments{u"--batch"_s, u"--sample"_s, u"fe2d"_s, u"--export"_s, path("out.png")};
    const Outcome outcome = run(arguments, environment);
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_GT(colorCount(QImage(path("out.png"))), 50);

    environment.insert(u"PATH"_s, u"/no/such/folder"_s);
    const Outcome withoutServer = run(arguments, environment);
    EXPECT_EQ(withoutServer.status, 1);
    EXPECT_NE(withoutServer.errors.find("Xvfb"), std::string::npos) << withoutServer.errors;
}

TEST_F(BatchTest, PdfIsWritten)
{
    const Outcome outcome = run({u"--batch"_s, u"--sample"_s, u"fe2d"_s, u"--export"_s, path("out.pdf")});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    QFile file(path("out.pdf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("%PDF-"));
}

TEST_F(BatchTest, BadFilesAreNamedAndNothingIsWritten)
{
    const QByteArray good = smallVtkFile();
    const QStringList files{
        path("missing.vtu"),
        write("empty.vtk", {}),
        write("empty.vtu", {}),
        write("truncated.vtk", good.left(good.size() / 2)),
        write("truncated.vts", "<?xml version=\"1.0\"?>\n<VTKFile type=\"StructuredGrid\" version=\"0.1\">\n<Struct"),
        write("foreign.vtu", "This is a letter to a friend.\n"),
        write("foreign.stl", QByteArray(300, '\0')),
        write("foreign.cgns", "not a database at all"),
        write("foreign.case", "dear diary"),
        write("foreign.exo", "no such thing"),
        write("foreign.xyz", "no grid"),
        write("unknown.docx", "PK"),
        folder.path(),
    };
    for (const QString& file : files) {
        const Outcome outcome = run({u"--batch"_s, file, u"--export"_s, path("out.png")});
        EXPECT_EQ(outcome.status, 1) << file.toStdString() << '\n' << outcome.errors;
        EXPECT_NE(outcome.errors.find(QFileInfo(file).fileName().toStdString()), std::string::npos) << outcome.errors;
        EXPECT_FALSE(QFile::exists(path("out.png"))) << file.toStdString();
    }
}

TEST_F(BatchTest, AFailureLeavesThePictureThatWasThere)
{
    const QString picture = write("out.png", "the old picture");
    EXPECT_EQ(run({u"--batch"_s, path("missing.vtk"), u"--export"_s, picture}).status, 1);
    QFile file(picture);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "the old picture");
}

TEST_F(BatchTest, BadCommandLinesEndWithStatusOne)
{
    const Outcome unknown = run({u"--frobnicate"_s});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_NE(unknown.errors.find("frobnicate"), std::string::npos);
    const Outcome unwritable = run({u"--batch"_s, u"--sample"_s, u"fe2d"_s, u"--export"_s, u"/no/such/folder/o.png"_s});
    EXPECT_EQ(unwritable.status, 1);
    EXPECT_NE(unwritable.errors.find("/no/such/folder/o.png"), std::string::npos) << unwritable.errors;
    const Outcome version = run({u"--version"_s});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output.rfind("vxplot ", 0), 0U);
}

TEST_F(BatchTest, EveryDialogHasItsPicture)
{
    const Outcome outcome = run({u"--dialogs"_s, path("pictures")});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    for (const sdk::ui::dialogs::DialogEntry& entry : sdk::ui::dialogs::dialogRegistry()) {
        EXPECT_GT(colorCount(QImage(path("pictures/") + entry.name() + u".png"_s)), 8) << entry.name().toStdString();
    }
}

} // namespace
} // namespace vantrix::test
