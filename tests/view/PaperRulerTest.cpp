#include "view/PaperRuler.h"
#include "view/PaperGrid.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QPainter>

using namespace vantrix::view;
using testing::ElementsAre;

namespace {

/// The labels between two places (in inches), "-" for a tick without one.
std::vector<std::string> labels(PaperUnitSpacing_e spacing, double from, double to, double pixelsPerInch)
{
    std::vector<std::string> result;
    for (const PaperRuler::Tick& tick : PaperRuler(spacing).ticks(from, to, pixelsPerInch)) {
        result.push_back(tick.label.isEmpty() ? "-" : tick.label.toStdString());
    }
    return result;
}

/// The columns of the middle row of a paper 200 pixels wide that the grid paints over.
std::vector<int> gridColumns(PaperUnitSpacing_e spacing, double inch)
{
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        PaperGrid(spacing).paint(painter, QRectF(0, 0, 200, 200), inch);
    }
    // A row that no horizontal line covers.
    int row = 1;
    while (image.pixelColor(0, row) != QColor(Qt::white)) {
        ++row;
    }
    std::vector<int> columns;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, row) != QColor(Qt::white)) {
            columns.push_back(x);
        }
    }
    return columns;
}

} // namespace

TEST(PaperRulerTest, CountsFromThePapersCornerInTheUnitOfTheSpacing)
{
    EXPECT_THAT(labels(PaperUnitSpacing_OneInch, -1.5, 2.5, 72), ElementsAre("-1", "0", "1", "2"));
    EXPECT_THAT(labels(PaperUnitSpacing_OneCentimeter, 0, 1, 100), ElementsAre("0", "1", "2"));
    EXPECT_THAT(labels(PaperUnitSpacing_HalfCentimeter, 0, 0.8, 200), ElementsAre("0", "0.5", "1", "1.5", "2"));
    EXPECT_THAT(labels(PaperUnitSpacing_TwentyFourPoints, 0, 1, 144), ElementsAre("0", "24", "48", "72"));
}

TEST(PaperRulerTest, ThinsLabelsAndTicksThatWouldStandTooClose)
{
    EXPECT_THAT(labels(PaperUnitSpacing_OneInch, 0, 4, 20), ElementsAre("0", "-", "2", "-", "4"));
    EXPECT_THAT(labels(PaperUnitSpacing_OneInch, 0, 10, 4), ElementsAre("0", "-", "-", "-", "-", "10"));
    EXPECT_EQ(labels(PaperUnitSpacing_TenPoints, 0, 1, 72).size(), 8u) << "ten pixels apart: all of them";
}

TEST(PaperGridTest, DrawsALineAtEachSpacingButNoneOnTheEdge)
{
    EXPECT_THAT(gridColumns(PaperUnitSpacing_OneInch, 50), ElementsAre(50, 100, 150));
    EXPECT_THAT(gridColumns(PaperUnitSpacing_HalfInch, 100), ElementsAre(50, 100, 150));
    EXPECT_THAT(gridColumns(PaperUnitSpacing_TenPoints, 288), ElementsAre(40, 80, 120, 160));
    EXPECT_THAT(gridColumns(PaperUnitSpacing_SixteenthInch, 16), testing::SizeIs(39)) << "every fifth";
}
