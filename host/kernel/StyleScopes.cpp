#include "kernel/StyleScopes.h"

#include "kernel/StateChanges.h"

#include <set>

namespace vantrix::kernel {

namespace {

bool hasOffset(const StyleEntry& about, std::string_view offset)
{
    const StyleOffset& first = styleOffset(about.offsets[0]);
    return first.kind != StyleOffset::Kind::None && first.name == offset;
}

} // namespace

StyleScopes::StyleScopes(StateChanges& changes)
    : m_changes(changes)
    , m_defaults{StyleValues(StyleScope::Process), StyleValues(StyleScope::Page), StyleValues(StyleScope::Frame)}
    , m_stamps(styleVocabulary().size(), 1)
{}

void StyleScopes::read(long scopeId, long entry, std::size_t index, StyleData& value) const
{
    if (const StyleValues* own = find(scopeId)) {
        own->read(entry, index, value);
    } else {
        readDefault(entry, index, value);
    }
}

void StyleScopes::readDefault(long entry, std::size_t index, StyleData& value) const
{
    m_defaults[static_cast<std::size_t>(styleDescription(entry).scope)].read(entry, index, value);
}

void StyleScopes::write(long scopeId, long entry, std::size_t index, const StyleData& value)
{
    StyleValues& scope = values(scopeId, styleDescription(entry).scope);
    scope.write(entry, index, value);
    ++scope.stamp;
    ++m_stamps[static_cast<std::size_t>(entry)];
}

const StyleValues* StyleScopes::find(long scopeId) const
{
    const auto found = m_scopes.find(scopeId);
    return found != m_scopes.end() ? found->second.get() : nullptr;
}

void StyleScopes::replace(long scopeId, const StyleValues& values)
{
    StyleValues& scope = this->values(scopeId, values.scope());
    const unsigned long stamp = scope.stamp;
    scope = values;
    scope.stamp = stamp + 1;
    ++m_commonStamp;
}

void StyleScopes::removeObjects(long frameId, std::string_view offset, const std::vector<long>& numbers)
{
    StyleValues& frame = values(frameId, StyleScope::Frame);
    const auto entries = styleVocabulary();
    for (long entry = 0; entry < static_cast<long>(entries.size()); ++entry) {
        const StyleEntry& about = styleDescription(entry);
        if (!hasOffset(about, offset)) {
            continue;
        }
        const StyleOffset& second = styleOffset(about.offsets[1]);
        const auto stride = static_cast<std::size_t>(second.kind == StyleOffset::Kind::None ? 1 : second.limit);
        for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
            frame.erase(entry, static_cast<std::size_t>(*number - 1) * stride, stride);
        }
    }
    ++frame.stamp;
    ++m_commonStamp;
}

void StyleScopes::remove(long scopeId)
{
    m_scopes.erase(scopeId);
    ++m_commonStamp;
}

void StyleScopes::copy(long from, long to)
{
    if (const StyleValues* values = find(from)) {
        m_scopes[to] = std::make_unique<StyleValues>(*values);
    } else {
        m_scopes.erase(to);
    }
    ++m_commonStamp;
}

void StyleScopes::clear()
{
    m_scopes.clear();
    ++m_commonStamp;
}

unsigned long StyleScopes::stampOfEntry(long entry) const
{
    return m_stamps[static_cast<std::size_t>(entry)] + m_commonStamp;
}

unsigned long StyleScopes::stampOfScope(long scopeId) const
{
    const StyleValues* values = find(scopeId);
    return values ? values->stamp : 0;
}

void StyleScopes::announce(long entry, long object)
{
    m_changes.send(VtxStateChange{StateChange_Style, entry, object});
    if (const int kind = styleDescription(entry).announces; kind >= 0) {
        m_changes.send(VtxStateChange{static_cast<StateChange_e>(kind), -1, object});
    }
}

void StyleScopes::announceObjects(std::string_view offset)
{
    std::set<int> kinds;
    for (const StyleEntry& about : styleVocabulary()) {
        if (about.announces >= 0 && hasOffset(about, offset)) {
            kinds.insert(about.announces);
        }
    }
    for (const int kind : kinds) {
        m_changes.send(VtxStateChange{static_cast<StateChange_e>(kind), -1, 0});
    }
}

StyleValues& StyleScopes::values(long scopeId, StyleScope scope)
{
    std::unique_ptr<StyleValues>& values = m_scopes[scopeId];
    if (!values) {
        values = std::make_unique<StyleValues>(scope);
    }
    return *values;
}

} // namespace vantrix::kernel
