#include "kernel/macro/MacroCommand.h"

#include "KernelFixture.h"
#include "kernel/DataError.h"
#include "kernel/Layout.h"
#include "kernel/SilentFrontEnd.h"
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

    /* Does the commands of a line as one step, as whoever calls the functions does. */
    static void doLine(const std::string& line)
    {
        const LockScope lock;
        for (const MacroCommand& command : parseMacroLine(line)) {
            const Command& about = *commandNamed(command.name);
            ASSERT_TRUE(about.run(checked(command, about), about)) << line << ": " << kernel().lastError();
        }
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

TEST_F(MacroTest, EveryStepOfUndoHasAName)
{
    std::ofstream(m_folder / "t.ply") << "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\n"
                                         "property float z\nelement face 1\nproperty list uchar int vertex_indices\n"
                                         "end_header\n0 0 0\n1 0 0\n0 1 0\n3 0 1 2\n";
    const std::string flow = "DataReadSample Name=flow3d; ";
    const std::string plate = "DataReadSample Name=fe2d; ";
    const std::string lines = "DataReadSample Name=lines; ";
    const std::string frames = "FrameCreate Left=1 Top=1 Width=2 Height=2; ";
    const std::string traces = flow + "StreamtraceAdd StreamType=2 X1=-3 Y1=-1 Z1=2.5; ";
    const std::string text = "TextSet Text=a; ";
    const std::string line = "GeometrySet Points=\"0 0; 10 20\"; ";
    const std::string polar = lines + "FrameSetPlotType PlotType=5; StyleSet Path=\"PolarAxis/ThetaDetail/RangeMax\" "
                                      "Value=2.0; ";
    const std::pair<std::string, std::string> steps[] = {
        {"", "StyleSet Path=FrameName Value=mine"},
        {"", "DataRead Files=[\"" + (m_folder / "t.ply").string() + "\"]"},
        {"", "DataReadSample Name=fe2d"},
        {plate + "CreateRectangularZone IMax=2 JMax=2 KMax=1 XMin=0 YMin=0 ZMin=0 XMax=1 YMax=1 ZMax=0 DataType=1; ",
         "DataSetDeleteZone Zones={2}"},
        {"", "CreateCircularZone IMax=3 JMax=4 KMax=1 XOrigin=0 YOrigin=0 Radius=1 ZMin=0 ZMax=0 DataType=1"},
        {"", "CreateRectangularZone IMax=2 JMax=2 KMax=1 XMin=0 YMin=0 ZMin=0 XMax=1 YMax=1 ZMax=0 DataType=1"},
        {"", "FrameCreate Left=1 Top=1 Width=2 Height=2"},
        {plate + frames, "FrameAttachDataSet Number=1"},
        {plate, "FrameCreateOnSameData"},
        {"", "FrameSetRect Frame=1 Left=1 Top=1 Width=2 Height=2"},
        {frames, "FrameDelete Frame=1"},
        {frames, "FramePop Frame=1"},
        {frames, "FramePush Frame=2"},
        {plate, "FrameSetPlotType PlotType=3"},
        {"", "FrameSetBackgroundColor Color=0"},
        {"", "PageCreate"},
        {"PageCreate; ", "PageDelete Page=1"},
        {lines, "LineMapCreate Zone=1 XVariable=1 YVariable=2"},
        {lines, "LineMapDelete LineMaps={1}"},
        {"", "TextSet Text=a"},
        {text, "TextSetHeight TextID=1 Height=20"},
        {text, "TextDelete TextID=1"},
        {"", "GeometrySet Points=\"0 0; 10 20\""},
        {line, "GeometryDelete GeometryID=1"},
        {flow, "StreamtraceAdd StreamType=2 X1=-3 Y1=-1 Z1=2.5"},
        {traces, "StreamtraceDeleteRange First=1 Last=1"},
        {traces, "StreamtraceDeleteAll"},
        {lines + "ViewAxisNiceFit Axis=Y AxisNum=1; ", "ViewAxisFit Axis=Y AxisNum=1"},
        {lines + "ViewAxisFit Axis=Y AxisNum=1; ", "ViewAxisNiceFit Axis=Y AxisNum=1"},
        {polar, "ViewAxisFitToEntireCircle Axis=T AxisNum=1"},
        {lines + "ViewAxisFit Axis=Y AxisNum=1; ", "ViewAxisMakeCurValsNice Axis=Y AxisNum=1"},
        {lines + "ViewAxisFit Axis=Y AxisNum=1; ", "View ViewOP=0"},
        {flow + "StyleSet Path=\"GlobalThreeD/AxisScale/X\" Value=3.0; ", "Reset3DScaleFactors"},
        {text + "PickText TextID=1; ", "PickDelete"},
    };
    std::set<std::string> done{"DataValueLoad",
                               "FrameActivate",
                               "PageActivate",
                               "ProbeAtFieldPosition",
                               "ProbeAtFieldIndex",
                               "ProbeAtLineIndex",
                               "ProbeAtLinePosition",
                               "MouseSetMode",
                               "PickClear",
                               "PickFrame",
                               "PickZone",
                               "PickText",
                               "PickGeometry",
                               "PickLineMap",
                               "PickStreamtrace",
                               "PickAxis",
                               "PickLegend",
                               "PickAtPosition"}; // are no steps of undo
    for (const auto& [before, step] : steps) {
        kernel().reset();
        doLine(before);
        const std::string state = kernel().layout().text();
        doLine(step);
        EXPECT_TRUE(kernel().layout().text() != state) << step << " after " << before << " was to change something";
        EXPECT_NE(kernel().undoStack().undoName(), "") << step;
        done.insert(parseMacroLine(step).front().name);
    }
    for (const Command& command : commands()) {
        EXPECT_TRUE(command.isStepOfItsOwn || done.contains(command.name)) << command.name;
    }
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
    EXPECT_THAT(
        lines, ElementsAre("DataReadSample Name=flow3d",
                           "StreamtraceAdd StreamType=VolumeLine X1=-3.0 Y1=-1.0 Z1=2.5 X2=-3.0 Y2=1.0 Z2=2.5 NumPts=4",
                           "StreamtraceDeleteRange First=2 Last=3; PickStreamtrace Streamtrace=2"));
    expectReplayed(lines);
    EXPECT_EQ(VtxUtilPickListGetStreamtrace(1), 2);
}

TEST_F(MacroTest, StreamtracesThatWereStoppedLeaveTheRestOfTheirStep)
{
    class Impatient : public SilentFrontEnd
    {
    public:
        bool reportProgress(const std::string& task, double /*fraction*/) override
        {
            return task != "Tracing streamtraces";
        }
    } impatient;
    doLine("DataReadSample Name=flow3d; StyleSet Path=\"StreamtraceLayers/Show\" Value=1");
    ASSERT_TRUE(VtxUtilMacroRecordStart(m_file.c_str()));
    kernel().setFrontEnd(&impatient);
    {
        const LockScope lock;
        setByInterface("FrameLayout/Width", 4.0);
        EXPECT_FALSE(call(&VtxUtilStreamtraceAddX, [](ArgList& list) {
            list.appendArbParam("StreamType", Streamtrace_VolumeLine);
            for (const auto& [name, value] : {std::pair{"X1", -3.0}, {"Y1", -1.0}, {"Z1", 2.5}}) {
                list.appendDouble(name, value);
            }
        }));
    }
    kernel().setFrontEnd(nullptr);
    EXPECT_TRUE(kernel().isLastErrorCancellation()) << kernel().lastError();
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 0);
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(4.0));
    EXPECT_THAT(recorded(), ElementsAre("StyleSet Path=\"FrameLayout/Width\" Value=4.0"));
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(9.0));
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
    EXPECT_THAT(lines, ElementsAre("ViewAxisNiceFit Axis=Y AxisNum=1; View ViewOP=AxisFit Axis=X; "
                                   "ProbeAtLineIndex I=2 J=1 K=1 LineMap=1; ProbeAtLineIndex I=2 J=1 K=1 LineMap=1; "
                                   "MouseSetMode Mode=Probe"));
    {
        const LockScope lock;
        call(&VtxUtilProbeInstallCallbackX, [](ArgList& list) { list.appendArbParam("CallbackFunction", 0); });
    }
    kernel().reset();
    show("lines");
    ASSERT_TRUE(play(lines.front())) << kernel().lastError();
    EXPECT_EQ(VtxUtilProbeLineGetPoint(), 2);
}

TEST_F(MacroTest, EnumeratorsAreWrittenByNameAndReadByNumberToo)
{
    ASSERT_TRUE(VtxUtilMacroRecordStart(m_file.c_str()));
    doLine("CreateRectangularZone IMax=2 JMax=2 KMax=1 XMin=0 YMin=0 ZMin=0 XMax=1 YMax=1 ZMax=0 DataType=1; "
           "TextSet Text=a Anchor=4 BoxType=1; GeometrySet GeomType=3 Width=5");
    doLine(
        "FrameSetPlotType PlotType=5; PickAxis Axis=T AxisNumber=1 Part=2; PickLegend Legend=7; MouseSetMode Mode=2");
    const std::vector<std::string> lines = recorded();
    EXPECT_THAT(lines,
                ElementsAre("CreateRectangularZone IMax=2 JMax=2 KMax=1 XMin=0.0 YMin=0.0 ZMin=0.0 XMax=1.0 "
                            "YMax=1.0 ZMax=0.0 DataType=Float; TextSet Text=a Anchor=MiddleCenter BoxType=Filled; "
                            "GeometrySet GeomType=Circle Width=5",
                            "FrameSetPlotType PlotType=PolarLine; PickAxis Axis=T AxisNumber=1 Part=Title; "
                            "PickLegend Legend=LineLegend; MouseSetMode Mode=Zoom"));
    expectReplayed(lines);
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Zoom);
}

TEST_F(MacroTest, AFileMayBeginWithAByteOrderMark)
{
    ASSERT_TRUE(play("\xEF\xBB\xBFMacro Version=1\nPageCreate\n")) << kernel().lastError();
    EXPECT_EQ(VtxUtilPageGetCount(), 2);
    EXPECT_FALSE(play("PageCreate\n\xEF\xBB\xBFPageCreate\n")) << "only the file, not a line";
    const std::string layout = (m_folder / "marked.vxlay").string();
    std::ofstream(layout) << "\xEF\xBB\xBFLayout Version=1\nPage\nPage\nPage\n";
    ASSERT_TRUE(VtxUtilLayoutOpen(layout.c_str())) << kernel().lastError();
    EXPECT_EQ(VtxUtilPageGetCount(), 3);
}

TEST_F(MacroTest, ValuesOfALineMayComeInAnyOrder)
{
    const std::string minimum = "StyleSet Path=\"XYLineAxis/XDetail/RangeMin\" Object=1 Value=";
    const std::string maximum = "StyleSet Path=\"XYLineAxis/XDetail/RangeMax\" Object=1 Value=";
    const auto range = [this] {
        const long frame = kernel().document().activeFrame()->id();
        return std::pair(style().real(frame, style().entry("XYLineAxis/XDetail/RangeMin"), 1),
                         style().real(frame, style().entry("XYLineAxis/XDetail/RangeMax"), 1));
    };
    ASSERT_TRUE(play(minimum + "140; " + maximum + "240")) << "above the present range: " << kernel().lastError();
    EXPECT_EQ(range(), std::pair(140.0, 240.0));
    ASSERT_TRUE(play(maximum + "24; " + minimum + "14")) << "below it: " << kernel().lastError();
    EXPECT_EQ(range(), std::pair(14.0, 24.0));
    EXPECT_FALSE(play(minimum + "300; " + maximum + "200"));
    EXPECT_THAT(kernel().lastError(), HasSubstr("X1"));
    EXPECT_EQ(range(), std::pair(14.0, 24.0)) << "nothing half done";
}

TEST_F(MacroTest, ALineThatFailsLeavesNoProbeAndNoMouseMode)
{
    show("lines");
    doLine("ProbeAtLineIndex I=2 LineMap=1; MouseSetMode Mode=Zoom");
    EXPECT_FALSE(play("ProbeAtLineIndex I=5 LineMap=1; MouseSetMode Mode=Probe; PageDelete Page=9"));
    EXPECT_THAT(kernel().lastError(), HasSubstr("no page 9"));
    EXPECT_EQ(VtxUtilProbeLineGetPoint(), 2);
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Zoom);
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
        {"PageCreate\nTextSet Words=a\n", "line 2: TextSet has no \"Words\"; it has TextID, Text, PositionCoordSys"},
        {"PageCreate\nView ViewOp=Fit\n", "line 2: View has no \"ViewOp\"; it has ViewOP"},
        {"PageCreate\nProbeAtFieldIndex I=1 Zones=1\n", "line 2: ProbeAtFieldIndex has no \"Zones\""},
        {"PageCreate\nMouseSetMode Mode=Fly\n", "\"Mode\" cannot be Fly: it has to be one of 1 Selector, 2 Zoom"},
        {"PageCreate\nGeometrySet GeomType=Star\n", "\"GeomType\" cannot be Star: it has to be one of 0 Line"},
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
        {"StyleSet Path=PlotType Value=Cubist", "not Cubist: it has to be one of 1 Cartesian3D"},
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
