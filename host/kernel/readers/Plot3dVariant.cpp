#include "kernel/readers/Plot3dVariant.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

namespace vantrix::kernel::readers {

namespace {

constexpr double recordMarks = 8.0; /* a byte count before a Fortran record and one behind it */
constexpr int mostBlocks = 100000;

using Dimensions = std::array<double, 3>;

/* A file as far as the dimensions of its blocks may reach. */
struct Beginning
{
    std::vector<char> bytes;
    bool isText = false;
    std::vector<double> numbers; /* of a text */
    double size = 0.0;           /* of the whole file: bytes, or numbers of a text */
};

bool isTextCharacter(char c)
{
    return (c >= '0' && c <= '9') || (c >= '\t' && c <= '\r') ||
           std::string_view(" ,+-.eEdD").find(c) != std::string_view::npos;
}

/* All numbers of a text are counted, the first are kept. Zero for a text that holds anything else. */
void countNumbers(const std::string& file, std::size_t kept, Beginning& beginning)
{
    std::ifstream stream(file);
    for (std::string word; stream >> word;) {
        char* end = nullptr;
        const double value = std::strtod(word.c_str(), &end);
        if (end == word.c_str() || *end != '\0') {
            beginning.size = 0.0;
            return;
        }
        if (beginning.numbers.size() < kept) {
            beginning.numbers.push_back(value);
        }
        beginning.size += 1.0;
    }
}

Beginning beginningOf(const std::string& file)
{
    Beginning result;
    result.bytes.resize(static_cast<std::size_t>(mostBlocks) * 12 + 64);
    std::ifstream stream(file, std::ios::binary);
    stream.read(result.bytes.data(), static_cast<std::streamsize>(result.bytes.size()));
    result.bytes.resize(static_cast<std::size_t>(stream.gcount()));
    const auto looked =
        result.bytes.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(result.bytes.size(), 512));
    result.isText = std::all_of(result.bytes.begin(), looked, isTextCharacter);
    if (result.isText) {
        countNumbers(file, static_cast<std::size_t>(mostBlocks) * 3 + 1, result);
    } else {
        result.size = static_cast<double>(std::filesystem::file_size(file));
    }
    return result;
}

class Header
{
public:
    Header(const Beginning& beginning, const Plot3dVariant& variant)
        : m_beginning(beginning)
        , m_isSwapped(variant.isBigEndian != (std::endian::native == std::endian::big))
    {}

    void skip() { m_position += 4; }

    /* 0 behind the end and for what is no whole number, which is no valid dimension. */
    std::int32_t next() { return m_beginning.isText ? nextOfText() : nextWord(); }

private:
    std::int32_t nextOfText()
    {
        const double value = m_position < m_beginning.numbers.size() ? m_beginning.numbers[m_position++] : 0.0;
        return value == std::floor(value) && value >= 0.0 && value < 2e9 ? static_cast<std::int32_t>(value) : 0;
    }

    std::int32_t nextWord()
    {
        std::array<char, 4> word{};
        if (m_position + 4 > m_beginning.bytes.size()) {
            return 0;
        }
        for (std::size_t i = 0; i < 4; ++i) {
            word[i] = m_beginning.bytes[m_position + (m_isSwapped ? 3 - i : i)];
        }
        m_position += 4;
        return std::bit_cast<std::int32_t>(word);
    }

    const Beginning& m_beginning;
    std::size_t m_position = 0;
    bool m_isSwapped;
};

/* The dimensions of all blocks; none when the header is not of that variant. */
std::vector<Dimensions> dimensionsIn(const Beginning& beginning, const Plot3dVariant& variant)
{
    Header header(beginning, variant);
    const auto mark = [&] {
        if (variant.hasByteCounts) {
            header.skip();
        }
    };
    std::int32_t count = 1;
    if (variant.isMultiGrid) {
        mark();
        count = header.next();
        mark();
    }
    mark();
    std::vector<Dimensions> result;
    if (count < 1 || count > mostBlocks) {
        return result;
    }
    for (std::int32_t block = 0; block < count; ++block) {
        Dimensions dimensions{1.0, 1.0, 1.0};
        for (std::size_t axis = 0; axis < (variant.isTwoDimensional ? 2u : 3u); ++axis) {
            const std::int32_t points = header.next();
            if (points < 1) {
                return {};
            }
            dimensions[axis] = points;
        }
        result.push_back(dimensions);
    }
    return result;
}

/* What a number takes of the size of a file; a text is measured in numbers. */
struct Sizes
{
    explicit Sizes(const Plot3dVariant& variant)
        : integer(variant.isText ? 1.0 : 4.0)
        , real(variant.isText              ? 1.0
               : variant.isDoublePrecision ? 8.0
                                           : 4.0)
        , marks(variant.hasByteCounts ? recordMarks : 0.0)
    {}

    double integer;
    double real;
    double marks;
};

double headerSize(const Plot3dVariant& variant, std::size_t blocks)
{
    const Sizes sizes(variant);
    const double dimensions = variant.isTwoDimensional ? 2.0 : 3.0;
    return (variant.isMultiGrid ? sizes.integer + sizes.marks : 0.0) + sizes.marks +
           sizes.integer * dimensions * static_cast<double>(blocks);
}

double gridSize(const Plot3dVariant& variant, const std::vector<Dimensions>& blocks)
{
    const Sizes sizes(variant);
    double size = headerSize(variant, blocks.size());
    for (const auto& [i, j, k] : blocks) {
        size += i * j * k *
                ((variant.isTwoDimensional ? 2.0 : 3.0) * sizes.real + (variant.hasBlanking ? sizes.integer : 0.0));
        size += sizes.marks;
    }
    return size;
}

double solutionSize(const Plot3dVariant& variant, const std::vector<Dimensions>& blocks)
{
    const Sizes sizes(variant);
    double size = headerSize(variant, blocks.size());
    for (const auto& [i, j, k] : blocks) {
        size += sizes.real * (4.0 + i * j * k * (variant.isTwoDimensional ? 4.0 : 5.0)) + 2.0 * sizes.marks;
    }
    return size;
}

} // namespace

std::optional<Plot3dVariant> Plot3dVariant::ofGrid(const std::string& file)
{
    const Beginning beginning = beginningOf(file);
    for (unsigned choice = 0; choice < 64; ++choice) {
        const auto bit = [&](unsigned number) { return (choice >> number & 1u) != 0; };
        const Plot3dVariant variant{beginning.isText, bit(0), bit(1), bit(2), bit(5), bit(4), bit(3)};
        if (variant.isText && (variant.isBigEndian || variant.hasByteCounts || variant.isDoublePrecision)) {
            continue;
        }
        const std::vector<Dimensions> blocks = dimensionsIn(beginning, variant);
        if (!blocks.empty() && gridSize(variant, blocks) == beginning.size) {
            return variant;
        }
    }
    return std::nullopt;
}

bool Plot3dVariant::fitsSolution(const std::string& grid, const std::string& solution) const
{
    const Beginning beginning = beginningOf(solution);
    const std::vector<Dimensions> blocks = dimensionsIn(beginningOf(grid), *this);
    return beginning.isText == isText && blocks == dimensionsIn(beginning, *this) &&
           solutionSize(*this, blocks) <= beginning.size;
}

} // namespace vantrix::kernel::readers
