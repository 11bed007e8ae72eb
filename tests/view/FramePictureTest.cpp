#include "kernel/ApplicationLock.h"
#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/Kernel.h"
#include "view/FramePlot.h"
#include "view/PageRenderer.h"
#include "view/ShownSample.h"

#include <QPainter>
#include <gtest/gtest.h>

using namespace vantrix;

namespace {

/* A line plot with an empty frame beside it, the active one, and a renderer that paints both as on a screen. */
class FramesOnScreen : public testing::Test
{
protected:
    FramesOnScreen()
        : sample("lines", PlotType_XYLine)
        , renderer(sample.kernel)
        , lines(sample.frame().id())
    {
        change([&] { empty = sample.kernel.document().addFrame()->id(); });
        moveTo(empty, 6.0);
        moveTo(lines, 0.5);
    }

    template<class Change>
    void change(Change make)
    {
        sample.kernel.lock().start(true);
        make();
        sample.kernel.lock().finish();
    }
    void set(long frame, const char* path, const kernel::StyleData& value)
    {
        kernel::StyleStore& style = sample.kernel.style();
        change([&] { ASSERT_EQ(style.setOf(frame, style.entry(path), -1, -1, value), SetValueReturnCode_Ok) << path; });
    }
    void moveTo(long frame, double left)
    {
        set(frame, "FrameLayout/Width", 4.0);
        set(frame, "FrameLayout/XYPos/X", left);
    }

    QImage screen(view::PageRenderer& by, QPointF origin = {}, double pixelRatio = 1.0) const
    {
        QImage image(QSize(660, 510) * pixelRatio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(pixelRatio);
        image.fill(Qt::gray);
        QPainter painter(&image);
        painter.translate(origin);
        by.paintFrames(painter, *sample.kernel.document().activePage(), 60.0);
        return image;
    }
    QImage screen() { return screen(renderer); }

    /* By a renderer that has kept nothing. */
    QImage fresh(QPointF origin = {}, double pixelRatio = 1.0) const
    {
        view::PageRenderer other(sample.kernel);
        return screen(other, origin, pixelRatio);
    }

    ShownSample sample;
    view::PageRenderer renderer;
    long lines;
    long empty = 0;
};

} // namespace

TEST_F(FramesOnScreen, ArePaintedAnewOnlyWhenTheyChange)
{
    const QImage first = screen();
    EXPECT_EQ(screen(), first);
    EXPECT_EQ(renderer.paintCount(lines), 1);
    EXPECT_EQ(renderer.paintCount(empty), 1);

    set(empty, "FrameLayout/BackgroundColor", 1L);
    const QImage coloured = screen();
    EXPECT_NE(coloured, first);
    EXPECT_EQ(coloured, fresh());
    EXPECT_EQ(renderer.paintCount(empty), 2);

    moveTo(empty, 5.5);
    EXPECT_EQ(screen(), fresh()) << "another place has the same picture";
    EXPECT_EQ(renderer.paintCount(empty), 2);
    change([&] { sample.kernel.document().raiseFrame(lines); });
    EXPECT_EQ(screen(), fresh());
    EXPECT_TRUE(sample.kernel.document().setActiveFrame(lines));
    EXPECT_EQ(screen(), fresh());
    EXPECT_EQ(renderer.paintCount(lines), 1);

    kernel::Text words;
    words.text = "New";
    words.x = 20.0;
    words.y = 50.0;
    change([&] { sample.kernel.texts().add(sample.frame(), words); });
    EXPECT_EQ(screen(), fresh());
    EXPECT_EQ(renderer.paintCount(lines), 2);
    set(lines, "FrameLayout/BorderThickness", 4.0);
    EXPECT_EQ(screen(), fresh()) << "the border has an outer half";
    EXPECT_EQ(renderer.paintCount(lines), 3);
    EXPECT_EQ(renderer.paintCount(empty), 2);
    renderer.forgetLatexErrors();
    EXPECT_EQ(screen(), fresh());
    EXPECT_EQ(renderer.paintCount(lines), 4) << "its LaTeX texts can have a picture now";
}

TEST_F(FramesOnScreen, ArePaintedAnewWhereAnotherPartIsSeenOrAtAnotherResolution)
{
    screen(renderer);
    for (const QPointF origin :
         {QPointF(13.0, -7.0), QPointF(-100.0, 40.0), QPointF(12.4, 3.7), QPointF(-900.0, 0.0)}) {
        EXPECT_EQ(screen(renderer, origin), fresh(origin)) << origin.x();
    }
    for (const double ratio : {2.0, 1.5}) {
        EXPECT_EQ(screen(renderer, {10.0, 10.0}, ratio), fresh({10.0, 10.0}, ratio));
    }
    const long painted = renderer.paintCount(lines);
    screen(renderer, {10.0, 10.0}, 1.5);
    screen(renderer, {20.0, 30.0}, 1.5);
    EXPECT_EQ(renderer.paintCount(lines), painted);
}

TEST_F(FramesOnScreen, AreFoundByThePlaceOnTheScreenAfterAPictureWasExported)
{
    screen();
    const QRectF area = renderer.plot(lines)->area;
    renderer.frameImage(*sample.kernel.document().frameById(lines), 90);
    EXPECT_NE(renderer.plot(lines)->area, area);
    screen();
    EXPECT_EQ(renderer.plot(lines)->area, area);
}
