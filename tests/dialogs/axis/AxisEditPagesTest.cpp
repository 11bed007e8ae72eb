#include "AxisDialogTest.h"

#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"
#include "sdk/StateChangeEventObservable.h"
#include "ui/ColorButton.h"

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QSpinBox>

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;
using vantrix::sdk::ui::common::ColorButton;

namespace {

/// The style values that change, by their paths, and how often each does.
class StyleChanges
{
public:
    StyleChanges()
        : m_connection(vantrix::sdk::integration::StateChangeEventObservable::getInstance().connect(
              [this](vantrix::toolbox::StateChangeEventInterface const& event) { keep(event); }))
    {}

    std::map<std::string, int> counts;

private:
    void keep(vantrix::toolbox::StateChangeEventInterface const& event)
    {
        if (event.kind() == StateChange_Style) {
            std::string path = event.styleParam(1);
            for (int index = 2; !event.styleParam(index).empty(); ++index) {
                path += "/" + event.styleParam(index);
            }
            ++counts[path];
        }
    }

    boost::signals2::scoped_connection m_connection;
};

/// Whether the widget is one to give a value with, and not a part of another one.
bool isInput(QWidget const& widget)
{
    QWidget const* const around = widget.parentWidget();
    bool const isPart = qobject_cast<QComboBox const*>(around) || qobject_cast<QAbstractSpinBox const*>(around);
    return !isPart && widget.isVisible() && widget.isEnabled() &&
           (qobject_cast<QCheckBox const*>(&widget) || qobject_cast<QRadioButton const*>(&widget) ||
            qobject_cast<QLineEdit const*>(&widget) || qobject_cast<QComboBox const*>(&widget) ||
            qobject_cast<QAbstractSpinBox const*>(&widget) || qobject_cast<ColorButton const*>(&widget));
}

/// What the widget shows, as a text.
std::string shownBy(QWidget const& widget)
{
    if (auto const* color = qobject_cast<ColorButton const*>(&widget)) {
        return std::to_string(color->color());
    }
    if (auto const* button = qobject_cast<QAbstractButton const*>(&widget)) {
        return button->isChecked() ? "checked" : "unchecked";
    }
    if (auto const* box = qobject_cast<QComboBox const*>(&widget)) {
        return box->currentText().toStdString();
    }
    auto const* edit = qobject_cast<QLineEdit const*>(&widget);
    return textOf(edit ? *edit : *widget.findChild<QLineEdit*>());
}

/// Half the number, which every range of the style has room for; a half in place of 0.
std::string anotherNumber(std::string const& text)
{
    double const number = QString::fromStdString(text).toDouble();
    return QString::number(number == 0.0 ? 0.5 : number / 2).toStdString();
}

/// Gives the widget another value, as a user does.
void change(QWidget& widget)
{
    widget.setFocus();
    if (auto* color = qobject_cast<ColorButton*>(&widget)) {
        auto const wanted = (color->color() + 1) % 8;
        for (auto* const choice : color->popup().findChildren<QAbstractButton*>()) {
            if (choice->property("color") == wanted) {
                choice->click();
            }
        }
    } else if (qobject_cast<QAbstractButton*>(&widget)) {
        QTest::keyClick(&widget, Qt::Key_Space);
    } else if (auto* box = qobject_cast<QComboBox*>(&widget)) {
        QTest::keyClick(box, box->currentIndex() == box->count() - 1 ? Qt::Key_Up : Qt::Key_Down);
    } else if (auto* spinBox = qobject_cast<QSpinBox*>(&widget)) {
        QTest::keyClick(spinBox, Qt::Key_Up);
    } else {
        auto* const edit = qobject_cast<QLineEdit*>(&widget);
        QLineEdit& field = edit ? *edit : *widget.findChild<QLineEdit*>();
        enter(field, anotherNumber(textOf(field)).c_str());
    }
    idle();
}

class AxisEditPagesTest : public AxisDialogTest
{
protected:
    static void set(std::string const& path, vantrix::kernel::StyleData const& value, long number = -1)
    {
        vantrix::sdk::AppLock const lock;
        auto& style = vantrix::kernel::Kernel::instance().style();
        EXPECT_EQ(style.set(style.entry(path.c_str()), number, -1, value), SetValueReturnCode_Ok) << path;
    }

    /// Turns on what other controls depend on.
    static void turnEverythingOn(std::string const& axes, std::string const& detail, long number)
    {
        std::string const axis = axes + "/" + detail + "/";
        for (char const* flag : {"GridLines/Show", "MinorGridLines/Show", "AxisLine/Show"}) {
            set(axis + flag, 1L, number);
        }
        for (char const* lines : {"GridLines/", "MinorGridLines/"}) {
            set(axis + lines + "LinePattern", static_cast<long>(LinePattern_Dashed), number);
        }
        set(axis + "AutoGrid", 0L, number);
        if (axes == "XYLineAxis" || detail == "RDetail") {
            set(axis + "RangeMin", 0.25, number); // a logarithmic scale then changes the scale alone
        }
        set(axis + "Title/TitleMode", static_cast<long>(AxisTitleMode_Text), number);
        set(axes + "/GridArea/DrawBorder", 1L);
        set(axes + "/GridArea/IsFilled", 1L);
        if (axes != "ThreeDAxis") {
            set(axes + "/PreciseGrid/Include", 1L);
        }
        if (axes == "PolarAxis") {
            set("PolarAxis/ViewportStyle/DrawBorder", 1L);
            set("PolarAxis/ViewportStyle/IsFilled", 1L);
            set("PolarAxis/ThetaMode", static_cast<long>(ThetaMode_Arbitrary));
        }
        idle();
    }

    static std::vector<QWidget*> inputs(QWidget const& page)
    {
        std::vector<QWidget*> found;
        for (auto* const widget : page.findChildren<QWidget*>()) {
            if (isInput(*widget)) {
                found.push_back(widget);
            }
        }
        return found;
    }

    /// Changes the widget and takes that back; gives the path of the style value that it is bound to.
    static std::string edit(QWidget& widget)
    {
        SCOPED_TRACE(widget.objectName().toStdString());
        std::string const before = shownBy(widget);
        StyleChanges changes;
        change(widget);
        EXPECT_EQ(changes.counts.size(), 1U) << "one value is edited";
        std::string path = changes.counts.empty() ? std::string() : changes.counts.begin()->first;
        EXPECT_EQ(changes.counts[path], 1) << path << " is written once";
        EXPECT_NE(shownBy(widget), before) << path;
        EXPECT_TRUE(VtxUtilUndo());
        idle();
        EXPECT_EQ(shownBy(widget), before) << "the widget follows " << path;
        return path;
    }
};

struct PlottedAxis
{
    PlotType_e plotType;
    char const* axes;
    char const* detail;
    char const* button;
    long number;
    std::size_t widgets; ///< how many there are at the least
};

class EveryControl : public AxisEditPagesTest, public testing::WithParamInterface<PlottedAxis>
{};

} // namespace

TEST_P(EveryControl, WritesItsStyleValueOnceAndFollowsIt)
{
    PlottedAxis const& about = GetParam();
    setPlotType(about.plotType);
    turnEverythingOn(about.axes, about.detail, about.number);
    auto const& dialog = launch<AxisEditDialog>();
    click(dialog, about.button);
    auto& tabs = find<QTabWidget>(dialog, "rangePage");
    std::size_t count = 0;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        idle();
        std::map<std::string, std::string> owners;
        for (QWidget* const widget : inputs(*tabs.currentWidget())) {
            auto const* const radio = qobject_cast<QRadioButton*>(widget);
            if (radio && radio->isChecked()) {
                continue; // stands for the value that there is
            }
            std::string const path = edit(*widget);
            bool const isNew = owners.emplace(path, widget->objectName().toStdString()).second;
            EXPECT_TRUE(radio || isNew) << path << " has two controls: " << owners[path];
            ++count;
        }
    }
    EXPECT_GE(count, about.widgets);
    EXPECT_THAT(frontEnd.messages, testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    OfAxes, EveryControl,
    testing::Values(
        PlottedAxis{PlotType_Cartesian3D, "ThreeDAxis", "ZDetail", "axisEdit_Pick3DZAxis_TXRadioButton", -1, 60},
        PlottedAxis{PlotType_Cartesian2D, "TwoDAxis", "YDetail", "axisEdit_Pick2DYAxis_TXRadioButton", -1, 60},
        PlottedAxis{PlotType_XYLine, "XYLineAxis", "XDetail", "axisEdit_PickXYX3Axis_TXRadioButton", 3, 60},
        PlottedAxis{PlotType_PolarLine, "PolarAxis", "ThetaDetail", "axisEdit_PickPolarThetaAxis_TXRadioButton", -1,
                    65},
        PlottedAxis{PlotType_PolarLine, "PolarAxis", "RDetail", "axisEdit_PickPolarRAxis_TXRadioButton", -1, 65},
        PlottedAxis{PlotType_Sketch, "SketchAxis", "XDetail", "axisEdit_Pick2DXAxis_TXRadioButton", -1, 60}),
    [](testing::TestParamInfo<PlottedAxis> const& tested) {
        return std::string(tested.param.axes) + tested.param.detail;
    });

TEST_F(AxisEditPagesTest, TheSpacingThatThePlotChoseIsShownAndKeptWhenItIsGivenByHand)
{
    setPlotType(PlotType_Cartesian2D);
    auto const& dialog = launch<AxisEditDialog>();
    click(dialog, "axisEdit_Pick2DYAxis_TXRadioButton");
    showTab(dialog, "axisEdit_Ticks_Page");
    auto const& spacing = find<QDoubleSpinBox>(dialog, "axisEdit_TicksSpacing_1Text");
    double const stored = styleOf<double>({"TwoDAxis", "YDetail", "GRSpacing"});
    EXPECT_EQ(spacing.value(), stored) << "nothing was drawn yet";
    auto const draw = [this](double drawn) {
        frontEnd.drawnSpacing = drawn;
        vantrix::kernel::Kernel::instance().stateChanges().send(StateChange_View);
        idle();
    };
    draw(0.05);
    EXPECT_EQ(spacing.value(), 0.05);
    EXPECT_FALSE(spacing.isEnabled());
    draw(0.025);
    EXPECT_EQ(spacing.value(), 0.025);
    click(dialog, "axisEdit_TicksAutoSpacing_ToggleButton");
    EXPECT_TRUE(spacing.isEnabled());
    EXPECT_EQ(styleOf<double>({"TwoDAxis", "YDetail", "GRSpacing"}), 0.025);
    draw(0.1);
    EXPECT_EQ(spacing.value(), 0.025) << "given by hand now";
    EXPECT_TRUE(VtxUtilUndo());
    EXPECT_EQ(styleOf<double>({"TwoDAxis", "YDetail", "GRSpacing"}), stored) << "one step";
    EXPECT_TRUE(styleOf<bool>({"TwoDAxis", "YDetail", "AutoGrid"}));
}

TEST_F(AxisEditPagesTest, ControlsEditWhatTheirLabelsSay)
{
    setPlotType(PlotType_PolarLine);
    turnEverythingOn("PolarAxis", "RDetail", -1);
    auto const& dialog = launch<AxisEditDialog>();
    click(dialog, "axisEdit_PickPolarRAxis_TXRadioButton");
    struct Case
    {
        char const* page;
        char const* widget;
        char const* path; ///< below PolarAxis
    };
    for (Case const& each :
         {Case{"Range", "RangeMin_1Text", "RDetail/RangeMin"},
          Case{"Range", "RangeAxisSpecROrigin_1Text", "RDetail/ValueAtOrigin"},
          Case{"Grid", "GridColor_ColorButton", "RDetail/GridLines/Color"},
          Case{"Grid", "GridLinePattern_ComboBox", "RDetail/GridLines/LinePattern"},
          Case{"Grid", "MinorGridPatternLength_ComboBox", "RDetail/MinorGridLines/PatternLength"},
          Case{"Grid", "MinorGridLineThickness_ComboBox", "RDetail/MinorGridLines/LineThickness"},
          Case{"Grid", "PreciseGridSize_1Text", "PreciseGrid/Size"},
          Case{"Ticks", "TicksSpacing_1Text", "RDetail/GRSpacing"},
          Case{"Ticks", "TicksAnchor_1Text", "RDetail/GRAnchor"},
          Case{"Ticks", "TicksLength_ComboBox", "RDetail/Ticks/Length"},
          Case{"Ticks", "MinorTicksThickness_ComboBox", "RDetail/Ticks/MinorLineThickness"},
          Case{"Ticks", "TicksShowOnGridBorderMin_ToggleButton", "RDetail/Ticks/ShowOnGridBorderMin"},
          Case{"Label", "LabelSkip_SpinBox", "RDetail/TickLabel/Skip"},
          Case{"Label", "LabelSize_1Text", "RDetail/TickLabel/TextShape/Height"},
          Case{"Label", "LabelShowOnAllAxes_ToggleButton", "RDetail/TickLabel/ShowOnAllAxes"},
          Case{"Title", "TitleText_1Text", "RDetail/Title/Text"},
          Case{"Title", "TitlePosition_1Text", "RDetail/Title/PercentAlongLine"},
          Case{"Title", "TitleFont_ComboBox", "RDetail/Title/TextShape/Font"},
          Case{"Line", "LineThickness_ComboBox", "RDetail/AxisLine/LineThickness"},
          Case{"Line", "LineBothDirections_ToggleButton", "RDetail/AxisLine/ShowBothDirections"},
          Case{"Area", "AreaBorderColor_ColorButton", "GridArea/Color"},
          Case{"Area", "AreaFillColor_ColorButton", "GridArea/FillColor"},
          Case{"Area", "ViewportTop_1Text", "ViewportPosition/Y2"},
          Case{"Area", "ViewportStyleBorderColor_ColorButton", "ViewportStyle/Color"}}) {
        showTab(dialog, (std::string("axisEdit_") + each.page + "_Page").c_str());
        EXPECT_EQ(edit(find<QWidget>(dialog, (std::string("axisEdit_") + each.widget).c_str())),
                  std::string("PolarAxis/") + each.path);
    }
}

TEST_F(AxisEditPagesTest, WhatDependsOnAnotherControlIsEnabledWithIt)
{
    setPlotType(PlotType_Cartesian2D);
    auto const& dialog = launch<AxisEditDialog>();
    click(dialog, "axisEdit_Pick2DXAxis_TXRadioButton");
    struct Case
    {
        char const* page;
        char const* widget;
        char const* path; ///< of the X axis
        vantrix::kernel::StyleData off;
        vantrix::kernel::StyleData on;
    };
    for (Case const& each : {Case{"Grid", "GridColor_ColorButton", "GridLines/Show", 0L, 1L},
                             Case{"Grid", "GridPatternLength_ComboBox", "GridLines/LinePattern", 0L, 1L},
                             Case{"Grid", "MinorGridLineThickness_ComboBox", "MinorGridLines/Show", 0L, 1L},
                             Case{"Ticks", "TicksSpacing_1Text", "AutoGrid", 1L, 0L},
                             Case{"Ticks", "MinorTicksLength_ComboBox", "Ticks/NumMinorTicks", 0L, 3L},
                             Case{"Label", "LabelAngle_1Text", "TickLabel/LabelAlignment", 1L, 0L},
                             Case{"Label", "LabelPrecision_SpinBox", "TickLabel/NumFormat/Formatting", 5L, 1L},
                             Case{"Label", "LabelTimeDate_1Text", "TickLabel/NumFormat/Formatting", 1L, 9L},
                             Case{"Title", "TitleText_1Text", "Title/TitleMode", 1L, 2L},
                             Case{"Title", "TitleOffset_1Text", "Title/TitleMode", 0L, 1L},
                             Case{"Line", "LineColor_ColorButton", "AxisLine/Show", 0L, 1L},
                             Case{"Line", "LineOpposingValue_1Text", "AxisLine/AxisAlignment", 2L, 1L},
                             Case{"Line", "LinePosition_1Text", "AxisLine/AxisAlignment", 2L, 0L}}) {
        showTab(dialog, (std::string("axisEdit_") + each.page + "_Page").c_str());
        std::string const path = std::string("TwoDAxis/XDetail/") + each.path;
        std::string const widget = std::string("axisEdit_") + each.widget;
        set(path, each.on);
        idle();
        EXPECT_TRUE(isEnabled(dialog, widget.c_str())) << widget;
        set(path, each.off);
        idle();
        EXPECT_FALSE(isEnabled(dialog, widget.c_str())) << widget;
        set(path, each.on);
    }
}
