#pragma once

#include "kernel/AxisVariables.h"
#include "kernel/StyleStore.h"

#include <vector>

namespace vantrix::kernel {

constexpr long contourGroupCount = 8; /* of a frame */

/*
 * Style for a frame that shows a data set for the first time: a plot type that suits the data, variables of the axes,
 * ranges that hold all data, in proportion where that suits them, line maps, a variable and levels for each contour
 * group, and colours that tell zones without anything to be coloured by apart. To be used after
 * Document::attachDataSet(), under the application lock; the style is part of the same step of undo.
 */
class PlotDefaults
{
public:
    /* With the style of this process's kernel. */
    static void apply(const Frame& frame);

    PlotDefaults(StyleStore& style, const Frame& frame);
    void apply();

    /* The same for a zone that was added to the data that the frame shows. */
    void applyToZone(long zone);

private:
    long plotType() const;
    void setAxes();
    void fitRange(const std::string& axisDetail, const std::vector<long>& variables, long axis, bool isNice);
    void setProportions();
    void setRange(const std::string& axisDetail, double minimum, double maximum, long axis = -1);
    void setLineMaps();
    void setLineAxes(long lastVariable);
    void fitPolar(const std::vector<long>& radii);
    bool setContours();
    void setShades();
    void setVectors();
    void resetView();
    void set(const std::string& path, const StyleData& value, long object = -1);

    StyleStore& m_style;
    const Frame& m_frame;
    long m_frameId;
    std::shared_ptr<const DataSet> m_data;
    AxisVariables m_axes;
};

} // namespace vantrix::kernel
