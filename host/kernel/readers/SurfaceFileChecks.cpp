#include "kernel/readers/SurfaceFileChecks.h"

#include "kernel/DataError.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

namespace vantrix::kernel::readers {

namespace {

struct Property
{
    std::size_t countSize = 0; /* bytes of the count of a list; 0 for a single value */
    std::size_t size = 0;
};

struct Element
{
    std::string name;
    long count = 0;
    std::vector<Property> properties;
};

struct PlyHeader
{
    std::string format;
    std::vector<Element> elements;
};

std::size_t plySize(const std::string& type)
{
    static const std::map<std::string, std::size_t> sizes{{"char", 1},  {"uchar", 1},   {"int8", 1},   {"uint8", 1},
                                                          {"short", 2}, {"ushort", 2},  {"int16", 2},  {"uint16", 2},
                                                          {"int", 4},   {"uint", 4},    {"int32", 4},  {"uint32", 4},
                                                          {"float", 4}, {"float32", 4}, {"double", 8}, {"float64", 8}};
    const auto found = sizes.find(type);
    if (found == sizes.end()) {
        throw DataError("its header names the unknown type \"" + type + "\"");
    }
    return found->second;
}

PlyHeader readHeader(std::istream& stream)
{
    PlyHeader header;
    std::string line;
    if (!std::getline(stream, line) || line.substr(0, 3) != "ply") {
        throw DataError("it does not begin with \"ply\"");
    }
    while (std::getline(stream, line)) {
        std::istringstream words(line);
        std::string word;
        words >> word;
        if (word == "format") {
            words >> header.format;
        } else if (word == "element") {
            Element& element = header.elements.emplace_back();
            words >> element.name >> element.count;
        } else if (word == "property" && !header.elements.empty()) {
            Property& property = header.elements.back().properties.emplace_back();
            std::string type;
            words >> type;
            if (type == "list") {
                words >> type;
                property.countSize = plySize(type);
                words >> type;
            }
            property.size = plySize(type);
        } else if (word == "end_header") {
            return header;
        }
    }
    throw DataError("its header does not end");
}

[[noreturn]] void missing(const Element& element, long index)
{
    throw DataError("it ends after " + std::to_string(index) + " of " + std::to_string(element.count) +
                    " of its element \"" + element.name + "\"");
}

/* Passes over values; of a whole number it tells which it is. */
class PlyBody
{
public:
    PlyBody(const char* begin, const char* end, const std::string& format)
        : m_position(begin)
        , m_end(end)
        , m_isText(format == "ascii")
        , m_isSwapped((format == "binary_big_endian") != (std::endian::native == std::endian::big))
    {}

    long take(std::size_t size) { return m_isText ? takeWord() : takeBytes(size); }

    void skip(std::size_t size, long count)
    {
        if (!m_isText) {
            m_isGood = m_isGood && count <= (m_end - m_position) / static_cast<long>(size);
            m_position += m_isGood ? count * static_cast<long>(size) : 0;
            return;
        }
        for (long i = 0; i < count && m_isGood; ++i) {
            takeWord();
        }
    }

    bool isGood() const { return m_isGood; }

private:
    static bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

    long takeWord()
    {
        while (m_position != m_end && isBlank(*m_position)) {
            ++m_position;
        }
        m_isGood = m_isGood && m_position != m_end;
        long value = 0;
        std::from_chars(m_position, m_end, value);
        while (m_position != m_end && !isBlank(*m_position)) {
            ++m_position;
        }
        return value;
    }

    long takeBytes(std::size_t size)
    {
        std::array<char, 8> bytes{};
        m_isGood = m_isGood && m_end - m_position >= static_cast<std::ptrdiff_t>(size);
        if (!m_isGood) {
            return 0;
        }
        std::copy(m_position, m_position + size, bytes.begin());
        m_position += size;
        if (m_isSwapped) {
            std::reverse(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
        }
        std::uint32_t value = 0; /* counts are not above that, and the low bytes come first */
        std::memcpy(&value, bytes.data(), std::min(size, sizeof value));
        return static_cast<long>(value);
    }

    const char* m_position;
    const char* m_end;
    bool m_isText;
    bool m_isSwapped;
    bool m_isGood = true;
};

} // namespace

void expectWholeStl(const std::string& file)
{
    constexpr std::uintmax_t headerSize = 84, triangleSize = 50;
    std::array<char, headerSize> header{};
    std::ifstream stream(file, std::ios::binary);
    stream.read(header.data(), headerSize);
    const bool isText =
        std::any_of(header.begin(), header.begin() + stream.gcount(), [](char c) { return c == '\n'; }) &&
        std::string(header.data(), 5) == "solid";
    if (isText || static_cast<std::uintmax_t>(stream.gcount()) < headerSize) {
        return; /* VTK tells about those */
    }
    std::uint32_t count = 0;
    std::memcpy(&count, header.data() + headerSize - sizeof count, sizeof count);
    if (count == 0) {
        throw DataError("it is neither STL text nor binary STL with triangles");
    }
    const std::uintmax_t there = (std::filesystem::file_size(file) - headerSize) / triangleSize;
    if (there < count) {
        throw DataError("it ends after " + std::to_string(there) + " of " + std::to_string(count) + " triangles");
    }
}

std::string expectWholePly(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::string content(std::filesystem::file_size(file), '\0');
    stream.read(content.data(), static_cast<std::streamsize>(content.size()));
    stream.seekg(0);
    const PlyHeader header = readHeader(stream);
    PlyBody body(content.data() + stream.tellg(), content.data() + content.size(), header.format);
    for (const Element& element : header.elements) {
        for (long index = 0; index < element.count; ++index) {
            for (const Property& property : element.properties) {
                const long count = property.countSize == 0 ? 1 : body.take(property.countSize);
                body.skip(property.size, count);
            }
            if (!body.isGood()) {
                missing(element, index);
            }
        }
    }
    return content;
}

} // namespace vantrix::kernel::readers
