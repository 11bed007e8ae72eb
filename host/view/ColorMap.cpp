#include "view/ColorMap.h"

#include "toolbox/BasicColors.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

float encoded(double channel)
{
    const double value = channel <= 0.0031308 ? channel * 12.92 : 1.055 * std::pow(channel, 1.0 / 2.4) - 0.055;
    return static_cast<float>(std::clamp(value, 0.0, 1.0));
}

} // namespace

ColorMap::ColorMap(std::string name, const std::vector<QRgb>& controls)
    : m_name(std::move(name))
{
    // The matrices are those that define OKLab.
    for (const QRgb control : controls) {
        const double red = linear(qRed(control) / 255.0);
        const double green = linear(qGreen(control) / 255.0);
        const double blue = linear(qBlue(control) / 255.0);
        const double l = std::cbrt(0.4122214708 * red + 0.5363325363 * green + 0.0514459929 * blue);
        const double m = std::cbrt(0.2119034982 * red + 0.6806995451 * green + 0.1073969566 * blue);
        const double s = std::cbrt(0.0883024619 * red + 0.2817188376 * green + 0.6299787005 * blue);
        m_controls.push_back({0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
                              1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
                              0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s});
    }
}

QColor ColorMap::at(double fraction) const
{
    const double place = std::clamp(std::isfinite(fraction) ? fraction : 0.0, 0.0, 1.0) * double(m_controls.size() - 1);
    const auto lower = std::min(static_cast<std::size_t>(place), m_controls.size() - 2);
    const double t = place - double(lower);
    const Lab& from = m_controls[lower];
    const Lab& to = m_controls[lower + 1];
    const double lightness = std::lerp(from.lightness, to.lightness, t);
    const double a = std::lerp(from.a, to.a, t);
    const double b = std::lerp(from.b, to.b, t);
    const double l = std::pow(lightness + 0.3963377774 * a + 0.2158037573 * b, 3);
    const double m = std::pow(lightness - 0.1055613458 * a - 0.0638541728 * b, 3);
    const double s = std::pow(lightness - 0.0894841775 * a - 1.2914855480 * b, 3);
    return QColor::fromRgbF(encoded(4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s),
                            encoded(-1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s),
                            encoded(-0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s));
}

const std::vector<ColorMap>& ColorMap::all()
{
    static const std::vector<ColorMap> maps{
        {"Sequential", {0xff2d1160, 0xff3b4a9c, 0xff2a7bab, 0xff21a59b, 0xff5cc97a, 0xffb5df4d, 0xfffbec5d}},
        {"Diverging", {0xff1d3f8c, 0xff4b86c6, 0xffa6cbe3, 0xfff4f1ec, 0xfff3b99a, 0xffd6604d, 0xff8c1127}},
        {"Heat", {0xff1a0b2e, 0xff66176b, 0xffb93556, 0xffee6a3c, 0xfff9b24b, 0xfffcf3b0}},
        {"Rainbow", {0xff30307e, 0xff3f76e4, 0xff2fb3d6, 0xff3ed08a, 0xffa4dc3f, 0xfff2c53a, 0xfff27d28, 0xffc92f19}},
        {"Grayscale", {0xff1c1c1c, 0xfff2f2f2}},
    };
    return maps;
}

const ColorMap& ColorMap::byName(const std::string& name)
{
    const auto& maps = all();
    const auto found = std::find_if(maps.begin(), maps.end(), [&](const ColorMap& map) { return map.name() == name; });
    return found != maps.end() ? *found : maps.front();
}

std::vector<std::string> ColorMap::names()
{
    std::vector<std::string> result;
    for (const ColorMap& map : all()) {
        result.push_back(map.name());
    }
    return result;
}

QColor indexedColor(long index)
{
    return QColor::fromRgb(toolbox::basicColor(index));
}

} // namespace vantrix::view
