#include "kernel/ValueBlanking.h"

#include "kernel/DataSet.h"
#include "kernel/Frame.h"
#include "kernel/Parallel.h"
#include "kernel/StyleStore.h"

#include <vtkIdList.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace vantrix::kernel {

namespace {

using Comparison = BlankedZoneCache::Comparison;
using KeptResult = BlankedZoneCache::Entry;

constexpr std::size_t keptResults = 4; /* more than two frames rarely show a zone */

bool holds(RelOp_e relation, double value, double other)
{
    switch (relation) {
    case RelOp_LessThanOrEqual:
        return value <= other;
    case RelOp_GreaterThanOrEqual:
        return value >= other;
    case RelOp_LessThan:
        return value < other;
    case RelOp_GreaterThan:
        return value > other;
    case RelOp_EqualTo:
        return value == other;
    case RelOp_NotEqualTo:
        return value != other;
    }
    return false;
}

bool isEquality(RelOp_e relation)
{
    return relation == RelOp_EqualTo || relation == RelOp_NotEqualTo;
}

bool comparesPoints(const Comparison& comparison)
{
    return comparison.location == ValueLocation_Nodal &&
           (comparison.isWithNumber || comparison.otherLocation == ValueLocation_Nodal);
}

bool areEqual(const Comparison& one, const Comparison& other)
{
    return one.relation == other.relation && one.isWithNumber == other.isWithNumber && one.values &&
           one.values == other.values && one.location == other.location &&
           (one.isWithNumber
                ? one.number == other.number
                : one.otherValues && one.otherValues == other.otherValues && one.otherLocation == other.otherLocation);
}

bool areEqual(const KeptResult& one, const KeptResult& other)
{
    return one.cellMode == other.cellMode && one.trimsCells == other.trimsCells && one.isFlat == other.isFlat &&
           std::ranges::equal(one.comparisons, other.comparisons,
                              [](const Comparison& a, const Comparison& b) { return areEqual(a, b); });
}

/* The corners of the cells of a zone, the first one of each being that of its primary value. */
class CellCorners
{
public:
    CellCorners(const Zone& zone, bool isFlat)
        : m_zone(zone)
        , m_size(zone.dimensions())
    {
        if (zone.isOrdered() && isFlat && zone.topologicalDimension() == 3) {
            m_size[2] = 1;
        }
    }

    long cellCount() const { return m_zone.isOrdered() ? cells(0) * cells(1) * cells(2) : m_zone.cellCount(); }

    /* `buffer` is one of the thread's own. */
    void of(long cell, vtkIdList& buffer) const
    {
        if (!m_zone.isOrdered()) {
            m_zone.cells()->GetCellAtId(cell, &buffer);
            return;
        }
        const std::array<long, 3> at{cell % cells(0), cell / cells(0) % cells(1), cell / (cells(0) * cells(1))};
        buffer.Reset();
        for (long k = 0; k <= (m_size[2] > 1 ? 1 : 0); ++k) {
            for (long j = 0; j <= (m_size[1] > 1 ? 1 : 0); ++j) {
                for (long i = 0; i <= (m_size[0] > 1 ? 1 : 0); ++i) {
                    buffer.InsertNextId(((at[2] + k) * m_size[1] + at[1] + j) * m_size[0] + at[0] + i);
                }
            }
        }
    }

private:
    long cells(std::size_t axis) const { return std::max(1L, m_size[axis] - 1); }

    const Zone& m_zone;
    std::array<long, 3> m_size;
};

/* Finds what constraints leave out of one zone. */
class Finder
{
public:
    Finder(const Zone& zone, const KeptResult& rules)
        : m_rules(rules)
        , m_corners(zone, rules.isFlat)
        , m_result(std::make_shared<BlankedZone>())
    {
        m_result->points.assign(static_cast<std::size_t>(zone.pointCount()), 0);
        m_result->cells.assign(static_cast<std::size_t>(m_corners.cellCount()), 0);
    }

    std::shared_ptr<const BlankedZone> found()
    {
        std::vector<unsigned char> corners(m_result->points.size(), 0);
        for (const Comparison& comparison : m_rules.comparisons) {
            if (!comparesPoints(comparison)) {
                compareCells(comparison);
                continue;
            }
            const std::vector<unsigned char> met = metAtPoints(comparison);
            merge(met, m_result->points);
            if (!m_rules.trimsCells) {
                merge(met, corners);
            } else if (isEquality(comparison.relation)) {
                const bool isEqual = comparison.relation == RelOp_EqualTo;
                blankCells(met, isEqual ? ValueBlankCellMode_AllCorners : ValueBlankCellMode_AnyCorner);
            } else if (std::ranges::count(met, 1) > 0) {
                addTrimming(comparison);
            }
        }
        if (!m_rules.trimsCells) {
            blankCells(corners, m_rules.cellMode);
        }
        const bool isAny = std::ranges::count(m_result->points, 1) > 0 || std::ranges::count(m_result->cells, 1) > 0;
        return isAny ? m_result : nullptr;
    }

private:
    static void merge(const std::vector<unsigned char>& from, std::vector<unsigned char>& into)
    {
        std::ranges::transform(from, into, into.begin(),
                               [](unsigned char a, unsigned char b) { return static_cast<unsigned char>(a | b); });
    }

    static double at(vtkDataArray& values, ValueLocation_e location, long cell, vtkIdList& corners)
    {
        if (location == ValueLocation_CellCentered) {
            return values.GetComponent(cell, 0);
        }
        double sum = 0.0;
        for (vtkIdType i = 0; i < corners.GetNumberOfIds(); ++i) {
            sum += values.GetComponent(corners.GetId(i), 0);
        }
        return sum / static_cast<double>(corners.GetNumberOfIds());
    }

    static double otherAt(const Comparison& comparison, long point)
    {
        return comparison.isWithNumber ? comparison.number : comparison.otherValues->GetComponent(point, 0);
    }

    std::vector<unsigned char> metAtPoints(const Comparison& comparison) const
    {
        std::vector<unsigned char> met(m_result->points.size(), 0);
        parallelFor(static_cast<long>(met.size()), [&](long begin, long end) {
            for (long i = begin; i < end; ++i) {
                met[static_cast<std::size_t>(i)] =
                    holds(comparison.relation, comparison.values->GetComponent(i, 0), otherAt(comparison, i));
            }
        });
        return met;
    }

    template<class Work>
    void forEachCell(const Work& work)
    {
        parallelFor(static_cast<long>(m_result->cells.size()), [&](long begin, long end) {
            const auto corners = vtkSmartPointer<vtkIdList>::New();
            for (long cell = begin; cell < end; ++cell) {
                m_corners.of(cell, *corners);
                if (corners->GetNumberOfIds() > 0 && work(cell, *corners)) {
                    m_result->cells[static_cast<std::size_t>(cell)] = 1;
                }
            }
        });
    }

    void compareCells(const Comparison& comparison)
    {
        forEachCell([&](long cell, vtkIdList& corners) {
            const double other = comparison.isWithNumber
                                     ? comparison.number
                                     : at(*comparison.otherValues, comparison.otherLocation, cell, corners);
            return holds(comparison.relation, at(*comparison.values, comparison.location, cell, corners), other);
        });
    }

    void blankCells(const std::vector<unsigned char>& met, ValueBlankCellMode_e mode)
    {
        forEachCell([&](long /*cell*/, vtkIdList& corners) {
            const vtkIdType count = corners.GetNumberOfIds();
            const auto isMet = [&](vtkIdType i) { return met[static_cast<std::size_t>(corners.GetId(i))] != 0; };
            vtkIdType blanked = 0;
            for (vtkIdType i = 0; i < count; ++i) {
                blanked += isMet(i) ? 1 : 0;
            }
            switch (mode) {
            case ValueBlankCellMode_AllCorners:
                return blanked == count;
            case ValueBlankCellMode_AnyCorner:
                return blanked > 0;
            case ValueBlankCellMode_PrimaryValue:
                return isMet(0);
            }
            return false;
        });
    }

    void addTrimming(const Comparison& comparison)
    {
        const bool isBelow = comparison.relation == RelOp_LessThan || comparison.relation == RelOp_LessThanOrEqual;
        std::vector<double> kept(m_result->points.size());
        for (std::size_t i = 0; i < kept.size(); ++i) {
            const auto point = static_cast<long>(i);
            const double above = comparison.values->GetComponent(point, 0) - otherAt(comparison, point);
            kept[i] = std::isnan(above) ? 1.0 : isBelow ? above : -above;
        }
        m_result->trimming.push_back(std::move(kept));
    }

    const KeptResult& m_rules;
    CellCorners m_corners;
    std::shared_ptr<BlankedZone> m_result;
};

} // namespace

BlankingConstraint BlankingConstraint::read(const StyleStore& style, long frame, long number)
{
    const auto entry = [&](const char* path) { return style.entry(path); };
    BlankingConstraint constraint;
    constraint.variable = style.integer(frame, entry("Blanking/Value/Constraint/VarA"), number);
    constraint.relation = static_cast<RelOp_e>(style.integer(frame, entry("Blanking/Value/Constraint/RelOp"), number));
    if (style.integer(frame, entry("Blanking/Value/Constraint/ConstraintOp2Mode"), number) ==
        ConstraintOp2Mode_UseVar) {
        constraint.otherVariable = style.integer(frame, entry("Blanking/Value/Constraint/VarB"), number);
    }
    constraint.number = style.real(frame, entry("Blanking/Value/Constraint/ValueCutoff"), number);
    return constraint;
}

ValueBlanking ValueBlanking::read(const StyleStore& style, const Frame& frame)
{
    const auto entry = [&](const char* path) { return style.entry(path); };
    const auto integer = [&](const char* path) { return style.integer(frame.id(), entry(path)); };
    ValueBlanking blanking;
    if (!frame.dataSet() || !style.flag(frame.id(), entry("Blanking/Value/Include"))) {
        return blanking;
    }
    blanking.cellMode = static_cast<ValueBlankCellMode_e>(integer("Blanking/Value/ValueBlankCellMode"));
    blanking.isFlat = integer("PlotType") == PlotType_Cartesian2D;
    blanking.trimsCells = blanking.isFlat && !style.flag(frame.id(), entry("Blanking/Value/BlankEntireCell"));
    for (long number = 1; number <= BlankingConstraint::count; ++number) {
        if (!style.flag(frame.id(), entry("Blanking/Value/Constraint/Include"), number)) {
            continue;
        }
        blanking.constraints.push_back(BlankingConstraint::read(style, frame.id(), number));
    }
    return blanking;
}

std::shared_ptr<const BlankedZone> ValueBlanking::of(const DataSet& dataSet, long zoneNumber) const
{
    const Zone* zone = dataSet.zone(zoneNumber);
    KeptResult wanted{{}, cellMode, trimsCells, isFlat, nullptr};
    for (const BlankingConstraint& constraint : constraints) {
        const bool isWithNumber = constraint.otherVariable == 0;
        const FieldArray* field = dataSet.field(zoneNumber, constraint.variable);
        const FieldArray* other = isWithNumber ? field : dataSet.field(zoneNumber, constraint.otherVariable);
        const auto values = field ? field->load() : nullptr;
        const auto otherValues = other ? other->load() : nullptr;
        if (values && otherValues) { /* a zone without the variable has nothing to compare */
            wanted.comparisons.push_back({constraint.relation, constraint.number, values.Get(), field->location,
                                          isWithNumber ? nullptr : otherValues.Get(), other->location, isWithNumber});
        }
    }
    if (!zone || wanted.comparisons.empty()) {
        return nullptr;
    }
    std::vector<KeptResult>& entries = zone->blankings().entries;
    const auto known = std::ranges::find_if(entries, [&](const KeptResult& entry) { return areEqual(entry, wanted); });
    if (known != entries.end()) {
        std::rotate(entries.begin(), known, known + 1);
    } else {
        wanted.blanked = Finder(*zone, wanted).found();
        entries.insert(entries.begin(), std::move(wanted));
        entries.resize(std::min(entries.size(), keptResults));
    }
    return entries.front().blanked;
}

} // namespace vantrix::kernel
