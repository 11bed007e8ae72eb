#include "kernel/macro/MacroCommand.h"

#include "KernelFixture.h"
#include "kernel/DataError.h"
#include "kernel/Layout.h"
#include "kernel/macro/Commands.h"
#include "kernel/macro/Identifiers.h"
#include "toolbox/ArgList.h"

#include <filesystem>
#include <fstream>
#include <limits>
#include <regex>
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

/* Every function that the headers of the interface name. */
std::set<std::string> interfaceFunctions()
{
    std::set<std::string> names;
    const std::regex name(R"(\bVtxUtil\w+(?=\())");
    for (const auto& header : std::filesystem::directory_iterator(VX_API_HEADERS)) {
        std::ifstream stream(header.path());
        const std::string text(std::istreambuf_iterator<char>(stream), {});
        for (std::sregex_iterator found(text.begin(), text.end(), name), end; found != end; ++found) {
            names.insert(found->str());
        }
    }
    return names;
}

class MacroTest : public KernelTest
{
protected:
    using ArgList = vantrix::toolbox::ArgList;

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

    /* Creates a text, or changes the one of that handle, at a place. */
    static long setText(const char* text, double x, long handle = 0)
    {
        ArgList list;
        if (handle != 0) {
            list.appendArbParam(textArgument, handle);
        }
        list.appendString("Text", text);
        list.appendDouble("XPos", x);
        list.appendArbParamPtr("Result", &handle);
        EXPECT_TRUE(VtxUtilTextSetX(list.handle())) << kernel().lastError();
        return handle;
    }

    static bool call(bool (*function)(VtxArgListHandle), const std::function<void(ArgList&)>& fill)
    {
        ArgList list;
        fill(list);
        return function(list.handle());
    }

    /* What was recorded ends in the present state when it is played from the beginning. */
    void expectReplayed(const std::vector<std::string>& lines)
    {
        const std::string before = kernel().layout().text();
        std::string macro;
        for (const std::string& line : lines) {
            macro += line + '\n';
        }
        kernel().reset();
        ASSERT_TRUE(play(macro)) << kernel().lastError();
        EXPECT_EQ(kernel().layout().text(), before);
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

TEST_F(MacroTest, AStepOfStyleIsCalledByWhatItChanges)
{
    const auto nameAfter = [](const char* path) {
        {
            const LockScope lock;
            setByInterface(path, 1.25);
        }
        char* name = VtxUtilUndoGetStepName();
        std::string text = name ? name : "";
        VtxUtilStringDealloc(&name);
        return text;
    };
    EXPECT_EQ(nameAfter("FrameLayout/Width"), "Frame Layout Width");
    EXPECT_EQ(nameAfter("FrameLayout/BorderThickness"), "Border Thickness");
    EXPECT_EQ(nameAfter("PolarAxis/RDetail/GRSpacing"), "GR Spacing");
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

TEST(MacroCommandTest, EveryFunctionThatChangesStateIsACommand)
{
    const std::regex changesNothing("Get|Is[A-Z]|Query|OkTo|Alloc|Dealloc|FindEntry|StringFormat"
                                    "|^VtxUtil(ArgList|Set)[A-Z]"                              // of the caller
                                    "|^VtxUtil(Dialog|StatusMessage|HelpLaunch|Wait|WorkView)" // only shown
                                    "|^VtxUtil(Lock|StateChange|Macro|UndoSet)"                // about steps
                                    "|^VtxUtilProbe(InstallCallbackX|Perform)$" // recorded as what they do
                                    "|^VtxUtilProbeInfoRestore$"                // probes nothing
                                    "|^VtxUtilProbeAtPosition$");               // keeps no result
    long count = 0;
    for (const std::string& function : interfaceFunctions()) {
        if (std::regex_search(function, changesNothing)) {
            continue;
        }
        std::string name = function.substr(std::string_view("VtxUtil").size());
        if (name.ends_with('X')) {
            name.pop_back();
        }
        EXPECT_NE(commandNamed(name == "StyleSetLowLevel" ? "StyleSet" : name), nullptr)
            << function << " changes state and cannot be recorded; list it in Commands.cpp";
        ++count;
    }
    EXPECT_GT(count, 40) << "the headers were found";
}

TEST_F(MacroTest, NamesTextsByTheirPlaces)
{
    ASSERT_TRUE(VtxUtilMacroRecordStart(m_file.c_str()));
    const auto step = [](const std::function<void()>& work) {
        const LockScope lock;
        work();
    };
    long first = 0;
    long second = 0;
    step([&] { first = setText("one", 1.0); });
    step([&] { second = setText("two", 2.0); });
    step([&] {
        setText("two", 3.0, second); // dragged
        setText("two", 4.0, second);
        VtxUtilTextSetHeight(first, 5.0);
        setText("two", 5.0, second);
    });
    step([&] { VtxUtilFrameCreate(1, 1, 2, 2); });
    step([&] { VtxUtilTextSetHeight(second, 7.5); });
    step([&] {
        VtxUtilPageCreate();
        setText("three", 0.5);
    });
    step([&] { VtxUtilTextDelete(first); });
    step([&] { EXPECT_FALSE(VtxUtilTextDelete(first)); });
    const std::vector<std::string> lines = recorded();
    EXPECT_THAT(lines,
                ElementsAre("TextSet Text=one XPos=1.0", "TextSet Text=two XPos=2.0",
                            "TextSetHeight TextID=1 Height=5.0; TextSet TextID=2 Text=two XPos=5.0",
                            "FrameCreate Left=1.0 Top=1.0 Width=2.0 Height=2.0",
                            "TextSetHeight TextID=\"2 of frame 1\" Height=7.5",
                            "PageCreate; TextSet Text=three XPos=0.5", "TextDelete TextID=\"1 of frame 1 of page 1\""));
    expectReplayed(lines);
}

TEST_F(MacroTest, RecordsStreamtracesByTheirNumbers)
{
    const auto place = [](ArgList& list) {
        list.appendArbParam("StreamType", Streamtrace_VolumeLine);
        for (const auto& [name, value] :
             {std::pair{"X1", -3.0}, {"Y1", -1.0}, {"Z1", 2.5}, {"X2", -3.0}, {"Y2", 1.0}, {"Z2", 2.5}}) {
            list.appendDouble(name, value);
        }
        list.appendArbParam("NumPts", 4);
    };
    ASSERT_TRUE(VtxUtilMacroRecordStart(m_file.c_str()));
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilDataReadSample("flow3d"));
    }
    {
        const LockScope lock;
        ASSERT_TRUE(call(&VtxUtilStreamtraceAddX, place)) << kernel().lastError();
    }
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilStreamtraceDeleteRange(2, 3));
        ASSERT_TRUE(VtxUtilPickStreamtrace(2));
    }
    const std::vector<std::string> lines = recorded();
    EXPECT_THAT(lines, ElementsAre("DataReadSample Name=flow3d",
                                   "StreamtraceAdd StreamType=2 X1=-3.0 Y1=-1.0 Z1=2.5 X2=-3.0 Y2=1.0 Z2=2.5 NumPts=4",
                                   "StreamtraceDeleteRange First=2 Last=3; PickStreamtrace Streamtrace=2"));
    expectReplayed(lines);
    EXPECT_EQ(VtxUtilPickListGetStreamtrace(1), 2);
}

TEST_F(MacroTest, RecordsAxesAndProbesHoweverTheyAreAskedFor)
{
    show("lines");
    ASSERT_TRUE(VtxUtilMacroRecordStart(m_file.c_str()));
    {
        const LockScope lock;
        EXPECT_TRUE(VtxUtilViewAxisNiceFit('Y', 1));
        EXPECT_TRUE(call(&VtxUtilViewX, [](ArgList& list) {
            list.appendArbParam("ViewOP", ViewOp_AxisFit);
            list.appendArbParam("Axis", 'X');
        }));
        EXPECT_TRUE(call(&VtxUtilProbeAtLineIndexX, [](ArgList& list) {
            list.appendArbParam("I", 2);
            list.appendArbParam("LineMap", 1);
        })) << kernel().lastError();
        VtxProbeInfoHandle info = VtxUtilProbeInfoGet();
        EXPECT_TRUE(VtxUtilProbePerform(info, nullptr));
        VtxUtilProbeInfoDealloc(&info);
        EXPECT_TRUE(call(&VtxUtilProbeInstallCallbackX, [](ArgList& list) {
            const VtxProbeFunction function = [](char, char, long) {};
            list.appendArbParam("CallbackFunction", reinterpret_cast<long>(function));
        }));
    }
    const std::vector<std::string> lines = recorded();
    EXPECT_THAT(lines, ElementsAre("ViewAxisNiceFit Axis=Y AxisNum=1; View ViewOP=2 Axis=X; "
                                   "ProbeAtLineIndex I=2 J=1 K=1 LineMap=1; ProbeAtLineIndex I=2 J=1 K=1 LineMap=1; "
                                   "MouseSetMode Mode=5"));
    {
        const LockScope lock;
        call(&VtxUtilProbeInstallCallbackX, [](ArgList& list) { list.appendArbParam("CallbackFunction", 0); });
    }
    kernel().reset();
    show("lines");
    ASSERT_TRUE(play(lines.front())) << kernel().lastError();
    EXPECT_EQ(VtxUtilProbeLineGetPoint(), 2);
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
        {"TextSetHeight TextID=1 Height=2", "no text 1 in the frame, which has 0"},
        {"TextDelete TextID=\"1 of page 2\"", "\"TextID\" has to be a position"},
        {"TextDelete TextID=\"1 of frame 1 of page 7\"", "no page 7"},
        {"TextSet Text=a Anchor=9", "\"Anchor\" of a text"},
        {"View ViewOP=0 Axis=88", "\"Axis\" has to be a text"},
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
