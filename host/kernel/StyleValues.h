#pragma once

#include "kernel/StyleStore.h"
#include "kernel/StyleVocabulary.h"

#include <cstddef>
#include <vector>

namespace vantrix::kernel {

/*
 * The values of one frame or page, or of the process, unchecked. A value without offsets is one element of a vector;
 * one with offsets is a vector of its own, as long as its highest object that was set. What is not there has the
 * default.
 */
class StyleValues
{
public:
    explicit StyleValues(StyleScope scope);

    StyleScope scope() const { return m_scope; }

    /* `index` is the object's place from 0; see styleIndex(). 0 for a value without offsets. */
    void read(long entry, std::size_t index, StyleData& value) const;
    void write(long entry, std::size_t index, const StyleData& value);

    /* How many objects have a value of their own; 1 for a value without offsets. */
    std::size_t count(long entry) const;

    /* Drops the values of objects `first` to `first + count`; those behind move down. */
    void erase(long entry, std::size_t first, std::size_t count);

    /* Bytes kept. */
    std::size_t memory() const;

    unsigned long stamp = 0;

private:
    union Number {
        long integer;
        double real;
    };
    template<class Value>
    struct Vectors
    {
        std::vector<Value> single;
        std::vector<std::vector<Value>> indexed;
    };
    static Number defaultNumber(const StyleEntry& entry);

    StyleScope m_scope;
    Vectors<Number> m_numbers;
    Vectors<std::string> m_texts;
};

} // namespace vantrix::kernel
