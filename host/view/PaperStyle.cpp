#include "view/PaperStyle.h"

#include "kernel/PaperSizes.h"
#include "kernel/StyleStore.h"
#include "view/ColorMap.h"

namespace vantrix::view {

PaperStyle PaperStyle::read(const kernel::StyleStore& store, long pageId)
{
    const kernel::PaperDimensions size = kernel::paperDimensions(store, pageId);
    return {{size.width, size.height},
            store.flag(pageId, store.entry("Paper/ShowPaper")),
            indexedColor(store.integer(pageId, store.entry("Paper/BackgroundColor")))};
}

QRectF readFrameRect(const kernel::StyleStore& store, long frameId)
{
    const auto inches = [&](const char* path) { return store.real(frameId, store.entry(path)); };
    return {inches("FrameLayout/XYPos/X"), inches("FrameLayout/XYPos/Y"), inches("FrameLayout/Width"),
            inches("FrameLayout/Height")};
}

} // namespace vantrix::view
