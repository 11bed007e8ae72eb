#pragma once

#include "kernel/StyleScopes.h"
#include "kernel/UndoStack.h"

#include <string_view>
#include <vector>

namespace vantrix::kernel {

/* The values of a frame as they were before objects went away. `offset` must outlive it. */
class StyleObjectsRemoved : public UndoableChange
{
public:
    StyleObjectsRemoved(StyleScopes& scopes, long frameId, std::string_view offset, std::vector<long> numbers,
                        const StyleValues& before);

    void undo() override;
    void redo() override;
    std::size_t memory(bool isDone) const override;

private:
    StyleScopes& m_scopes;
    long m_frameId;
    std::string_view m_offset;
    std::vector<long> m_numbers;
    StyleValues m_before;
};

} // namespace vantrix::kernel
