#include "propertymanager/managers/frame/FrameEditModifyBackgroundColorsProperty.h"

#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "toolbox/HostString.h"
#include "toolbox/StyleValue.h"

namespace vantrix::sdk::ui::propertymanager {

FrameEditModifyBackgroundColorsProperty::FrameEditModifyBackgroundColorsProperty(
    UIStylePropertyAbstract<int>& color, boost::shared_ptr<PropertyAbstract<bool> const> modify)
    : UIStylePropertyDecoratorAbstract(color)
    , m_modify(std::move(modify))
{}

int FrameEditModifyBackgroundColorsProperty::retrieveValue() const
{
    return wrapped().value();
}

void FrameEditModifyBackgroundColorsProperty::storeValue(int const& color)
{
    if (!m_modify->value()) {
        wrapped().setValue(color);
        return;
    }
    AppLock const lock;
    if (!toolbox::StyleValue::returnCodeOk(VtxUtilFrameSetBackgroundColor(color))) {
        std::string const error = toolbox::takeHostString(VtxUtilStyleGetLastErrorString());
        throw InvalidPropertyValueException(error.empty() ? "Unknown error" : error);
    }
}

} // namespace vantrix::sdk::ui::propertymanager
