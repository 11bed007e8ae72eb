#include "kernel/Layout.h"

#include "KernelFixture.h"
#include "kernel/SilentFrontEnd.h"
#include "kernel/StyleCheck.h"
#include "toolbox/ArgList.h"
#include "toolbox/Set.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <unistd.h>

using namespace vantrix::kernel;
using testing::HasSubstr;
using testing::Not;

namespace {

/* Keeps the last text of the status line. */
class StatusFrontEnd : public SilentFrontEnd
{
public:
    void showStatus(const std::string& text) override { status = text; }
    std::string status;
};

class LayoutTest : public KernelTest
{
protected:
    void SetUp() override
    {
        KernelTest::SetUp();
        m_folder = std::filesystem::temp_directory_path() / ("vx_layout_test_" + std::to_string(getpid()));
        std::filesystem::create_directories(m_folder);
        kernel().setFrontEnd(&m_frontEnd);
    }
    void TearDown() override
    {
        kernel().setFrontEnd(nullptr);
        std::filesystem::remove_all(m_folder);
        KernelTest::TearDown();
    }

    std::string path(const char* name) const { return (m_folder / name).string(); }

    static std::string content(const std::string& file)
    {
        std::ifstream stream(file);
        std::ostringstream text;
        text << stream.rdbuf();
        return text.str();
    }

    bool open(const std::string& text)
    {
        std::ofstream(path("in.vxlay")) << text;
        return VtxUtilLayoutOpen(path("in.vxlay").c_str());
    }

    static std::string text() { return kernel().layout().text(); }

    static void openSample(const char* name)
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilDataReadSample(name)) << kernel().lastError();
    }

    /* Two pages, three frames, two of which share a changed data set. */
    static void makeDocument()
    {
        openSample("flow3d");
        const LockScope lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(3, 4, 1, 0, 0, 0, 1, 2, 0, FieldDataType_Double));
        const auto data = document().activeDataSet();
        ASSERT_TRUE(VtxUtilFrameCreate(0.5, 0.25, 3, 2.125));
        document().attachDataSet(*document().activeFrame(), data);
        PlotDefaults::apply(*document().activeFrame());
        ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_Cartesian2D));
        style().set(style().entry("FrameName"), -1, -1, std::string("a \"name\"\n"));
        ASSERT_TRUE(VtxUtilPageCreate());
        ASSERT_TRUE(VtxUtilDataReadSample("lines"));
        ASSERT_TRUE(VtxUtilPageActivate(1));
    }

    std::filesystem::path m_folder;
    StatusFrontEnd m_frontEnd;
};

} // namespace

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
}

TEST_F(LayoutTest, KeepsAndReportsWhatItDoesNotKnow)
{
    const std::string future =
        "Layout Version=1\nGlow Strength=0.5\nPage Active=1\n  StyleSet Path=\"Paper/Smell\" Value=3\n"
        "  Frame Active=1\n    StyleSet Path=\"FrameLayout/Width\" Value=5.5\n"
        "    Hologram Depth={1-3} Text=\"x\"\n";
    ASSERT_TRUE(open(future)) << kernel().lastError();
    EXPECT_EQ(text(), future);
    EXPECT_THAT(m_frontEnd.status, HasSubstr("3 entries"));
    EXPECT_THAT(m_frontEnd.status, HasSubstr("Glow"));
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(5.5));
    VtxUtilLayoutNew();
    EXPECT_THAT(text(), Not(HasSubstr("Glow")));
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
        {head + "DataSet Id=1\nDataAnneal\nPage\n", "line 3: \"DataAnneal\""},
        {head + "DataSet Id=1\nDataReadSample Name=fe2d\nDataSetDeleteZone Zones={7}\nPage\n", "line 4"},
        {head + "Page\nFrame\nStyleSet Path=\"FrameLayout/Width\" Value=-3\n", "line 4"},
        {head + "Page\nFrame\nStyleSet Path=\"FrameLayout/Width\" Value=\"wide\"\n", "line 4"},
        {head + "Page\nFrame\nStyleSet Path=\"FrameLayout/Width\"\n", "missing"},
        {head + "Page\nFrame\nStyleSet Path=PlotType Value=Cartesian3D\n", "no data"},
        {head + "Page\nFrame\nStyleSet Path=PlotType Value=NoSuch\n", "line 4"},
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

namespace {

/* Does things at random through the interface, as a user would. */
class RandomSession
{
    using ArgList = vantrix::toolbox::ArgList;

public:
    explicit RandomSession(unsigned seed)
        : m_random(seed)
    {}

    void step()
    {
        if (pick(12) == 0) {
            VtxUtilUndo();
            return;
        }
        if (pick(25) == 0) {
            VtxUtilRedo();
            return;
        }
        VtxUtilLockStart(true);
        for (long i = pick(3); i >= 0; --i) {
            act();
        }
        if (pick(20) == 0) {
            VtxUtilLockRollBack();
        }
        VtxUtilLockFinish();
    }

private:
    long pick(long count) { return std::uniform_int_distribution<long>(0, count - 1)(m_random); }
    double inches() { return std::uniform_real_distribution<double>(0.1, 6.0)(m_random); }
    long frame() { return VtxUtilFrameGetIdAt(1 + pick(VtxUtilFrameGetCount())); }

    /* A text, most often of the active frame; 0 for none. */
    long text()
    {
        long handle = VtxUtilTextGetFirst();
        for (long i = pick(4); i > 0 && VtxUtilTextGetNext(handle) != 0; --i) {
            handle = VtxUtilTextGetNext(handle);
        }
        if (pick(4) == 0) {
            std::swap(handle, m_otherText);
        }
        return handle;
    }

    void act()
    {
        static const char* const samples[] = {"flow3d", "fe2d", "lines", "mixed"};
        switch (pick(28)) {
        case 0:
            VtxUtilFrameCreate(inches(), inches(), inches(), inches());
            break;
        case 1:
            VtxUtilFrameDelete(frame());
            break;
        case 2:
            VtxUtilFramePop(frame());
            break;
        case 3:
            VtxUtilFramePush(frame());
            break;
        case 4:
            VtxUtilFrameActivate(frame());
            break;
        case 5:
            VtxUtilFrameSetRect(frame(), inches(), inches(), inches(), inches());
            break;
        case 6:
            if (pick(3) == 0) {
                VtxUtilPageCreate();
            } else if (pick(3) == 0) {
                VtxUtilPageDelete(1 + pick(VtxUtilPageGetCount()));
            } else {
                VtxUtilPageActivate(1 + pick(VtxUtilPageGetCount()));
            }
            break;
        case 7:
            VtxUtilDataReadSample(samples[pick(4)]);
            break;
        case 8:
            VtxUtilCreateCircularZone(2 + pick(4), 3 + pick(4), 1 + pick(2), inches(), -inches(), inches(), 0.0,
                                      1.0 / 3.0, FieldDataType_Double);
            break;
        case 9:
            deleteSomeZone();
            break;
        case 10:
            VtxUtilFrameSetPlotType(static_cast<PlotType_e>(1 + pick(5)));
            break;
        case 11:
            VtxUtilPickFrame(frame());
            VtxUtilPickZone(1 + pick(3));
            break;
        case 12:
            VtxUtilLineMapCreate(1, 1, 1 + pick(3));
            break;
        case 20:
        case 21:
            setSomeGeometry();
            break;
        case 18:
            VtxUtilFrameAttachDataSet(1 + pick(3));
            break;
        case 19:
            VtxUtilFrameCreateOnSameData();
            break;
        case 13:
            setSomeText();
            break;
        case 14:
            VtxUtilTextSetHeight(text(), inches());
            VtxUtilPickText(text());
            break;
        case 15:
            VtxUtilTextDelete(text());
            break;
        case 16:
            changeSomeAxis();
            break;
        case 17:
            deleteSomeLineMap();
            break;
        default:
            setSomeStyle();
        }
    }

    static void deleteSomeZone()
    {
        VtxSetHandle zones = VtxUtilSetAlloc();
        VtxUtilSetAddMember(zones, VtxUtilDataSetGetNumZones());
        VtxUtilDataSetDeleteZone(zones);
        VtxUtilSetDealloc(&zones);
    }

    void setSomeText()
    {
        ArgList list;
        const long handle = pick(2) == 0 ? text() : 0;
        if (handle != 0) {
            list.appendArbParam("TextID", handle);
        }
        list.appendString("Text", pick(2) == 0 ? "two\nlines" : "words");
        list.appendDouble("XPos", inches());
        list.appendArbParam("TextColor", pick(80)); // some there are not
        VtxUtilTextSetX(list.handle());
    }

    void setSomeGeometry()
    {
        const long last = VtxUtilGeometryGetNext(VtxUtilGeometryGetFirst());
        if (pick(4) == 0) {
            VtxUtilGeometryDelete(VtxUtilGeometryGetFirst());
            return;
        }
        ArgList list;
        if (last != 0) {
            list.appendArbParam("GeometryID", last);
        }
        list.appendArbParam("GeomType", pick(5));
        list.appendString("Points", pick(4) == 0 ? "none" : "0 0; 10.5 20");
        list.appendDouble("Width", inches());
        VtxUtilGeometrySetX(list.handle());
    }

    void changeSomeAxis()
    {
        const char axis = "XYZTR"[pick(5)];
        const int number = static_cast<int>(1 + pick(2));
        bool (*const changes[])(char, int) = {&VtxUtilViewAxisFit, &VtxUtilViewAxisNiceFit,
                                              &VtxUtilViewAxisFitToEntireCircle, &VtxUtilViewAxisMakeCurValsNice};
        if (pick(5) != 0) {
            changes[pick(4)](axis, number);
            return;
        }
        ArgList list;
        list.appendArbParam("ViewOP", pick(3));
        list.appendArbParam("Axis", axis);
        VtxUtilViewX(list.handle());
        VtxUtilReset3DScaleFactors();
    }

    void deleteSomeLineMap()
    {
        vantrix::toolbox::Set lineMaps;
        lineMaps.addMember(1 + pick(4));
        VtxUtilLineMapDelete(lineMaps.handle());
    }

    void setSomeStyle()
    {
        const auto entries = styleVocabulary();
        const long entry = pick(static_cast<long>(entries.size()));
        const StyleEntry& about = entries[static_cast<std::size_t>(entry)];
        VtxArgListHandle list = VtxUtilArgListAlloc();
        VtxUtilArgListAppendArbParam(list, "Entry", entry);
        for (std::size_t i = 0; i < 2; ++i) {
            if (about.offsets[i] != 0) {
                VtxUtilArgListAppendArbParam(list, i == 0 ? "Offset1" : "Offset2", 1 + pick(3));
            }
        }
        if (about.type == StyleType::Double) {
            VtxUtilArgListAppendDouble(list, "DValue", inches());
        } else if (about.type == StyleType::String) {
            VtxUtilArgListAppendString(list, "StrValue", pick(2) == 0 ? "words; \"quoted\" # \xc3\xa4" : "plain");
        } else {
            VtxUtilArgListAppendArbParam(list, "IValue", pick(8));
        }
        VtxUtilStyleSetLowLevelX(list);
        VtxUtilArgListDealloc(&list);
    }

    std::mt19937 m_random;
    long m_otherText = 0;
};

} // namespace

TEST_F(LayoutTest, ARecordedSessionReplayedEndsInTheSameState)
{
    std::string all;
    for (unsigned seed = 1; seed <= 8; ++seed) {
        kernel().reset();
        const std::string macro = path("random.vxmac");
        ASSERT_TRUE(VtxUtilMacroRecordStart(macro.c_str()));
        RandomSession session(seed);
        for (int i = 0; i < 150; ++i) {
            session.step();
        }
        ASSERT_TRUE(VtxUtilMacroRecordStop());
        const std::string before = text();
        const auto settings = style().storedValues(StyleStore::processScope);
        const std::string recorded = content(macro);
        EXPECT_GT(std::count(recorded.begin(), recorded.end(), '\n'), 50) << "something happened";
        all += recorded;

        kernel().reset();
        ASSERT_TRUE(VtxUtilMacroRun(macro.c_str())) << "seed " << seed << ": " << kernel().lastError();
        EXPECT_EQ(text(), before) << "seed " << seed;
        const auto replayed = style().storedValues(StyleStore::processScope);
        ASSERT_EQ(replayed.size(), settings.size());
        for (std::size_t i = 0; i < settings.size(); ++i) {
            EXPECT_EQ(replayed[i].value, settings[i].value);
        }

        ASSERT_TRUE(VtxUtilLayoutSave(path("random.vxlay").c_str()));
        ASSERT_TRUE(VtxUtilLayoutOpen(path("random.vxlay").c_str())) << "seed " << seed << ": " << kernel().lastError();
        EXPECT_EQ(text(), before) << "seed " << seed << ", saved and opened";
    }
    EXPECT_THAT(all, HasSubstr("TextID=")) << "it happened to texts as well";
    EXPECT_THAT(all, HasSubstr("GeometryID="));
    EXPECT_THAT(all, HasSubstr("FrameAttachDataSet"));
}
