#include "sdk/DataQueries.h"

#include "api/VtxUtilData.h"
#include "api/VtxUtilFrame.h"

namespace vantrix::sdk {

namespace {

void getAxisExtent(char axis, double& minimum, double& maximum)
{
    long const variable = VtxUtilDataSetIsAvailable() ? VtxUtilVarGetNumByAssignment(axis) : 0;
    double low = 0.0;
    double high = 1.0;
    bool const found = variable > 0 && VtxUtilVarGetMinMax(variable, &low, &high);
    minimum = found ? low : 0.0;
    maximum = found ? high : 1.0;
}

} // namespace

void GetDataExtents(double& xMin, double& yMin, double& zMin, double& xMax, double& yMax, double& zMax)
{
    getAxisExtent('X', xMin, xMax);
    getAxisExtent('Y', yMin, yMax);
    getAxisExtent('Z', zMin, zMax);
}

bool IsOkToMake3DZone()
{
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    return plotType == PlotType_Cartesian3D || (plotType == PlotType_Sketch && !VtxUtilDataSetIsAvailable());
}

bool pageIsAvailable()
{
    return VtxUtilPageGetCount() > 0;
}

bool dataSetAndFrameAreAvailable()
{
    return pageIsAvailable() && VtxUtilFrameGetCount() > 0 && VtxUtilDataSetIsAvailable();
}

toolbox::Set getEnabledZones()
{
    return toolbox::Set(VtxUtilDataSetIsAvailable() ? VtxUtilZoneGetEnabled() : nullptr);
}

} // namespace vantrix::sdk
