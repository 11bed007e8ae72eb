#include "dialogs/StyleChoices.h"

namespace vantrix::sdk::ui::dialogs::choices {

namespace {

using propertybindings::models::BasicSizeListModel;

template<typename T>
List<T> list(typename propertybindings::models::PremappedListModel<T>::Rows rows)
{
    return boost::make_shared<propertybindings::models::PremappedListModel<T> const>(std::move(rows));
}

} // namespace

List<LinePattern_e> linePatterns()
{
    return list<LinePattern_e>({{"Solid", LinePattern_Solid},
                                {"Dashed", LinePattern_Dashed},
                                {"Dash dot", LinePattern_DashDot},
                                {"Dotted", LinePattern_Dotted},
                                {"Long dash", LinePattern_LongDash},
                                {"Dash dot dot", LinePattern_DashDotDot}});
}

List<Font_e> fonts()
{
    return list<Font_e>({{"Helvetica", Font_Helvetica},
                         {"Helvetica Bold", Font_HelveticaBold},
                         {"Times", Font_Times},
                         {"Times Italic", Font_TimesItalic},
                         {"Times Bold", Font_TimesBold},
                         {"Times Italic Bold", Font_TimesItalicBold},
                         {"Courier", Font_Courier},
                         {"Courier Bold", Font_CourierBold},
                         {"Greek", Font_Greek},
                         {"Math", Font_Math},
                         {"User defined", Font_UserDefined}});
}

List<Units_e> textSizeUnits()
{
    return list<Units_e>({{"% of frame height", Units_Frame}, {"Points", Units_Point}});
}

SizeList lineThicknesses()
{
    return boost::make_shared<BasicSizeListModel const>(BasicSizeListModel::LineThickness);
}

SizeList patternLengths()
{
    return boost::make_shared<BasicSizeListModel const>(BasicSizeListModel::PatternLength);
}

SizeList symbolSizes()
{
    return boost::make_shared<BasicSizeListModel const>(BasicSizeListModel::SymbolSize);
}

} // namespace vantrix::sdk::ui::dialogs::choices
