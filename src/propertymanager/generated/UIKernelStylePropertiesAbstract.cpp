#include "propertymanager/generated/UIKernelStylePropertiesAbstract.h"

#include "api/VtxUtilState.h"
#include "property/InvalidPropertyValueException.h"
#include "sdk/AppLock.h"

namespace vantrix::sdk::ui::propertymanager {

UIKernelStylePropertiesAbstract::UIKernelStylePropertiesAbstract(bool modal)
    : m_modal(modal)
{}

UIKernelStylePropertiesAbstract::UIKernelStylePropertiesAbstract(UIKernelStylePropertiesAbstract* parent)
    : m_parent(parent)
    , m_modal(parent->isModal())
{
    parent->m_nested.push_back(this);
}

void UIKernelStylePropertiesAbstract::init()
{
    setOffset(m_firstOffset, m_secondOffset);
    for (UIKernelStylePropertiesAbstract* nested : m_nested) {
        nested->init();
    }
    m_initialized();
}

void UIKernelStylePropertiesAbstract::submit()
{
    {
        AppLock lock(true);
        try {
            submitProperties();
        } catch (InvalidPropertyValueException const&) {
            VtxUtilLockRollBack();
            throw;
        }
    }
    parentSubmitted();
}

void UIKernelStylePropertiesAbstract::setCollectionOffset(int const& offset)
{
    m_collectionOffset = offset;
    setOffset(offset, -1);
}

void UIKernelStylePropertiesAbstract::parentSubmitted()
{
    m_submitted();
    for (UIKernelStylePropertiesAbstract* nested : m_nested) {
        nested->parentSubmitted();
    }
}

void UIKernelStylePropertiesAbstract::rememberOffset(int first, int second)
{
    m_firstOffset = first;
    m_secondOffset = second;
}

void UIKernelStylePropertiesAbstract::forget(UIKernelStylePropertiesAbstract const& nested)
{
    std::erase(m_nested, &nested);
}

} // namespace vantrix::sdk::ui::propertymanager
