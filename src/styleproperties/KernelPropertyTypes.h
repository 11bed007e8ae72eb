#pragma once

#include "api/VtxEnumerations.h"

#include <string>

/// The host enumerations that occur as style values, as X(type).
#define VX_KERNEL_PROPERTY_ENUMERATIONS(X)                                                                             \
    X(AnchorAlignment_e)                                                                                               \
    X(AxisAlignment_e)                                                                                                 \
    X(AxisMode_e)                                                                                                      \
    X(AxisTitleMode_e)                                                                                                 \
    X(ConstraintOp2Mode_e)                                                                                             \
    X(CoordScale_e)                                                                                                    \
    X(Font_e)                                                                                                          \
    X(GeomShape_e)                                                                                                     \
    X(LabelAlignment_e)                                                                                                \
    X(LinePattern_e)                                                                                                   \
    X(Palette_e)                                                                                                       \
    X(PaperSize_e)                                                                                                     \
    X(PaperUnitSpacing_e)                                                                                              \
    X(PlotApproximationMode_e)                                                                                         \
    X(PrintRenderType_e)                                                                                               \
    X(RelOp_e)                                                                                                         \
    X(StreamDir_e)                                                                                                     \
    X(Streamtrace_e)                                                                                                   \
    X(TextBox_e)                                                                                                       \
    X(ThetaMode_e)                                                                                                     \
    X(TickDirection_e)                                                                                                 \
    X(UnloadStrategy_e)                                                                                                \
    X(ValueBlankCellMode_e)                                                                                            \
    X(VariableDerivationMethod_e)

/// Every type of a style value, as X(type).
#define VX_KERNEL_PROPERTY_TYPES(X)                                                                                    \
    X(bool)                                                                                                            \
    X(int)                                                                                                             \
    X(long)                                                                                                            \
    X(double)                                                                                                          \
    X(std::string)                                                                                                     \
    VX_KERNEL_PROPERTY_ENUMERATIONS(X)
