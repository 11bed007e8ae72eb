#include "kernel/readers/EnSightStream.h"

#include "kernel/DataError.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace vantrix::kernel::readers {

namespace {

constexpr long integerWidth = 8, realWidth = 12; /* characters of the narrowest numbers in text */

[[noreturn]] void endsEarly()
{
    throw DataError("it ends early");
}

class TextStream : public EnSightStream
{
public:
    explicit TextStream(const std::string& file)
        : m_stream(file)
    {}

    bool isText() const override { return true; }

    bool isAtEnd() override
    {
        const auto here = m_stream.tellg();
        std::string line;
        while (std::getline(m_stream, line)) {
            if (!isSkipped(line)) {
                m_stream.seekg(here);
                return false;
            }
        }
        return true;
    }

    std::string description() override
    {
        std::string line;
        if (!std::getline(m_stream, line)) {
            endsEarly();
        }
        return trimmed(line);
    }

    std::string heading() override { return trimmed(dataLine()); }

    long count() override
    {
        long value = 0;
        numbers(&value, 1);
        return value;
    }

    void counts(long (&values)[3]) override { numbers(values, 3); }

    void passIntegers(long count, long perLine) override { passLines(count, perLine, integerWidth); }
    void passReals(long count, long perLine) override { passLines(count, perLine, realWidth); }

    long sumOfIntegers(long count) override
    {
        long sum = 0;
        for (long i = 0; i < count; ++i) {
            sum += this->count();
        }
        return sum;
    }

private:
    static bool isSkipped(const std::string& line)
    {
        const std::size_t first = line.find_first_not_of(" \t\r");
        return first == std::string::npos || line[first] == '#';
    }

    static std::string trimmed(const std::string& line)
    {
        const std::size_t first = line.find_first_not_of(" \t\r");
        return first == std::string::npos ? std::string()
                                          : line.substr(first, line.find_last_not_of(" \t\r") - first + 1);
    }

    std::string dataLine()
    {
        std::string line;
        do {
            if (!std::getline(m_stream, line)) {
                endsEarly();
            }
        } while (isSkipped(line));
        return line;
    }

    void numbers(long* values, int count)
    {
        const std::string line = dataLine();
        const char* text = line.c_str();
        for (int i = 0; i < count; ++i) {
            char* end = nullptr;
            values[i] = std::strtol(text, &end, 10);
            if (end == text) {
                m_stream.eof() ? endsEarly()
                               : throw DataError("\"" + trimmed(line) + "\" stands where a count would be");
            }
            text = end;
        }
        if (m_stream.eof() && static_cast<long>(line.size()) < count * integerWidth) {
            endsEarly();
        }
    }

    void passLines(long count, long perLine, long width)
    {
        std::size_t lengthBefore = 0;
        for (long left = count; left > 0; left -= perLine) {
            const std::string line = dataLine();
            const long numbers = std::min(left, perLine);
            /* The last line of a file without an end may end within a number. */
            const bool isShort =
                static_cast<long>(line.size()) < numbers * width || (left >= perLine && line.size() < lengthBefore);
            if (m_stream.eof() && isShort) {
                endsEarly();
            }
            lengthBefore = line.size();
        }
    }

    std::ifstream m_stream;
};

class BinaryStream : public EnSightStream
{
public:
    explicit BinaryStream(const std::string& file, bool hasRecordMarks)
        : m_stream(file, std::ios::binary)
        , m_left(static_cast<long>(std::filesystem::file_size(file)))
        , m_mark(hasRecordMarks ? 4 : 0)
    {}

    bool isText() const override { return false; }
    bool isAtEnd() override { return m_left <= 0; }

    std::string description() override
    {
        std::array<char, 80> text{};
        record(text.data(), text.size());
        const char* end = std::find(text.begin(), text.end(), '\0');
        while (end != text.begin() && end[-1] == ' ') {
            --end;
        }
        return std::string(static_cast<const char*>(text.data()), end);
    }

    std::string heading() override { return description(); }

    long count() override
    {
        std::int32_t value = 0;
        record(&value, 1);
        return value;
    }

    void counts(long (&values)[3]) override
    {
        std::array<std::int32_t, 3> words{};
        record(words.data(), words.size());
        std::copy(words.begin(), words.end(), values);
    }

    void passIntegers(long count, long /*perLine*/) override { pass(count); }
    void passReals(long count, long /*perLine*/) override { pass(count); }

    long sumOfIntegers(long count) override
    {
        expect(2 * m_mark + 4 * count);
        skip(m_mark);
        long sum = 0;
        for (long i = 0; i < count; ++i) {
            std::int32_t value = 0;
            take(&value, 1);
            sum += value;
        }
        skip(m_mark);
        return sum;
    }

private:
    void expect(long bytes) const
    {
        if (bytes < 0 || bytes > m_left) {
            endsEarly();
        }
    }

    void skip(long bytes)
    {
        m_stream.seekg(bytes, std::ios::cur);
        m_left -= bytes;
    }

    void take(char* text, std::size_t count)
    {
        m_stream.read(text, static_cast<std::streamsize>(count));
        m_left -= static_cast<long>(count);
    }

    /* The first number of a file tells the order of its bytes. */
    void take(std::int32_t* values, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            std::array<char, 4> bytes{};
            take(bytes.data(), bytes.size());
            if (!m_isOrderKnown) {
                /* Of a small number that is read in the wrong order comes a large or a negative one. */
                const auto size = [&](bool isSwapped) { return static_cast<std::uint32_t>(wordOf(bytes, isSwapped)); };
                m_isSwapped = size(true) < size(false);
                m_isOrderKnown = true;
            }
            values[i] = wordOf(bytes, m_isSwapped);
        }
    }

    static std::int32_t wordOf(std::array<char, 4> bytes, bool isSwapped)
    {
        if (isSwapped) {
            std::reverse(bytes.begin(), bytes.end());
        }
        return std::bit_cast<std::int32_t>(bytes);
    }

    template<typename Value>
    void record(Value* values, std::size_t count)
    {
        expect(2 * m_mark + static_cast<long>(count * sizeof(Value)));
        skip(m_mark);
        take(values, count);
        skip(m_mark);
    }

    void pass(long count)
    {
        expect(2 * m_mark + 4 * count);
        skip(2 * m_mark + 4 * count);
    }

    std::ifstream m_stream;
    long m_left;
    long m_mark;
    bool m_isOrderKnown = false;
    bool m_isSwapped = false;
};

} // namespace

std::unique_ptr<EnSightStream> EnSightStream::open(const std::string& file)
{
    std::array<char, 84> begin{};
    std::ifstream stream(file, std::ios::binary);
    stream.read(begin.data(), begin.size());
    const auto end = begin.begin() + static_cast<std::ptrdiff_t>(stream.gcount());
    const auto tells = [&](std::size_t at, const char* kind) {
        return std::equal(
            kind, kind + std::strlen(kind), begin.begin() + static_cast<std::ptrdiff_t>(at),
            [](char a, char b) { return std::tolower(a) == std::tolower(static_cast<unsigned char>(b)); });
    };
    if (tells(0, "c binary") || tells(4, "fortran binary")) {
        return std::make_unique<BinaryStream>(file, !tells(0, "c binary"));
    }
    /* Files of variables do not tell what they are; texts in them are filled up with zeros or blanks. */
    const bool isBinary = std::any_of(begin.begin(), end, [](char c) { return c == '\0'; }) ||
                          std::none_of(begin.begin(), end, [](char c) { return c == '\n'; });
    if (!isBinary) {
        return std::make_unique<TextStream>(file);
    }
    const std::array<char, 4> mark{begin[0], begin[1], begin[2], begin[3]};
    const bool hasMarks = mark == std::array<char, 4>{80, 0, 0, 0} || mark == std::array<char, 4>{0, 0, 0, 80};
    return std::make_unique<BinaryStream>(file, hasMarks);
}

} // namespace vantrix::kernel::readers
