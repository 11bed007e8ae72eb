#pragma once

#include "view/PlotProbe.h"
#include "view/mouse/MouseTool.h"

namespace vantrix::view {

/* A click probes the plot, with Ctrl the nearest point; the probed place is marked, whoever probed it. */
class ProbeTool : public MouseTool
{
public:
    explicit ProbeTool(MouseContext& context);
    ~ProbeTool() override;

    void press(const QMouseEvent& event) override;
    void paint(QPainter& painter) const override;
    Qt::CursorShape cursor() const override { return Qt::CrossCursor; }

private:
    PlotProbe m_probe;
};

} // namespace vantrix::view
