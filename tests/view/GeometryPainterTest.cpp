#include "view/GeometryPainter.h"

#include <gtest/gtest.h>

#include <QImage>

using namespace vantrix;

namespace {

constexpr double inch = 100.0;

class GeometryPainterTest : public testing::Test
{
protected:
    GeometryPainterTest() { image.fill(Qt::white); }

    std::vector<QPolygonF> outlines() { return view::GeometryPainter(canvas, frame, plot, geometry).outlines(); }
    QRectF bounds() { return outlines().at(0).boundingRect(); }
    void paint() { view::GeometryPainter(canvas, frame, plot, geometry).paint(); }

    int count(const QColor& color) const
    {
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                found += image.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return found;
    }

    void showAxes()
    {
        plot.x = view::AxisScale(0.0, 10.0);
        plot.y = view::AxisScale(0.0, 4.0);
        plot.area = QRectF(1.0, 1.0, 4.0, 2.0); // inches
        geometry.coordSys = CoordSys_Grid;
    }

    QImage image{QSize(800, 600), QImage::Format_RGB32};
    QPainter painter{&image};
    view::Canvas canvas{painter, inch};
    QRectF frame{100.0, 50.0, 600.0, 500.0};
    view::FramePlot plot;
    kernel::Geometry geometry;
};

} // namespace

TEST_F(GeometryPainterTest, ShapesLieWhereTheirPlaceAndSizeSay)
{
    geometry.x = 50.0;
    geometry.y = 20.0;
    geometry.width = 10.0;
    geometry.height = 20.0;
    const std::pair<GeomType_e, QRectF> shapes[] = {
        {GeomType_Rectangle, {400.0, 350.0, 60.0, 100.0}},
        {GeomType_Square, {400.0, 390.0, 60.0, 60.0}},
        {GeomType_Circle, {370.0, 420.0, 60.0, 60.0}},
        {GeomType_Ellipse, {370.0, 400.0, 60.0, 100.0}},
    };
    for (const auto& [type, expected] : shapes) {
        geometry.type = type;
        EXPECT_NEAR(bounds().left(), expected.left(), 0.1) << type;
        EXPECT_NEAR(bounds().top(), expected.top(), 0.1) << type;
        EXPECT_NEAR(bounds().width(), expected.width(), 0.1) << type;
        EXPECT_NEAR(bounds().height(), expected.height(), 0.1) << type;
    }
}

TEST_F(GeometryPainterTest, FollowTheDataOfTheAxes)
{
    geometry.coordSys = CoordSys_Grid;
    geometry.points = "0 0; 5 1 / 1 1; 2 2; 3 1";
    EXPECT_TRUE(outlines().empty()) << "there are no axes to measure by";
    showAxes();
    ASSERT_EQ(outlines().size(), 2U);
    EXPECT_EQ(outlines()[1].size(), 3);
    EXPECT_NEAR(outlines()[0].last().x(), 100.0 + 300.0, 1e-6);
    EXPECT_NEAR(outlines()[0].last().y(), 50.0 + 300.0 - 50.0, 1e-6);
    geometry.type = GeomType_Circle;
    geometry.x = 5.0;
    geometry.y = 2.0;
    geometry.width = 2.0;
    EXPECT_NEAR(bounds().width(), 80.0, 0.1);
    EXPECT_NEAR(bounds().height(), 80.0, 0.1) << "round, though the axes differ";
    plot.y = view::AxisScale(1.0, 100.0, true);
    geometry.type = GeomType_Rectangle;
    geometry.y = -1.0;
    EXPECT_TRUE(outlines().empty()) << "not on a logarithmic axis";
    geometry.coordSys = CoordSys_Grid3D;
    geometry.type = GeomType_Line;
    EXPECT_TRUE(outlines().empty());
}

TEST_F(GeometryPainterTest, PaintsLineFillAndArrowheads)
{
    geometry.type = GeomType_Rectangle;
    geometry.x = 20.0;
    geometry.y = 20.0;
    geometry.color = 1;
    geometry.lineThickness = 1.0;
    paint();
    const int outline = count(Qt::red);
    EXPECT_GT(outline, 200);
    geometry.isFilled = true;
    geometry.fillColor = 3;
    paint();
    EXPECT_GT(count(Qt::blue), 2000);

    image.fill(Qt::white);
    geometry = {};
    geometry.color = 1;
    geometry.lineThickness = 0.4;
    geometry.points = "10 50; 80 50";
    paint();
    const int bare = count(Qt::red);
    for (const ArrowheadStyle_e style : {ArrowheadStyle_Plain, ArrowheadStyle_Filled, ArrowheadStyle_Hollow}) {
        image.fill(Qt::white);
        geometry.arrowheadStyle = style;
        geometry.arrowheadAttachment = ArrowheadAttachment_End;
        paint();
        const int one = count(Qt::red);
        geometry.arrowheadAttachment = ArrowheadAttachment_Both;
        image.fill(Qt::white);
        paint();
        EXPECT_GT(one, bare + 10) << style;
        EXPECT_GT(count(Qt::red), one + 10) << style;
    }
}

TEST_F(GeometryPainterTest, AreClippedToTheAxesWhereAsked)
{
    showAxes();
    geometry.points = "-2 2; 12 2";
    geometry.color = 1;
    geometry.lineThickness = 1.0;
    paint();
    const int whole = count(Qt::red);
    image.fill(Qt::white);
    geometry.isClipped = true;
    paint();
    EXPECT_LT(count(Qt::red), whole);
    EXPECT_GT(count(Qt::red), whole / 2);
}
