#include "view/PaperStyle.h"

#include "kernel/PaperSizes.h"
#include "kernel/StyleStore.h"
#include "view/ColorMap.h"

namespace vantrix::view {

PaperStyle PaperStyle::read(const kernel::StyleStore& store, long pageId)
{
    const kernel::PaperDimensions size = kernel::paperDimensions(store, pageId);
    const auto flag = [&](const char* path) { return store.flag(pageId, store.entry(path)); };
    const auto spacing = [&](const char* path) {
        return static_cast<PaperUnitSpacing_e>(store.integer(pageId, store.entry(path)));
    };
    return {{size.width, size.height},
            flag("Paper/ShowPaper"),
            indexedColor(store.integer(pageId, store.entry("Paper/BackgroundColor"))),
            !flag("Paper/IsTransparent"),
            flag("Paper/ShowRuler"),
            flag("Paper/ShowGrid"),
            spacing("Paper/RulerSpacing"),
            spacing("Paper/PaperGridSpacing")};
}

QRectF readFrameRect(const kernel::StyleStore& store, long frameId)
{
    const auto inches = [&](const char* path) { return store.real(frameId, store.entry(path)); };
    return {inches("FrameLayout/XYPos/X"), inches("FrameLayout/XYPos/Y"), inches("FrameLayout/Width"),
            inches("FrameLayout/Height")};
}

} // namespace vantrix::view
