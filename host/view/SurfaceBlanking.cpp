#include "view/SurfaceBlanking.h"

#include "kernel/BlankedZone.h"

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <span>
#include <utility>

namespace vantrix::view {
namespace {

/* A point of the surface, or -1 - the number of a cut. */
using Corner = vtkIdType;

class Unblanker
{
public:
    Unblanker(vtkPolyData& surface, const kernel::BlankedZone& blanked, const char* pointNumbers,
              const char* cellNumbers)
        : m_surface(surface)
        , m_blanked(blanked)
        , m_pointNumbers(vtkIdTypeArray::SafeDownCast(surface.GetPointData()->GetArray(pointNumbers)))
        , m_cellNumbers(vtkIdTypeArray::SafeDownCast(surface.GetCellData()->GetArray(cellNumbers)))
        , m_placeOfPoint(std::size_t(surface.GetNumberOfPoints()), -1)
        , m_cutValues(blanked.trimming.size())
        , m_cutOfEdge(blanked.trimming.size())
    {
        m_points->SetDataType(surface.GetPoints() ? surface.GetPoints()->GetDataType() : VTK_FLOAT);
        m_newPointNumbers->SetName(pointNumbers);
        m_newCellNumbers->SetName(cellNumbers);
    }

    UnblankedSurface result()
    {
        vtkIdType count = 0;
        const vtkIdType* corners = nullptr;
        for (vtkIdType cell = 0; cell < m_surface.GetNumberOfCells(); ++cell) {
            const vtkIdType number = m_cellNumbers->GetValue(cell);
            if (m_blanked.cells[std::size_t(number)]) {
                continue;
            }
            m_surface.GetCellPoints(cell, count, corners);
            const std::span all(corners, std::size_t(count));
            switch (m_surface.GetCellType(cell)) {
            case VTK_VERTEX:
            case VTK_POLY_VERTEX:
                addVertices(all, number);
                break;
            case VTK_LINE:
            case VTK_POLY_LINE:
                addLines(all, number);
                break;
            default:
                addPolygon({all.begin(), all.end()}, number);
                break;
            }
        }
        const auto surface = vtkSmartPointer<vtkPolyData>::New();
        surface->SetPoints(m_points);
        surface->SetVerts(m_vertices);
        surface->SetLines(m_lines);
        surface->SetPolys(m_polygons);
        surface->GetPointData()->AddArray(m_newPointNumbers);
        surface->GetCellData()->AddArray(m_newCellNumbers);
        return {surface, std::move(m_cuts)};
    }

private:
    double kept(std::size_t constraint, Corner corner) const
    {
        return corner < 0 ? m_cutValues[constraint][std::size_t(-1 - corner)]
                          : m_blanked.trimming[constraint][std::size_t(m_pointNumbers->GetValue(corner))];
    }

    bool isKept(Corner corner) const
    {
        for (std::size_t i = 0; i < m_blanked.trimming.size(); ++i) {
            if (kept(i, corner) <= 0.0) {
                return false;
            }
        }
        return true;
    }

    std::array<double, 3> place(Corner corner) const
    {
        std::array<double, 3> result{};
        if (corner < 0) {
            return m_cutPlaces[std::size_t(-1 - corner)];
        }
        m_surface.GetPoint(corner, result.data());
        return result;
    }

    /* Where a constraint ends between two corners: the same cut for both cells beside an edge. */
    Corner cut(std::size_t constraint, Corner one, Corner other)
    {
        const auto [from, to] = std::minmax(one, other);
        const auto [found, isNew] = m_cutOfEdge[constraint].try_emplace({from, to}, -1 - Corner(m_cuts.size()));
        if (isNew) {
            const double before = kept(constraint, from);
            const double at = before / (before - kept(constraint, to));
            const auto begin = place(from);
            const auto end = place(to);
            m_cutPlaces.push_back(
                {std::lerp(begin[0], end[0], at), std::lerp(begin[1], end[1], at), std::lerp(begin[2], end[2], at)});
            for (std::size_t i = 0; i < m_cutValues.size(); ++i) {
                m_cutValues[i].push_back(i == constraint ? 0.0 : std::lerp(kept(i, from), kept(i, to), at));
            }
            m_cuts.push_back({numberOf(from), numberOf(to), at});
        }
        return found->second;
    }

    vtkIdType numberOf(Corner corner) const { return corner < 0 ? corner : m_pointNumbers->GetValue(corner); }

    vtkIdType newPoint(Corner corner)
    {
        if (corner < 0) {
            m_placeOfCut.resize(m_cuts.size(), -1);
        }
        vtkIdType& at = corner < 0 ? m_placeOfCut[std::size_t(-1 - corner)] : m_placeOfPoint[std::size_t(corner)];
        if (at < 0) {
            at = m_points->InsertNextPoint(place(corner).data());
            m_newPointNumbers->InsertNextValue(numberOf(corner));
        }
        return at;
    }

    void addCell(vtkCellArray& cells, std::span<const Corner> corners, vtkIdType number)
    {
        cells.InsertNextCell(static_cast<int>(corners.size()));
        for (const Corner corner : corners) {
            cells.InsertCellPoint(newPoint(corner));
        }
        m_newCellNumbers->InsertNextValue(number);
    }

    void addVertices(std::span<const Corner> corners, vtkIdType number)
    {
        for (const Corner corner : corners) {
            if (isKept(corner)) {
                addCell(*m_vertices, {&corner, 1}, number);
            }
        }
    }

    void addLines(std::span<const Corner> corners, vtkIdType number)
    {
        for (std::size_t i = 0; i + 1 < corners.size(); ++i) {
            std::array<Corner, 2> ends{corners[i], corners[i + 1]};
            bool isLeft = true;
            for (std::size_t c = 0; c < m_blanked.trimming.size() && isLeft; ++c) {
                const std::array<bool, 2> areKept{kept(c, ends[0]) > 0.0, kept(c, ends[1]) > 0.0};
                isLeft = areKept[0] || areKept[1];
                if (areKept[0] != areKept[1]) {
                    ends[areKept[0] ? 1 : 0] = cut(c, ends[0], ends[1]);
                }
            }
            if (isLeft) {
                addCell(*m_lines, ends, number);
            }
        }
    }

    /* Cuts a polygon by one constraint after the other (Sutherland and Hodgman). */
    void addPolygon(std::vector<Corner> corners, vtkIdType number)
    {
        for (std::size_t c = 0; c < m_blanked.trimming.size(); ++c) {
            std::vector<Corner> left;
            for (std::size_t i = 0; i < corners.size(); ++i) {
                const Corner from = corners[i];
                const Corner to = corners[(i + 1) % corners.size()];
                const bool isFromKept = kept(c, from) > 0.0;
                if (isFromKept) {
                    left.push_back(from);
                }
                if (isFromKept != (kept(c, to) > 0.0)) {
                    left.push_back(cut(c, from, to));
                }
            }
            corners = std::move(left);
        }
        if (corners.size() >= 3) {
            addCell(*m_polygons, corners, number);
        }
    }

    vtkPolyData& m_surface;
    const kernel::BlankedZone& m_blanked;
    vtkIdTypeArray* m_pointNumbers;
    vtkIdTypeArray* m_cellNumbers;
    std::vector<vtkIdType> m_placeOfPoint; /* in the new surface; -1 for one not needed yet */
    std::vector<vtkIdType> m_placeOfCut;
    std::vector<SurfaceCut> m_cuts;
    std::vector<std::array<double, 3>> m_cutPlaces;
    std::vector<std::vector<double>> m_cutValues; /* of each trimming constraint */
    std::vector<std::map<std::pair<Corner, Corner>, Corner>> m_cutOfEdge;
    vtkSmartPointer<vtkPoints> m_points = vtkSmartPointer<vtkPoints>::New();
    vtkSmartPointer<vtkCellArray> m_vertices = vtkSmartPointer<vtkCellArray>::New();
    vtkSmartPointer<vtkCellArray> m_lines = vtkSmartPointer<vtkCellArray>::New();
    vtkSmartPointer<vtkCellArray> m_polygons = vtkSmartPointer<vtkCellArray>::New();
    vtkSmartPointer<vtkIdTypeArray> m_newPointNumbers = vtkSmartPointer<vtkIdTypeArray>::New();
    vtkSmartPointer<vtkIdTypeArray> m_newCellNumbers = vtkSmartPointer<vtkIdTypeArray>::New();
};

} // namespace

UnblankedSurface withoutBlanked(vtkPolyData& surface, const kernel::BlankedZone& blanked, const char* pointNumbers,
                                const char* cellNumbers)
{
    return Unblanker(surface, blanked, pointNumbers, cellNumbers).result();
}

} // namespace vantrix::view
