#include "app/StatusLine.h"

#include "api/VtxUtil.h"
#include "app/PictureExport.h"
#include "app/ProgressBar.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "sdk/AppLock.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"
#include "toolbox/StyleValue.h"
#include "view/PageRenderer.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTemporaryDir>

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
    EXPECT_TRUE(holdsImage("monochrome"));
}
