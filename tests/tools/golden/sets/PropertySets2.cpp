/* Written from style/ by tools/generate_style.py. Do not edit. */
#include "propertymanager/generated/AxisPropertiesGenerated.h"
#include "propertymanager/generated/ThickLinePropertiesGenerated.h"

namespace vantrix::sdk::ui::propertymanager {

ThickLinePropertiesGenerated::ThickLinePropertiesGenerated(bool modal, toolbox::StringList basePath)
    : UIKernelStylePropertiesAbstract(modal)
    , m_color(modal, basePath + "Color")
    , m_pattern(modal, basePath + "Pattern")
    , m_thickness(modal, basePath + "Thickness")
{}

ThickLinePropertiesGenerated::ThickLinePropertiesGenerated(UIKernelStylePropertiesAbstract* parent, toolbox::StringList basePath)
    : UIKernelStylePropertiesAbstract(parent)
    , m_color(isModal(), basePath + "Color")
    , m_pattern(isModal(), basePath + "Pattern")
    , m_thickness(isModal(), basePath + "Thickness")
{}

ThickLinePropertiesGenerated::~ThickLinePropertiesGenerated() = default;

void ThickLinePropertiesGenerated::submitProperties()
{
    m_color.submit();
    m_pattern.submit();
    m_thickness.submit();
}

void ThickLinePropertiesGenerated::setOffset(int first, int second)
{
    rememberOffset(first, second);
    m_color.setOffsets(first, second);
    m_pattern.setOffsets(first, second);
    m_thickness.setOffsets(first, second);
}

boost::shared_ptr<PropertyAbstract<int>> ThickLinePropertiesGenerated::getColor() const
{
    return m_color.exposed();
}

void ThickLinePropertiesGenerated::setColor(boost::shared_ptr<PropertyAbstract<int>> property)
{
    m_color.setExposed(std::move(property));
}

boost::shared_ptr<PropertyAbstract<LinePattern_e>> ThickLinePropertiesGenerated::getPattern() const
{
    return m_pattern.exposed();
}

void ThickLinePropertiesGenerated::setPattern(boost::shared_ptr<PropertyAbstract<LinePattern_e>> property)
{
    m_pattern.setExposed(std::move(property));
}

boost::shared_ptr<PropertyAbstract<double>> ThickLinePropertiesGenerated::getThickness() const
{
    return m_thickness.exposed();
}

void ThickLinePropertiesGenerated::setThickness(boost::shared_ptr<PropertyAbstract<double>> property)
{
    m_thickness.setExposed(std::move(property));
}

} // namespace vantrix::sdk::ui::propertymanager
