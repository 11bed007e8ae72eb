#pragma once

#include "kernel/StyleStore.h"
#include "view/ColorMap.h"

#include <string>
#include <string_view>

namespace vantrix::view {

/* Reads the style values below one path, of one frame and up to two offsets. */
class StyleReader
{
public:
    StyleReader(const kernel::StyleStore& store, long scope, std::string path = {}, long offset1 = -1,
                long offset2 = -1)
        : m_store(store)
        , m_scope(scope)
        , m_path(std::move(path))
        , m_offset1(offset1)
        , m_offset2(offset2)
    {}

    StyleReader below(std::string_view path, long offset1 = -1, long offset2 = -1) const
    {
        return {m_store, m_scope, full(path), m_offset1 >= 0 ? m_offset1 : offset1, m_offset1 >= 0 ? offset1 : offset2};
    }

    bool flag(std::string_view path) const { return m_store.flag(m_scope, entry(path), m_offset1, m_offset2); }
    long integer(std::string_view path) const { return m_store.integer(m_scope, entry(path), m_offset1, m_offset2); }
    double real(std::string_view path) const { return m_store.real(m_scope, entry(path), m_offset1, m_offset2); }
    std::string text(std::string_view path) const { return m_store.text(m_scope, entry(path), m_offset1, m_offset2); }
    QColor color(std::string_view path) const { return indexedColor(integer(path)); }

    template<typename Enumeration>
    Enumeration enumerator(std::string_view path) const
    {
        return static_cast<Enumeration>(integer(path));
    }

    /* Whether the vocabulary has the value. */
    bool has(std::string_view path) const { return entry(path) >= 0; }

private:
    std::string full(std::string_view path) const
    {
        return m_path.empty() ? std::string(path) : m_path + "/" + std::string(path);
    }
    long entry(std::string_view path) const { return m_store.entry(full(path).c_str()); }

    const kernel::StyleStore& m_store;
    long m_scope;
    std::string m_path;
    long m_offset1;
    long m_offset2;
};

} // namespace vantrix::view
