#pragma once

#include "property/PropertyAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// One choice of three, held in two flags. While the first flag is off the choice is the third (2) whatever the second
/// flag is, and choosing it leaves the second flag as it was; while it is on, the second flag tells the first choice
/// (0, off) from the second (1, on).
template<typename Choice>
class FoldedFlagsProperty : public PropertyAbstract<Choice>
{
public:
    using Flag = boost::shared_ptr<PropertyAbstract<bool>>;

    /// @param onValue  the value of the first flag that counts as on
    FoldedFlagsProperty(Flag first, Flag second, bool onValue)
        : m_first(std::move(first))
        , m_second(std::move(second))
        , m_onValue(onValue)
    {
        for (Flag const& flag : {m_first, m_second}) {
            m_connections.push_back(
                flag->connectToValueChangedSignal(boost::bind(&FoldedFlagsProperty::flagChanged, this)));
        }
    }

    Choice retrieveValue() const override
    {
        if (m_first->value() != m_onValue) {
            return static_cast<Choice>(2);
        }
        return static_cast<Choice>(m_second->value() ? 1 : 0);
    }

    void storeValue(Choice const& choice) override
    {
        // setValue() signals the change once, when both flags have been set.
        std::vector<boost::signals2::shared_connection_block> const blocks(m_connections.begin(), m_connections.end());
        if (choice != static_cast<Choice>(2)) {
            m_second->setValue(choice == static_cast<Choice>(1));
        }
        m_first->setValue((choice != static_cast<Choice>(2)) == m_onValue);
    }

private:
    void flagChanged() { this->emitValueChangedSignal(retrieveValue()); }

    Flag m_first;
    Flag m_second;
    bool m_onValue;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace vantrix::sdk::ui::propertymanager
