#include "kernel/Zone.h"

#include <atomic>

namespace vantrix::kernel {

namespace {

long cornersPerCell(ZoneType_e type)
{
    switch (type) {
    case ZoneType_FELineSeg:
        return 2;
    case ZoneType_FETriangle:
        return 3;
    case ZoneType_FEQuad:
    case ZoneType_FETetra:
        return 4;
    case ZoneType_FEBrick:
        return 8;
    case ZoneType_FEPolygon:
    case ZoneType_FEPolyhedron:
    case ZoneType_Ordered:
        break;
    }
    return 0;
}

} // namespace

Zone::Zone()
{
    static std::atomic<long> last = 0;
    m_identity = ++last;
}

Zone Zone::ordered(std::string name, long iMax, long jMax, long kMax)
{
    Zone zone;
    zone.m_name = std::move(name);
    zone.m_dimensions = {iMax, jMax, kMax};
    return zone;
}

// VTK's smart pointers have no move, which a later version has.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
Zone Zone::finiteElement(std::string name, ZoneType_e type, long pointCount, vtkSmartPointer<vtkCellArray> cells)
{
    Zone zone;
    zone.m_name = std::move(name);
    zone.m_type = type;
    zone.m_dimensions = {pointCount, static_cast<long>(cells->GetNumberOfCells()), cornersPerCell(type)};
    zone.m_cells = std::move(cells); // NOLINT(performance-move-const-arg)
    return zone;
}

long Zone::pointCount() const
{
    return isOrdered() ? m_dimensions[0] * m_dimensions[1] * m_dimensions[2] : m_dimensions[0];
}

long Zone::cellCount() const
{
    if (!isOrdered()) {
        return m_dimensions[1];
    }
    long count = 1;
    for (const long points : m_dimensions) {
        count *= points > 1 ? points - 1 : 1;
    }
    return count;
}

int Zone::topologicalDimension() const
{
    switch (m_type) {
    case ZoneType_FELineSeg:
        return 1;
    case ZoneType_FETriangle:
    case ZoneType_FEQuad:
    case ZoneType_FEPolygon:
        return 2;
    case ZoneType_FETetra:
    case ZoneType_FEBrick:
    case ZoneType_FEPolyhedron:
        return 3;
    case ZoneType_Ordered:
        break;
    }
    int dimension = 0;
    for (const long points : m_dimensions) {
        dimension += points > 1;
    }
    return dimension;
}

} // namespace vantrix::kernel
