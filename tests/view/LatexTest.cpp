#include "view/TextPainter.h"
#include "view/latex/LatexPictures.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <csignal>

using namespace vantrix;
using testing::HasSubstr;

namespace {

/* Programs of our own in place of `latex` and `dvipng`; each adds a line to a log. */
class LatexTest : public testing::Test
{
protected:
    LatexTest()
        : m_path(qgetenv("PATH"))
    {
        qputenv("PATH", m_folder.path().toLocal8Bit());
        QImage picture(40, 20, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        picture.save(m_folder.filePath(QStringLiteral("picture.png")));
    }
    ~LatexTest() override { qputenv("PATH", m_path); }

    void install(const char* name, const QByteArray& script)
    {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\necho " + QByteArray(name) + " $openin_any \"$@\" >> " + log().toLocal8Bit() + "\n" +
                   script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void installBoth()
    {
        install("latex", "/bin/cp text.tex text.dvi\n");
        install("dvipng", "/bin/cp " + m_folder.filePath(QStringLiteral("picture.png")).toLocal8Bit() + " text.png\n");
    }

    QString log() const { return m_folder.filePath(QStringLiteral("log")); }
    std::string logged() const
    {
        QFile file(log());
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }

    static std::string errorOf(view::LatexCompiler& compiler)
    {
        try {
            compiler.picture(QStringLiteral("$x$"), Qt::black, 100);
        } catch (const view::LatexError& error) {
            return error.what();
        }
        return {};
    }

    QTemporaryDir m_folder;
    QByteArray m_path;
    view::LatexCompiler m_compiler;
};

} // namespace

TEST_F(LatexTest, TellsWhichProgramIsMissing)
{
    EXPECT_THAT(errorOf(m_compiler), HasSubstr("\"latex\", which is not in the PATH"));
    install("latex", "/bin/cp text.tex text.dvi\n");
    EXPECT_THAT(errorOf(m_compiler), HasSubstr("\"dvipng\", which is not in the PATH"));
}

TEST_F(LatexTest, TellsWhatIsWrongWithTheSourceAndInWhichLine)
{
    install("latex", "echo 'This is a TeX'\necho './text.tex:7: Undefined control sequence.'\n"
                     "printf '%s\\n' 'l.7 \\nosuch'\necho '           {x}'\nexit 1\n");
    EXPECT_EQ(errorOf(m_compiler), "LaTeX, line 2: Undefined control sequence. (\\nosuch)");
    install("latex", "echo '! Emergency stop.'\nexit 1\n");
    EXPECT_EQ(errorOf(m_compiler), "LaTeX, Emergency stop.");
    install("latex", "exit 0\n");
    EXPECT_THAT(errorOf(m_compiler), HasSubstr("made no page"));
}

TEST_F(LatexTest, StopsAProgramThatDoesNotEnd)
{
    install("latex", "echo $$ > " + m_folder.filePath(QStringLiteral("pid")).toLocal8Bit() + "\nexec /bin/sleep 600\n");
    view::LatexCompiler impatient(2000);
    EXPECT_THAT(errorOf(impatient), HasSubstr("longer than 2 seconds"));
    QFile pid(m_folder.filePath(QStringLiteral("pid")));
    ASSERT_TRUE(pid.open(QIODevice::ReadOnly));
    EXPECT_EQ(kill(pid.readAll().trimmed().toInt(), 0), -1) << "the program still runs";
}

TEST_F(LatexTest, ConfinesTheProgramsAndKeepsWhatTheyMade)
{
    installBoth();
    const QString source = QStringLiteral("$x$");
    EXPECT_EQ(m_compiler.picture(source, Qt::red, 100).size(), QSize(40, 20));
    EXPECT_THAT(logged(), HasSubstr("latex p -no-shell-escape"));
    EXPECT_THAT(logged(), HasSubstr("-D 100 -bg Transparent -fg rgb 1 0 0"));
    m_compiler.picture(source, Qt::red, 200);
    const std::string twice = logged();
    EXPECT_EQ(twice.find("latex"), twice.rfind("latex")) << "another size needs no LaTeX:\n" << twice;

    std::vector<QString> told;
    view::LatexPictures pictures([&](const QString& error) { told.push_back(error); });
    const int first = pictures.picture(source, Qt::red, 20.0).dpi;
    const std::string before = logged();
    EXPECT_EQ(pictures.picture(source, Qt::red, 19.0).dpi, first);
    EXPECT_EQ(logged(), before) << "nearly the same size";
    EXPECT_EQ(pictures.picture(source, Qt::red, 40.0).dpi, 2 * first);

    install("dvipng", "exit 1\n");
    pictures.picture(source, Qt::blue, 20.0);
    pictures.picture(QStringLiteral("$y$"), Qt::blue, 20.0);
    EXPECT_EQ(told.size(), 1U) << "the same error";
    const std::string failed = logged();
    installBoth();
    EXPECT_FALSE(pictures.picture(source, Qt::blue, 20.0).error.isEmpty()) << "not tried at each painting";
    EXPECT_FALSE(pictures.picture(source, Qt::green, 80.0).error.isEmpty()) << "in no colour and size";
    EXPECT_EQ(logged(), failed);
    EXPECT_TRUE(pictures.picture(source, Qt::red, 20.0).error.isEmpty()) << "made before";
    pictures.forgetErrors();
    EXPECT_TRUE(pictures.picture(source, Qt::blue, 20.0).error.isEmpty());
}

TEST_F(LatexTest, ATextShowsThePictureOrItsSource)
{
    view::LatexPictures pictures([](const QString&) {});
    QImage image(800, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const view::Canvas canvas(painter, 100.0);
    kernel::Text text;
    text.text = "$x$";
    text.type = TextType_LaTeX;
    text.x = text.y = 20.0;
    text.height = 10.0;
    const QRectF frame(100.0, 50.0, 600.0, 500.0);
    const view::FramePlot plot;
    const QSizeF plain = view::TextPainter(canvas, frame, plot, text, &pictures).outline().boundingRect().size();
    installBoth();
    pictures.forgetErrors();
    const view::TextPainter set(canvas, frame, plot, text, &pictures);
    const QSizeF size = set.outline().boundingRect().size();
    EXPECT_NE(size, plain);
    EXPECT_NEAR(size.width(), 2.0 * size.height(), 1e-6);
    const double capitals = 50.0; // 10 % of the frame
    EXPECT_NEAR(size.height(), 20.0 / 600.0 * capitals / view::LatexCompiler::capitalHeight, 1e-6) << "600 dpi";
    set.paint();
    EXPECT_EQ(image.pixelColor(QPointF(222.0, 448.0).toPoint()), QColor(Qt::red));
}
