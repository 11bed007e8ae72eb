#include "view/AxisPainter.h"
#include "view/AxisBoxPainter.h"

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
    style.title = "Title";
    return style;
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
            QImage image(size, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::white);
            QPainter painter(&image);
            const Canvas canvas(painter, size.width() / 9.0);
            const PlotMeasures measures = PlotMeasures::forFrame({9.0, 8.0});
            const AxisPainter axes(canvas, measures, axis(minimum, maximum), axis(minimum, maximum));
            const QRectF room{QPointF(), QSizeF(size)};
            const QRectF area = axes.plotArea(room, room, 0.0);
            axes.paintAxes(area);
            SCOPED_TRACE(testing::Message() << minimum << " to " << maximum << " in " << size.width());
            EXPECT_GT(area.width(), 0.5 * size.width());
            EXPECT_GT(area.height(), 0.5 * size.height());
            EXPECT_TRUE(isWhite(image, QRect(0, 0, size.width(), 1)));
            EXPECT_TRUE(isWhite(image, QRect(0, size.height() - 1, size.width(), 1)));
            EXPECT_TRUE(isWhite(image, QRect(0, 0, 1, size.height())));
            EXPECT_TRUE(isWhite(image, QRect(size.width() - 1, 0, 1, size.height())));
            EXPECT_FALSE(isWhite(image, QRect(0, 0, int(area.left()) - 2, size.height())));
        }
    }
}

TEST(AxisPainter, KeepsTheShapeOfDependentAxes)
{
    QImage image(900, 800, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const Canvas canvas(painter, 100.0);
    const AxisPainter axes(canvas, PlotMeasures::forFrame({9.0, 8.0}), axis(0, 4), axis(0, 1));
    const QRectF room(0.0, 0.0, 900.0, 800.0);
    const QRectF area = axes.plotArea(room, room, 0.25);
    EXPECT_NEAR(area.height() / area.width(), 0.25, 1e-9);
    const QRectF viewport(200.0, 100.0, 300.0, 300.0);
    EXPECT_TRUE(viewport.contains(axes.plotArea(room, viewport, 0.0)));
}

TEST(AxisBoxPainter, PutsAxesOnTheOutlineOfTheBox)
{
    QImage image(900, 800, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const Canvas canvas(painter, 100.0);
    const Box3 box{{0.0, 0.0, 0.0}, {2.0, 3.0, 1.0}};
    const QRectF picture(0.0, 0.0, 900.0, 800.0);
    for (double theta = 5.0; theta < 360.0; theta += 20.0) {
        for (const double psi : {20.0, 60.0, 120.0}) {
            View3D view;
            view.theta = theta;
            view.psi = psi;
            const Camera3D camera(view, box, 900.0 / 800.0, 0.1);
            const AxisBoxPainter axes(canvas, PlotMeasures::forFrame({9.0, 8.0}), {axis(0, 2), axis(0, 3), axis(0, 1)},
                                      camera, {1.0, 1.0, 1.0}, picture);
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
