#include "kernel/StyleStore.h"

#include "kernel/Document.h"
#include "kernel/StyleCheck.h"
#include "kernel/StyleEdits.h"
#include "kernel/StyleObjectsRemoved.h"
#include "kernel/StylePath.h"
#include "kernel/StyleScopes.h"
#include "kernel/UndoStack.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>
#include <stdexcept>
#include <string_view>

namespace vantrix::kernel {

namespace {

/* The highest zone number that style is kept for in a frame that has no data set yet. */
constexpr long zoneLimitWithoutData = 100000;

bool isKnown(long entry)
{
    return entry >= 0 && entry < static_cast<long>(styleVocabulary().size());
}

std::string noContextText(long entry)
{
    const bool isOfPage = styleDescription(entry).scope == StyleScope::Page;
    return stylePathText(entry) + " belongs to a " + (isOfPage ? "page" : "frame") + ", and there is none.";
}

} // namespace

class StyleStore::Impl
{
public:
    Impl(UndoStack& undo, StateChanges& changes)
        : m_undo(undo)
        , m_scopes(changes)
    {}

    long activeScope(StyleScope scope) const;
    const DataSet* dataSet(long scopeId) const;
    long zoneLimit(long scopeId) const;
    GetValueReturnCode_e get(long scopeId, long entry, long offset1, long offset2, StyleData& value) const;
    SetValueReturnCode_e set(long scopeId, long entry, const std::vector<long>& offsets1, long offset2,
                             const StyleData& value);
    void readOrDefault(long scopeId, long entry, long offset1, long offset2, StyleData& value) const;
    std::vector<long> objectsOf(long scopeId, const StyleEntry& about) const;
    void record(long scopeId, long entry, std::size_t index, const StyleData& before, const StyleData& after);

    UndoStack& m_undo;
    StyleScopes m_scopes;
    const Document* m_document = nullptr;
    std::map<long, Rule> m_rules;
    std::map<long, Effect> m_effects;
    mutable std::string m_lastError;
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

GetValueReturnCode_e StyleStore::Impl::get(long scopeId, long entry, long offset1, long offset2, StyleData& value) const
{
    if (!isKnown(entry)) {
        m_lastError = "There is no style value number " + std::to_string(entry) + '.';
        return GetValueReturnCode_UnknownPath;
    }
    const StyleEntry& about = styleDescription(entry);
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
    m_scopes.read(scopeId, entry, static_cast<std::size_t>(index), value);
    return GetValueReturnCode_Ok;
}

void StyleStore::Impl::readOrDefault(long scopeId, long entry, long offset1, long offset2, StyleData& value) const
{
    if (isKnown(entry) && get(scopeId, entry, offset1, offset2, value) != GetValueReturnCode_Ok) {
        m_scopes.readDefault(entry, 0, value);
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
    const StyleEntry& about = styleDescription(entry);
    if (scopeId < 0) {
        m_lastError = noContextText(entry);
        return SetValueReturnCode_NoContext;
    }
    if (StyleRefusal refusal = checkStyleValue(entry, value); refusal.code != SetValueReturnCode_Ok) {
        m_lastError = std::move(refusal.text);
        return refusal.code;
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
    if (const auto rule = m_rules.find(entry); rule != m_rules.end()) {
        for (const long offset1 : offsets1) {
            if (std::string refused = rule->second(scopeId, offset1, value); !refused.empty()) {
                m_lastError = std::move(refused);
                return SetValueReturnCode_Refused;
            }
        }
    }
    std::vector<long> changed;
    StyleData before;
    for (std::size_t i = 0; i < indices.size(); ++i) {
        m_scopes.read(scopeId, entry, indices[i], before);
        if (before != value) {
            m_scopes.write(scopeId, entry, indices[i], value);
            record(scopeId, entry, indices[i], before, value);
            changed.push_back(offsets1[i]);
        }
    }
    if (const auto effect = m_effects.find(entry); effect != m_effects.end()) {
        for (const long offset1 : changed) {
            effect->second(scopeId, offset1);
        }
    }
    if (!changed.empty()) {
        m_scopes.announce(entry, offsets1.size() == 1 && offsets1[0] > 0 ? offsets1[0] : 0);
    }
    return SetValueReturnCode_Ok;
}

void StyleStore::Impl::record(long scopeId, long entry, std::size_t index, const StyleData& before,
                              const StyleData& after)
{
    if (auto* edits = dynamic_cast<StyleEdits*>(m_undo.lastOfStep())) {
        edits->add(scopeId, entry, index, before, after);
        return;
    }
    auto edits = std::make_unique<StyleEdits>(m_scopes);
    edits->add(scopeId, entry, index, before, after);
    m_undo.record(std::move(edits));
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
    ids.reserve(path.size());
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
    const long scopeId = isKnown(entry) ? m_impl->activeScope(styleDescription(entry).scope) : -1;
    return m_impl->get(scopeId, entry, offset1, offset2, value);
}

SetValueReturnCode_e StyleStore::set(long entry, long offset1, long offset2, const StyleData& value)
{
    return setMany(entry, {offset1}, offset2, value);
}

SetValueReturnCode_e StyleStore::setMany(long entry, const std::vector<long>& offsets1, long offset2,
                                         const StyleData& value)
{
    const long scopeId = isKnown(entry) ? m_impl->activeScope(styleDescription(entry).scope) : -1;
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
    const unsigned long own = m_impl->m_scopes.stampOfEntry(entry);
    const bool hasContext = styleDescription(entry).scope != StyleScope::Process && m_impl->m_document;
    return hasContext ? own + m_impl->m_document->contextStamp() : own;
}

unsigned long StyleStore::scopeStamp(long scopeId) const
{
    return m_impl->m_scopes.stampOfScope(scopeId);
}

void StyleStore::setRule(long entry, Rule rule)
{
    m_impl->m_rules[entry] = std::move(rule);
}

void StyleStore::setEffect(long entry, Effect effect)
{
    m_impl->m_effects[entry] = std::move(effect);
}

void StyleStore::replaceForegroundColors(long scopeId, long from, long to)
{
    const auto entries = styleVocabulary();
    for (long entry = 0; entry < static_cast<long>(entries.size()); ++entry) {
        const StyleEntry& about = styleDescription(entry);
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
    const StyleValues* values = m_impl->m_scopes.find(scopeId);
    if (!values || numbers.empty()) {
        return;
    }
    std::vector<long> sorted = numbers;
    std::sort(sorted.begin(), sorted.end());
    auto change = std::make_unique<StyleObjectsRemoved>(m_impl->m_scopes, scopeId, offset, sorted, *values);
    m_impl->m_scopes.removeObjects(scopeId, offset, sorted);
    m_impl->m_undo.record(std::move(change));
}

void StyleStore::removeScope(long scopeId)
{
    m_impl->m_scopes.remove(scopeId);
}

void StyleStore::copyScope(long from, long to)
{
    m_impl->m_scopes.copy(from, to);
}

std::vector<StyleStore::Stored> StyleStore::storedValues(long scopeId) const
{
    std::vector<Stored> stored;
    const StyleValues* values = m_impl->m_scopes.find(scopeId);
    if (!values) {
        return stored;
    }
    const auto entries = styleVocabulary();
    StyleData value;
    StyleData missing;
    for (long entry = 0; entry < static_cast<long>(entries.size()); ++entry) {
        const StyleEntry& about = styleDescription(entry);
        for (std::size_t i = 0; about.scope == values->scope() && i < values->count(entry); ++i) {
            values->read(entry, i, value);
            m_impl->m_scopes.readDefault(entry, i, missing);
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
        const StyleEntry& about = styleDescription(stored.entry);
        constexpr long anyZone = std::numeric_limits<int>::max();
        const long index = styleIndex(about, stored.offset1, stored.offset2, anyZone);
        m_impl->m_scopes.write(scopeId, stored.entry, static_cast<std::size_t>(index), stored.value);
    }
}

void StyleStore::clear()
{
    m_impl->m_scopes.clear();
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
