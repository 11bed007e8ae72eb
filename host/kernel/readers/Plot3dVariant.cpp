#include "kernel/readers/Plot3dVariant.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

namespace vantrix::kernel::readers {

namespace {

constexpr double recordMarks = 8.0; /* a byte count before a Fortran record and one behind it */
constexpr int mostBlocks = 100000;

using Dimensions = std::array<double, 3>;

std::vector<char> beginningOf(const std::string& file)
{
    std::vector<char> bytes(static_cast<std::size_t>(mostBlocks) * 12 + 64);
    std::ifstream stream(file, std::ios::binary);
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

class Header
{
public:
    Header(const std::vector<char>& bytes, const Plot3dVariant& variant)
        : m_bytes(bytes)
        , m_isSwapped(variant.isBigEndian != (std::endian::native == std::endian::big))
    {}

    void skip() { m_position += 4; }

    /* 0 behind the end, which is no valid dimension. */
    std::int32_t next()
    {
        std::array<char, 4> word{};
        if (m_position + 4 > m_bytes.size()) {
            return 0;
        }
        for (std::size_t i = 0; i < 4; ++i) {
            word[i] = m_bytes[m_position + (m_isSwapped ? 3 - i : i)];
        }
        m_position += 4;
        std::int32_t value = 0;
        std::memcpy(&value, word.data(), sizeof value);
        return value;
    }

private:
    const std::vector<char>& m_bytes;
    std::size_t m_position = 0;
    bool m_isSwapped;
};

/* The dimensions of all blocks; none when the header is not of that variant. */
std::vector<Dimensions> dimensionsIn(const std::vector<char>& bytes, const Plot3dVariant& variant)
{
    Header header(bytes, variant);
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

double headerSize(const Plot3dVariant& variant, std::size_t blocks)
{
    const double marks = variant.hasByteCounts ? recordMarks : 0.0;
    const double words = variant.isTwoDimensional ? 2.0 : 3.0;
    return (variant.isMultiGrid ? 4.0 + marks : 0.0) + marks + 4.0 * words * static_cast<double>(blocks);
}

double gridSize(const Plot3dVariant& variant, const std::vector<Dimensions>& blocks)
{
    const double word = variant.isDoublePrecision ? 8.0 : 4.0;
    double size = headerSize(variant, blocks.size());
    for (const auto& [i, j, k] : blocks) {
        size += i * j * k * ((variant.isTwoDimensional ? 2.0 : 3.0) * word + (variant.hasBlanking ? 4.0 : 0.0));
        size += variant.hasByteCounts ? recordMarks : 0.0;
    }
    return size;
}

double solutionSize(const Plot3dVariant& variant, const std::vector<Dimensions>& blocks)
{
    const double word = variant.isDoublePrecision ? 8.0 : 4.0;
    double size = headerSize(variant, blocks.size());
    for (const auto& [i, j, k] : blocks) {
        size += word * (4.0 + i * j * k * (variant.isTwoDimensional ? 4.0 : 5.0));
        size += variant.hasByteCounts ? 2.0 * recordMarks : 0.0;
    }
    return size;
}

} // namespace

std::optional<Plot3dVariant> Plot3dVariant::ofGrid(const std::string& file)
{
    const std::vector<char> bytes = beginningOf(file);
    const auto size = static_cast<double>(std::filesystem::file_size(file));
    for (unsigned choice = 0; choice < 64; ++choice) {
        const auto bit = [&](unsigned number) { return (choice >> number & 1u) != 0; };
        const Plot3dVariant variant{bit(0), bit(1), bit(2), bit(5), bit(4), bit(3)};
        const std::vector<Dimensions> blocks = dimensionsIn(bytes, variant);
        if (!blocks.empty() && gridSize(variant, blocks) == size) {
            return variant;
        }
    }
    return std::nullopt;
}

bool Plot3dVariant::fitsSolution(const std::string& grid, const std::string& solution) const
{
    const std::vector<Dimensions> blocks = dimensionsIn(beginningOf(grid), *this);
    return blocks == dimensionsIn(beginningOf(solution), *this) &&
           solutionSize(*this, blocks) <= static_cast<double>(std::filesystem::file_size(solution));
}

} // namespace vantrix::kernel::readers
