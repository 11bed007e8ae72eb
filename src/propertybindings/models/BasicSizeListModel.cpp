#include "propertybindings/models/BasicSizeListModel.h"

#include <array>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

namespace {

constexpr double SMALLEST_SIZE = 0.0001; // thinner than any device draws
constexpr double LARGEST_SIZE = 100.0;

using Sizes = std::array<double, 5>;

Sizes sizesOf(BasicSizeListModel::Kind_e kind)
{
    switch (kind) {
    case BasicSizeListModel::SymbolSize:
        return {0.5, 1.0, 2.0, 3.5, 5.0};
    case BasicSizeListModel::PatternLength:
        return {0.5, 1.0, 2.0, 4.0, 8.0};
    case BasicSizeListModel::LineThickness:
        break;
    }
    return {0.05, 0.1, 0.2, 0.5, 1.0};
}

BasicSizeListModel::Rows rowsOf(Sizes const& sizes)
{
    return {{"Tiny", sizes[0]}, {"Small", sizes[1]}, {"Medium", sizes[2]}, {"Large", sizes[3]}, {"Huge", sizes[4]}};
}

} // namespace

BasicSizeListModel::BasicSizeListModel(Kind_e kind)
    : EditableNumberListModel(rowsOf(sizesOf(kind)), SMALLEST_SIZE, LARGEST_SIZE, "a size in percent")
{}

BasicSizeListModel::~BasicSizeListModel() = default;

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
