#include "LayoutFixture.h"
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
        switch (pick(30)) {
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
    EXPECT_THAT(all, HasSubstr("PickDelete"));
}
