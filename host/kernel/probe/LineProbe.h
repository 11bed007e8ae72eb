#pragma once

#include "kernel/Frame.h"
#include "kernel/LineMaps.h"
#include "kernel/ValueBlanking.h"

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace vantrix::kernel {

/* A probe along an axis ('X' or 'Y', of polar plots 'T' or 'R'): every line map shown over it is interpolated. */
struct LinePositionRequest
{
    char axis = 'X';
    int axisNumber = 1;
    double position = 0.0;
};

/* A probe of one point of one line map; all numbers from 1. */
struct LineIndexRequest
{
    long i = 1;
    long j = 1;
    long k = 1;
    long lineMap = 1;

    /* Of the line map, see LineMaps; 0 for the one that has the number. */
    long identity = 0;
};

/* A probe of the point of all line maps that is drawn closest to a place of the picture. */
struct LineNearestRequest
{
    using Place = std::array<double, 2>;

    Place place{0.0, 0.0};
    /* Where values of a line map are drawn; nothing for nowhere. */
    std::function<std::optional<Place>(long lineMap, double x, double y)> placeOf;
};

/* What a probe of a line plot found. */
struct LineProbeResult
{
    struct MapValue
    {
        long lineMap = 0;
        std::optional<double> value; /* on the other axis; nothing where the line does not reach the position */
    };

    char axis = 'X';
    int axisNumber = 1;
    double position = 0.0;
    std::vector<MapValue> values;

    long pickedMap = 0; /* of a probe of one point */
    long point = 0;
    LineIndexRequest picked; /* the same point by its index */
    double pickedX = 0.0;
    double pickedY = 0.0;
};

/*
 * Probes the line plot of one frame. Between its points a line is straight in the variables; where it passes a position
 * more than once, its first passage counts. Theta is the same a full circle on. Points that value blanking leaves out
 * of the plot are not there but for a probe by index: the line goes on to the next one.
 */
class LineProbe
{
public:
    /* Throws DataError when the frame's plot is no line plot, or has no data. */
    LineProbe(StyleStore& style, const Frame& frame);

    /* Throw DataError for an axis, a line map or an index that is not there. Nothing when no line has a value. A
     * request that says what its line map showed is for the line map that shows that now, where there is one; it is
     * refused when the zone is gone. */
    std::optional<LineProbeResult> probe(const LinePositionRequest& request) const;
    LineProbeResult probe(const LineIndexRequest& request) const;
    std::optional<LineProbeResult> probe(const LineNearestRequest& request) const;

private:
    struct Map
    {
        long number = 0;
        long zone = 0;
        long xAxis = 1;
        long yAxis = 1;
        const FieldArray* x = nullptr; /* null where there is nothing to draw */
        const FieldArray* y = nullptr;
        std::shared_ptr<const BlankedZone> blanked = nullptr;

        bool isBlanked(long point) const;
    };
    Map map(long number) const;
    long lineMapOf(const LineIndexRequest& request) const;
    std::vector<Map> shownMaps() const;
    LineProbeResult resultOf(const Map& map, long point) const;

    LineMaps m_lineMaps;
    std::shared_ptr<const DataSet> m_dataSet;
    ValueBlanking m_blanking;
    bool m_isPolar = false;
    double m_thetaPeriod = 0.0;
};

} // namespace vantrix::kernel
