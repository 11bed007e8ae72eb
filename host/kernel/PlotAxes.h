#pragma once

#include "api/VtxEnumerations.h"

#include <string>

namespace vantrix::kernel {

class DataSet;

/* Why a plot of that type cannot be made of a data set, which may be null; empty when it can. A sketch needs no data.
 */
std::string whyPlotTypeIsRefused(const DataSet* dataSet, PlotType_e plotType);

/* Whether a plot of that type has an axis; see VtxUtilAxis.h for how axes are named. */
bool plotHasAxis(PlotType_e plotType, char axis, int axisNumber);

} // namespace vantrix::kernel
