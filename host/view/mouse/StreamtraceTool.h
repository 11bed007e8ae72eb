#pragma once

#include "view/mouse/MouseTool.h"

#include <array>
#include <optional>
#include <vector>

namespace vantrix::view {

/*
 * A click places a streamtrace at what is seen there: a place of a 2D plot, a place on the surface of a 3D plot. A drag
 * places a rake of them between both ends: straight, or, of lines on surfaces, on what is seen along the way. They get
 * the frame's format and direction of new streamtraces, and are shown.
 */
class StreamtraceTool : public MouseTool
{
public:
    using MouseTool::MouseTool;

    void press(const QMouseEvent& event) override;
    void drag(const QMouseEvent& event) override;
    void release(const QMouseEvent& event) override;
    void cancel() override { m_isDragging = false; }
    void doubleClick(const QMouseEvent& /*event*/) override {}
    bool keyPress(const QKeyEvent& event) override;
    void paint(QPainter& painter) const override;
    Qt::CursorShape cursor() const override { return Qt::CrossCursor; }

private:
    using Place = std::array<double, 3>;

    /* Streamtraces between two places, or at one. */
    struct Rake
    {
        Place from;
        std::optional<Place> to;
    };

    std::optional<Place> placeInData(QPointF place) const;
    bool followsSurface() const;
    std::vector<Rake> rakes() const;
    bool isRake() const;
    void place();

    bool m_isDragging = false;
    QPointF m_from; /* of the widget */
    QPointF m_to;
};

} // namespace vantrix::view
