#pragma once

#include "kernel/Frame.h"
#include "kernel/ValueBlanking.h"
#include "kernel/probe/ProbeMeshes.h"
#include "kernel/probe/ShownPlanes.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

/* What the interface hands out as VtxFieldDataHandle. */
struct VtxFieldData
{
    ValueLocation_e location = ValueLocation_Nodal;
};

namespace vantrix::kernel {

class StyleStore;

/* A probe of a field plot at a position, in the coordinates of its axes. */
struct FieldPositionRequest
{
    Position position{0.0, 0.0, 0.0};
    bool isInVolume = false;     /* inside volumes, not on their surfaces */
    bool isNearestPoint = false; /* takes the nearest point instead of interpolating */
};

/* A probe of a point of a zone; all numbers from 1. Of a finite-element zone `i` is the point, `j` and `k` are 1. */
struct FieldIndexRequest
{
    long i = 1;
    long j = 1;
    long k = 1;
    long zone = 1;
    long zoneIdentity = 0; /* that zone, whatever its number is now; 0 for the one that has the number */
};

/* Where a position is in the data: the zone, and the place in one of its meshes. */
struct FieldPlace
{
    long zone = 0;
    std::shared_ptr<ProbeMesh> mesh;
    MeshPlace place;
    std::optional<CellIndex> planeCell =
        {}; /* on a plane of constant index inside of a volume: the cell of the plane */
};

/* What a probe of a field plot found. Values are by variable, in order. */
struct FieldProbeResult
{
    long zone = 0;
    std::string name;
    std::optional<ProbedCell> cell; /* of a position */
    long point = 0;                 /* from 1; 0 where it was interpolated */
    Position position{0.0, 0.0, 0.0};
    std::vector<std::optional<double>> values;
    std::vector<std::optional<double>> cellCenterValues;
    std::optional<FieldIndexRequest> picked; /* of a probe by index: the same, with the zone's identity */
    std::vector<VtxFieldData> fields;        /* where the values of each variable belong */
};

/*
 * Probes the field plot of one frame, with the data and style that it has when this is made. A position on a surface
 * need not be exact: the closest place of what the plot shows is taken, no further away than a hundredth of the size of
 * its zone. What value blanking leaves out of the plot is not found by position; any point is by its index.
 */
class FieldProbe
{
public:
    FieldProbe(const StyleStore& style, const Frame& frame, ProbeMeshes& meshes);

    /* Nothing when the position is outside the data. Throws DataError when the plot cannot be probed. */
    std::optional<FieldProbeResult> probe(const FieldPositionRequest& request);

    /* Throws DataError, too, for a zone or an index that is not there, or no longer. */
    FieldProbeResult probe(const FieldIndexRequest& request);

    /* Finds the place of a position. `zones` restricts the search where it is not null; `start`, a place of an earlier
     * search, is looked at first. */
    bool find(const FieldPositionRequest& request, FieldPlace& place, const std::set<long>* zones = nullptr,
              const FieldPlace* start = nullptr);

    /* The place of a cell, to begin a search with. */
    FieldPlace placeOf(long zone, const CellIndex& cell, bool isInVolume);

    /* The cell of a place; of a place that has none its zone's first. */
    CellIndex cellIndex(const FieldPlace& place) const;

    /* The value of a variable at a place; nothing where it is not loaded or the zone does not have it. */
    std::optional<double> value(const FieldPlace& place, long variable) const;

    /* See VtxUtilZoneGetFaceCount(); the zone is a finite-element one. */
    long faceCount(long zone) { return wholeMesh(zone)->faceCount(); }

    const DataSet& dataSet() const { return *m_dataSet; }

private:
    /* A zone to search, and its mesh once that was needed. */
    struct Candidate
    {
        long zone;
        ProbeMesh::Part part;
        bool isExact;                           /* whether a position has to be inside of a cell */
        std::optional<ShownPlanes> planes = {}; /* of an ordered volume the planes that are drawn inside of it */
        std::shared_ptr<ProbeMesh> mesh = {};
    };
    std::vector<Candidate> candidates(bool isInVolume) const;
    std::vector<Candidate> candidatesAmong(const std::set<long>& zones, bool isInVolume) const;
    std::optional<ProbeMesh::Part> partToSearch(long zone, bool isInVolume) const;
    std::shared_ptr<ProbeMesh> mesh(long zone, ProbeMesh::Part part);
    std::shared_ptr<ProbeMesh> wholeMesh(long zone);
    Candidate candidate(long zone, ProbeMesh::Part part, bool isInVolume) const;
    static bool putOnPlane(const Zone& zone, const ShownPlanes& planes, FieldPlace& place);
    bool findIn(Candidate& candidate, const FieldPositionRequest& request, FieldPlace& best, long startCell);
    FieldProbeResult newResult(long zone) const;
    void findNeighborsInOtherZones(ProbedCell& cell, long zone);

    const StyleStore& m_style;
    long m_frameId;
    ProbeMeshes& m_meshes;
    std::shared_ptr<const DataSet> m_dataSet;
    CoordinateVariables m_coordinates{0, 0, 0};
    bool m_isThreeD = false;
    ValueBlanking m_blanking;
    std::array<std::optional<std::vector<Candidate>>, 2> m_candidates; /* on surfaces, inside of volumes */
};

} // namespace vantrix::kernel
