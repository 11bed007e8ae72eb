#pragma once

#include "property/ValueSignal.h"

#include <string>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// What an editable list model is besides: it turns a text that the user typed instead of choosing a row into a value.
/// The rows stay as they are. The value is told within setEditedItem(), before that returns true.
template<typename T>
class EditedValueSource
{
public:
    virtual ~EditedValueSource() = default;

    /// What a text must be to be accepted, to follow "Please enter " in a message.
    virtual std::string expectedText() const = 0;

    template<typename Slot>
    boost::signals2::connection connectToValueEnteredSignal(Slot const& slot) const
    {
        return m_valueEntered.connectOnce(slot);
    }

protected:
    mutable ValueSignal<T> m_valueEntered;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
