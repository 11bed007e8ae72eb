#pragma once

#include "propertybindings/ListedTypes.h"
#include "propertybindings/models/BasicSizeListModel.h"
#include "propertybindings/models/PremappedListModel.h"

#include <boost/make_shared.hpp>

/// The choices that many dialogs offer for the style of lines and texts, for FormBindings::bindList().
namespace vantrix::sdk::ui::dialogs::choices {

template<typename T>
using List = boost::shared_ptr<propertybindings::models::PremappedListModel<T> const>;
using SizeList = boost::shared_ptr<propertybindings::models::BasicSizeListModel const>;

List<LinePattern_e> linePatterns();
List<Font_e> fonts();

/// What the height of a text in a plot is given in.
List<Units_e> textSizeUnits();

SizeList lineThicknesses();
SizeList patternLengths();
SizeList symbolSizes();

} // namespace vantrix::sdk::ui::dialogs::choices
