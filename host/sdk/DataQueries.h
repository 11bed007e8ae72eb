#pragma once

#include "toolbox/Set.h"

namespace vantrix::sdk {

/// The extents of the variables that serve as X, Y and Z of the active frame, over all enabled zones. An axis that no
/// variable serves, or whose variable has no value, extends from 0 to 1.
void GetDataExtents(double& xMin, double& yMin, double& zMin, double& xMax, double& yMax, double& zMax);

/// Whether a zone with more than one K plane can be made: in a 3D plot, and in a sketch without data, where the plot
/// type is still open.
bool IsOkToMake3DZone();

/// Whether there is a page.
bool pageIsAvailable();

/// Whether there is a page with a frame that has a data set.
bool dataSetAndFrameAreAvailable();

/// The zones that take part; empty without a data set.
toolbox::Set getEnabledZones();

} // namespace vantrix::sdk
