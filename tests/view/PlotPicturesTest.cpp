#include "view/PageRenderer.h"
#include "view/ShownSample.h"

#include "kernel/Kernel.h"

#include <QImage>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

using namespace vantrix;

namespace {

constexpr int width = 720;
constexpr int block = 12; /* pixels: smaller differences, as of fonts and drivers, do not count */

struct Picture
{
    const char* name; /* of the file in docs/images/ */
    const char* sample;
    PlotType_e type;
    std::function<void(ShownSample&)> arrange;
};

const Picture pictures[] = {
    {"plot-3d", "flow3d", PlotType_Cartesian3D, {}},
    {"plot-2d", "fe2d", PlotType_Cartesian2D, {}},
    {"plot-xy", "lines", PlotType_XYLine,
     [](ShownSample& sample) {
         for (const char* axis : {"XYLineAxis/XDetail/", "XYLineAxis/YDetail/"}) {
             sample.set(axis + std::string("GridLines/Show"), 1L, 1);
         }
         sample.set("LineMap/Assignment/YAxisVar", 4L, 1);
         sample.set("LineMap/Assignment/YAxis", 2L, 1);
         sample.set("LineMap/Name", std::string("Energy, 0.02"), 1);
         sample.set("LineMap/Lines/LinePattern", long{LinePattern_Dashed}, 1);
         sample.set("XYLineAxis/YDetail/RangeMax", 8.0, 2);
         sample.set("LinePlotLayers/ShowSymbols", 1L);
         for (long map = 1; map <= 4; ++map) {
             sample.set("LineMap/Symbols/Show", long{map == 3}, map);
         }
         sample.set("LineMap/Symbols/Skip", 15L, 3);
         sample.set("LineMap/Symbols/IsFilled", 1L, 3);
         sample.set("LineMap/Symbols/SymbolShape/GeomShape", long{GeomShape_Diamond}, 3);
     }},
    {"plot-polar", "polar", PlotType_PolarLine, {}},
    {"plot-sketch", "lines", PlotType_Sketch,
     [](ShownSample& sample) {
         for (const char* axis : {"SketchAxis/XDetail/", "SketchAxis/YDetail/"}) {
             sample.set(axis + std::string("ShowAxis"), 1L);
             sample.set(axis + std::string("GridLines/Show"), 1L);
             sample.set(axis + std::string("MinorGridLines/Show"), 1L);
         }
     }},
};

/* The means of blocks of pixels. */
QImage blocks(const QImage& image)
{
    return image.convertToFormat(QImage::Format_RGB32)
        .scaled(image.width() / block, image.height() / block, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/* The part of the blocks that differ to be seen. */
double difference(const QImage& one, const QImage& other)
{
    const QImage first = blocks(one);
    const QImage second = blocks(other);
    if (first.size() != second.size()) {
        return 1.0;
    }
    int count = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QColor a = first.pixelColor(x, y);
            const QColor b = second.pixelColor(x, y);
            const int distance =
                std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
            count += distance > 40;
        }
    }
    return double(count) / (first.width() * first.height());
}

QImage rendered(const Picture& picture)
{
    ShownSample sample(picture.sample, picture.type);
    if (picture.arrange) {
        picture.arrange(sample);
    }
    view::PageRenderer renderer(sample.kernel);
    return renderer.frameImage(sample.frame(), width);
}

} // namespace

/*
 * The pictures of the README. With VX_WRITE_PICTURES set, the present ones are written; they are to be looked at before
 * they are committed.
 */
TEST(PlotPictures, LookAsTheyDidWhenSomebodyLooked)
{
    for (const Picture& picture : pictures) {
        SCOPED_TRACE(picture.name);
        const QString file = QStringLiteral(VX_PICTURES "/%1.png").arg(QString::fromLatin1(picture.name));
        const QImage now = rendered(picture);
        if (qEnvironmentVariableIsSet("VX_WRITE_PICTURES")) {
            ASSERT_TRUE(now.save(file));
            continue;
        }
        const QImage kept(file);
        ASSERT_FALSE(kept.isNull()) << file.toStdString();
        EXPECT_LT(difference(now, kept), 0.02);
    }
}

/* A guard that does not see a change guards nothing. */
TEST(PlotPictures, DifferWhenAnAxisIsMissing)
{
    ShownSample sample("polar", PlotType_PolarLine);
    view::PageRenderer renderer(sample.kernel);
    const QImage whole = renderer.frameImage(sample.frame(), width);
    sample.set("PolarAxis/RDetail/RangeMax", 2.0);
    EXPECT_GT(difference(renderer.frameImage(sample.frame(), width), whole), 0.02);
}
