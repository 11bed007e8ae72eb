#include "LayoutFixture.h"
#include "kernel/ProbeService.h"
#include "kernel/StyleActions.h"
#include "kernel/macro/MacroCommand.h"
#include "toolbox/ArgList.h"
#include "toolbox/Set.h"

#include <random>

using namespace vantrix::kernel;
using testing::HasSubstr;

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
        switch (pick(40)) {
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
        case 22:
            VtxUtilPickDelete();
            break;
        case 23:
            VtxUtilCreateRectangularZone(2 + pick(3), 2 + pick(3), 1 + pick(2), 0.0, -inches(), 0.0, inches(), 1.0,
                                         1.0 / 3.0, static_cast<FieldDataType_e>(1 + pick(6)));
            break;
        case 24:
            loadSomeVariables();
            break;
        case 25:
            VtxUtilFrameSetBackgroundColor(pick(70)); // some there are not
            break;
        case 26:
            VtxUtilMouseSetMode(static_cast<MouseMode_e>(1 + pick(8)));
            break;
        case 27:
            pickSomething();
            break;
        case 28:
        case 29:
            addSomeStreamtraces();
            break;
        case 30:
            if (pick(3) == 0) {
                VtxUtilStreamtraceDeleteAll();
            } else {
                VtxUtilStreamtraceDeleteRange(1 + pick(3), 1 + pick(4));
            }
            break;
        case 31:
            probeSomewhere();
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

    void loadSomeVariables()
    {
        vantrix::toolbox::Set variables;
        variables.addMember(1 + pick(4));
        VtxUtilDataValueLoad(1 + pick(2), variables.handle());
    }

    void pickSomething()
    {
        switch (pick(5)) {
        case 0:
            VtxUtilPickAxis("XYZTR"[pick(5)], static_cast<int>(1 + pick(2)), static_cast<AxisSubObject_e>(pick(3)));
            break;
        case 1:
            VtxUtilPickLineMap(1 + pick(3));
            break;
        case 2:
            VtxUtilPickLegend(pick(2) == 0 ? PickObject_ContourLegend : PickObject_LineLegend);
            break;
        case 3:
            VtxUtilPickStreamtrace(1 + pick(3));
            break;
        default:
            VtxUtilPickClear();
        }
    }

    void addSomeStreamtraces()
    {
        ArgList list;
        const PlotType_e plotType = VtxUtilFrameGetPlotType();
        list.appendArbParam("StreamType",
                            plotType == PlotType_Cartesian2D ? Streamtrace_TwoDLine : Streamtrace_VolumeLine);
        if (pick(2) == 0) {
            list.appendArbParam("StreamDirection", pick(4)); // one there is not
        }
        if (pick(2) == 0) {
            list.appendArbParam("Zone", 1);
            list.appendArbParam("I1", 1 + pick(5));
            list.appendArbParam("J1", 1 + pick(5));
        } else {
            for (const char* name : {"X1", "Y1", "Z1", "X2", "Y2", "Z2"}) {
                if (name[0] != 'Z' || plotType != PlotType_Cartesian2D) {
                    list.appendDouble(name, inches() / 2.0);
                }
            }
            list.appendArbParam("NumPts", 1 + pick(3));
        }
        if (VtxUtilStreamtraceAddX(list.handle()) && pick(2) == 0) {
            VtxUtilPickStreamtrace(VtxUtilStreamtraceGetCount());
        }
    }

    void probeSomewhere()
    {
        ArgList list;
        switch (pick(4)) {
        case 0:
            for (const char* name : {"X", "Y", "Z"}) {
                list.appendDouble(name, inches() / 2.0);
            }
            list.appendArbParam("NearestPoint", pick(2));
            VtxUtilProbeAtFieldPositionX(list.handle());
            return;
        case 1:
            list.appendArbParam("I", 1 + pick(8));
            list.appendArbParam("Zone", 1 + pick(2));
            VtxUtilProbeAtFieldIndexX(list.handle());
            return;
        case 2:
            list.appendArbParam("Axis", "XY"[pick(2)]);
            list.appendDouble("Position", inches());
            VtxUtilProbeAtLinePositionX(list.handle());
            return;
        default:
            list.appendArbParam("I", 1 + pick(8));
            list.appendArbParam("LineMap", 1 + pick(2));
            VtxUtilProbeAtLineIndexX(list.handle());
        }
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
        long created = 0;
        list.appendArbParamPtr("Result", &created);
        if (VtxUtilGeometrySetX(list.handle()) && pick(2) == 0) {
            VtxUtilPickClear();
            VtxUtilPickGeometry(created);
        }
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

namespace {

/* What layouts do not hold: the settings of the program, the mouse mode, what is picked and where was probed. */
std::string restOfState()
{
    const Kernel& kernel = Kernel::instance();
    std::string state = "mouse " + std::to_string(VtxUtilMouseGetCurrentMode()) + '\n';
    for (const StyleStore::Stored& setting : kernel.style().storedValues(StyleStore::processScope)) {
        state +=
            macroText(StyleActions::command(setting.entry, {setting.offset1}, setting.offset2, setting.value)) + '\n';
    }
    for (long i = 1; i <= VtxUtilPickListGetCount(); ++i) {
        state += "picked " + std::to_string(VtxUtilPickListGetType(i));
        for (const long number : {VtxUtilPickListGetZoneNumber(i), VtxUtilPickListGetLineMapNumber(i),
                                  VtxUtilPickListGetStreamtrace(i), long{VtxUtilPickListGetAxisKind(i)},
                                  long{VtxUtilPickListGetAxisNumber(i)}, long{VtxUtilPickListGetAxisSubObject(i)}}) {
            state += ' ' + std::to_string(number);
        }
        state += '\n';
    }
    const FieldProbeResult* field = Kernel::instance().probes().fieldResult();
    const LineProbeResult* line = Kernel::instance().probes().lineResult();
    state +=
        field ? "probed zone " + std::to_string(field->zone) + " point " + std::to_string(field->point) + '\n' : "";
    state += line ? "probed " + std::to_string(VtxUtilProbeLineGetPoint()) + '\n' : "";
    return state;
}

} // namespace

TEST_F(LayoutTest, ARecordedSessionReplayedEndsInTheSameState)
{
    std::string all;
    for (unsigned seed = 1; seed <= 8; ++seed) {
        kernel().reset();
        kernel().mouseModes().set(MouseMode_Selector);
        const std::string macro = path("random.vxmac");
        ASSERT_TRUE(VtxUtilMacroRecordStart(macro.c_str()));
        RandomSession session(seed);
        for (int i = 0; i < 150; ++i) {
            session.step();
        }
        ASSERT_TRUE(VtxUtilMacroRecordStop());
        const std::string before = text();
        const std::string rest = restOfState();
        const std::string recorded = content(macro);
        EXPECT_GT(std::count(recorded.begin(), recorded.end(), '\n'), 50) << "something happened";
        all += recorded;

        kernel().reset();
        kernel().mouseModes().set(MouseMode_Selector);
        ASSERT_TRUE(VtxUtilMacroRun(macro.c_str())) << "seed " << seed << ": " << kernel().lastError();
        EXPECT_EQ(text(), before) << "seed " << seed;
        EXPECT_EQ(restOfState(), rest) << "seed " << seed;

        ASSERT_TRUE(VtxUtilLayoutSave(path("random.vxlay").c_str()));
        ASSERT_TRUE(VtxUtilLayoutOpen(path("random.vxlay").c_str())) << "seed " << seed << ": " << kernel().lastError();
        EXPECT_EQ(text(), before) << "seed " << seed << ", saved and opened";
    }
    EXPECT_THAT(all, HasSubstr("TextID=")) << "it happened to texts as well";
    EXPECT_THAT(all, HasSubstr("GeometryID="));
    EXPECT_THAT(all, HasSubstr("FrameAttachDataSet"));
    EXPECT_THAT(all, HasSubstr("PickDelete"));
    for (const char* command : {"StreamtraceAdd", "StreamtraceDelete", "ProbeAtField", "ProbeAtLine",
                                "CreateRectangularZone", "DataValueLoad", "FrameSetBackgroundColor", "MouseSetMode",
                                "PickAxis", "PickLineMap", "PickLegend", "PickStreamtrace"}) {
        EXPECT_NE(all.find(command), std::string::npos) << command;
    }
}
