#pragma once

#include "kernel/StyleScopes.h"
#include "kernel/UndoStack.h"

#include <map>
#include <tuple>
#include <vector>

namespace vantrix::kernel {

/* All style values set in a row within one step: each with what it was before the first set and after the last. */
class StyleEdits : public UndoableChange
{
public:
    explicit StyleEdits(StyleScopes& scopes);

    void add(long scopeId, long entry, std::size_t index, const StyleData& before, const StyleData& after);

    void undo() override;
    void redo() override;
    std::size_t memory(bool isDone) const override;
    bool isOfDocument() const override;

private:
    using Place = std::tuple<long, long, std::size_t>;
    struct Edit
    {
        long scopeId;
        long entry;
        std::size_t index;
        StyleData before;
        StyleData after;
    };
    void announce();

    StyleScopes& m_scopes;
    std::vector<Edit> m_edits;
    std::map<Place, std::size_t> m_places;
};

} // namespace vantrix::kernel
