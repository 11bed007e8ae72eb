/* Written from style/ by tools/generate_style.py. Do not edit. */
#include "propertymanager/generated/AxisPropertiesGenerated.h"
#include "propertymanager/generated/ThickLinePropertiesGenerated.h"

namespace vantrix::sdk::ui::propertymanager {

AxisPropertiesGenerated::AxisPropertiesGenerated(bool modal, toolbox::StringList basePath)
    : UIKernelStylePropertiesAbstract(modal)
    , m_grid(boost::make_shared<ThickLinePropertiesGenerated>(this, basePath + "Grid"))
    , m_title(modal, basePath + "Title")
    , m_posX(modal, basePath + "Pos" + "X")
{}

AxisPropertiesGenerated::AxisPropertiesGenerated(UIKernelStylePropertiesAbstract* parent, toolbox::StringList basePath)
    : UIKernelStylePropertiesAbstract(parent)
    , m_grid(boost::make_shared<ThickLinePropertiesGenerated>(this, basePath + "Grid"))
    , m_title(isModal(), basePath + "Title")
    , m_posX(isModal(), basePath + "Pos" + "X")
{}

AxisPropertiesGenerated::~AxisPropertiesGenerated() = default;

void AxisPropertiesGenerated::submitProperties()
{
    m_grid->submitProperties();
    m_title.submit();
    m_posX.submit();
}

void AxisPropertiesGenerated::setOffset(int first, int second)
{
    rememberOffset(first, second);
    m_title.setOffsets(first, second);
    m_posX.setOffsets(first, second);
}

boost::shared_ptr<ThickLinePropertiesGenerated> AxisPropertiesGenerated::getGrid() const
{
    return m_grid;
}

boost::shared_ptr<PropertyAbstract<std::string>> AxisPropertiesGenerated::getTitle() const
{
    return m_title.exposed();
}

void AxisPropertiesGenerated::setTitle(boost::shared_ptr<PropertyAbstract<std::string>> property)
{
    m_title.setExposed(std::move(property));
}

boost::shared_ptr<PropertyAbstract<long>> AxisPropertiesGenerated::getPosX() const
{
    return m_posX.exposed();
}

void AxisPropertiesGenerated::setPosX(boost::shared_ptr<PropertyAbstract<long>> property)
{
    m_posX.setExposed(std::move(property));
}

} // namespace vantrix::sdk::ui::propertymanager
