#pragma once

#include "kernel/FieldArray.h"
#include "view/ZoneStyle.h"

#include <array>
#include <optional>
#include <vector>

class vtkDataSet;

namespace vantrix::view {

class ZoneSurface;

/* The points, or centres of cells, of a zone that have symbols and vectors. */
class ZonePoints
{
public:
    /* Chooses them anew where the surface or the selection is another one; revision() moves then. */
    void set(ZoneSurface& surface, const PointSelection& selection);

    unsigned long revision() const { return m_revision; }

    const std::vector<std::array<double, 3>>& places() const { return m_places; }

    /* A field's values there: of a nodal field at the centre of a cell the mean of its corners, of a cell-centred one
     * at a point the mean of the cells around it. */
    std::vector<double> values(const kernel::FieldArray& field) const;

private:
    bool areCells() const;

    vtkDataSet* m_geometry = nullptr;
    PointSelection m_selection;
    unsigned long m_surfaceRevision = 0;
    unsigned long m_revision = 0;
    std::vector<long long> m_numbers; /* of points or cells, from 0 */
    std::vector<std::array<double, 3>> m_places;
};

} // namespace vantrix::view
