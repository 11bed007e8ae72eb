#include "kernel/Geometry.h"

#include "kernel/DataError.h"
#include "kernel/NumberText.h"

#include <charconv>
#include <cmath>
#include <sstream>
#include <string_view>

namespace vantrix::kernel {

namespace {

[[noreturn]] void refuse(const std::string& points, const std::string& cause)
{
    throw DataError("\"Points\" of a geometry is \"" + points + "\": " + cause +
                    " Points are written \"x y\" or \"x y z\" with \";\" between them, and \"/\" between lines.");
}

/* A number in the C locale, with as many digits as it takes to read the very same number. */
std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(std::move(part));
    }
    return parts;
}

GeometryPoint parsePoint(const std::string& text, const std::string& points)
{
    GeometryPoint point{0.0, 0.0, 0.0};
    std::istringstream words(text);
    std::size_t count = 0;
    for (std::string word; words >> word; ++count) {
        double number = 0.0;
        const char* end = word.data() + word.size();
        const auto read = std::from_chars(word.data(), end, number);
        if (read.ec != std::errc() || read.ptr != end || !std::isfinite(number)) {
            refuse(points, '"' + word + "\" is no finite number.");
        }
        if (count == point.size()) {
            refuse(points, "A point has more than three coordinates.");
        }
        point[count] = number;
    }
    if (count < 2) {
        refuse(points, "A point has less than two coordinates.");
    }
    return point;
}

} // namespace

GeometryLines parseGeometryPoints(const std::string& points)
{
    GeometryLines lines;
    for (const std::string& part : split(points, '/')) {
        auto& line = lines.emplace_back();
        for (const std::string& point : split(part, ';')) {
            line.push_back(parsePoint(point, points));
        }
        if (line.size() < 2) {
            refuse(points, "A line has less than two points.");
        }
    }
    if (lines.empty()) {
        refuse(points, "There is no line.");
    }
    return lines;
}

std::string geometryPointsText(const GeometryLines& lines)
{
    std::string text;
    for (const auto& line : lines) {
        text += text.empty() ? "" : " / ";
        for (std::size_t i = 0; i < line.size(); ++i) {
            text += (i == 0 ? "" : "; ") + numberText(line[i][0]) + ' ' + numberText(line[i][1]);
            if (line[i][2] != 0.0) {
                text += ' ' + numberText(line[i][2]);
            }
        }
    }
    return text;
}

} // namespace vantrix::kernel
