#pragma once

#include "propertymanager/UIStylePropertyProxy.h"

#include <functional>

namespace vantrix::sdk::ui::propertymanager {

/// What can be aimed anew when another axis is edited.
class CurrentAxisPropertyInterface
{
public:
    virtual ~CurrentAxisPropertyInterface() = default;
    virtual void update() = 0;
};

/// One property of whatever axis is being edited. Widgets stay bound to it while the axis changes.
template<typename T>
class CurrentAxisProperty : public UIStylePropertyProxy<T>, public CurrentAxisPropertyInterface
{
public:
    using Find = std::function<boost::shared_ptr<PropertyAbstract<T>>()>;

    /// @param find  gives the property of the current axis; it lives as long as this one and is never null
    explicit CurrentAxisProperty(Find find)
        : UIStylePropertyProxy<T>(*find())
        , m_find(std::move(find))
    {}

    void update() override { this->setProperty(*m_find()); }

private:
    Find m_find;
};

} // namespace vantrix::sdk::ui::propertymanager
