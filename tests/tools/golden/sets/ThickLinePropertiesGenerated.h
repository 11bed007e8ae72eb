#pragma once

/* Written from style/ by tools/generate_style.py. Do not edit. */

#include "api/VtxEnumerations.h"
#include "propertymanager/generated/PropertySetMember.h"
#include "propertymanager/generated/UIKernelStylePropertiesAbstract.h"
#include "toolbox/StringList.h"

namespace vantrix::sdk::ui::propertymanager {

/// A line with a thickness.
class ThickLinePropertiesGenerated : public UIKernelStylePropertiesAbstract
{
public:
    /// @param modal  whether edits wait for submit()
    ThickLinePropertiesGenerated(bool modal, toolbox::StringList basePath);
    ThickLinePropertiesGenerated(UIKernelStylePropertiesAbstract* parent, toolbox::StringList basePath);
    ~ThickLinePropertiesGenerated() override;

    void submitProperties() override;
    void setOffset(int first, int second) override;

    /// Another default than the base's. From 0 to 63.
    virtual boost::shared_ptr<PropertyAbstract<int>> getColor() const;
    virtual void setColor(boost::shared_ptr<PropertyAbstract<int>> property);
    /// Pattern of the line.
    virtual boost::shared_ptr<PropertyAbstract<LinePattern_e>> getPattern() const;
    virtual void setPattern(boost::shared_ptr<PropertyAbstract<LinePattern_e>> property);
    /// Thickness of the line. In %. Above 0 to 100.
    virtual boost::shared_ptr<PropertyAbstract<double>> getThickness() const;
    virtual void setThickness(boost::shared_ptr<PropertyAbstract<double>> property);

private:
    PropertySetMember<int> m_color;
    PropertySetMember<LinePattern_e> m_pattern;
    PropertySetMember<double> m_thickness;
};

} // namespace vantrix::sdk::ui::propertymanager
