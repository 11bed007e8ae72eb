#pragma once

#include "kernel/ZoneGrid.h"
#include "kernel/probe/ProbeMesh.h"

#include <map>
#include <memory>
#include <tuple>

namespace vantrix::kernel {

class Document;

/*
 * The meshes of the zones that were probed, kept as long as a frame shows the zone with the same points and cells.
 * Values may change meanwhile: a mesh has none.
 */
class ProbeMeshes
{
public:
    explicit ProbeMeshes(const Document& document)
        : m_document(document)
    {}

    /* The zone must be there. What is `blanked`, which may be null, is left out. */
    std::shared_ptr<ProbeMesh> mesh(const DataSet& dataSet, long zone, const CoordinateVariables& coordinates,
                                    ProbeMesh::Part part, std::shared_ptr<const BlankedZone> blanked = nullptr);

    void clear() { m_meshes.clear(); }

private:
    using Key = std::tuple<long, long, CoordinateVariables, ProbeMesh::Part, bool>; /* whether some is blanked */
    void dropUnused();

    const Document& m_document;
    std::map<Key, std::shared_ptr<ProbeMesh>> m_meshes;
};

} // namespace vantrix::kernel
