#pragma once

#include "propertybindings/models/EditableNumberListModel.h"

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// Sizes to choose from, "Tiny" to "Huge", in percent of the frame's height. Another size from 0.0001 to 100 may be
/// typed.
class BasicSizeListModel : public EditableNumberListModel
{
public:
    enum Kind_e
    {
        LineThickness = 0, ///< 0.05, 0.1, 0.2, 0.5 and 1
        SymbolSize = 1,    ///< symbols and arrowheads: 0.5, 1, 2, 3.5 and 5
        PatternLength = 2  ///< one repetition of a line pattern: 0.5, 1, 2, 4 and 8
    };

    explicit BasicSizeListModel(Kind_e kind);
    ~BasicSizeListModel() override;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
