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

/* The colour of a colour index of the style. */
QColor indexedColor(long index);

} // namespace vantrix::view
