#include "kernel/StyleStore.h"

#include "kernel/Document.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleCheck.h"
#include "kernel/StylePath.h"
#include "kernel/StyleValues.h"
#include "kernel/UndoStack.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>
#include <set>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <unordered_map>

namespace vantrix::kernel {

namespace {

/* The highest zone number that style is kept for in a frame that has no data set yet. */
constexpr long zoneLimitWithoutData = 100000;

const StyleEntry& description(long entry)
{
    return styleVocabulary()[static_cast<std::size_t>(entry)];
}

bool isKnown(long entry)
{
    return entry >= 0 && entry < static_cast<long>(styleVocabulary().size());
}

bool hasOffset(const StyleEntry& about, std::string_view offset)
{
    const StyleOffset& first = styleOffset(about.offsets[0]);
    return first.kind != StyleOffset::Kind::None && first.name == offset;
}

std::string noContextText(long entry)
{
    const bool isOfPage = description(entry).scope == StyleScope::Page;
    return stylePathText(entry) + " belongs to a " + (isOfPage ? "page" : "frame") + ", and there is none.";
}

} // namespace

class StyleStore::Impl
{
public:
    Impl(UndoStack& undo, StateChanges& changes)
        : m_undo(undo)
        , m_changes(changes)
        , m_stamps(styleVocabulary().size(), 1)
    {}

    long activeScope(StyleScope scope) const;
    const DataSet* dataSet(long scopeId) const;
    long zoneLimit(long scopeId) const;
    void readUnchecked(long scopeId, long entry, std::size_t index, StyleData& value) const;
    GetValueReturnCode_e get(long scopeId, long entry, long offset1, long offset2, StyleData& value) const;
    SetValueReturnCode_e set(long scopeId, long entry, const std::vector<long>& offsets1, long offset2,
                             const StyleData& value);
    void readOrDefault(long scopeId, long entry, long offset1, long offset2, StyleData& value) const;
    std::vector<long> objectsOf(long scopeId, const StyleEntry& about) const;
    StyleValues& values(long scopeId, StyleScope scope);
    void writeUnchecked(long scopeId, long entry, std::size_t index, const StyleData& value);
    void announce(long entry, long object);
    void touch(long scopeId, long entry);
    void record(long scopeId, long entry, std::size_t index, const StyleData& before, const StyleData& after);
    void removeObjects(long scopeId, std::string_view offset, const std::vector<long>& numbers);

    class Edits;
    class ObjectsRemoved;

    UndoStack& m_undo;
    StateChanges& m_changes;
    const Document* m_document = nullptr;
    const std::array<StyleValues, 3> m_defaults{StyleValues(StyleScope::Process), StyleValues(StyleScope::Page),
                                                StyleValues(StyleScope::Frame)};
    std::unordered_map<long, std::unique_ptr<StyleValues>> m_scopes;
    std::vector<unsigned long> m_stamps; /* one an entry */
    unsigned long m_commonStamp = 0;     /* moves when any entry may have changed */
    std::map<long, Rule> m_rules;
    mutable std::string m_lastError;
};

/* All style values set in a row within one step: each with what it was before the first set and after the last. */
class StyleStore::Impl::Edits : public UndoableChange
{
public:
    explicit Edits(Impl& store)
        : m_store(store)
    {}

    void add(long scopeId, long entry, std::size_t index, const StyleData& before, const StyleData& after)
    {
        const auto [found, isNew] = m_places.try_emplace({scopeId, entry, index}, m_edits.size());
        if (isNew) {
            m_edits.push_back({scopeId, entry, index, before, after});
        } else {
            m_edits[found->second].after = after;
        }
    }

    void undo() override
    {
        for (auto edit = m_edits.rbegin(); edit != m_edits.rend(); ++edit) {
            m_store.writeUnchecked(edit->scopeId, edit->entry, edit->index, edit->before);
        }
        announce();
    }

    void redo() override
    {
        for (const Edit& edit : m_edits) {
            m_store.writeUnchecked(edit.scopeId, edit.entry, edit.index, edit.after);
        }
        announce();
    }

    std::size_t memory() const override { return m_edits.size() * (sizeof(Edit) + sizeof(Place) + 48); }

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

    /* Once for each entry of a scope, however many objects it was set for. */
    void announce()
    {
        std::map<std::pair<long, long>, long> objects;
        for (const Edit& edit : m_edits) {
            const bool isIndexed = description(edit.entry).offsets[0] != 0;
            const long object = isIndexed ? static_cast<long>(edit.index) + 1 : 0;
            const auto [found, isNew] = objects.try_emplace({edit.scopeId, edit.entry}, object);
            if (!isNew) {
                found->second = 0;
            }
        }
        for (const auto& [key, object] : objects) {
            m_store.announce(key.second, object);
        }
    }

    Impl& m_store;
    std::vector<Edit> m_edits;
    std::map<Place, std::size_t> m_places;
};

/* The values of a frame as they were before objects went away. */
class StyleStore::Impl::ObjectsRemoved : public UndoableChange
{
public:
    ObjectsRemoved(Impl& store, long scopeId, std::string_view offset, std::vector<long> numbers, StyleValues before)
        : m_store(store)
        , m_scopeId(scopeId)
        , m_offset(offset)
        , m_numbers(std::move(numbers))
        , m_before(std::move(before))
    {}

    void undo() override
    {
        StyleValues& values = m_store.values(m_scopeId, StyleScope::Frame);
        values = m_before;
        values.stamp = ++m_store.m_commonStamp;
        announce();
    }

    void redo() override
    {
        m_store.removeObjects(m_scopeId, m_offset, m_numbers);
        announce();
    }

    std::size_t memory() const override { return sizeof(StyleValues) + m_before.memory(); }

private:
    /* What the descriptions of the values announce besides `StateChange_Style`, once for each kind. */
    void announce()
    {
        std::set<int> kinds;
        for (const StyleEntry& about : styleVocabulary()) {
            if (about.announces >= 0 && hasOffset(about, m_offset)) {
                kinds.insert(about.announces);
            }
        }
        for (const int kind : kinds) {
            m_store.m_changes.send(VtxStateChange{static_cast<StateChange_e>(kind), -1, 0});
        }
    }

    Impl& m_store;
    long m_scopeId;
    std::string_view m_offset;
    std::vector<long> m_numbers;
    StyleValues m_before;
};

long StyleStore::Impl::activeScope(StyleScope scope) const
{
    if (scope == StyleScope::Process) {
        return processScope;
    }
    if (!m_document) {
        return -1;
    }
    if (scope == StyleScope::Page) {
        const Page* page = m_document->activePage();
        return page ? page->id : -1;
    }
    const Frame* frame = m_document->activeFrame();
    return frame ? frame->id() : -1;
}

const DataSet* StyleStore::Impl::dataSet(long scopeId) const
{
    const Frame* frame = m_document ? m_document->frameById(scopeId) : nullptr;
    return frame ? frame->dataSet().get() : nullptr;
}

long StyleStore::Impl::zoneLimit(long scopeId) const
{
    const DataSet* data = dataSet(scopeId);
    return data ? data->zoneCount() : zoneLimitWithoutData;
}

void StyleStore::Impl::readUnchecked(long scopeId, long entry, std::size_t index, StyleData& value) const
{
    const auto found = m_scopes.find(scopeId);
    if (found != m_scopes.end()) {
        found->second->read(entry, index, value);
    } else {
        m_defaults[static_cast<std::size_t>(description(entry).scope)].read(entry, index, value);
    }
}

GetValueReturnCode_e StyleStore::Impl::get(long scopeId, long entry, long offset1, long offset2, StyleData& value) const
{
    if (!isKnown(entry)) {
        m_lastError = "There is no style value number " + std::to_string(entry) + '.';
        return GetValueReturnCode_UnknownPath;
    }
    const StyleEntry& about = description(entry);
    if (scopeId < 0) {
        m_lastError = noContextText(entry);
        return GetValueReturnCode_NoContext;
    }
    const bool hasZones = styleOffset(about.offsets[0]).kind == StyleOffset::Kind::Zone;
    const long zones = hasZones ? zoneLimit(scopeId) : 0;
    const long index = styleIndex(about, offset1, offset2, zones);
    if (index < 0) {
        m_lastError = badOffsetText(entry, offset1, offset2, zones);
        return GetValueReturnCode_BadOffset;
    }
    readUnchecked(scopeId, entry, static_cast<std::size_t>(index), value);
    return GetValueReturnCode_Ok;
}

void StyleStore::Impl::readOrDefault(long scopeId, long entry, long offset1, long offset2, StyleData& value) const
{
    if (isKnown(entry) && get(scopeId, entry, offset1, offset2, value) != GetValueReturnCode_Ok) {
        readUnchecked(-1, entry, 0, value);
    }
}

/* The first offsets that address something; -1 alone for a value without. */
std::vector<long> StyleStore::Impl::objectsOf(long scopeId, const StyleEntry& about) const
{
    const StyleOffset& offset = styleOffset(about.offsets[0]);
    if (offset.kind == StyleOffset::Kind::None) {
        return {-1};
    }
    const DataSet* data = dataSet(scopeId);
    const long count = offset.kind != StyleOffset::Kind::Zone ? offset.limit : data ? data->zoneCount() : 0;
    std::vector<long> objects(static_cast<std::size_t>(count));
    std::iota(objects.begin(), objects.end(), 1);
    return objects;
}

SetValueReturnCode_e StyleStore::Impl::set(long scopeId, long entry, const std::vector<long>& offsets1, long offset2,
                                           const StyleData& value)
{
    if (!isKnown(entry)) {
        m_lastError = "There is no style value number " + std::to_string(entry) + '.';
        return SetValueReturnCode_UnknownPath;
    }
    const StyleEntry& about = description(entry);
    if (scopeId < 0) {
        m_lastError = noContextText(entry);
        return SetValueReturnCode_NoContext;
    }
    if (StyleRefusal refusal = checkStyleValue(entry, value); refusal.code != SetValueReturnCode_Ok) {
        m_lastError = std::move(refusal.text);
        return refusal.code;
    }
    if (const auto rule = m_rules.find(entry); rule != m_rules.end()) {
        if (std::string refused = rule->second(scopeId, value); !refused.empty()) {
            m_lastError = stylePathText(entry) + ": " + refused;
            return SetValueReturnCode_Refused;
        }
    }
    const bool hasZones = styleOffset(about.offsets[0]).kind == StyleOffset::Kind::Zone;
    const long zones = hasZones ? zoneLimit(scopeId) : 0;
    std::vector<std::size_t> indices;
    indices.reserve(offsets1.size());
    for (const long offset1 : offsets1) {
        const long index = styleIndex(about, offset1, offset2, zones);
        if (index < 0) {
            m_lastError = badOffsetText(entry, offset1, offset2, zones);
            return SetValueReturnCode_BadOffset;
        }
        indices.push_back(static_cast<std::size_t>(index));
    }
    bool changed = false;
    StyleData before;
    for (const std::size_t index : indices) {
        readUnchecked(scopeId, entry, index, before);
        if (before != value) {
            writeUnchecked(scopeId, entry, index, value);
            record(scopeId, entry, index, before, value);
            changed = true;
        }
    }
    if (changed) {
        announce(entry, offsets1.size() == 1 && offsets1[0] > 0 ? offsets1[0] : 0);
    }
    return SetValueReturnCode_Ok;
}

StyleValues& StyleStore::Impl::values(long scopeId, StyleScope scope)
{
    std::unique_ptr<StyleValues>& values = m_scopes[scopeId];
    if (!values) {
        values = std::make_unique<StyleValues>(scope);
    }
    return *values;
}

void StyleStore::Impl::writeUnchecked(long scopeId, long entry, std::size_t index, const StyleData& value)
{
    values(scopeId, description(entry).scope).write(entry, index, value);
    touch(scopeId, entry);
}

void StyleStore::Impl::touch(long scopeId, long entry)
{
    ++m_stamps[static_cast<std::size_t>(entry)];
    ++values(scopeId, description(entry).scope).stamp;
}

void StyleStore::Impl::announce(long entry, long object)
{
    m_changes.send(VtxStateChange{StateChange_Style, entry, object});
    if (const int kind = description(entry).announces; kind >= 0) {
        m_changes.send(VtxStateChange{static_cast<StateChange_e>(kind), -1, object});
    }
}

void StyleStore::Impl::record(long scopeId, long entry, std::size_t index, const StyleData& before,
                              const StyleData& after)
{
    if (auto* edits = dynamic_cast<Edits*>(m_undo.lastOfStep())) {
        edits->add(scopeId, entry, index, before, after);
        return;
    }
    auto edits = std::make_unique<Edits>(*this);
    edits->add(scopeId, entry, index, before, after);
    m_undo.record(std::move(edits));
}

void StyleStore::Impl::removeObjects(long scopeId, std::string_view offset, const std::vector<long>& numbers)
{
    StyleValues& frame = values(scopeId, StyleScope::Frame);
    const auto entries = styleVocabulary();
    for (long entry = 0; entry < static_cast<long>(entries.size()); ++entry) {
        const StyleEntry& about = description(entry);
        if (!hasOffset(about, offset)) {
            continue;
        }
        const StyleOffset& second = styleOffset(about.offsets[1]);
        const auto stride = static_cast<std::size_t>(second.kind == StyleOffset::Kind::None ? 1 : second.limit);
        for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
            frame.erase(entry, static_cast<std::size_t>(*number - 1) * stride, stride);
        }
    }
    frame.stamp = ++m_commonStamp + frame.stamp;
}

StyleStore::StyleStore(UndoStack& undo, StateChanges& changes)
    : m_impl(std::make_unique<Impl>(undo, changes))
{}

StyleStore::~StyleStore() = default;

void StyleStore::setDocument(const Document& document)
{
    m_impl->m_document = &document;
}

long StyleStore::entry(const std::vector<std::string>& path) const
{
    std::vector<long> ids;
    for (const std::string& name : path) {
        ids.push_back(styleNameId(name));
    }
    return styleEntryOf(ids.data(), ids.size());
}

long StyleStore::entry(const char* path) const
{
    const std::string_view names(path);
    std::vector<long> ids;
    for (std::size_t begin = 0; begin <= names.size();) {
        const std::size_t end = std::min(names.find('/', begin), names.size());
        ids.push_back(styleNameId(names.substr(begin, end - begin)));
        begin = end + 1;
    }
    return styleEntryOf(ids.data(), ids.size());
}

GetValueReturnCode_e StyleStore::get(long entry, long offset1, long offset2, StyleData& value) const
{
    const long scopeId = isKnown(entry) ? m_impl->activeScope(description(entry).scope) : -1;
    return m_impl->get(scopeId, entry, offset1, offset2, value);
}

SetValueReturnCode_e StyleStore::set(long entry, long offset1, long offset2, const StyleData& value)
{
    return setMany(entry, {offset1}, offset2, value);
}

SetValueReturnCode_e StyleStore::setMany(long entry, const std::vector<long>& offsets1, long offset2,
                                         const StyleData& value)
{
    const long scopeId = isKnown(entry) ? m_impl->activeScope(description(entry).scope) : -1;
    return m_impl->set(scopeId, entry, offsets1, offset2, value);
}

GetValueReturnCode_e StyleStore::getOf(long scopeId, long entry, long offset1, long offset2, StyleData& value) const
{
    return m_impl->get(scopeId, entry, offset1, offset2, value);
}

SetValueReturnCode_e StyleStore::setOf(long scopeId, long entry, long offset1, long offset2, const StyleData& value)
{
    return m_impl->set(scopeId, entry, {offset1}, offset2, value);
}

namespace {

template<class Value>
Value expect(const StyleData& value, long entry, const char* wanted)
{
    if (const Value* found = std::get_if<Value>(&value)) {
        return *found;
    }
    throw std::logic_error(stylePathText(entry) + " is not " + wanted);
}

} // namespace

bool StyleStore::flag(long scopeId, long entry, long offset1, long offset2) const
{
    return integer(scopeId, entry, offset1, offset2) != 0;
}

long StyleStore::integer(long scopeId, long entry, long offset1, long offset2) const
{
    StyleData value = std::string();
    m_impl->readOrDefault(scopeId, entry, offset1, offset2, value);
    return expect<long>(value, entry, "a flag, a whole number or an enumeration");
}

double StyleStore::real(long scopeId, long entry, long offset1, long offset2) const
{
    StyleData value = std::string();
    m_impl->readOrDefault(scopeId, entry, offset1, offset2, value);
    return expect<double>(value, entry, "a number");
}

std::string StyleStore::text(long scopeId, long entry, long offset1, long offset2) const
{
    StyleData value = 0L;
    m_impl->readOrDefault(scopeId, entry, offset1, offset2, value);
    return expect<std::string>(value, entry, "a text");
}

unsigned long StyleStore::changeStamp(long entry) const
{
    if (!isKnown(entry)) {
        return 0;
    }
    const unsigned long own = m_impl->m_stamps[static_cast<std::size_t>(entry)] + m_impl->m_commonStamp;
    const bool hasContext = description(entry).scope != StyleScope::Process && m_impl->m_document;
    return hasContext ? own + m_impl->m_document->contextStamp() : own;
}

unsigned long StyleStore::scopeStamp(long scopeId) const
{
    const auto found = m_impl->m_scopes.find(scopeId);
    return found != m_impl->m_scopes.end() ? found->second->stamp : 0;
}

void StyleStore::setRule(long entry, Rule rule)
{
    m_impl->m_rules[entry] = std::move(rule);
}

void StyleStore::replaceForegroundColors(long scopeId, long from, long to)
{
    const auto entries = styleVocabulary();
    for (long entry = 0; entry < static_cast<long>(entries.size()); ++entry) {
        const StyleEntry& about = description(entry);
        if (about.color != StyleColor::Foreground || about.scope != StyleScope::Frame || about.offsets[1] != 0) {
            continue;
        }
        std::vector<long> objects;
        StyleData value;
        for (const long object : m_impl->objectsOf(scopeId, about)) {
            m_impl->get(scopeId, entry, object, -1, value);
            if (value == StyleData(from)) {
                objects.push_back(object);
            }
        }
        if (!objects.empty()) {
            m_impl->set(scopeId, entry, objects, -1, to);
        }
    }
}

void StyleStore::removeObjects(long scopeId, std::string_view offset, const std::vector<long>& numbers)
{
    const auto found = m_impl->m_scopes.find(scopeId);
    if (found == m_impl->m_scopes.end() || numbers.empty()) {
        return;
    }
    std::vector<long> sorted = numbers;
    std::sort(sorted.begin(), sorted.end());
    auto change = std::make_unique<Impl::ObjectsRemoved>(*m_impl, scopeId, offset, sorted, *found->second);
    m_impl->removeObjects(scopeId, offset, sorted);
    m_impl->m_undo.record(std::move(change));
}

void StyleStore::removeScope(long scopeId)
{
    m_impl->m_scopes.erase(scopeId);
    ++m_impl->m_commonStamp;
}

void StyleStore::copyScope(long from, long to)
{
    const auto found = m_impl->m_scopes.find(from);
    if (found != m_impl->m_scopes.end()) {
        m_impl->m_scopes[to] = std::make_unique<StyleValues>(*found->second);
    } else {
        m_impl->m_scopes.erase(to);
    }
    ++m_impl->m_commonStamp;
}

std::vector<StyleStore::Stored> StyleStore::storedValues(long scopeId) const
{
    std::vector<Stored> stored;
    const auto scope = m_impl->m_scopes.find(scopeId);
    if (scope == m_impl->m_scopes.end()) {
        return stored;
    }
    const auto entries = styleVocabulary();
    const StyleScope kind = scope->second->scope();
    const StyleValues& defaults = m_impl->m_defaults[static_cast<std::size_t>(kind)];
    StyleData value;
    StyleData missing;
    for (long entry = 0; entry < static_cast<long>(entries.size()); ++entry) {
        const StyleEntry& about = description(entry);
        for (std::size_t i = 0; about.scope == kind && i < scope->second->count(entry); ++i) {
            scope->second->read(entry, i, value);
            defaults.read(entry, i, missing);
            const auto [offset1, offset2] = styleOffsets(about, i);
            const bool isThere =
                styleOffset(about.offsets[0]).kind != StyleOffset::Kind::Zone || offset1 <= m_impl->zoneLimit(scopeId);
            if (value != missing && isThere) {
                stored.push_back({entry, offset1, offset2, value});
            }
        }
    }
    return stored;
}

void StyleStore::fillScope(long scopeId, const std::vector<Stored>& values)
{
    for (const Stored& stored : values) {
        const StyleEntry& about = description(stored.entry);
        constexpr long anyZone = std::numeric_limits<int>::max();
        const long index = styleIndex(about, stored.offset1, stored.offset2, anyZone);
        m_impl->writeUnchecked(scopeId, stored.entry, static_cast<std::size_t>(index), stored.value);
    }
}

void StyleStore::clear()
{
    m_impl->m_scopes.clear();
    ++m_impl->m_commonStamp;
}

const std::string& StyleStore::lastError() const
{
    return m_impl->m_lastError;
}

void StyleStore::setLastError(std::string text) const
{
    m_impl->m_lastError = std::move(text);
}

} // namespace vantrix::kernel
