#include "view/AxisPainter.h"
#include "view/LinePlot.h"
#include "view/PolarAxisPainter.h"

#include "kernel/DataSet.h"
#include "kernel/FieldValues.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vantrix;
using namespace vantrix::view;

namespace {

constexpr int imageSize = 400;

/* One zone with two variables. */
kernel::DataSet dataSet(const std::vector<std::pair<double, double>>& points)
{
    kernel::DataSet data(1);
    data.variables = {{"x", true}, {"y", true}};
    kernel::Zone zone = kernel::Zone::ordered("line", long(points.size()), 1, 1);
    for (int variable = 0; variable < 2; ++variable) {
        auto values = kernel::makeValues(FieldDataType_Double, long(points.size()));
        for (std::size_t i = 0; i < points.size(); ++i) {
            values->SetComponent(vtkIdType(i), 0, variable == 0 ? points[i].first : points[i].second);
        }
        zone.fields.push_back({values, ValueLocation_Nodal, {}});
    }
    data.addZone(std::move(zone));
    return data;
}

PlotStyle lineStyle()
{
    PlotStyle plot;
    plot.type = PlotType_XYLine;
    LineMapStyle map;
    map.zone = map.xVariable = 1;
    map.yVariable = 2;
    map.color = Qt::red;
    map.thickness = 1.0;
    plot.lineMaps.push_back(map);
    return plot;
}

/* The line maps of a plot whose data 0 to 1 fill the middle of the image, 100 to 300 in both directions. */
QImage painted(const kernel::DataSet& data, const PlotStyle& plot)
{
    QImage image(imageSize, imageSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    const Canvas canvas(painter, 100.0);
    LinePlot(canvas, 4.0, data, plot).paint({100, 100, 200, 200}, {}, [](const LineMapStyle&) {
        return [](double x, double y) { return QPointF(100.0 + 200.0 * x, 300.0 - 200.0 * y); };
    });
    return image;
}

bool isRed(const QImage& image, int x, int y)
{
    const QColor color = image.pixelColor(x, y);
    return color.red() > 200 && color.green() < 120;
}

int redPixels(const QImage& image, const QRect& area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += isRed(image, x, y);
        }
    }
    return count;
}

} // namespace

TEST(LineMapDrawing, StaysInsideOfTheAxesAndLeavesGapsAtMissingValues)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QImage image = painted(dataSet({{-3, 0.5}, {0.3, 0.5}, {0.5, nan}, {0.7, 0.5}, {9, 0.5}}), lineStyle());
    EXPECT_TRUE(isRed(image, 105, 200));
    EXPECT_FALSE(isRed(image, 200, 200)) << "a value is missing there";
    EXPECT_TRUE(isRed(image, 290, 200));
    const int inside = redPixels(image, QRect(100, 100, 200, 200));
    EXPECT_EQ(redPixels(image, image.rect()), inside);
}

TEST(LineMapDrawing, LeavesBlankedPointsOut)
{
    const kernel::DataSet data = dataSet({{0, 0.5}, {0.5, 0.9}, {0.9, 0.5}, {1.0, 0.1}});
    PlotStyle plot = lineStyle();
    plot.lineMaps[0].hasSymbols = true;
    plot.lineMaps[0].symbol.color = Qt::red;
    plot.blanking.constraints = {{2, RelOp_GreaterThan, 0, 0.6}, {1, RelOp_GreaterThan, 0, 0.95}};
    const QImage image = painted(data, plot);
    EXPECT_EQ(redPixels(image, QRect(100, 100, 200, 90)), 0);
    EXPECT_TRUE(isRed(image, 200, 200)) << "the line goes on to the next point";
    EXPECT_EQ(redPixels(image, QRect(290, 100, 110, 200)), 0);
}

TEST(LineMapDrawing, FollowsPatternThicknessAndColor)
{
    const kernel::DataSet data = dataSet({{0, 0.5}, {1, 0.5}});
    PlotStyle plot = lineStyle();
    const int solid = redPixels(painted(data, plot), QRect(0, 0, imageSize, imageSize));
    plot.lineMaps[0].pattern = LinePattern_Dashed;
    plot.lineMaps[0].patternLength = 10.0;
    const int dashed = redPixels(painted(data, plot), QRect(0, 0, imageSize, imageSize));
    EXPECT_LT(dashed, 0.8 * solid);
    EXPECT_GT(dashed, 0.4 * solid);
    plot.lineMaps[0].pattern = LinePattern_Solid;
    plot.lineMaps[0].thickness = 2.0;
    EXPECT_NEAR(redPixels(painted(data, plot), QRect(0, 0, imageSize, imageSize)), 2.0 * solid, 0.1 * solid);
    plot.lineMaps[0].hasLines = false;
    EXPECT_EQ(redPixels(painted(data, plot), QRect(0, 0, imageSize, imageSize)), 0);
}

TEST(LineMapDrawing, PutsSymbolsAtEveryPointThatIsNotSkipped)
{
    std::vector<std::pair<double, double>> points;
    for (int i = 0; i <= 10; ++i) {
        points.emplace_back(0.1 * i, 0.5);
    }
    PlotStyle plot = lineStyle();
    LineMapStyle& map = plot.lineMaps[0];
    map.hasLines = false;
    map.hasSymbols = true;
    map.symbol.color = map.symbol.fill = Qt::red;
    map.symbol.isFilled = true;
    map.skip = 5;
    for (int shape = GeomShape_Square; shape <= GeomShape_Point; ++shape) {
        map.symbol.shape = static_cast<GeomShape_e>(shape);
        const QImage image = painted(dataSet(points), plot);
        EXPECT_TRUE(isRed(image, 200, 200)) << shape;
        EXPECT_GT(redPixels(image, QRect(100, 190, 8, 20)), 0) << shape;
        EXPECT_EQ(redPixels(image, QRect(112, 100, 76, 200)), 0) << shape << ": the points between are skipped";
    }
    map.symbol.character = "W";
    EXPECT_GT(redPixels(painted(dataSet(points), plot), QRect(190, 190, 20, 20)), 5);
}

TEST(LineMapDrawing, OfPolarPlotsIsCutOffAtTheSectorUnlessTheAxesSayOtherwise)
{
    PlotStyle plot = lineStyle();
    plot.type = PlotType_PolarLine;
    plot.axes[0].minimum = 0.0;
    plot.axes[0].maximum = 90.0;
    for (const bool isClipped : {true, false}) {
        plot.axes[0].clipsData = plot.axes[1].clipsData = isClipped;
        QImage image(imageSize, imageSize, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        const Canvas canvas(painter, 100.0);
        PolarAxisPainter axes(canvas, 4.0, plot);
        const QRectF room(100, 100, 200, 200);
        axes.layOut(room, room);
        const QPointF inside = axes.place(45.0, 0.5);
        const QPointF outside = axes.place(-20.0, 0.5);
        const kernel::DataSet data = dataSet({{-30, 0.5}, {-20, 0.5}, {-10, 0.5}, {0, 0.5}, {45, 0.5}, {90, 0.5}});
        LinePlot(canvas, 4.0, data, plot).paint({0, 0, 400, 400}, axes.clip(), [&](const LineMapStyle&) {
            return [&](double theta, double r) { return axes.place(theta, r); };
        });
        EXPECT_GT(redPixels(image, QRect(inside.toPoint() - QPoint(4, 4), QSize(9, 9))), 0);
        EXPECT_EQ(redPixels(image, QRect(outside.toPoint() - QPoint(4, 4), QSize(9, 9))) == 0, isClipped);
    }
}

TEST(PolarAxisPainter, KeepsNumbersAndTitlesInsideTheFrame)
{
    for (const auto& [from, to] : {std::pair(0.0, 360.0), {0.0, 90.0}, {-30.0, 30.0}, {100.0, 260.0}}) {
        for (const AxisAlignment_e alignment :
             {AxisAlignment_GridMin, AxisAlignment_GridMax, AxisAlignment_GridAreaTop, AxisAlignment_GridAreaBottom,
              AxisAlignment_GridAreaLeft, AxisAlignment_GridAreaRight, AxisAlignment_SpecificAngle}) {
            PlotStyle plot = lineStyle();
            plot.type = PlotType_PolarLine;
            plot.axes[0].minimum = from;
            plot.axes[0].maximum = to;
            plot.axes[0].line.alignment = AxisAlignment_GridMax;
            plot.axes[0].title.words = "Theta";
            plot.axes[1].line.alignment = alignment;
            plot.axes[1].title.words = "Radius";
            QImage image(imageSize, imageSize, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::white);
            QPainter painter(&image);
            const Canvas canvas(painter, 100.0);
            PolarAxisPainter axes(canvas, 4.0, plot);
            const QRectF room(0, 0, imageSize, imageSize);
            const QRectF area = axes.layOut(room, room);
            axes.paintBehind();
            axes.paintFront();
            SCOPED_TRACE(testing::Message() << from << " to " << to << ", alignment " << alignment);
            EXPECT_GT(std::max(area.width(), area.height()), 0.4 * imageSize);
            for (int i = 0; i < imageSize; ++i) {
                ASSERT_EQ(image.pixelColor(i, 0), QColor(Qt::white));
                ASSERT_EQ(image.pixelColor(i, imageSize - 1), QColor(Qt::white));
                ASSERT_EQ(image.pixelColor(0, i), QColor(Qt::white));
                ASSERT_EQ(image.pixelColor(imageSize - 1, i), QColor(Qt::white));
            }
        }
    }
}

TEST(PolarAxisPainter, FillsNothingBesideTheSectorNorBesideTheRoom)
{
    PlotStyle plot = lineStyle();
    plot.type = PlotType_PolarLine;
    plot.axes[0].maximum = 360.0;
    plot.axes[1].line.alignment = AxisAlignment_GridMin;
    plot.axes[1].labels.erasesBehind = true;
    plot.area.isFilled = true;
    plot.area.fill = Qt::red;
    plot.area.isViewportFilled = true;
    plot.area.viewportFill = Qt::white;
    QImage image(imageSize, imageSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::green);
    QPainter painter(&image);
    const Canvas canvas(painter, 100.0);
    PolarAxisPainter axes(canvas, 4.0, plot);
    const int legend = 300; // where something else stands
    axes.layOut(QRectF(0, 0, legend, imageSize), image.rect());
    axes.paintBehind();
    axes.paintFront();
    int inside = 0;
    for (int y = 0; y < imageSize; ++y) {
        for (int x = 0; x < imageSize; ++x) {
            const QPointF from = QPointF(x, y) + QPointF(0.5, 0.5) - axes.center();
            const bool isInside = std::hypot(from.x(), from.y()) < axes.radius() + 1.5;
            ASSERT_TRUE(isInside || !isRed(image, x, y)) << x << ' ' << y;
            ASSERT_TRUE(x < legend || image.pixelColor(x, y) == QColor(Qt::green)) << x << ' ' << y;
            inside += isInside && isRed(image, x, y);
        }
    }
    EXPECT_GT(inside, 10000);
}

TEST(LineMapDrawing, LeavesOutSymbolsThatALogarithmicAxisHasNoPlaceFor)
{
    const kernel::DataSet data = dataSet({{0.25, -1.0}, {0.5, 0.0}, {0.75, 1.0}});
    PlotStyle plot = lineStyle();
    plot.lineMaps[0].hasLines = false;
    plot.lineMaps[0].hasSymbols = true;
    plot.lineMaps[0].symbol.color = Qt::red;
    QImage image(imageSize, imageSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    const Canvas canvas(painter, 100.0);
    LinePlot(canvas, 4.0, data, plot).paint({100, 100, 200, 200}, {}, [](const LineMapStyle&) {
        return [](double x, double y) { return QPointF(100.0 + 200.0 * x, 200.0 - 50.0 * std::log10(y)); };
    });
    painter.end();
    EXPECT_GT(redPixels(image, {240, 190, 20, 20}), 0);
    EXPECT_EQ(redPixels(image, {100, 100, 130, 200}), 0);
}
