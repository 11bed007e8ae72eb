#pragma once

#include "property/PropertyAbstract.h"

class QString;

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Prepares the text of a double field before it is converted. The one place for rules about how a number may be
/// written for a certain property.
class StringMassager
{
public:
    virtual ~StringMassager() = default;

protected:
    /// Adjusts the text in place. There is no rule at present: the text stays as the user wrote it.
    void prepareText(PropertyAbstract<double>& property, QString& text) const;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
