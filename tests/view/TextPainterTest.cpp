#include "view/TextPainter.h"

#include <gtest/gtest.h>

#include <QImage>

using namespace vantrix;

namespace {

constexpr double inch = 100.0;

class TextPainterTest : public testing::Test
{
protected:
    QPolygonF outline() { return view::TextPainter(canvas, frame, plot, text).outline(); }

    QImage image{QSize(800, 600), QImage::Format_RGB32};
    QPainter painter{&image};
    view::Canvas canvas{painter, inch};
    QRectF frame{100.0, 50.0, 600.0, 500.0};
    view::FramePlot plot;
    kernel::Text text;
};

} // namespace

TEST_F(TextPainterTest, AnchorsSizesAndTurnsATextInTheFrame)
{
    text.text = "Text";
    text.x = 50.0;
    text.y = 20.0;
    text.height = 10.0;
    const QRectF box = outline().boundingRect();
    EXPECT_NEAR(box.left(), 400.0, 1e-6);
    EXPECT_NEAR(box.bottom(), 450.0, 1e-6);
    EXPECT_NEAR(box.height(), 50.0, 1.5) << "a capital letter has the height asked for";

    text.anchor = TextAnchor_TopRight;
    EXPECT_NEAR(outline().boundingRect().right(), 400.0, 1e-6);
    EXPECT_NEAR(outline().boundingRect().top(), 450.0, 1e-6);
    text.anchor = TextAnchor_MiddleCenter;
    EXPECT_NEAR(outline().boundingRect().center().x(), 400.0, 1e-6);

    text.angle = 90.0;
    const QRectF turned = outline().boundingRect();
    EXPECT_NEAR(turned.width(), box.height(), 1e-6);
    EXPECT_NEAR(turned.height(), box.width(), 1e-6);

    text.angle = 0.0;
    text.box = TextBox_Hollow;
    text.boxMargin = 100.0;
    EXPECT_NEAR(outline().boundingRect().width(), box.width() + 100.0, 3.0);
    text.sizeUnits = Units_Point;
    text.height = 36.0;
    text.box = TextBox_None;
    EXPECT_NEAR(outline().boundingRect().height(), 50.0, 1.5) << "half an inch";
    text.text = "Two\nlines";
    EXPECT_GT(outline().boundingRect().height(), 90.0);
}

TEST_F(TextPainterTest, FollowsTheDataOfTheAxes)
{
    text.text = "Text";
    text.coordSys = CoordSys_Grid;
    text.x = 5.0;
    text.y = 1.0;
    EXPECT_TRUE(outline().isEmpty()) << "there are no axes to measure by";
    plot.x = view::AxisScale(0.0, 10.0);
    plot.y = view::AxisScale(0.0, 4.0);
    plot.area = QRectF(1.0, 1.0, 4.0, 2.0); // inches
    const QRectF box = outline().boundingRect();
    EXPECT_NEAR(box.left(), 100.0 + 300.0, 1e-6);
    EXPECT_NEAR(box.bottom(), 50.0 + 300.0 - 50.0, 1e-6);
    text.sizeUnits = Units_Grid;
    text.height = 1.0;
    EXPECT_NEAR(outline().boundingRect().height(), 50.0, 1.5);
    text.coordSys = CoordSys_Grid3D;
    EXPECT_TRUE(outline().isEmpty());
}

TEST_F(TextPainterTest, PaintsInItsColourAndFillsItsBox)
{
    image.fill(Qt::white);
    text.text = "MMM";
    text.x = 50.0;
    text.y = 50.0;
    text.height = 20.0;
    text.color = 1;
    text.box = TextBox_Filled;
    text.boxFillColor = 3;
    view::TextPainter(canvas, frame, plot, text).paint();
    int red = 0;
    int blue = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            red += image.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
            blue += image.pixelColor(x, y) == QColor(Qt::blue) ? 1 : 0;
        }
    }
    EXPECT_GT(red, 1000);
    EXPECT_GT(blue, 1000);
}
