#include "kernel/streamtrace/PathValues.h"

#include <limits>

namespace vantrix::kernel {

std::vector<double> PathValues::along(const StreamtracePath& path, const VelocityField& field)
{
    std::vector<double> values;
    values.reserve(path.points.size());
    VelocityField::CellSearch search(field);
    for (const Position& point : path.points) {
        double sum = std::numeric_limits<double>::quiet_NaN();
        if (const VelocityField::Block* block = search.find(point)) {
            auto [entry, isNew] = m_values.try_emplace(block);
            if (isNew) {
                entry->second = field.valuesAtPoints(*block, m_dataSet, m_variable);
            }
            if (entry->second) {
                sum = 0.0;
                for (std::size_t i = 0; i < search.points().size(); ++i) {
                    sum += search.weights()[i] * entry->second->GetComponent(search.points()[i], 0);
                }
            }
        }
        values.push_back(sum);
    }
    return values;
}

} // namespace vantrix::kernel
