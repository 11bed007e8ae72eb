#include "kernel/readers/CellKinds.h"

#include "kernel/DataError.h"

#include <vtkCellTypes.h>
#include <vtkPolyData.h>
#include <vtkUnsignedCharArray.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>
#include <array>
#include <optional>

namespace vantrix::kernel::readers {

namespace {

using Corners = std::vector<vtkIdType>;

enum Kind
{
    Points,
    Segments,
    Surface,
    Volume,
    Polyhedra,
    KindCount
};

/* Corners of a cell of our own, taken from the corners of VTK's. */
struct CellRule
{
    int vtkType;
    Kind kind;
    ZoneType_e type;
    Corners corners; /* as the type has them */
    Corners whole;   /* the same cell with corners that fall together: a quadrilateral, a brick */
};

const std::vector<CellRule>& rules()
{
    static const Corners line{0, 1}, triangle{0, 1, 2}, triangleAsQuad{0, 1, 2, 2}, quad{0, 1, 2, 3}, pixel{0, 1, 3, 2};
    static const Corners tetra{0, 1, 2, 3}, tetraAsBrick{0, 1, 2, 2, 3, 3, 3, 3}, brick{0, 1, 2, 3, 4, 5, 6, 7};
    static const Corners voxel{0, 1, 3, 2, 4, 5, 7, 6}, pyramid{0, 1, 2, 3, 4, 4, 4, 4};
    /* VTK numbers the base of a wedge the other way round than that of a brick. */
    static const Corners wedge{0, 2, 1, 1, 3, 5, 4, 4};
    static const std::vector<CellRule> all{
        {VTK_LINE, Segments, ZoneType_FELineSeg, line, line},
        {VTK_QUADRATIC_EDGE, Segments, ZoneType_FELineSeg, line, line},
        {VTK_TRIANGLE, Surface, ZoneType_FETriangle, triangle, triangleAsQuad},
        {VTK_QUADRATIC_TRIANGLE, Surface, ZoneType_FETriangle, triangle, triangleAsQuad},
        {VTK_LAGRANGE_TRIANGLE, Surface, ZoneType_FETriangle, triangle, triangleAsQuad},
        {VTK_QUAD, Surface, ZoneType_FEQuad, quad, quad},
        {VTK_PIXEL, Surface, ZoneType_FEQuad, pixel, pixel},
        {VTK_QUADRATIC_QUAD, Surface, ZoneType_FEQuad, quad, quad},
        {VTK_BIQUADRATIC_QUAD, Surface, ZoneType_FEQuad, quad, quad},
        {VTK_LAGRANGE_QUADRILATERAL, Surface, ZoneType_FEQuad, quad, quad},
        {VTK_TETRA, Volume, ZoneType_FETetra, tetra, tetraAsBrick},
        {VTK_QUADRATIC_TETRA, Volume, ZoneType_FETetra, tetra, tetraAsBrick},
        {VTK_LAGRANGE_TETRAHEDRON, Volume, ZoneType_FETetra, tetra, tetraAsBrick},
        {VTK_HEXAHEDRON, Volume, ZoneType_FEBrick, brick, brick},
        {VTK_VOXEL, Volume, ZoneType_FEBrick, voxel, voxel},
        {VTK_QUADRATIC_HEXAHEDRON, Volume, ZoneType_FEBrick, brick, brick},
        {VTK_TRIQUADRATIC_HEXAHEDRON, Volume, ZoneType_FEBrick, brick, brick},
        {VTK_LAGRANGE_HEXAHEDRON, Volume, ZoneType_FEBrick, brick, brick},
        {VTK_WEDGE, Volume, ZoneType_FEBrick, wedge, wedge},
        {VTK_QUADRATIC_WEDGE, Volume, ZoneType_FEBrick, wedge, wedge},
        {VTK_PYRAMID, Volume, ZoneType_FEBrick, pyramid, pyramid},
        {VTK_QUADRATIC_PYRAMID, Volume, ZoneType_FEBrick, pyramid, pyramid},
    };
    return all;
}

const CellRule* ruleFor(int vtkType)
{
    const auto found =
        std::find_if(rules().begin(), rules().end(), [&](auto& rule) { return rule.vtkType == vtkType; });
    return found == rules().end() ? nullptr : &*found;
}

/* What a kind has to hold; it grows with each cell type seen. */
struct KindOfBlock
{
    long cells = 0;
    std::optional<ZoneType_e> type;

    void include(ZoneType_e other)
    {
        if (!type || *type == other) {
            type = other;
        } else if (*type == ZoneType_FEPolygon || other == ZoneType_FEPolygon) {
            type = ZoneType_FEPolygon;
        } else {
            type = other == ZoneType_FETetra || other == ZoneType_FEBrick ? ZoneType_FEBrick : ZoneType_FEQuad;
        }
        ++cells;
    }
};

class Sorter
{
public:
    explicit Sorter(vtkDataSet& block)
        : m_block(block)
        , m_grid(vtkUnstructuredGrid::SafeDownCast(&block))
    {
        if (auto* surface = vtkPolyData::SafeDownCast(&block)) {
            surface->BuildCells();
        }
    }

    std::vector<CellsOfKind> sort()
    {
        survey();
        for (vtkIdType cell = 0; cell < m_block.GetNumberOfCells(); ++cell) {
            take(cell);
        }
        std::vector<CellsOfKind> result;
        for (int kind = 0; kind < KindCount; ++kind) {
            if (m_kinds[static_cast<std::size_t>(kind)].cells > 0) {
                result.push_back(std::move(m_results[static_cast<std::size_t>(kind)]));
            }
        }
        return result;
    }

private:
    static Kind kindOf(int vtkType)
    {
        switch (vtkType) {
        case VTK_VERTEX:
        case VTK_POLY_VERTEX:
            return Points;
        case VTK_POLY_LINE:
            return Segments;
        case VTK_POLYGON:
        case VTK_TRIANGLE_STRIP:
            return Surface;
        case VTK_POLYHEDRON:
            return Polyhedra;
        default:
            break;
        }
        if (const CellRule* rule = ruleFor(vtkType)) {
            return rule->kind;
        }
        throw DataError(std::string("it has cells of the kind ") + vtkCellTypes::GetClassNameFromTypeId(vtkType) +
                        ", which no zone can hold");
    }

    static ZoneType_e typeOf(int vtkType)
    {
        switch (vtkType) {
        case VTK_VERTEX:
        case VTK_POLY_VERTEX:
            return ZoneType_Ordered;
        case VTK_POLY_LINE:
            return ZoneType_FELineSeg;
        case VTK_POLYGON:
            return ZoneType_FEPolygon;
        case VTK_TRIANGLE_STRIP:
            return ZoneType_FETriangle;
        case VTK_POLYHEDRON:
            return ZoneType_FEPolyhedron;
        default:
            return ruleFor(vtkType)->type;
        }
    }

    void survey()
    {
        for (vtkIdType cell = 0; cell < m_block.GetNumberOfCells(); ++cell) {
            const int type = m_block.GetCellType(cell);
            if (type != VTK_EMPTY_CELL) {
                m_kinds[static_cast<std::size_t>(kindOf(type))].include(typeOf(type));
            }
        }
        static constexpr const char* plurals[] = {"points", "curves", "surface", "volume", "polyhedra"};
        for (std::size_t kind = 0; kind < KindCount; ++kind) {
            CellsOfKind& result = m_results[kind];
            result.type = m_kinds[kind].type.value_or(ZoneType_Ordered);
            result.plural = plurals[kind];
            result.cells = vtkSmartPointer<vtkCellArray>::New();
            result.origin = vtkSmartPointer<vtkIdList>::New();
        }
        CellsOfKind& polyhedra = m_results[Polyhedra];
        polyhedra.faces = vtkSmartPointer<vtkIdTypeArray>::New();
        polyhedra.faceLocations = vtkSmartPointer<vtkIdTypeArray>::New();
    }

    void add(CellsOfKind& target, vtkIdType cell, const Corners& corners)
    {
        target.cells->InsertNextCell(static_cast<vtkIdType>(corners.size()), corners.data());
        target.origin->InsertNextId(cell);
    }

    void take(vtkIdType cell)
    {
        const int vtkType = m_block.GetCellType(cell);
        if (vtkType == VTK_EMPTY_CELL) {
            return;
        }
        CellsOfKind& target = m_results[static_cast<std::size_t>(kindOf(vtkType))];
        m_block.GetCellPoints(cell, m_points);
        const vtkIdType* points = m_points->GetPointer(0);
        const vtkIdType count = m_points->GetNumberOfIds();
        switch (vtkType) {
        case VTK_VERTEX:
        case VTK_POLY_VERTEX:
            for (vtkIdType i = 0; i < count; ++i) {
                target.origin->InsertNextId(points[i]);
            }
            return;
        case VTK_POLY_LINE:
            for (vtkIdType i = 0; i + 1 < count; ++i) {
                add(target, cell, {points[i], points[i + 1]});
            }
            return;
        case VTK_TRIANGLE_STRIP:
            for (vtkIdType i = 0; i + 2 < count; ++i) {
                addPolygon(target, cell, {points[i], points[i + 1 + i % 2], points[i + 2 - i % 2]});
            }
            return;
        case VTK_POLYGON:
            addPolygon(target, cell, {points, points + count});
            return;
        case VTK_POLYHEDRON:
            addPolyhedron(target, cell);
            return;
        default:
            addByRule(target, cell, *ruleFor(vtkType), points);
        }
    }

    void addPolygon(CellsOfKind& target, vtkIdType cell, Corners corners)
    {
        if (target.type == ZoneType_FEQuad) {
            corners.resize(4, corners.back());
        }
        add(target, cell, corners);
    }

    void addByRule(CellsOfKind& target, vtkIdType cell, const CellRule& rule, const vtkIdType* points)
    {
        const bool isWhole = target.type != rule.type && target.type != ZoneType_FEPolygon;
        Corners corners = isWhole ? rule.whole : rule.corners;
        for (vtkIdType& corner : corners) {
            corner = points[corner];
        }
        add(target, cell, corners);
    }

    void addPolyhedron(CellsOfKind& target, vtkIdType cell)
    {
        add(target, cell, {m_points->begin(), m_points->end()});
        vtkIdType faceCount = 0;
        const vtkIdType* stream = nullptr;
        m_grid->GetFaceStream(cell, faceCount, stream);
        target.faceLocations->InsertNextValue(target.faces->GetNumberOfValues());
        target.faces->InsertNextValue(faceCount);
        for (vtkIdType face = 0; face < faceCount; ++face) {
            const vtkIdType corners = *stream;
            for (vtkIdType i = 0; i <= corners; ++i) {
                target.faces->InsertNextValue(*stream++);
            }
        }
    }

    vtkDataSet& m_block;
    vtkUnstructuredGrid* m_grid;
    vtkNew<vtkIdList> m_points;
    std::array<KindOfBlock, KindCount> m_kinds;
    std::array<CellsOfKind, KindCount> m_results;
};

/* The kind of zone that has cells of one VTK type only, where there is one. */
std::optional<ZoneType_e> zoneTypeOf(int cellType)
{
    switch (cellType) {
    case VTK_LINE:
        return ZoneType_FELineSeg;
    case VTK_TRIANGLE:
        return ZoneType_FETriangle;
    case VTK_QUAD:
        return ZoneType_FEQuad;
    case VTK_TETRA:
        return ZoneType_FETetra;
    case VTK_HEXAHEDRON:
        return ZoneType_FEBrick;
    case VTK_POLYGON:
        return ZoneType_FEPolygon;
    case VTK_POLYHEDRON:
        return ZoneType_FEPolyhedron;
    default:
        return std::nullopt;
    }
}

/* The connectivity as it is, when it is already what a zone of one kind has. */
std::optional<CellsOfKind> shared(vtkUnstructuredGrid& grid)
{
    const unsigned char* types = grid.GetCellTypesArray() ? grid.GetCellTypesArray()->GetPointer(0) : nullptr;
    const vtkIdType count = grid.GetNumberOfCells();
    if (!types || count == 0 ||
        !std::all_of(types, types + count, [&](unsigned char type) { return type == *types; })) {
        return std::nullopt;
    }
    const std::optional<ZoneType_e> type = zoneTypeOf(*types);
    if (!type) {
        return std::nullopt;
    }
    CellsOfKind result;
    result.type = *type;
    result.cells = grid.GetCells();
    if (type == ZoneType_FEPolyhedron) {
        result.faces = grid.GetFaces();
        result.faceLocations = grid.GetFaceLocations();
    }
    return result;
}

std::optional<CellsOfKind> shared(vtkPolyData& surface)
{
    if (surface.GetNumberOfVerts() + surface.GetNumberOfLines() + surface.GetNumberOfStrips() > 0) {
        return std::nullopt;
    }
    CellsOfKind result;
    result.cells = surface.GetPolys();
    switch (result.cells->IsHomogeneous()) {
    case 3:
        result.type = ZoneType_FETriangle;
        return result;
    case 4:
        result.type = ZoneType_FEQuad;
        return result;
    default:
        return std::nullopt;
    }
}

} // namespace

std::vector<CellsOfKind> sortCells(vtkDataSet& block)
{
    std::optional<CellsOfKind> whole;
    if (auto* grid = vtkUnstructuredGrid::SafeDownCast(&block)) {
        whole = shared(*grid);
    } else if (auto* surface = vtkPolyData::SafeDownCast(&block)) {
        whole = shared(*surface);
    }
    if (whole) {
        return {*whole};
    }
    return Sorter(block).sort();
}

} // namespace vantrix::kernel::readers
