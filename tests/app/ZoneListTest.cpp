#include "app/ZoneListModel.h"
#include "app/ZoneListView.h"

#include "api/VtxUtil.h"

#include "AppTestSupport.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QListView>

#include <dlfcn.h>

namespace {

long namesRead = 0;

} // namespace

/* Counts, and calls the kernel's. */
bool VtxUtilZoneGetName(long zone, char** name)
{
    static const auto next = reinterpret_cast<decltype(&VtxUtilZoneGetName)>(dlsym(RTLD_NEXT, "VtxUtilZoneGetName"));
    ++namesRead;
    return next(zone, name);
}

namespace vantrix::test {
namespace {

using namespace Qt::StringLiterals;

class ZoneListTest : public AppTest
{
protected:
    void showZones(long count) const
    {
        {
            const sdk::AppLock lock;
            kernel::Document& document = kernel::Kernel::instance().document();
            kernel::DataSet data = document.newDataSet();
            for (long number = 1; number <= count; ++number) {
                data.zones.push_back(
                    std::make_shared<kernel::Zone>(kernel::Zone::ordered("Block " + std::to_string(number), 1, 1, 1)));
                data.zoneEnabled.push_back(true);
            }
            document.attachDataSet(*document.activeFrame(), std::make_shared<kernel::DataSet>(std::move(data)));
            VtxUtilFrameSetPlotType(PlotType_Cartesian3D);
        }
        settle();
    }
};

TEST_F(ZoneListTest, RowsFollowTheZonesOfTheDataSet)
{
    app::ZoneListModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(model.rowCount(), 0);
    showZones(3);
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.index(2).data().toString(), u"3: Block 3"_s);
    EXPECT_EQ(model.index(2).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    VtxUtilUndo();
    settle();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ZoneListTest, HidingSeveralZonesIsOneStepOfUndo)
{
    app::ZoneListModel model;
    showZones(4);
    model.setShown({model.index(1), model.index(3)}, false);
    settle();
    const auto shown = [&model] {
        std::string marks;
        for (int row = 0; row < model.rowCount(); ++row) {
            marks += model.index(row).data(Qt::CheckStateRole).toInt() == Qt::Checked ? 'x' : '-';
        }
        return marks;
    };
    EXPECT_EQ(shown(), "x-x-");
    EXPECT_TRUE(VtxUtilUndo());
    EXPECT_EQ(shown(), "xxxx");
    EXPECT_TRUE(model.setData(model.index(0), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_EQ(shown(), "-xxx");
    EXPECT_EQ(VtxUtilLockGetViolationCount(), 0);
}

TEST_F(ZoneListTest, OfManyZonesOnlyThoseInSightAreRead)
{
    app::ZoneListView view(nullptr);
    view.resize(240, 400);
    view.show();
    namesRead = 0;
    showZones(100000);
    auto* list = view.findChild<QListView*>(u"zoneList"_s);
    ASSERT_EQ(list->model()->rowCount(), 100000);
    list->scrollToBottom();
    list->grab();
    EXPECT_GT(namesRead, 0);
    EXPECT_LT(namesRead, 500);
}

TEST_F(ZoneListTest, TheFieldNarrowsTheListToNames)
{
    app::ZoneListView view(nullptr);
    showZones(20);
    auto* list = view.findChild<QListView*>(u"zoneList"_s);
    QTest::keyClicks(view.findChild<QLineEdit*>(u"zoneFilter"_s), u"block 1"_s);
    EXPECT_EQ(list->model()->rowCount(), 11);
    EXPECT_EQ(list->model()->index(1, 0).data().toString(), u"10: Block 10"_s);
}

} // namespace
} // namespace vantrix::test
