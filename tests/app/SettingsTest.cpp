#include "app/StatusLine.h"

#include "api/VtxUtil.h"
#include "app/GrayDevice.h"
#include "app/PictureExport.h"
#include "app/ProgramSettings.h"
#include "app/ProgressBar.h"
#include "app/ToolTipFilter.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/Layout.h"
#include "kernel/StyleStore.h"
#include "sdk/AppLock.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"
#include "toolbox/StyleValue.h"
#include "view/PageRenderer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>

using namespace vantrix;

namespace {

template<typename T>
void setStyle(const toolbox::StringList& path, T value)
{
    {
        const sdk::AppLock lock;
        ASSERT_EQ(toolbox::StyleValue(path).setValue(value), SetValueReturnCode_Ok);
    }
    sdk::OnIdleActionPerformerSingleShot::performPending();
}

class SettingsTest : public testing::Test
{
protected:
    SettingsTest() { kernel::Kernel::instance().reset(); }
    ~SettingsTest() override { kernel::Kernel::instance().reset(); }
};

} // namespace

TEST_F(SettingsTest, TheStatusLineShowsWhatTheStyleSays)
{
    app::StatusLine line(nullptr);
    line.show();
    const auto* coordinates = line.findChild<QLabel*>(QStringLiteral("coordinates"));
    ASSERT_TRUE(coordinates);
    EXPECT_TRUE(coordinates->isVisible());
    setStyle({"Interface", "ShowCoordinates"}, false);
    EXPECT_FALSE(coordinates->isVisible());
    setStyle({"Interface", "ShowStatusLine"}, false);
    EXPECT_FALSE(line.isVisible());
    EXPECT_TRUE(VtxUtilUndo());
    EXPECT_TRUE(VtxUtilUndo());
    sdk::OnIdleActionPerformerSingleShot::performPending();
    EXPECT_TRUE(line.isVisible());
    EXPECT_TRUE(coordinates->isVisible());
}

TEST_F(SettingsTest, StyleOfTheProgramIsThereAgainInTheNextSession)
{
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    kernel::Kernel& kernel = kernel::Kernel::instance();
    setStyle({"Interface", "UseDisplayLists"}, false);
    setStyle({"Interface", "PercentageOfPointsToKeep"}, 12.5);
    setStyle({"Paper", "ShowGrid"}, false);
    app::ProgramSettings::write(kernel.style());
    QSettings().setValue(QStringLiteral("ProgramStyle/Interface/MaxRenderTimeBeforeApprox"), -1.0);
    QSettings().setValue(QStringLiteral("ProgramStyle/Interface/NoSuchSetting"), 1);
    QSettings().setValue(QStringLiteral("ProgramStyle/Paper/ShowRuler"), 0);

    kernel.reset();
    app::ProgramSettings::read(kernel.style());
    const auto value = [&](const char* path) {
        kernel::StyleData found;
        EXPECT_EQ(kernel.style().get(kernel.style().entry(path), -1, -1, found), GetValueReturnCode_Ok) << path;
        return found;
    };
    EXPECT_EQ(value("Interface/UseDisplayLists"), kernel::StyleData(0L));
    EXPECT_EQ(value("Interface/PercentageOfPointsToKeep"), kernel::StyleData(12.5));
    EXPECT_EQ(value("Interface/MaxRenderTimeBeforeApprox"), kernel::StyleData(0.05)) << "out of range";
    EXPECT_EQ(value("Paper/ShowGrid"), kernel::StyleData(1L)) << "style of a page";
    EXPECT_EQ(value("Paper/ShowRuler"), kernel::StyleData(1L));
    EXPECT_FALSE(VtxUtilUndo());
    EXPECT_FALSE(kernel.layout().isModified());

    kernel.reset();
    app::ProgramSettings::write(kernel.style());
    app::ProgramSettings::read(kernel.style());
    EXPECT_EQ(value("Interface/UseDisplayLists"), kernel::StyleData(1L)) << "a default is kept as well";
}

TEST_F(SettingsTest, LongWorkIsToldInTheStatusLineUnlessItIsToBeQuiet)
{
    app::StatusLine line(nullptr);
    line.show();
    const auto* bar = line.findChild<QProgressBar*>();
    ASSERT_TRUE(bar);
    for (const bool told : {true, false, true}) {
        setStyle({"Interface", "ShowContinuousStatus"}, told);
        line.progressBar().report(QStringLiteral("Working"), 0.0);
        QThread::msleep(400); // short work is not told
        line.progressBar().report(QStringLiteral("Working"), 0.5);
        EXPECT_EQ(bar->isVisible(), told);
        line.progressBar().report(QStringLiteral("Working"), 1.1);
        EXPECT_FALSE(bar->isVisible());
    }
}

TEST_F(SettingsTest, PicturesHaveThePapersColorOnlyWhereItIsPrinted)
{
    view::PageRenderer renderer(kernel::Kernel::instance());
    const kernel::Page& page = *kernel::Kernel::instance().document().activePage();
    setStyle({"Paper", "BackgroundColor"}, 1L);
    EXPECT_EQ(renderer.pageImage(page, 110).pixelColor(1, 1), QColor(Qt::white));
    setStyle({"Paper", "IsTransparent"}, false);
    EXPECT_EQ(renderer.pageImage(page, 110).pixelColor(1, 1), renderer.paperColor(page));
    EXPECT_NE(renderer.paperColor(page), QColor(Qt::white));
}

TEST_F(SettingsTest, ADocumentIsAnImageWhereTheStyleSaysSo)
{
    const QTemporaryDir folder;
    view::PageRenderer renderer(kernel::Kernel::instance());
    const kernel::Page& page = *kernel::Kernel::instance().document().activePage();
    const auto holdsImage = [&](const char* what) {
        const QString path = folder.filePath(QString::fromLatin1(what) + QStringLiteral(".pdf"));
        EXPECT_EQ(app::PictureExport(renderer, page).write(path), QString());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().contains("/Subtype /Image");
    };
    EXPECT_FALSE(holdsImage("vector"));
    setStyle({"Print", "ImageResolution"}, 50L);
    setStyle({"Print", "RenderType"}, long{PrintRenderType_Image});
    EXPECT_TRUE(holdsImage("image"));
    setStyle({"Print", "RenderType"}, long{PrintRenderType_Vector});
    setStyle({"Print", "Color"}, long{Palette_Monochrome});
    EXPECT_FALSE(holdsImage("monochrome"));
    setStyle({"Print", "RenderType"}, long{PrintRenderType_Image});
    EXPECT_TRUE(holdsImage("monochrome image"));
}

TEST_F(SettingsTest, AGrayDeviceDrawsWhatItIsGivenInGray)
{
    const auto paint = [](QPainter& painter) {
        painter.fillRect(0, 0, 60, 60, QColor(250, 240, 200));
        painter.setPen(QPen(QColor(200, 0, 0), 4.0));
        painter.translate(10.0, 5.0);
        painter.drawLine(0, 0, 30, 40);
        QLinearGradient gradient(0, 0, 40, 0);
        gradient.setColorAt(0.0, Qt::blue);
        gradient.setColorAt(1.0, Qt::yellow);
        painter.setClipRect(0, 10, 40, 30);
        painter.setBrush(gradient);
        painter.drawEllipse(5, 10, 30, 30);
        QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
        image.fill(QColor(0, 120, 0, 128));
        painter.drawImage(20, 5, image);
        painter.rotate(10.0);
        painter.setPen(Qt::darkGreen);
        painter.drawText(2, 30, QStringLiteral("Text"));
    };
    QImage colored(60, 60, QImage::Format_ARGB32_Premultiplied), gray = colored;
    {
        QPainter painter(&colored);
        paint(painter);
        QPainter onto(&gray);
        app::GrayDevice device(onto);
        QPainter inGray(&device);
        paint(inGray);
    }
    for (int y = 0; y < gray.height(); ++y) {
        for (int x = 0; x < gray.width(); ++x) {
            const QColor color = gray.pixelColor(x, y);
            ASSERT_EQ(color.saturation(), 0) << x << ' ' << y;
            EXPECT_NEAR(color.red(), qGray(colored.pixel(x, y)), 3) << x << ' ' << y;
        }
    }
}

TEST_F(SettingsTest, ToolTipsStayAwayWhereTheyAreNotWanted)
{
    class Counter : public QWidget
    {
    public:
        bool event(QEvent* event) override
        {
            toolTips += event->type() == QEvent::ToolTip;
            return QWidget::event(event);
        }
        int toolTips = 0;
    };
    Counter widget;
    app::ToolTipFilter filter;
    qApp->installEventFilter(&filter);
    const auto rest = [&widget] {
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
        QApplication::sendEvent(&widget, &event);
        return widget.toolTips;
    };
    EXPECT_EQ(rest(), 1);
    setStyle({"Interface", "ShowToolTips"}, false);
    EXPECT_EQ(rest(), 1);
    setStyle({"Interface", "ShowToolTips"}, true);
    EXPECT_EQ(rest(), 2);
}
