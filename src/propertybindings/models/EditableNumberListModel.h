#pragma once

#include "propertybindings/models/EditedValueSource.h"
#include "propertybindings/models/PremappedListModel.h"

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// Named numbers to choose from, beside which the user may type another number of a range. Numbers are written and read
/// in the C locale. While a row is edited it shows its number.
class EditableNumberListModel : public PremappedListModel<double>, public EditedValueSource<double>
{
public:
    /// @param noun  what a number is, with its article and unit, for messages: "an angle in degrees"
    EditableNumberListModel(Rows rows, double minimum, double maximum, std::string noun);

    std::string getStrForEdit(int row) const override;
    bool isEditable() const override { return true; }

    /// Accepts the name of a row (capital and small letters are the same) or a number from minimum to maximum, either
    /// with blanks around it; anything behind the number is refused. Does not depend on the row.
    bool setEditedItem(std::string const& text, int row) const override;

    std::string expectedText() const override;

private:
    double m_minimum;
    double m_maximum;
    std::string m_noun;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
