#include "view/RenderSettings.h"

#include "view/StyleReader.h"

namespace vantrix::view {

namespace {

GraphicsCache cacheOf(const StyleReader& style)
{
    if (!style.flag("UseDisplayLists")) {
        return GraphicsCache::None;
    }
    return style.flag("CacheLightDisplayListsOnly") ? GraphicsCache::LightOnly : GraphicsCache::All;
}

} // namespace

RenderSettings RenderSettings::read(const kernel::StyleStore& store)
{
    const StyleReader style(store, kernel::StyleStore::processScope, "Interface");
    RenderSettings settings;
    settings.redrawsAlways = style.flag("AutoRedrawIsActive");
    settings.approximates = style.flag("UseApproximatePlots");
    settings.approximation = style.enumerator<PlotApproximationMode_e>("PlotApproximationMode");
    settings.keptPoints = style.real("PercentageOfPointsToKeep") / 100.0;
    settings.longestTime = style.real("MaxRenderTimeBeforeApprox");
    settings.approximatesTexts = style.flag("ShowTextGeomsInApproxViews");
    settings.cache = cacheOf(style);
    settings.exportsAnew = style.flag("UseOffScreenBitMap");
    settings.exportsSorted = store.flag(kernel::StyleStore::processScope, store.entry("Print/ForceExtra3DSorting"));
    settings.hasPlainTexts = style.flag("UseStrokeFontsOnScreen");
    settings.hasPlainSmallTexts = style.flag("UseStrokeFontsForSmallText");
    return settings;
}

} // namespace vantrix::view
