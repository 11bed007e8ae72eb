#include "kernel/StyleObjectsRemoved.h"

#include <utility>

namespace vantrix::kernel {

StyleObjectsRemoved::StyleObjectsRemoved(StyleScopes& scopes, long frameId, std::string_view offset,
                                         std::vector<long> numbers, const StyleValues& before)
    : m_scopes(scopes)
    , m_frameId(frameId)
    , m_offset(offset)
    , m_numbers(std::move(numbers))
    , m_before(before)
{}

void StyleObjectsRemoved::undo()
{
    m_scopes.replace(m_frameId, m_before);
    m_scopes.announceObjects(m_offset);
}

void StyleObjectsRemoved::redo()
{
    m_scopes.removeObjects(m_frameId, m_offset, m_numbers);
    m_scopes.announceObjects(m_offset);
}

std::size_t StyleObjectsRemoved::memory(bool /*isDone*/) const
{
    return sizeof(StyleValues) + m_before.memory();
}

} // namespace vantrix::kernel
