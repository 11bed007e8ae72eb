#include "propertymanager/managers/frame/FrameEditPropertiesManager.h"

#include "api/VtxUtil.h"
#include "property/BoundedValueValidator.h"
#include "property/Property.h"
#include "propertymanager/managers/DecoratedProperty.h"
#include "propertymanager/managers/InvertingDecorator.h"
#include "propertymanager/managers/PropertyRelevance.h"
#include "propertymanager/managers/frame/FrameEditConvertUnitsProperty.h"
#include "propertymanager/managers/frame/FrameEditModifyBackgroundColorsProperty.h"
#include "sdk/AppLock.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

namespace {

using Length = boost::shared_ptr<PropertyAbstract<double>>;

/// The bounds, in inches, are the host's own. They are checked here so that the user reads them in ruler units.
Length inRulerUnits(Length inches, double minimum, double maximum)
{
    return newDecorated<FrameEditConvertUnitsProperty>(
        std::move(inches), boost::make_shared<BoundedValueValidator<double> const>(minimum, maximum));
}

} // namespace

FrameEditPropertiesManager::FrameEditPropertiesManager()
    : m_properties(false, toolbox::StringList())
{
    installDecorators();
    m_showBorderRelevance = whileSet(m_properties.framelayoutShowBorder(), "The frame shows no border.");
    m_showHeaderRelevance = whileSet(m_properties.framelayoutShowHeader(), "The frame shows no header.");
    m_showBackgroundColorRelevance =
        whileSet(m_properties.framelayoutShowBackground(), "The frame shows no background.");
}

void FrameEditPropertiesManager::installDecorators()
{
    m_properties.setFramelayoutXYposX(inRulerUnits(m_properties.framelayoutXYposX(), -1000, 1000));
    m_properties.setFramelayoutXYposY(inRulerUnits(m_properties.framelayoutXYposY(), -1000, 1000));
    m_properties.setFramelayoutWidth(inRulerUnits(m_properties.framelayoutWidth(), 0.1, 1000));
    m_properties.setFramelayoutHeight(inRulerUnits(m_properties.framelayoutHeight(), 0.1, 1000));
    m_properties.setFramelayoutBackgroundColor(newDecorated<FrameEditModifyBackgroundColorsProperty>(
        m_properties.framelayoutBackgroundColor(), nullptr, modifyBackgroundColors()));
    m_properties.setFramelayoutShowBackground(
        newDecorated<InvertingDecorator>(m_properties.framelayoutShowBackground(), nullptr));
}

boost::shared_ptr<PropertyAbstract<bool>> FrameEditPropertiesManager::modifyBackgroundColors()
{
    static boost::shared_ptr<PropertyAbstract<bool>> const modify = boost::make_shared<Property<bool>>(true);
    return modify;
}

bool FrameEditPropertiesManager::contextIsValid()
{
    AppLock const lock(false);
    return VtxUtilFrameGetCount() > 0;
}

FrameEditPropertiesManager::Relevance FrameEditPropertiesManager::relevance()
{
    static auto const relevance = boost::make_shared<StateChangeDependentRelevance const>(
        &FrameEditPropertiesManager::contextIsValid, "There is no frame to edit.");
    return relevance;
}

} // namespace vantrix::sdk::ui::propertymanager
