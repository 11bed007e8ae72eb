#include "KernelFixture.h"

#include "kernel/StylePath.h"

#include <cmath>
#include <limits>

namespace vantrix::kernel {

namespace {

using testing::HasSubstr;

class StyleTest : public KernelTest
{
protected:
    static const StyleEntry& about(long entry) { return styleVocabulary()[static_cast<std::size_t>(entry)]; }

    static long offset(long entry, std::size_t which)
    {
        return styleOffset(about(entry).offsets[which]).kind == StyleOffset::Kind::None ? -1 : 1;
    }

    static StyleData read(long entry)
    {
        StyleData value;
        EXPECT_EQ(style().get(entry, offset(entry, 0), offset(entry, 1), value), GetValueReturnCode_Ok)
            << stylePathText(entry);
        return value;
    }

    static SetValueReturnCode_e write(long entry, const StyleData& value)
    {
        const LockScope lock;
        return style().set(entry, offset(entry, 0), offset(entry, 1), value);
    }

    static StyleData defaultOf(const StyleEntry& entry)
    {
        return entry.type == StyleType::String   ? StyleData(std::string(entry.stringDefault))
               : entry.type == StyleType::Double ? StyleData(entry.doubleDefault)
                                                 : StyleData(entry.integerDefault);
    }

    /* Another value that the description allows. */
    static StyleData legalChange(const StyleEntry& entry)
    {
        StyleData present = defaultOf(entry);
        switch (entry.type) {
        case StyleType::Flag:
            return 1 - entry.integerDefault;
        case StyleType::Enumeration:
            for (const StyleEnumerator& enumerator : styleEnumeration(entry.enumeration).enumerators) {
                if (StyleData(enumerator.value) != present) {
                    return enumerator.value;
                }
            }
            return present;
        case StyleType::Integer: {
            const double next = static_cast<double>(entry.integerDefault) + 1;
            return next <= entry.maximum ? entry.integerDefault + 1 : entry.integerDefault - 1;
        }
        case StyleType::Double:
            return (entry.doubleDefault + std::min(entry.maximum, entry.doubleDefault + 1.0)) / 2.0 !=
                           entry.doubleDefault
                       ? (entry.doubleDefault + std::min(entry.maximum, entry.doubleDefault + 1.0)) / 2.0
                       : entry.doubleDefault - 0.01;
        case StyleType::String:
            return std::string("another");
        }
        return present;
    }

    static std::vector<StyleData> valuesOutOfRange(const StyleEntry& entry)
    {
        if (entry.type == StyleType::String) {
            return {};
        }
        if (entry.type != StyleType::Double) {
            std::vector<StyleData> values;
            if (entry.type != StyleType::Integer) {
                return {-1L, 4711L};
            }
            if (entry.minimum > -1e9) {
                values.emplace_back(static_cast<long>(entry.minimum) - 1);
            }
            if (entry.maximum < 1e12) {
                values.emplace_back(static_cast<long>(entry.maximum) + 1);
            }
            return values;
        }
        std::vector<StyleData> values{std::nan(""), std::numeric_limits<double>::infinity()};
        if (entry.minimum > -1e300) {
            values.emplace_back(entry.aboveMinimum ? entry.minimum : entry.minimum - 0.001);
        }
        if (entry.maximum < 1e300) {
            values.emplace_back(entry.maximum + 0.001);
        }
        return values;
    }
};

} // namespace

TEST_F(StyleTest, EveryValueBeginsAtItsDefaultTakesALegalChangeTellsOfItOnceAndComesBackByUndo)
{
    show("flow3d");
    for (long entry = 0; entry < static_cast<long>(styleVocabulary().size()); ++entry) {
        SCOPED_TRACE(stylePathText(entry));
        const StyleEntry& description = about(entry);
        StyleData present = read(entry);
        const StyleData another = present == defaultOf(description) ? legalChange(description) : defaultOf(description);
        ASSERT_NE(another, present);
        const unsigned long stamp = style().changeStamp(entry);
        notices.clear();

        ASSERT_EQ(write(entry, another), SetValueReturnCode_Ok) << style().lastError();
        EXPECT_EQ(read(entry), another);
        EXPECT_NE(style().changeStamp(entry), stamp);
        EXPECT_EQ(std::count_if(notices.begin(), notices.end(), [&](auto& n) { return n.entry == entry; }), 1);

        notices.clear();
        ASSERT_EQ(write(entry, another), SetValueReturnCode_Ok);
        EXPECT_TRUE(notices.empty()) << "an equal value was announced";

        ASSERT_TRUE(VtxUtilUndo());
        EXPECT_EQ(read(entry), present);
        EXPECT_EQ(std::count_if(notices.begin(), notices.end(), [&](auto& n) { return n.entry == entry; }), 1);
    }
}

TEST_F(StyleTest, EveryValueRefusesAWrongTypeAndWhatIsOutOfRangeWithATextThatNamesThePath)
{
    show("flow3d");
    for (long entry = 0; entry < static_cast<long>(styleVocabulary().size()); ++entry) {
        SCOPED_TRACE(stylePathText(entry));
        const StyleEntry& description = about(entry);
        const StyleData present = read(entry);
        const StyleData wrongType = description.type == StyleType::String ? StyleData(1L) : StyleData(std::string("1"));
        EXPECT_EQ(write(entry, wrongType), SetValueReturnCode_WrongType);
        EXPECT_THAT(style().lastError(), HasSubstr(stylePathText(entry)));
        for (const StyleData& value : valuesOutOfRange(description)) {
            EXPECT_EQ(write(entry, value), SetValueReturnCode_OutOfRange);
            EXPECT_THAT(style().lastError(), HasSubstr(stylePathText(entry)));
        }
        EXPECT_EQ(read(entry), present);
    }
}

TEST_F(StyleTest, OffsetsAreCheckedByWhatTheyCount)
{
    struct Case
    {
        const char* path;
        long offset;
        bool isRight;
    };
    show("lines"); // four zones
    for (const Case& one :
         {Case{"FrameLayout/Width", -1, true}, Case{"FrameLayout/Width", 1, false},
          Case{"XYLineAxis/XDetail/ShowAxis", -1, false}, Case{"XYLineAxis/XDetail/ShowAxis", 0, false},
          Case{"XYLineAxis/XDetail/ShowAxis", 5, true}, Case{"XYLineAxis/XDetail/ShowAxis", 6, false},
          Case{"Blanking/Value/Constraint/VarA", 8, true}, Case{"Blanking/Value/Constraint/VarA", 9, false},
          Case{"ActiveFieldMaps", 4, true}, Case{"ActiveFieldMaps", 5, false}}) {
        SCOPED_TRACE(std::string(one.path) + ' ' + std::to_string(one.offset));
        const long entry = style().entry(one.path);
        StyleData value;
        EXPECT_EQ(style().get(entry, one.offset, -1, value) == GetValueReturnCode_Ok, one.isRight);
        if (!one.isRight) {
            EXPECT_THAT(style().lastError(), HasSubstr(stylePathText(entry)));
        }
    }
}

TEST_F(StyleTest, ValuesBelongToTheirFrameAndStampsMoveWithTheActiveOne)
{
    const long width = style().entry("FrameLayout/Width");
    const long tips = style().entry("Interface/ShowToolTips");
    set("FrameLayout/Width", 5.0);
    const long first = document().activeFrame()->id();
    const unsigned long ofFrame = style().changeStamp(width);
    const unsigned long ofProcess = style().changeStamp(tips);
    {
        const LockScope lock;
        document().addFrame();
    }
    EXPECT_EQ(std::get<double>(value("FrameLayout/Width")), 9.0);
    EXPECT_NE(style().changeStamp(width), ofFrame);
    EXPECT_EQ(style().changeStamp(tips), ofProcess);

    const unsigned long drawn = style().scopeStamp(first);
    set("FrameLayout/Width", 4.0);
    EXPECT_EQ(style().scopeStamp(first), drawn) << "a change of another frame asks for drawing";
    EXPECT_EQ(style().real(first, width), 5.0);
}

TEST_F(StyleTest, ZonesThatGoAwayTakeTheirStyleAlongAndUndoBringsItBack)
{
    show("lines");
    set("FieldMap/Mesh/Color", 3L, 2);
    set("FieldMap/Mesh/Color", 5L, 4);
    {
        const LockScope lock;
        DataSet data = *document().activeDataSet();
        data.zones.erase(data.zones.begin() + 1);
        data.zoneEnabled.erase(data.zoneEnabled.begin() + 1);
        document().replaceDataSet(std::move(data), {StateChange_ZonesDeleted}, {2});
    }
    EXPECT_EQ(value("FieldMap/Mesh/Color", 2), StyleData(0L));
    EXPECT_EQ(value("FieldMap/Mesh/Color", 3), StyleData(5L));

    notices.clear();
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_THAT(kinds(), testing::Contains(int{StateChange_ZonesAdded}).Times(1));
    EXPECT_EQ(kinds().back(), StateChange_HistoryStep);
    EXPECT_EQ(value("FieldMap/Mesh/Color", 2), StyleData(3L));
    EXPECT_EQ(value("FieldMap/Mesh/Color", 4), StyleData(5L));

    ASSERT_TRUE(VtxUtilRedo());
    EXPECT_EQ(document().activeDataSet()->zoneCount(), 3);
    EXPECT_EQ(value("FieldMap/Mesh/Color", 3), StyleData(5L));
}

TEST_F(StyleTest, AnotherBackgroundKeepsForegroundsVisible)
{
    show("lines");
    set("FieldMap/Mesh/Color", 2L, 3);
    const LockScope lock;
    ASSERT_EQ(VtxUtilFrameSetBackgroundColor(2), SetValueReturnCode_Ok);
    EXPECT_EQ(value("FieldMap/Mesh/Color", 3), StyleData(0L));
    ASSERT_EQ(VtxUtilFrameSetBackgroundColor(0), SetValueReturnCode_Ok);
    EXPECT_EQ(value("FieldMap/Mesh/Color", 4), StyleData(7L))
        << "a colour that was never set equals the background, too";
    EXPECT_EQ(value("TwoDAxis/XDetail/AxisLine/Color"), StyleData(7L));
    EXPECT_EQ(value("FrameLayout/BackgroundColor"), StyleData(0L));
    EXPECT_EQ(VtxUtilFrameSetBackgroundColor(64), SetValueReturnCode_OutOfRange);
}

TEST_F(StyleTest, APlotOfDataIsRefusedWithoutData)
{
    EXPECT_EQ(set("PlotType", long{PlotType_Cartesian2D}), SetValueReturnCode_Refused);
    EXPECT_THAT(style().lastError(), HasSubstr("no data"));
    EXPECT_EQ(VtxUtilFrameGetPlotType(), PlotType_Sketch);
    show("lines");
    EXPECT_EQ(set("PlotType", long{PlotType_Cartesian2D}), SetValueReturnCode_Ok);
}

TEST_F(StyleTest, AReadOfAnUnknownOrUnfitEntryThrowsNamingIt)
{
    EXPECT_THROW(style().real(1, -1), std::logic_error);
    EXPECT_THROW(style().real(1, style().entry("FrameName")), std::logic_error);
    EXPECT_EQ(style().entry("FrameLayout/Nothing"), -1);
    EXPECT_EQ(style().entry({"FrameLayout", "XYPos", "X"}), style().entry("FrameLayout/XYPos/X"));
    EXPECT_EQ(style().entry("FrameLayout"), -1) << "a node is no value";
}

} // namespace vantrix::kernel
