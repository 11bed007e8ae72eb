#pragma once

#include "api/VtxEnumerations.h"

#include <QColor>
#include <QRectF>
#include <QSizeF>

namespace vantrix::kernel {
class StyleStore;
}

namespace vantrix::view {

/* How a page's paper looks. */
struct PaperStyle
{
    QSizeF size; /* inches, in its orientation */
    bool isShown = true;
    QColor color = Qt::white;
    bool isFilledInPrint = false; /* pictures and documents have the colour too; else they are white */
    bool hasRuler = true;
    bool hasGrid = true;
    PaperUnitSpacing_e rulerSpacing = PaperUnitSpacing_OneInch;
    PaperUnitSpacing_e gridSpacing = PaperUnitSpacing_HalfInch;

    static PaperStyle read(const kernel::StyleStore& store, long pageId);
};

/* The place of a frame on its paper: inches from the upper left corner, Y pointing down. */
QRectF readFrameRect(const kernel::StyleStore& store, long frameId);

} // namespace vantrix::view
