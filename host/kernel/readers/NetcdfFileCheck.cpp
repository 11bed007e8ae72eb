#include "kernel/readers/NetcdfFileCheck.h"

#include "kernel/DataError.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <vector>

namespace vantrix::kernel::readers {

namespace {

std::uint64_t padded(std::uint64_t bytes)
{
    return (bytes + 3) / 4 * 4;
}

std::uint64_t bytesOf(std::uint64_t type)
{
    static constexpr std::array<std::uint64_t, 12> sizes{0, 1, 1, 2, 4, 4, 8, 1, 2, 4, 8, 8};
    if (type == 0 || type >= sizes.size()) {
        throw DataError("its header names a type that netCDF does not have");
    }
    return sizes[type];
}

struct Variable
{
    std::string name;
    std::uint64_t begin = 0;
    std::uint64_t bytes = 0; /* of one record where there are records */
    bool hasRecords = false;
};

/* The header of a classic file: version 1, 2 (64-bit places) or 5 (64-bit counts, too). */
class NetcdfHeader
{
public:
    explicit NetcdfHeader(std::ifstream& stream, char version)
        : m_stream(stream)
        , m_version(version)
        , m_size(0)
    {
        m_stream.seekg(0, std::ios::end);
        m_size = static_cast<std::uint64_t>(m_stream.tellg());
        m_stream.seekg(4);
        m_records = count();
        readDimensions();
        skipAttributes();
        readVariables();
    }

    /* Bytes that the file needs for the longest of its variables, and which that is. */
    std::pair<std::uint64_t, std::string> end() const
    {
        std::uint64_t record = 0;
        long recordVariables = 0;
        for (const Variable& variable : m_variables) {
            record += variable.hasRecords ? padded(variable.bytes) : 0;
            recordVariables += variable.hasRecords;
        }
        std::pair<std::uint64_t, std::string> last;
        for (const Variable& variable : m_variables) {
            std::uint64_t end = variable.begin + variable.bytes;
            if (variable.hasRecords) {
                if (m_records == 0) {
                    continue;
                }
                /* Records of a variable that is the only one with records follow without a gap. */
                end += (m_records - 1) * (recordVariables == 1 ? variable.bytes : record);
            }
            last = std::max(last, {end, variable.name});
        }
        return last;
    }

private:
    std::uint64_t number(int bytes)
    {
        std::uint64_t value = 0;
        for (int i = 0; i < bytes; ++i) {
            value = value << 8 | static_cast<unsigned char>(m_stream.get());
        }
        if (!m_stream) {
            throw DataError("it ends within its header");
        }
        return value;
    }

    std::uint64_t word() { return number(4); }
    std::uint64_t count() { return number(m_version == 5 ? 8 : 4); }

    std::uint64_t listLength()
    {
        word(); /* what it lists */
        const std::uint64_t length = count();
        if (length > m_size) {
            throw DataError("its header is damaged");
        }
        return length;
    }

    void skip(std::uint64_t bytes)
    {
        if (bytes > m_size) {
            throw DataError("it ends within its header");
        }
        m_stream.seekg(static_cast<std::streamoff>(bytes), std::ios::cur);
    }

    std::string name()
    {
        const std::uint64_t length = count();
        if (length > m_size) {
            throw DataError("it ends within its header");
        }
        std::string text(length, '\0');
        m_stream.read(text.data(), static_cast<std::streamsize>(length));
        skip(padded(length) - length);
        return text;
    }

    void readDimensions()
    {
        for (std::uint64_t left = listLength(); left > 0; --left) {
            name();
            m_dimensions.push_back(count());
        }
    }

    void skipAttributes()
    {
        for (std::uint64_t left = listLength(); left > 0; --left) {
            name();
            const std::uint64_t bytes = bytesOf(word());
            skip(padded(bytes * count()));
        }
    }

    void readVariables()
    {
        for (std::uint64_t left = listLength(); left > 0; --left) {
            Variable variable;
            variable.name = name();
            std::uint64_t values = 1;
            for (std::uint64_t rank = count(), i = 0; i < rank; ++i) {
                const std::uint64_t dimension = count();
                if (dimension >= m_dimensions.size()) {
                    throw DataError("its header is damaged");
                }
                const bool isRecord = m_dimensions[dimension] == 0; /* the one that grows */
                variable.hasRecords = variable.hasRecords || isRecord;
                values *= isRecord ? 1 : m_dimensions[dimension];
            }
            skipAttributes();
            variable.bytes = values * bytesOf(word());
            count(); /* its size once more, wrong where it does not fit */
            variable.begin = number(m_version == 1 ? 4 : 8);
            m_variables.push_back(variable);
        }
    }

    std::ifstream& m_stream;
    char m_version;
    std::uint64_t m_size;
    std::uint64_t m_records = 0;
    std::vector<std::uint64_t> m_dimensions;
    std::vector<Variable> m_variables;
};

} // namespace

void expectWholeNetcdf(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::array<char, 4> magic{};
    stream.read(magic.data(), magic.size());
    const bool isClassic = stream && magic[0] == 'C' && magic[1] == 'D' && magic[2] == 'F' &&
                           (magic[3] == 1 || magic[3] == 2 || magic[3] == 5);
    if (!isClassic) {
        return;
    }
    const auto [end, variable] = NetcdfHeader(stream, magic[3]).end();
    const std::uint64_t there = std::filesystem::file_size(file);
    if (there < end) {
        throw DataError("it ends after " + std::to_string(there) + " of " + std::to_string(end) +
                        " bytes, within the variable \"" + variable + "\" or before it");
    }
}

} // namespace vantrix::kernel::readers
