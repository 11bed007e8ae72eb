#pragma once

#include "api/VtxEnumerations.h"

/// Calls a macro for every type of which the dialogs offer a list of choices. A type that is named here has its list
/// classes and its combo-box and radio-button bindings compiled once; a list of another type needs an entry.
#define VX_FOR_EACH_LISTED_TYPE(apply)                                                                                 \
    apply(bool) apply(int) apply(double) apply(AnchorAlignment_e) apply(AxisAlignment_e) apply(AxisMode_e)             \
        apply(AxisTitleMode_e) apply(ConstraintOp2Mode_e) apply(ContourColoring_e) apply(CoordScale_e)                 \
            apply(CoordSys_e) apply(FieldDataType_e) apply(Font_e) apply(GeomShape_e) apply(LabelAlignment_e)          \
                apply(LinePattern_e) apply(NumberFormat_e) apply(Palette_e) apply(PaperSize_e)                         \
                    apply(PaperUnitSpacing_e) apply(PlotApproximationMode_e) apply(PrintRenderType_e) apply(RelOp_e)   \
                        apply(StreamDir_e) apply(Streamtrace_e) apply(StreamtracePlacementMethod_e) apply(TextBox_e)   \
                            apply(TextType_e) apply(ThetaMode_e) apply(TickDirection_e) apply(Units_e)                 \
                                apply(UnloadStrategy_e) apply(ValueBlankCellMode_e) apply(ValueLocation_e)             \
                                    apply(VariableDerivationMethod_e)
