#include "kernel/macro/MacroCommand.h"

#include "KernelFixture.h"
#include "kernel/DataError.h"

#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>
#include <unistd.h>

using namespace vantrix::kernel;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string errorOf(const char* line)
{
    try {
        parseMacroLine(line);
    } catch (const DataError& failure) {
        return failure.what();
    }
    return {};
}

class MacroTest : public KernelTest
{
protected:
    void SetUp() override
    {
        KernelTest::SetUp();
        m_folder = std::filesystem::temp_directory_path() / ("vx_macro_test_" + std::to_string(getpid()));
        std::filesystem::create_directories(m_folder);
        m_file = (m_folder / "session.vxmac").string();
    }
    void TearDown() override
    {
        if (VtxUtilMacroIsRecordingActive()) {
            VtxUtilMacroRecordStop();
        }
        std::filesystem::remove_all(m_folder);
        KernelTest::TearDown();
    }

    /* What was recorded, line by line, without the head. */
    std::vector<std::string> recorded()
    {
        EXPECT_TRUE(VtxUtilMacroRecordStop());
        std::ifstream stream(m_file);
        std::vector<std::string> lines;
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(line);
        }
        EXPECT_THAT(lines.front(), "Macro Version=1");
        lines.erase(lines.begin());
        return lines;
    }

    bool play(const std::string& text)
    {
        std::ofstream(m_file) << text;
        return VtxUtilMacroRun(m_file.c_str());
    }

    static SetValueReturnCode_e setByInterface(const char* path, double value)
    {
        VtxArgListHandle list = VtxUtilArgListAlloc();
        VtxUtilArgListAppendArbParam(list, "Entry", style().entry(path));
        VtxUtilArgListAppendDouble(list, "DValue", value);
        const SetValueReturnCode_e code = VtxUtilStyleSetLowLevelX(list);
        VtxUtilArgListDealloc(&list);
        return code;
    }

    std::filesystem::path m_folder;
    std::string m_file;
};

} // namespace

TEST(MacroCommandTest, IsReadBackAsItWasWritten)
{
    const std::vector<MacroCommand> step{
        {"First",
         {{"Whole", -7L},
          {"One", 1.0},
          {"Third", 1.0 / 3.0},
          {"Tiny", std::numeric_limits<double>::denorm_min()},
          {"Huge", -std::numeric_limits<double>::max()},
          {"Infinite", -std::numeric_limits<double>::infinity()},
          {"Word", std::string("Solid")},
          {"Text", std::string("say \"\\\" # ; \n\t\x01 \xc3\xa4")},
          {"Empty", std::string()},
          {"NotANumber", std::string("nan")},
          {"Set", std::set<long>{1, 2, 3, 7, 9, 10}},
          {"None", std::set<long>{}},
          {"Files", std::vector<std::string>{"a b.vtu", "c\"d"}}}},
        {"Second", {}},
    };
    const std::string text = macroText(step);
    EXPECT_THAT(text, HasSubstr("Set={1-3,7,9-10}"));
    EXPECT_EQ(text.find('\n'), std::string::npos);
    EXPECT_EQ(parseMacroLine(text), step) << text;
    EXPECT_TRUE(parseMacroLine("  # a comment").empty());
    EXPECT_EQ(parseMacroLine("Go; # more").size(), 1U);
}

TEST(MacroCommandTest, ErrorsNameTheColumn)
{
    EXPECT_THAT(errorOf("Go Left=").c_str(), HasSubstr("column 9"));
    EXPECT_THAT(errorOf("Go Left=1 Left=2").c_str(), HasSubstr("column 11"));
    EXPECT_THAT(errorOf("Go Text=\"open").c_str(), HasSubstr("quote"));
    EXPECT_THAT(errorOf("Go Zones={3-1}").c_str(), HasSubstr("goes up"));
    EXPECT_THAT(errorOf("Go Zones={0}").c_str(), HasSubstr("number from 1"));
    EXPECT_THAT(errorOf("1 Go").c_str(), HasSubstr("name of a command"));
    EXPECT_THAT(errorOf("Go Text=\"\\q\"").c_str(), HasSubstr("column"));
    EXPECT_THAT(errorOf("Go Text=\"\\x9").c_str(), HasSubstr("hexadecimal"));
}

TEST_F(MacroTest, RecordsOneLineForEachOutermostLock)
{
    ASSERT_TRUE(VtxUtilMacroRecordStart(m_file.c_str()));
    EXPECT_TRUE(VtxUtilMacroIsRecordingActive());
    {
        const LockScope outer;
        const LockScope inner;
        ASSERT_TRUE(VtxUtilFrameCreate(1, 1, 2, 2.5));
        setByInterface("FrameLayout/Width", 3.0);
        setByInterface("FrameLayout/Width", 4.0);
    }
    VtxUtilLockStart(false);
    setByInterface("FrameLayout/Width", 5.0);
    VtxUtilLockFinish();
    {
        const LockScope lock;
        EXPECT_NE(setByInterface("FrameLayout/Width", -1.0), SetValueReturnCode_Ok);
        setByInterface("FrameLayout/Width", 5.0); // has that value
    }
    {
        const LockScope lock;
        setByInterface("FrameLayout/Height", 1.0);
        VtxUtilLockRollBack();
    }
    {
        const LockScope lock;
        VtxUtilFrameDelete(VtxUtilFrameGetUniqueID());
    }
    VtxUtilUndo();
    EXPECT_THAT(recorded(), ElementsAre("FrameCreate Left=1.0 Top=1.0 Width=2.0 Height=2.5; "
                                        "StyleSet Path=\"FrameLayout/Width\" Value=4.0",
                                        "FrameDelete Frame=2", "Undo"));
}

TEST_F(MacroTest, RecordsNothingThatTheHostDoesItself)
{
    ASSERT_TRUE(VtxUtilMacroRecordStart(m_file.c_str()));
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilDataReadSample("fe2d")); // sets a hundred style values
        ASSERT_EQ(VtxUtilFrameSetBackgroundColor(0), SetValueReturnCode_Ok);
    }
    EXPECT_THAT(recorded(), ElementsAre("DataReadSample Name=fe2d; FrameSetBackgroundColor Color=0"));
}

TEST_F(MacroTest, RefusesToRecordWhereItCannot)
{
    EXPECT_FALSE(VtxUtilMacroRecordStop()) << "nothing is recorded";
    EXPECT_FALSE(VtxUtilMacroRecordStart((m_folder / "no" / "such.vxmac").string().c_str()));
    EXPECT_FALSE(VtxUtilMacroIsRecordingActive());
    ASSERT_TRUE(VtxUtilMacroRecordStart(m_file.c_str()));
    EXPECT_FALSE(VtxUtilMacroRecordStart(m_file.c_str())) << "one at a time";
    EXPECT_TRUE(VtxUtilMacroRecordStop());
}

TEST_F(MacroTest, ALineIsOneStepOfUndo)
{
    ASSERT_TRUE(
        play("# a comment\n\nFrameCreate Left=1 Top=1 Width=2 Height=2; StyleSet Path=FrameName Value=\"mine\"\n"
             "StyleSet Path=\"FrameLayout/BorderThickness\" Value=2\n"))
        << kernel().lastError();
    EXPECT_EQ(value("FrameName"), StyleData(std::string("mine")));
    EXPECT_EQ(value("FrameLayout/BorderThickness"), StyleData(2.0));
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilFrameGetCount(), 2);
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilFrameGetCount(), 1);
    EXPECT_FALSE(VtxUtilUndo());
}

TEST_F(MacroTest, AFileThatIsNotUnderstoodDoesNothing)
{
    const std::pair<const char*, const char*> bad[] = {
        {"PageCreate\nNoSuch A=1\n", "line 2: there is no command \"NoSuch\""},
        {"PageCreate\nFrameCreate Left=1 Depth=2\n", "line 2: FrameCreate has no \"Depth\""},
        {"PageCreate\n\n\"x\"\n", "line 3: column 1"},
        {"PageCreate; Undo\n", "line 1: \"Undo\" has to stand alone"},
        {"Macro Version=99\nPageCreate\n", "line 1: the macro has version 99"},
    };
    for (const auto& [text, cause] : bad) {
        EXPECT_FALSE(play(text));
        EXPECT_THAT(kernel().lastError(), HasSubstr(cause));
        EXPECT_THAT(kernel().lastError(), HasSubstr(m_file));
        EXPECT_EQ(VtxUtilPageGetCount(), 1);
    }
    EXPECT_FALSE(VtxUtilMacroRun((m_folder / "none").string().c_str()));
}

TEST_F(MacroTest, StopsAtTheLineThatFailsWithNothingHalfDone)
{
    const std::pair<const char*, const char*> bad[] = {
        {"PageDelete Page=9", "no page 9"},
        {"FrameDelete Frame=5", "no frame 5"},
        {"FrameCreate Left=1 Top=1 Width=2", "\"Height\" is missing"},
        {"FrameCreate Left=x Top=1 Width=2 Height=2", "\"Left\" has to be a number"},
        {"StyleSet Path=\"No/Such\" Value=1", "No/Such"},
        {"StyleSet Path=\"FrameLayout/Width\" Value=-1", "FrameLayout"},
        {"StyleSet Path=\"FrameLayout/ShowBorder\" Value=\"yes\"", "ShowBorder"},
        {"DataSetDeleteZone Zones={1}", "no data set"},
        {"PickAxis Axis=\"XY\" AxisNumber=1 Part=0", "one character"},
    };
    for (const auto& [command, cause] : bad) {
        kernel().reset();
        EXPECT_FALSE(play("PageCreate\nPageCreate; " + std::string(command) + "\nPageCreate\n")) << command;
        EXPECT_THAT(kernel().lastError(), HasSubstr("line 2"));
        EXPECT_THAT(kernel().lastError(), HasSubstr(cause));
        EXPECT_EQ(VtxUtilPageGetCount(), 2) << "the first line stays, the second leaves nothing";
        EXPECT_FALSE(VtxUtilLockIsOn());
    }
}
