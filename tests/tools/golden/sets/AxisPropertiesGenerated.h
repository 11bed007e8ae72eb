#pragma once

/* Written from style/ by tools/generate_style.py. Do not edit. */

#include "api/VtxEnumerations.h"
#include "propertymanager/generated/PropertySetMember.h"
#include "propertymanager/generated/UIKernelStylePropertiesAbstract.h"
#include "toolbox/StringList.h"

namespace vantrix::sdk::ui::propertymanager {

class ThickLinePropertiesGenerated;

/// An axis.
class AxisPropertiesGenerated : public UIKernelStylePropertiesAbstract
{
public:
    /// @param modal  whether edits wait for submit()
    AxisPropertiesGenerated(bool modal, toolbox::StringList basePath);
    AxisPropertiesGenerated(UIKernelStylePropertiesAbstract* parent, toolbox::StringList basePath);
    ~AxisPropertiesGenerated() override;

    void submitProperties() override;
    void setOffset(int first, int second) override;

    virtual boost::shared_ptr<ThickLinePropertiesGenerated> getGrid() const;
    /// Its title.
    virtual boost::shared_ptr<PropertyAbstract<std::string>> getTitle() const;
    virtual void setTitle(boost::shared_ptr<PropertyAbstract<std::string>> property);
    /// Its place.
    virtual boost::shared_ptr<PropertyAbstract<long>> getPosX() const;
    virtual void setPosX(boost::shared_ptr<PropertyAbstract<long>> property);

private:
    boost::shared_ptr<ThickLinePropertiesGenerated> m_grid;
    PropertySetMember<std::string> m_title;
    PropertySetMember<long> m_posX;
};

} // namespace vantrix::sdk::ui::propertymanager
