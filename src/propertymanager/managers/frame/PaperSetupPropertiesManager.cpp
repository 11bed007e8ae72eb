#include "propertymanager/managers/frame/PaperSetupPropertiesManager.h"

#include "api/VtxUtil.h"
#include "propertymanager/UIPropertyClassicDirectRelevance.h"
#include "propertymanager/managers/DecoratedProperty.h"
#include "propertymanager/managers/InvertingDecorator.h"
#include "propertymanager/managers/PropertySetSubmission.h"
#include "sdk/AppLock.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

PaperSetupPropertiesManager::PaperSetupPropertiesManager()
    : m_properties(true, {"Paper"})
    , m_fillColor(*m_properties.backgroundColor())
    , m_initial(sizeAndOrientation())
{
    m_properties.setIsTransparent(newDecorated<InvertingDecorator>(m_properties.isTransparent(), nullptr));
    for (auto const& flag : {m_properties.showPaper(), useFillColorWhenPrinting()}) {
        m_flagConnections.add(
            flag->connectToValueChangedSignal(boost::bind(&PaperSetupPropertiesManager::setSensitivities, this)));
    }
    setSensitivities();
}

void PaperSetupPropertiesManager::init()
{
    m_properties.init();
    m_initial = sizeAndOrientation();
}

std::pair<double, double> PaperSetupPropertiesManager::getPaperDimensions() const
{
    auto const [size, isPortrait] = sizeAndOrientation();
    std::pair<double, double> dimensions;
    VtxUtilPaperGetDimensionsBySize(size, isPortrait, &dimensions.first, &dimensions.second);
    return dimensions;
}

bool PaperSetupPropertiesManager::submit()
{
    bool const submitted = submitAsStep(m_properties, "Paper Setup");
    if (submitted) {
        fitPaperToWorkArea();
    }
    return submitted;
}

void PaperSetupPropertiesManager::fitPaperToWorkArea() const
{
    if (sizeAndOrientation() != m_initial) {
        AppLock const lock(false);
        VtxUtilWorkViewFitPaper();
    }
}

bool PaperSetupPropertiesManager::contextIsValid()
{
    AppLock const lock(false);
    return VtxUtilPageGetCount() > 0;
}

PaperSetupPropertiesManager::Relevance PaperSetupPropertiesManager::relevance()
{
    static auto const relevance = boost::make_shared<StateChangeDependentRelevance const>(
        &PaperSetupPropertiesManager::contextIsValid, "There is no page whose paper could be set up.");
    return relevance;
}

void PaperSetupPropertiesManager::setSensitivities()
{
    bool const isSeen = m_properties.showPaper()->value() || useFillColorWhenPrinting()->value();
    UIPropertyClassicDirectRelevance::directSetPropertySensitivity(m_fillColor, isSeen);
}

PaperSetupPropertiesManager::SizeAndOrientation PaperSetupPropertiesManager::sizeAndOrientation() const
{
    return {m_properties.paperSize()->value(), m_properties.orientPortrait()->value()};
}

} // namespace vantrix::sdk::ui::propertymanager
