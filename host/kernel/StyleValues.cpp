#include "kernel/StyleValues.h"

#include <algorithm>
#include <array>

namespace vantrix::kernel {

namespace {

/* Where a value is kept: the vector follows from the entry's type and offsets. */
struct StorageLayout
{
    struct Sizes
    {
        std::size_t singleNumbers = 0;
        std::size_t singleTexts = 0;
        std::size_t indexedNumbers = 0;
        std::size_t indexedTexts = 0;
    };
    std::vector<std::size_t> slots;
    std::array<Sizes, 3> sizes;
};

bool isText(const StyleEntry& entry)
{
    return entry.type == StyleType::String;
}

bool isIndexed(const StyleEntry& entry)
{
    return entry.offsets[0] != 0;
}

const StorageLayout& layout()
{
    static const StorageLayout instance = [] {
        StorageLayout made;
        for (const StyleEntry& entry : styleVocabulary()) {
            StorageLayout::Sizes& sizes = made.sizes[static_cast<std::size_t>(entry.scope)];
            std::size_t& size = isText(entry) ? (isIndexed(entry) ? sizes.indexedTexts : sizes.singleTexts)
                                              : (isIndexed(entry) ? sizes.indexedNumbers : sizes.singleNumbers);
            made.slots.push_back(size++);
        }
        return made;
    }();
    return instance;
}

std::size_t slot(long entry)
{
    return layout().slots[static_cast<std::size_t>(entry)];
}

template<class Value>
void writeIndexed(std::vector<Value>& values, std::size_t index, const Value& value, const Value& missing)
{
    if (index >= values.size()) {
        values.resize(index + 1, missing);
    }
    values[index] = value;
}

template<class Value>
void eraseIndexed(std::vector<Value>& values, std::size_t first, std::size_t count)
{
    if (first < values.size()) {
        const auto begin = values.begin() + static_cast<std::ptrdiff_t>(first);
        values.erase(begin, begin + static_cast<std::ptrdiff_t>(std::min(count, values.size() - first)));
    }
}

} // namespace

StyleValues::StyleValues(StyleScope scope)
    : m_scope(scope)
{
    const StorageLayout::Sizes& sizes = layout().sizes[static_cast<std::size_t>(scope)];
    m_numbers.single.reserve(sizes.singleNumbers);
    m_numbers.indexed.resize(sizes.indexedNumbers);
    m_texts.single.reserve(sizes.singleTexts);
    m_texts.indexed.resize(sizes.indexedTexts);
    for (const StyleEntry& entry : styleVocabulary()) {
        if (entry.scope == scope && !isIndexed(entry)) {
            if (isText(entry)) {
                m_texts.single.emplace_back(entry.stringDefault);
            } else {
                m_numbers.single.push_back(defaultNumber(entry));
            }
        }
    }
}

StyleValues::Number StyleValues::defaultNumber(const StyleEntry& entry)
{
    Number number;
    if (entry.type == StyleType::Double) {
        number.real = entry.doubleDefault;
    } else {
        number.integer = entry.integerDefault;
    }
    return number;
}

void StyleValues::read(long entry, std::size_t index, StyleData& value) const
{
    const StyleEntry& about = styleDescription(entry);
    const std::size_t at = slot(entry);
    if (isText(about)) {
        const auto* indexed = isIndexed(about) ? &m_texts.indexed[at] : nullptr;
        value = !indexed ? m_texts.single[at] : index < indexed->size() ? (*indexed)[index] : about.stringDefault;
        return;
    }
    const auto* indexed = isIndexed(about) ? &m_numbers.indexed[at] : nullptr;
    const Number number = !indexed                  ? m_numbers.single[at]
                          : index < indexed->size() ? (*indexed)[index]
                                                    : defaultNumber(about);
    if (about.type == StyleType::Double) {
        value = number.real;
    } else {
        value = number.integer;
    }
}

void StyleValues::write(long entry, std::size_t index, const StyleData& value)
{
    const StyleEntry& about = styleDescription(entry);
    const std::size_t at = slot(entry);
    if (isText(about)) {
        const std::string& text = std::get<std::string>(value);
        if (isIndexed(about)) {
            writeIndexed(m_texts.indexed[at], index, text, std::string(about.stringDefault));
        } else {
            m_texts.single[at] = text;
        }
        return;
    }
    Number number;
    if (about.type == StyleType::Double) {
        number.real = std::get<double>(value);
    } else {
        number.integer = std::get<long>(value);
    }
    if (isIndexed(about)) {
        writeIndexed(m_numbers.indexed[at], index, number, defaultNumber(about));
    } else {
        m_numbers.single[at] = number;
    }
}

std::size_t StyleValues::count(long entry) const
{
    const StyleEntry& about = styleDescription(entry);
    if (!isIndexed(about)) {
        return 1;
    }
    return isText(about) ? m_texts.indexed[slot(entry)].size() : m_numbers.indexed[slot(entry)].size();
}

void StyleValues::erase(long entry, std::size_t first, std::size_t count)
{
    if (isText(styleDescription(entry))) {
        eraseIndexed(m_texts.indexed[slot(entry)], first, count);
    } else {
        eraseIndexed(m_numbers.indexed[slot(entry)], first, count);
    }
}

std::size_t StyleValues::memory() const
{
    std::size_t bytes = m_numbers.single.size() * sizeof(Number) + m_texts.single.size() * sizeof(std::string);
    for (const auto& values : m_numbers.indexed) {
        bytes += values.size() * sizeof(Number);
    }
    for (const auto& values : m_texts.indexed) {
        bytes += values.size() * sizeof(std::string);
    }
    return bytes;
}

} // namespace vantrix::kernel
