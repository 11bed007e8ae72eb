#include "kernel/Layout.h"

#include "LayoutFixture.h"

#include <filesystem>
#include <fstream>

using namespace vantrix::kernel;
using testing::HasSubstr;
using testing::Not;

TEST_F(LayoutTest, WhatIsSavedComesBackTheSame)
{
    makeDocument();
    const std::string before = text();
    ASSERT_TRUE(VtxUtilLayoutSave(path("a.vxlay").c_str())) << kernel().lastError();
    EXPECT_FALSE(kernel().layout().isModified());
    ASSERT_TRUE(VtxUtilLayoutNew());
    EXPECT_EQ(VtxUtilPageGetCount(), 1);
    EXPECT_FALSE(VtxUtilDataSetIsAvailable());
    notices.clear();
    ASSERT_TRUE(VtxUtilLayoutOpen(path("a.vxlay").c_str())) << kernel().lastError();
    EXPECT_THAT(kinds(), testing::ElementsAre(StateChange_NewLayout));
    EXPECT_EQ(text(), before);
    EXPECT_EQ(VtxUtilPageGetCount(), 2);
    EXPECT_EQ(VtxUtilPageGetActive(), 1);
    EXPECT_EQ(VtxUtilFrameGetCount(), 2);
    EXPECT_EQ(VtxUtilFrameGetPlotType(), PlotType_Cartesian2D);
    EXPECT_EQ(value("FrameName"), StyleData(std::string("a \"name\"\n")));
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), 2);
    const auto& frames = document().activePage()->frames;
    EXPECT_EQ(frames[0]->dataSet(), frames[1]->dataSet()) << "they share it";
    EXPECT_EQ(kernel().layout().fileName(), path("a.vxlay"));
    EXPECT_FALSE(kernel().layout().isModified());
    EXPECT_EQ(VtxUtilUndoGetStepName(), nullptr);
    EXPECT_EQ(m_frontEnd.status, "");
}

TEST_F(LayoutTest, HoldsOnlyWhatDiffersFromDefaults)
{
    EXPECT_EQ(text(), "Layout Version=1\nPage Active=1\n  Frame Active=1\n");
    set("FrameLayout/Width", 5.5);
    set("FrameLayout/ShowHeader", 1L);
    set("FrameLayout/ShowHeader", 0L);
    set("Interface/ShowToolTips", 0L); // of the program, not of the layout
    EXPECT_EQ(text(),
              "Layout Version=1\nPage Active=1\n  Frame Active=1\n    StyleSet Path=\"FrameLayout/Width\" Value=5.5\n");
    ASSERT_TRUE(open("Layout Version=1\nPage\nFrame\n"));
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(9.0));
    EXPECT_EQ(value("Interface/ShowToolTips"), StyleData(0L)) << "stays";
}

TEST_F(LayoutTest, KnowsWhetherItIsModified)
{
    Layout& layout = kernel().layout();
    EXPECT_FALSE(layout.isModified());
    set("FrameLayout/Width", 5.5);
    EXPECT_TRUE(layout.isModified());
    VtxUtilUndo();
    EXPECT_FALSE(layout.isModified());
    VtxUtilRedo();
    layout.save(path("a.vxlay"));
    VtxUtilUndo();
    EXPECT_TRUE(layout.isModified());
    set("FrameLayout/Width", 6.5);
    VtxUtilUndo();
    EXPECT_TRUE(layout.isModified()) << "the saved state cannot be reached any more";
    layout.save(path("a.vxlay"));
    set("Interface/ShowToolTips", 0L);
    EXPECT_FALSE(layout.isModified()) << "a setting of the program is none of the layout";
    set("FrameLayout/Width", 7.5);
    EXPECT_TRUE(layout.isModified());
    VtxUtilUndo();
    EXPECT_FALSE(layout.isModified());
    VtxUtilUndo();
    EXPECT_EQ(value("Interface/ShowToolTips"), StyleData(1L)) << "it is a step of undo all the same";
    EXPECT_FALSE(layout.isModified());
}

TEST_F(LayoutTest, KeepsAndReportsWhatItDoesNotKnow)
{
    const std::string future = "Layout Version=1 Creator=\"a newer one\"\nGlow Strength=0.5\nPage Active=1 Note=x\n"
                               "  StyleSet Path=\"Paper/Smell\" Value=3\n"
                               "  Frame Active=1 Halo=2\n    StyleSet Path=\"FrameLayout/Width\" Value=5.5\n"
                               "    Text Text=a XPos=3.0 Shadow={1-2}\n    Hologram Depth={1-3} Text=\"x\"\n";
    ASSERT_TRUE(open(future)) << kernel().lastError();
    EXPECT_EQ(text(), future);
    EXPECT_THAT(m_frontEnd.status, HasSubstr("7 entries"));
    EXPECT_THAT(m_frontEnd.status, HasSubstr("Creator"));
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(5.5));
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilTextSetHeight(VtxUtilTextGetFirst(), 7.0)) << kernel().lastError();
    }
    EXPECT_THAT(text(), HasSubstr("Height=7.0 Shadow={1-2}")) << "a change of the text leaves it";
    VtxUtilLayoutNew();
    EXPECT_THAT(text(), Not(HasSubstr("Glow")));

    const std::string data = "Layout Version=1\nDataSet Id=1 Origin=tower\n  DataReadSample Name=fe2d\n"
                             "  DataState DisabledZones={1} Mirrored={2}\n"
                             "DataSet Id=2\n  DataReadSample Name=lines\n  DataState Mirrored={3}\n"
                             "Page Active=1\n  Frame DataSet=1\n  Frame DataSet=2 Active=1\n";
    ASSERT_TRUE(open(data)) << kernel().lastError();
    EXPECT_EQ(text(), data);
    EXPECT_THAT(m_frontEnd.status, HasSubstr("3 entries"));
}

TEST_F(LayoutTest, KeepsWhatIsUnknownOfStyleValuesAndBesideDataSets)
{
    const std::string future =
        "Layout Version=1\nPalette Foo=1\nSwatch Red=2\nDataSet Id=1\n"
        "  CreateRectangularZone IMax=2 JMax=2 KMax=1 XMin=0.0 YMin=0.0 ZMin=0.0 XMax=1.0 YMax=1.0 "
        "ZMax=0.0 DataType=1 XVariable=1 YVariable=2 ZVariable=0\n"
        "  DataState DisabledZones={1,7} DisabledVariables={9}\n"
        "Page Active=1\n  Frame DataSet=1 Active=1\n"
        "    StyleSet Path=\"FieldMap/Mesh/Color\" Object=1 Value=5 Foo=3\n"
        "    StyleSet Path=PlotType Value=Cartesian2D Bar=word Foo=3\n"
        "    StyleSet Path=\"FrameLayout/Width\" Value=9.0 Foo=4\n";
    ASSERT_TRUE(open(future)) << kernel().lastError();
    EXPECT_EQ(text(), future) << "a default value stands behind the others";
    EXPECT_THAT(m_frontEnd.status, HasSubstr("8 entries"));
    set("FrameLayout/Width", 3.5);
    EXPECT_THAT(text(), HasSubstr("Value=3.5 Foo=4"));
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(2, 2, 1, 0, 0, 0, 1, 1, 0, FieldDataType_Double));
    }
    EXPECT_THAT(text(), HasSubstr("DataState DisabledZones={1,7} DisabledVariables={9}"));

    const std::string beside =
        "Layout Version=1\nDataSet Id=1\n  DataReadSample Name=fe2d\nPalette Foo=1\n  Swatch Red=2\n"
        "StyleSet Path=PlotType Value=Sketch\nPage\nFrame DataSet=1\n";
    ASSERT_TRUE(open(beside)) << kernel().lastError();
    EXPECT_TRUE(VtxUtilDataSetIsAvailable());
    EXPECT_THAT(text(), HasSubstr("Palette Foo=1\nSwatch Red=2\nStyleSet Path=PlotType Value=Sketch\n"));
}

TEST_F(LayoutTest, WhatCannotBeOpenedChangesNothing)
{
    makeDocument();
    const std::string before = text();
    const long frame = VtxUtilFrameGetUniqueID();
    notices.clear();
    const std::string head = "Layout Version=1\n";
    const std::pair<std::string, const char*> bad[] = {
        {"", "empty"},
        {"PNG", "line 1: a layout begins with"},
        {"\x89PNG\r\n", "line 1: column 1"},
        {"Layout Version=2\n", "versions up to 1"},
        {head, "no page"},
        {head + "Frame\n", "line 2: a frame stands behind"},
        {head + "Page\nFrame DataSet=1\n", "line 3: there is no data set 1"},
        {head + "DataSet Id=1\nDataRead Files=[\"none.vtu\"]\nPage\n", "none.vtu"},
        {head + "DataSet Id=1\nDataReadSample Name=none\nPage\n", "line 3"},
        {head + "DataSet Id=1\n  DataAnneal\nPage\n", "line 3: \"DataAnneal\""},
        {head + "DataSet Id=1\n  DataReadSample Name=fe2d\n  DataState DisabledZones=1\nPage\n", "set of numbers"},
        {head + "DataSet Id=1\nDataReadSample Name=fe2d\nDataSetDeleteZone Zones={7}\nPage\n", "line 4"},
        {head + "Page\nFrame\nStyleSet Path=\"FrameLayout/Width\" Value=-3\n", "line 4"},
        {head + "Page\nFrame\nStyleSet Path=\"FrameLayout/Width\" Value=\"wide\"\n", "line 4"},
        {head + "Page\nFrame\nStyleSet Path=\"FrameLayout/Width\"\n", "missing"},
        {head + "Page\nFrame\nStyleSet Path=PlotType Value=Cartesian3D\n", "no data"},
        {head + "Page\nFrame\nStyleSet Path=PlotType Value=NoSuch\n", "line 4"},
        {head + "Page\nFrame\nStyleSet Path=\"XYLineAxis/XDetail/RangeMin\" Object=2 Value=7.5\nStyleSet Path=PlotType "
                "Value=Sketch\n",
         "line 4: The minimum of axis X2 has to be below its maximum, which is 1; 7.5"},
        {head + "Page\nFrame\nStyleSet Path=\"PolarAxis/RDetail/CoordScale\" Value=Log\n", "axis R has to be above 0"},
        {head + "Page; Frame\n", "one entry a line"},
    };
    for (const auto& [layout, cause] : bad) {
        EXPECT_FALSE(open(layout)) << layout;
        EXPECT_THAT(kernel().lastError(), HasSubstr(cause)) << layout;
        EXPECT_THAT(kernel().lastError(), HasSubstr("in.vxlay"));
    }
    EXPECT_FALSE(VtxUtilLayoutOpen(path("none").c_str()));
    EXPECT_FALSE(VtxUtilLayoutOpen(m_folder.c_str()));
    {
        const LockScope lock;
        EXPECT_FALSE(VtxUtilLayoutOpen(path("in.vxlay").c_str()));
        EXPECT_FALSE(VtxUtilLayoutNew());
    }
    EXPECT_EQ(text(), before);
    EXPECT_EQ(VtxUtilFrameGetUniqueID(), frame);
    EXPECT_TRUE(notices.empty());
}

TEST_F(LayoutTest, SavingReplacesTheFileAtOnceOrNotAtAll)
{
    std::ofstream(path("a.vxlay")) << "old";
    std::filesystem::create_symlink("a.vxlay", path("link.vxlay"));
    ASSERT_TRUE(VtxUtilLayoutSave(path("link.vxlay").c_str())) << kernel().lastError();
    EXPECT_TRUE(std::filesystem::is_symlink(path("link.vxlay")));
    EXPECT_THAT(content(path("a.vxlay")), HasSubstr("Layout Version=1"));
    EXPECT_FALSE(VtxUtilLayoutSave(path("no/such/a.vxlay").c_str()));
    EXPECT_FALSE(VtxUtilLayoutSave(m_folder.c_str()));
    long files = 0;
    for ([[maybe_unused]] const auto& each : std::filesystem::directory_iterator(m_folder)) {
        ++files;
    }
    EXPECT_EQ(files, 2) << "no temporary file is left";
}

TEST_F(LayoutTest, NamesDataFilesRelativeToItself)
{
    std::filesystem::create_directories(m_folder / "data");
    std::ofstream(path("data/t.ply")) << "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\n"
                                         "property float z\nelement face 1\nproperty list uchar int vertex_indices\n"
                                         "end_header\n0 0 0\n1 0 0\n0 1 0\n3 0 1 2\n";
    {
        const LockScope lock;
        const std::string file = path("data/t.ply");
        const char* name = file.c_str();
        ASSERT_TRUE(VtxUtilDataRead(&name, 1)) << kernel().lastError();
    }
    ASSERT_TRUE(VtxUtilLayoutSave(path("a.vxlay").c_str()));
    EXPECT_THAT(content(path("a.vxlay")), HasSubstr("DataRead Files=[\"data/t.ply\"]"));
    const std::filesystem::path moved = m_folder.string() + "_moved";
    std::filesystem::rename(m_folder, moved);
    EXPECT_TRUE(VtxUtilLayoutOpen((moved / "a.vxlay").c_str())) << kernel().lastError();
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), 1);
    std::filesystem::remove_all(moved);
}
