#pragma once

#include "propertymanager/UIKernelStyleProperty.h"
#include "propertymanager/generated/MemberRefusedException.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

namespace vantrix::sdk::ui::propertymanager {

/// A member like PropertySetMember whose property is a UI style property: a manager can add relevances to what the set
/// hands out, and bindings follow them.
template<typename T>
class UIPropertySetMember
{
public:
    UIPropertySetMember(bool modal, toolbox::StringList const& path)
        : m_modal(modal)
        , m_style(boost::make_shared<UIKernelStyleProperty<T>>(modal, toolbox::StyleValue(path)))
        , m_exposed(m_style)
    {}

    boost::shared_ptr<PropertyAbstract<T>> const& exposed() const { return m_exposed; }
    void setExposed(boost::shared_ptr<PropertyAbstract<T>> property) { m_exposed = std::move(property); }

    void setOffsets(int first, int second) { m_style->setOffsets(first, second); }

    /// Writes a deferred value to the host when it differs there; nothing for an immediate one.
    /// @throws MemberRefusedException
    void submit()
    {
        if (m_modal) {
            applyMember(*m_style, m_exposed);
        }
    }

private:
    bool m_modal;
    boost::shared_ptr<UIKernelStyleProperty<T>> m_style;
    boost::shared_ptr<PropertyAbstract<T>> m_exposed;
};

} // namespace vantrix::sdk::ui::propertymanager
