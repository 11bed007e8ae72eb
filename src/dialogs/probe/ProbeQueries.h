#pragma once

#include "api/VtxEnumerations.h"

#include <string>
#include <vector>

/// What the host's last probe found, in the form in which it is shown. Every function takes the application lock and
/// answers nothing (an empty list or text, false) where there is no such probe.
namespace vantrix::sdk::ui::dialogs {

/// One row of a table of values.
struct VarValue_s
{
    int variable;        ///< from 1
    bool isValid;        ///< whether the variable is loaded and has a value at the probe
    double value;        ///< 0 where it is not valid
    bool isInterpolated; ///< whether the value was made from values that are not stored at points
};

/// Indices in an ordered zone, from 1.
struct IJK_s
{
    long i;
    long j;
    long k;
};

/// The face of an ordered cell that lies in a plane of constant I, J or K.
struct FaceInfo_s
{
    std::string planeName;   ///< "I-Plane", "J-Plane", "K-Plane" or "Unknown"
    std::string planeText;   ///< where the plane is: "I = 3"
    std::string indicesText; ///< where the face is in it: "J = 1\nK = 2"
};

/// A face of a polygon or polyhedron.
struct PolyFaceInfo_s
{
    long number;             ///< from 1
    std::vector<long> nodes; ///< point numbers, from 1
};

/// What lies behind a face of the probed cell.
struct FaceNeighbor_s
{
    long face; ///< from 1
    long zone; ///< 0 where there is no neighbour
    long cell;
};

/// What a line probe found of a line map.
struct LineMapValue_s
{
    int lineMap;  ///< from 1
    bool isValid; ///< whether the line reaches the position
    double value; ///< on the axis across the probed one
};

/// "Zone 2: Wing" for a probe of a zone, the item's own name for anything else.
std::string GetProbedItemName();

/// "Ordered", "FE-Triangle", ...; empty where no zone was probed.
std::string GetProbedZoneTypeString();

/// The number of faces of an element: of the probed one its own, of another what elements of its zone have; 0 where
/// each has as many as it likes.
long GetElementFaceCount(int zone, long element);

/// The element, and the point that was taken where the probe was for the nearest one (else 0). False for a probe of
/// anything but a finite-element zone.
bool GetProbedFECellInfo(bool isNearestPoint, long& element, long& node);

/// The cell of an ordered zone: which family it belongs to, its first corner, or the point where a point was taken
/// (`hasCell` is then false), and the face where the cell lies in a plane. False for a probe of anything else.
bool GetProbedOrderedCellInfo(bool isNearestPoint, IJKPlanes_e& plane, IJK_s& indices, bool& hasCell, FaceInfo_s& face,
                              bool& hasFace);

bool PlotHasActiveLineMaps();

/// The faces of the probed polygon or polyhedron; of a polygon its edges.
std::vector<PolyFaceInfo_s> GetProbedPolytopeFaceNodes();

/// The corners of the probed element, from 1.
std::vector<long> GetProbedFECellNodes();

std::vector<FaceNeighbor_s> GetProbedItemFaceNeighbors();

/// The values of the line maps that were probed, by number.
std::vector<LineMapValue_s> GetLineProbeDependentValues();

/// The values of all enabled variables at the probe, and at the centre of the probed cell.
std::vector<VarValue_s> GetFieldVarValuesForLastProbe();
std::vector<VarValue_s> GetFieldCellCenterValuesForLastProbe();

/// The text of a value: 18 significant digits, or a date where the variable serves as an axis whose numbers are dates.
std::string FormatProbedFieldVarValue(int variable, double value);

} // namespace vantrix::sdk::ui::dialogs
