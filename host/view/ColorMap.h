#pragma once

#include <QColor>

#include <string>
#include <vector>

namespace vantrix::view {

/*
 * A run of colours from 0 to 1. Between its control colours it is interpolated in OKLab, where equal steps look equally
 * large.
 */
class ColorMap
{
public:
    /* The map of that name; the first of names() for a name that there is not. */
    static const ColorMap& byName(const std::string& name);
    static std::vector<std::string> names();

    const std::string& name() const { return m_name; }

    /* Fractions outside 0 to 1 give the end colours. */
    QColor at(double fraction) const;

private:
    ColorMap(std::string name, const std::vector<QRgb>& controls);
    static const std::vector<ColorMap>& all();

    struct Lab
    {
        double lightness;
        double a;
        double b;
    };
    std::string m_name;
    std::vector<Lab> m_controls;
};

/* The colours that style values name by number: 0 black, 1 red, 2 green, 3 blue, 4 cyan, 5 yellow, 6 purple, 7 white,
 * then softer ones; numbers out of range give black. */
QColor basicColor(long index);

} // namespace vantrix::view
