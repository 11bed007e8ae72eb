#include "kernel/macro/MacroCommand.h"

#include "kernel/DataError.h"
#include "kernel/NumberText.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdio>

namespace vantrix::kernel {

namespace {

/* A value that is to be there and of one type, or may become it. */
[[noreturn]] void refuse(const MacroCommand& command, std::string_view argument, const char* wanted)
{
    const bool isMissing = !command.find(argument);
    throw DataError(command.name + ": " + (isMissing ? "the value \"" : "\"") + std::string(argument) +
                    (isMissing ? "\" is missing." : "\" has to be " + std::string(wanted) + '.'));
}

bool isPlainWord(std::string_view text)
{
    return !text.empty() && std::isalpha(static_cast<unsigned char>(text.front())) && text != "inf" && text != "nan" &&
           std::ranges::all_of(text, [](unsigned char c) { return std::isalnum(c) || c == '_'; });
}

std::string quotedText(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        switch (c) {
        case '"':
        case '\\':
            result += '\\';
            result += c;
            break;
        case '\n':
            result += "\\n";
            break;
        case '\t':
            result += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < ' ') {
                std::array<char, 8> code{};
                std::snprintf(code.data(), code.size(), "\\x%02x", static_cast<unsigned>(c));
                result += code.data();
            } else {
                result += c;
            }
        }
    }
    return result + '"';
}

std::string realText(double value)
{
    const std::string digits = numberText(value);
    // A whole number would be read as one.
    return digits.find_first_not_of("-0123456789") == std::string::npos ? digits + ".0" : digits;
}

std::string setText(const std::set<long>& numbers)
{
    std::string text = "{";
    for (auto number = numbers.begin(); number != numbers.end();) {
        const long first = *number;
        long last = first;
        while (++number != numbers.end() && *number == last + 1) {
            last = *number;
        }
        text += (text.size() > 1 ? "," : "") + std::to_string(first);
        if (last != first) {
            text += '-' + std::to_string(last);
        }
    }
    return text + '}';
}

struct ValueText
{
    std::string operator()(long value) const { return std::to_string(value); }
    std::string operator()(double value) const { return realText(value); }
    std::string operator()(const std::string& value) const { return isPlainWord(value) ? value : quotedText(value); }
    std::string operator()(const std::set<long>& value) const { return setText(value); }
    std::string operator()(const std::vector<std::string>& value) const
    {
        std::string text = "[";
        for (const std::string& each : value) {
            text += (text.size() > 1 ? " " : "") + quotedText(each);
        }
        return text + ']';
    }
};

class LineParser
{
public:
    explicit LineParser(std::string_view line)
        : m_line(line)
    {}

    std::vector<MacroCommand> commands()
    {
        std::vector<MacroCommand> found;
        for (skipSpace(); !atEnd(); skipSpace()) {
            if (!found.empty()) {
                expect(';');
                skipSpace();
                if (atEnd()) {
                    break;
                }
            }
            found.push_back(command());
        }
        return found;
    }

private:
    bool atEnd() const { return m_place == m_line.size() || m_line[m_place] == '#'; }
    char here() const { return m_place < m_line.size() ? m_line[m_place] : '\0'; }

    [[noreturn]] void fail(const std::string& expected) const
    {
        throw DataError("column " + std::to_string(m_place + 1) + ": expected " + expected + '.');
    }

    void skipSpace()
    {
        while (here() == ' ' || here() == '\t' || here() == '\r') {
            ++m_place;
        }
    }

    void expect(char wanted)
    {
        if (here() != wanted) {
            fail(std::string("\"") + wanted + '"');
        }
        ++m_place;
    }

    std::string word(const char* what)
    {
        const std::size_t begin = m_place;
        while (std::isalnum(static_cast<unsigned char>(here())) || here() == '_') {
            ++m_place;
        }
        const std::string_view found = m_line.substr(begin, m_place - begin);
        if (found.empty() || !std::isalpha(static_cast<unsigned char>(found.front()))) {
            m_place = begin;
            fail(what);
        }
        return std::string(found);
    }

    MacroCommand command()
    {
        MacroCommand found{word("the name of a command"), {}};
        for (skipSpace(); !atEnd() && here() != ';'; skipSpace()) {
            const std::size_t begin = m_place;
            std::string name = word("a name and \"=\"");
            expect('=');
            if (found.find(name)) {
                m_place = begin;
                fail("no second \"" + name + '"');
            }
            found.add(std::move(name), value());
        }
        return found;
    }

    MacroValue value()
    {
        switch (here()) {
        case '"':
            return quotedText();
        case '{':
            return numberSet();
        case '[':
            return texts();
        default:
            break;
        }
        if (std::isalpha(static_cast<unsigned char>(here()))) {
            const std::string text = word("a value");
            return text == "inf" || text == "nan" ? MacroValue(std::stod(text)) : MacroValue(text);
        }
        return number();
    }

    MacroValue number()
    {
        const char* begin = m_line.data() + m_place;
        const char* end = m_line.data() + m_line.size();
        long whole = 0;
        double real = 0.0;
        const auto asWhole = std::from_chars(begin, end, whole);
        const auto asReal = std::from_chars(begin, end, real);
        if (asReal.ec != std::errc()) {
            fail("a number, a word, a text in quotes, a set in braces or texts in brackets");
        }
        m_place = static_cast<std::size_t>(asReal.ptr - m_line.data());
        return asWhole.ec == std::errc() && asWhole.ptr == asReal.ptr ? MacroValue(whole) : MacroValue(real);
    }

    std::string quotedText()
    {
        expect('"');
        std::string text;
        while (here() != '"') {
            if (m_place >= m_line.size()) {
                fail("a quote that ends the text");
            }
            text += here() == '\\' ? escaped() : here();
            ++m_place;
        }
        ++m_place;
        return text;
    }

    char escaped()
    {
        ++m_place;
        switch (here()) {
        case '"':
        case '\\':
            return here();
        case 'n':
            return '\n';
        case 't':
            return '\t';
        case 'x':
            break;
        default:
            fail("\\\", \\\\, \\n, \\t or \\xNN");
        }
        unsigned code = 0;
        const std::string_view digits = m_line.substr(std::min(m_place + 1, m_line.size()), 2);
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
        if (digits.size() != 2 || read.ec != std::errc() || read.ptr != digits.data() + 2) {
            fail("two hexadecimal digits");
        }
        m_place += 2;
        return static_cast<char>(code);
    }

    long setMember()
    {
        const char* begin = m_line.data() + m_place;
        long number = 0;
        const auto read = std::from_chars(begin, m_line.data() + m_line.size(), number);
        if (read.ec != std::errc() || number < 1) {
            fail("a number from 1");
        }
        m_place = static_cast<std::size_t>(read.ptr - m_line.data());
        return number;
    }

    std::set<long> numberSet()
    {
        constexpr long mostMembers = 10'000'000;
        std::set<long> numbers;
        expect('{');
        for (skipSpace(); here() != '}'; skipSpace()) {
            if (!numbers.empty()) {
                expect(',');
                skipSpace();
            }
            const long first = setMember();
            long last = first;
            if (here() == '-') {
                ++m_place;
                last = setMember();
            }
            if (last < first || last - first >= mostMembers) {
                fail("a range that goes up");
            }
            for (long number = first; number <= last; ++number) {
                numbers.insert(numbers.end(), number);
            }
        }
        ++m_place;
        return numbers;
    }

    std::vector<std::string> texts()
    {
        std::vector<std::string> found;
        expect('[');
        for (skipSpace(); here() != ']'; skipSpace()) {
            found.push_back(quotedText());
        }
        ++m_place;
        return found;
    }

    std::string_view m_line;
    std::size_t m_place = 0;
};

} // namespace

void MacroCommand::add(std::string argument, MacroValue value)
{
    arguments.emplace_back(std::move(argument), std::move(value));
}

const MacroValue* MacroCommand::find(std::string_view argument) const
{
    const auto found = std::ranges::find(arguments, argument, &Argument::first);
    return found != arguments.end() ? &found->second : nullptr;
}

long MacroCommand::integer(std::string_view argument) const
{
    const MacroValue* value = find(argument);
    const long* number = value ? std::get_if<long>(value) : nullptr;
    if (!number) {
        refuse(*this, argument, "a whole number");
    }
    return *number;
}

double MacroCommand::real(std::string_view argument) const
{
    const MacroValue* value = find(argument);
    if (const double* number = value ? std::get_if<double>(value) : nullptr) {
        return *number;
    }
    if (const long* number = value ? std::get_if<long>(value) : nullptr) {
        return static_cast<double>(*number);
    }
    refuse(*this, argument, "a number");
}

const std::string& MacroCommand::text(std::string_view argument) const
{
    const MacroValue* value = find(argument);
    const auto* text = value ? std::get_if<std::string>(value) : nullptr;
    if (!text) {
        refuse(*this, argument, "a text");
    }
    return *text;
}

std::string macroText(const MacroValue& value)
{
    return std::visit(ValueText(), value);
}

std::string macroText(const MacroCommand& command)
{
    std::string text = command.name;
    for (const auto& [name, value] : command.arguments) {
        text += ' ' + name + '=' + macroText(value);
    }
    return text;
}

std::string macroText(const std::vector<MacroCommand>& step)
{
    std::string text;
    for (const MacroCommand& command : step) {
        text += (text.empty() ? "" : "; ") + macroText(command);
    }
    return text;
}

std::string_view withoutByteOrderMark(std::string_view line)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return line.starts_with(mark) ? line.substr(mark.size()) : line;
}

std::vector<MacroCommand> parseMacroLine(std::string_view line)
{
    return LineParser(line).commands();
}

} // namespace vantrix::kernel
