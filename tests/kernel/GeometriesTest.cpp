#include "KernelFixture.h"

#include "kernel/DataError.h"
#include "kernel/FrameObjects.h"
#include "kernel/Layout.h"
#include "toolbox/ArgList.h"

#include <cstdio>

namespace vantrix::kernel {
namespace {

using testing::HasSubstr;
using toolbox::ArgList;

class GeometriesTest : public KernelTest
{
protected:
    static long create(const std::function<void(ArgList&)>& fill)
    {
        long handle = 0;
        ArgList arguments;
        fill(arguments);
        arguments.appendArbParamPtr("Result", &handle);
        const LockScope lock;
        return VtxUtilGeometrySetX(arguments.handle()) ? handle : 0;
    }

    static long createLine(const std::string& points)
    {
        return create([&](ArgList& arguments) { arguments.appendString("Points", points); });
    }

    static long createCircle()
    {
        return create([](ArgList& arguments) {
            arguments.appendArbParam("GeomType", GeomType_Circle);
            arguments.appendDouble("XPos", 50.0);
            arguments.appendDouble("Width", 12.5);
        });
    }
};

} // namespace

TEST(GeometryPointsTest, AreReadBackAsTheyWereWritten)
{
    const GeometryLines lines{{{0.0, 0.0, 0.0}, {1.0 / 3.0, -1e-300, 0.0}},
                              {{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, {7.0, 8.0, 0.0}}};
    EXPECT_EQ(parseGeometryPoints(geometryPointsText(lines)), lines);
    EXPECT_EQ(parseGeometryPoints("0 0;10 5 ; 1 2/3 4;\t5 6").size(), 2U);
}

TEST_F(GeometriesTest, BadOnesAreRefusedWithTheirCause)
{
    const std::pair<const char*, const char*> bad[] = {
        {"", "There is no line"},
        {"1 2", "less than two points"},
        {"0 0; 1", "less than two coordinates"},
        {"0 0; 1 2 3 4", "more than"},
        {"0 0; x 1", "\"x\" is no"},
        {"0 0; 1 inf", "\"inf\" is no finite"},
        {"0 0; 1,5 2", "\"1,5\" is no"},
        {"0 0; 1 1 / 3 3", "less than two points"},
    };
    for (const auto& [points, cause] : bad) {
        EXPECT_EQ(createLine(points), 0) << points;
        EXPECT_THAT(kernel().lastError(), HasSubstr(cause)) << points;
    }
    EXPECT_EQ(create([](ArgList& arguments) {
                  arguments.appendArbParam("GeomType", GeomType_Circle);
                  arguments.appendArbParam("PositionCoordSys", CoordSys_Grid3D);
              }),
              0);
    EXPECT_THAT(kernel().lastError(), HasSubstr("3D"));
    EXPECT_EQ(VtxUtilGeometryGetFirst(), 0);
    EXPECT_TRUE(notices.empty());
}

TEST_F(GeometriesTest, AreMadeChangedPickedAndDeletedAndAllOfThatIsUndone)
{
    const long line = createLine("0 0; 10 20");
    const long circle = createCircle();
    ASSERT_NE(line, 0) << kernel().lastError();
    ASSERT_NE(circle, 0) << kernel().lastError();
    EXPECT_EQ(VtxUtilGeometryGetFirst(), line);
    EXPECT_EQ(VtxUtilGeometryGetNext(line), circle);
    EXPECT_EQ(VtxUtilGeometryGetNext(circle), 0);
    notices.clear();
    {
        const LockScope lock;
        ArgList arguments;
        arguments.appendArbParam("GeometryID", circle);
        arguments.appendDouble("Width", 30.0);
        ASSERT_TRUE(VtxUtilGeometrySetX(arguments.handle())) << kernel().lastError();
    }
    ASSERT_EQ(notices.size(), 1U);
    EXPECT_EQ(notices[0].kind, StateChange_Geometry);
    EXPECT_EQ(notices[0].object, circle);
    double width = 0.0;
    ArgList read;
    read.appendArbParam("GeometryID", circle);
    read.appendDoublePtr("Width", &width);
    ASSERT_TRUE(VtxUtilGeometryGetX(read.handle()));
    EXPECT_EQ(width, 30.0);
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilPickGeometry(line)) << kernel().lastError();
        EXPECT_EQ(VtxUtilPickListGetGeometry(1), line);
        EXPECT_EQ(VtxUtilPickListGetText(1), 0);
        EXPECT_TRUE(VtxUtilPickDelete());
    }
    EXPECT_FALSE(VtxUtilGeometryIsValid(line));
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_TRUE(VtxUtilGeometryIsValid(line));
    ASSERT_TRUE(VtxUtilUndo());
    ASSERT_TRUE(VtxUtilGeometryGetX(read.handle()));
    EXPECT_EQ(width, 12.5);
}

TEST_F(GeometriesTest, LayoutsAndMacrosKeepThem)
{
    const std::string file = testing::TempDir() + "geometries";
    ASSERT_TRUE(VtxUtilMacroRecordStart((file + ".vxmac").c_str()));
    createLine("0 0; 10 20 / 5 5; 6 7");
    const long circle = createCircle();
    {
        const LockScope lock;
        createLine("0 0; 1 1");
        VtxUtilGeometryDelete(circle);
    }
    ASSERT_TRUE(VtxUtilMacroRecordStop());
    const std::string before = kernel().layout().text();
    EXPECT_THAT(before, HasSubstr("Geometry Points=\"0 0; 10 20 / 5 5; 6 7\"\n"));
    ASSERT_TRUE(VtxUtilLayoutSave((file + ".vxlay").c_str()));
    kernel().reset();
    ASSERT_TRUE(VtxUtilLayoutOpen((file + ".vxlay").c_str())) << kernel().lastError();
    EXPECT_EQ(kernel().layout().text(), before);
    kernel().reset();
    ASSERT_TRUE(VtxUtilMacroRun((file + ".vxmac").c_str())) << kernel().lastError();
    EXPECT_EQ(kernel().layout().text(), before);
    std::remove((file + ".vxlay").c_str());
    std::remove((file + ".vxmac").c_str());
}

} // namespace vantrix::kernel
