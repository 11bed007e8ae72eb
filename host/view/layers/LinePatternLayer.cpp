#include "view/layers/LinePatternLayer.h"

#include "view/DashedLines.h"

#include <vtkPolyData.h>

#include <utility>

namespace vantrix::view {
namespace {

/* Whether lines have the same length, and in a flat plot the same place, in two pictures. */
bool looksAlike(const Placement& one, const Placement& other)
{
    return one.scale == other.scale && one.pixelSize == other.pixelSize &&
           (!one.isFlat() || (one.shift == other.shift && one.size == other.size));
}

} // namespace

void LinePatternLayer::setLineGeometry(const vtkSmartPointer<vtkPolyData>& lines)
{
    m_lines = lines;
    m_hasChains = false;
    m_isMade = false;
}

void LinePatternLayer::setPattern(LinePattern_e pattern, double length)
{
    m_isMade = m_isMade && pattern == m_pattern && length == m_length;
    m_pattern = pattern;
    m_length = length;
}

const std::vector<LineChain>& LinePatternLayer::chains()
{
    if (!m_hasChains) {
        m_chains = m_lines ? lineChains(*m_lines) : std::vector<LineChain>();
        m_hasChains = true;
    }
    return m_chains;
}

void LinePatternLayer::place(const Placement& placement)
{
    PolyDataLayer::place(placement);
    if (!isShown() || !m_lines ||
        (m_isMade && (m_pattern == LinePattern_Solid || looksAlike(placement, m_placement)))) {
        return;
    }
    if (m_pattern == LinePattern_Solid) {
        setGeometry(m_lines);
    } else {
        setGeometry(dashedLines(*m_lines, chains(), m_pattern, m_length * placement.pixelSize, placement));
    }
    m_placement = placement;
    m_isMade = true;
}

} // namespace vantrix::view
