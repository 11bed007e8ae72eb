#include "view/AxisPainter.h"
#include "view/AxisBoxPainter.h"
#include "view/Camera3D.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>

using namespace vantrix::view;

namespace {

AxisStyle axis(double minimum, double maximum)
{
    AxisStyle style;
    style.minimum = minimum;
    style.maximum = maximum;
    style.title.words = "Title";
    return style;
}

PlotStyle flatPlot(const AxisStyle& x, const AxisStyle& y)
{
    PlotStyle plot;
    plot.type = PlotType_XYLine;
    plot.axes[0] = x;
    plot.axes[1] = y;
    return plot;
}

bool isWhite(const QImage& image, const QRect& area)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

TEST(AxisPainter, KeepsNumbersAndTitlesInsideTheFrameWhateverTheRange)
{
    const std::pair<double, double> ranges[] = {{0, 1}, {-1e9, 1e9}, {1e9, 1e9 + 1e-3}, {-1e-7, 3e-7}, {99990, 100010}};
    for (const auto& [minimum, maximum] : ranges) {
        for (const QSize size : {QSize(900, 800), QSize(360, 300)}) {
            for (const bool hasMore : {false, true}) {
                PlotStyle plot = flatPlot(axis(minimum, maximum), axis(minimum, maximum));
                if (hasMore) {
                    for (const std::size_t kind : {0U, 1U}) {
                        plot.moreAxes.push_back({kind, 2, axis(0.0, 2e-5)});
                        plot.moreAxes.push_back({kind, 3, axis(0.0, 1000.0)});
                        plot.moreAxes[plot.moreAxes.size() - 2].style.line.alignment = AxisAlignment_GridMax;
                    }
                }
                QImage image(size, QImage::Format_ARGB32_Premultiplied);
                image.fill(Qt::white);
                QPainter painter(&image);
                const Canvas canvas(painter, size.width() / 9.0);
                AxisPainter axes(canvas, size.height() / canvas.inch, plot);
                const QRectF room{QPointF(), QSizeF(size)};
                const QRectF area = axes.layOut(room, room);
                axes.paintFront();
                SCOPED_TRACE(testing::Message() << minimum << " to " << maximum << " in " << size.width()
                                                << (hasMore ? " with more axes" : ""));
                EXPECT_GT(area.width(), 0.4 * size.width());
                EXPECT_GT(area.height(), 0.4 * size.height());
                EXPECT_TRUE(isWhite(image, QRect(0, 0, size.width(), 1)));
                EXPECT_TRUE(isWhite(image, QRect(0, size.height() - 1, size.width(), 1)));
                EXPECT_TRUE(isWhite(image, QRect(0, 0, 1, size.height())));
                EXPECT_TRUE(isWhite(image, QRect(size.width() - 1, 0, 1, size.height())));
                EXPECT_FALSE(isWhite(image, QRect(0, 0, int(area.left()) - 2, size.height())));
            }
        }
    }
}

TEST(AxisPainter, KeepsTheProportionOfDependentAxes)
{
    QImage image(900, 800, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const Canvas canvas(painter, 100.0);
    PlotStyle plot = flatPlot(axis(0, 4), axis(0, 1));
    plot.xToYRatio = 1.0;
    plot.area.left = 0.2;
    plot.area.right = 0.5;
    plot.area.bottom = 0.2;
    plot.area.top = 0.8;
    const QRectF room(0.0, 0.0, 900.0, 800.0);
    AxisPainter shaped(canvas, 8.0, plot);
    const QRectF narrow = shaped.layOut(room, room);
    EXPECT_NEAR(narrow.height() / narrow.width(), 0.25, 0.01);
    EXPECT_TRUE(QRectF(180.0, 160.0, 270.0, 480.0).adjusted(-1, -1, 1, 1).contains(narrow));

    plot.keepsAxisLengths = true;
    AxisPainter widened(canvas, 8.0, plot);
    const QRectF whole = widened.layOut(room, room);
    EXPECT_GT(whole.height(), 400.0);
    const double xRange = widened.xScale().maximum() - widened.xScale().minimum();
    const double yRange = widened.yScale().maximum() - widened.yScale().minimum();
    EXPECT_NEAR(whole.width() / xRange, whole.height() / yRange, 0.01 * whole.width());
    EXPECT_NEAR(xRange, 4.0, 1e-9) << "what was to be seen is still seen";
}

TEST(AxisPainter, PutsAnAxisWhereItsStyleSays)
{
    struct Case
    {
        AxisAlignment_e alignment;
        double position;
        double opposingValue;
        double expected; /* height of the X axis, as part of the area from its lower border */
    };
    for (const Case& one : {Case{AxisAlignment_GridMin, 0, 0, 0.0},
                            {AxisAlignment_GridMax, 0, 0, 1.0},
                            {AxisAlignment_OpposingAxisValue, 0, 2.5, 0.25},
                            {AxisAlignment_Viewport, 50, 0, 0.5}}) {
        PlotStyle plot = flatPlot(axis(0, 1), axis(0, 10));
        plot.axes[0].line.color = Qt::red;
        plot.axes[0].line.alignment = one.alignment;
        plot.axes[0].line.position = one.position;
        plot.axes[0].line.opposingValue = one.opposingValue;
        plot.axes[1].isShown = false;
        plot.area.left = plot.area.bottom = 0.2;
        plot.area.right = plot.area.top = 0.8;
        QImage image(500, 500, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        const Canvas canvas(painter, 100.0);
        AxisPainter axes(canvas, 5.0, plot);
        const QRectF room(0.0, 0.0, 500.0, 500.0);
        const QRectF area = axes.layOut(room, room);
        axes.paintFront();
        int found = -1;
        for (int y = 0; y < 500 && found < 0; ++y) {
            if (image.pixelColor(int(area.center().x()) + 17, y).saturation() > 150) {
                found = y;
            }
        }
        EXPECT_NEAR((area.bottom() - found) / area.height(), one.expected, 0.01) << int(one.alignment);
    }
}

TEST(AxisBoxPainter, PutsAxesOnTheOutlineOfTheBox)
{
    QImage image(900, 800, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const Canvas canvas(painter, 100.0);
    const Box3 box{{0.0, 0.0, 0.0}, {2.0, 3.0, 1.0}};
    const QRectF picture(0.0, 0.0, 900.0, 800.0);
    for (int theta = 5; theta < 360; theta += 20) {
        for (const double psi : {20.0, 60.0, 120.0}) {
            View3D view;
            view.theta = theta;
            view.psi = psi;
            const Camera3D camera(view, box, 900.0 / 800.0, 0.1);
            PlotStyle plot;
            plot.type = PlotType_Cartesian3D;
            plot.axes = {axis(0, 2), axis(0, 3), axis(0, 1)};
            const AxisBoxPainter axes(canvas, 8.0, plot, camera, picture);
            for (std::size_t i = 0; i < 3; ++i) {
                const AxisBoxPainter::Edge edge = axes.edge(i);
                if (!edge.isUsable) {
                    continue;
                }
                // No corner of the box lies on the side that the ticks point to.
                for (int corner = 0; corner < 8; ++corner) {
                    const QPointF point = camera.project(box.corner(corner));
                    const QPointF place = picture.center() + QPointF(point.x(), -point.y()) * picture.width();
                    EXPECT_LE(QPointF::dotProduct(place - edge.from, edge.outward), 1e-6)
                        << "axis " << i << " theta " << theta << " psi " << psi;
                }
            }
        }
    }
}

TEST(AxisBoxPainter, CutsNeitherTitlesNorTheSmallAxesOffAtTheBorder)
{
    const Box3 box{{0.0, 0.0, 0.0}, {4.0, 4.0, 1.0}};
    PlotStyle plot;
    plot.type = PlotType_Cartesian3D;
    plot.axes = {axis(0, 4), axis(0, 4), axis(0, 1)};
    plot.axes[0].isShown = plot.axes[1].isShown = false;
    plot.axes[2].title.words = "Height";
    plot.axes[2].title.text.color = Qt::red;
    plot.tripod.isShown = true;
    plot.tripod.color = Qt::blue;
    // The picture lies in the middle of the image, so that what reaches beyond it is seen.
    const QRectF picture(80.0, 80.0, 400.0, 300.0);
    for (const double margin : {0.01, 0.03, 0.2}) {
        for (const int theta : {20, 75, 200, 310}) {
            plot.tripod.position = theta < 100 ? QPointF(0.0, 1.0) : QPointF(0.95, 0.9);
            View3D view;
            view.theta = theta;
            QImage image(560, 460, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::white);
            QPainter painter(&image);
            const Canvas canvas(painter, 100.0);
            const Camera3D camera(view, box, 4.0 / 3.0, margin);
            AxisBoxPainter(canvas, 3.0, plot, camera, picture).paintAxes();
            painter.end();
            int inside = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QColor color = image.pixelColor(x, y);
                    const bool isTitle = color.red() > 200 && color.green() < 128;
                    const bool isTripod = color.blue() > 200 && color.red() < 128;
                    if (picture.contains(QPointF(x + 0.5, y + 0.5))) {
                        inside += isTitle;
                    } else {
                        ASSERT_FALSE(isTitle || isTripod) << x << ' ' << y << ", " << margin << ' ' << theta;
                    }
                }
            }
            EXPECT_GT(inside, 10) << margin << ' ' << theta;
        }
    }
}
