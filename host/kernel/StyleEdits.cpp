#include "kernel/StyleEdits.h"

#include "kernel/StyleStore.h"

#include <algorithm>

namespace vantrix::kernel {

StyleEdits::StyleEdits(StyleScopes& scopes)
    : m_scopes(scopes)
{}

void StyleEdits::add(long scopeId, long entry, std::size_t index, const StyleData& before, const StyleData& after)
{
    const auto [found, isNew] = m_places.try_emplace({scopeId, entry, index}, m_edits.size());
    if (isNew) {
        m_edits.push_back({scopeId, entry, index, before, after});
    } else {
        m_edits[found->second].after = after;
    }
}

void StyleEdits::undo()
{
    for (auto edit = m_edits.rbegin(); edit != m_edits.rend(); ++edit) {
        m_scopes.write(edit->scopeId, edit->entry, edit->index, edit->before);
    }
    announce();
}

void StyleEdits::redo()
{
    for (const Edit& edit : m_edits) {
        m_scopes.write(edit.scopeId, edit.entry, edit.index, edit.after);
    }
    announce();
}

std::size_t StyleEdits::memory(bool /*isDone*/) const
{
    constexpr std::size_t mapNode = 48;
    return m_edits.size() * (sizeof(Edit) + sizeof(Place) + mapNode);
}

bool StyleEdits::isOfDocument() const
{
    return std::ranges::any_of(m_edits, [](const Edit& edit) { return edit.scopeId != StyleStore::processScope; });
}

/* Once for each entry of a scope, however many objects it was set for. */
void StyleEdits::announce()
{
    std::map<std::pair<long, long>, long> objects;
    for (const Edit& edit : m_edits) {
        const bool isIndexed = styleDescription(edit.entry).offsets[0] != 0;
        const long object = isIndexed ? static_cast<long>(edit.index) + 1 : 0;
        const auto [found, isNew] = objects.try_emplace({edit.scopeId, edit.entry}, object);
        if (!isNew) {
            found->second = 0;
        }
    }
    for (const auto& [key, object] : objects) {
        m_scopes.announce(key.second, object);
    }
}

} // namespace vantrix::kernel
