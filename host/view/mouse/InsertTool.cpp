#include "view/mouse/InsertTool.h"

#include "api/VtxUtilPick.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Frame.h"
#include "kernel/Geometry.h"
#include "kernel/Kernel.h"
#include "kernel/UndoStack.h"
#include "kernel/interface/ArgumentList.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantrix::view {

namespace {

/* The way from a corner to the other with both its parts as long as the longer one. */
QPointF squared(QPointF way)
{
    const double side = std::max(std::abs(way.x()), std::abs(way.y()));
    return {std::copysign(side, way.x()), std::copysign(side, way.y())};
}

/* The way turned to the nearest of eight directions. */
QPointF straightened(QPointF way)
{
    constexpr double step = 45.0;
    QLineF line(QPointF(), way);
    line.setAngle(std::round(line.angle() / step) * step);
    return line.p2();
}

} // namespace

void InsertTool::press(const QMouseEvent& event)
{
    m_isDragging = context().frame() && context().frameAt(event.position()) != 0;
    m_from = m_to = context().pointedPlace(event);
}

void InsertTool::moveTo(const QMouseEvent& event)
{
    m_isRegular = event.modifiers() & Qt::ShiftModifier;
    const QPointF way = context().pointedPlace(event) - m_from;
    const QPointF regular = m_type == GeomType_Line ? straightened(way) : squared(way);
    m_to = m_from + (m_isRegular ? regular : way);
}

void InsertTool::drag(const QMouseEvent& event)
{
    moveTo(event);
    context().widget.update();
}

void InsertTool::release(const QMouseEvent& event)
{
    moveTo(event);
    const bool isDrawn = m_type == GeomType_Line ? m_from != m_to : !QRectF(m_from, m_to).normalized().isEmpty();
    if (std::exchange(m_isDragging, false) && isDrawn) {
        insert();
    }
    context().widget.endInsert(); // destroys this tool
}

void InsertTool::cancel()
{
    m_isDragging = false;
}

bool InsertTool::keyPress(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape) {
        return false;
    }
    context().widget.endInsert(); // destroys this tool
    return true;
}

void InsertTool::insert()
{
    const QPointF from = context().percentOfFrame(m_from);
    const QPointF to = context().percentOfFrame(m_to);
    const QRectF area = QRectF(from, to).normalized();
    QPointF place = area.topLeft();
    GeomType_e type = m_type;
    if (m_isRegular && type != GeomType_Line) {
        type = type == GeomType_Ellipse ? GeomType_Circle : GeomType_Square;
    }
    VtxArgList list;
    const auto add = [&](const char* name, VtxArgList::Value value) {
        list.arguments.push_back({name, std::move(value)});
    };
    add("GeomType", long{type});
    if (type == GeomType_Line) {
        place = from;
        const QPointF way = to - from;
        add("Points", kernel::geometryPointsText({{{0.0, 0.0, 0.0}, {way.x(), way.y(), 0.0}}}));
        add("ArrowheadAttachment", long{m_hasArrowhead ? ArrowheadAttachment_End : ArrowheadAttachment_None});
        add("ArrowheadStyle", long{ArrowheadStyle_Filled});
    } else {
        if (type == GeomType_Circle || type == GeomType_Ellipse) {
            place = area.center();
        }
        add("Width", double(area.width()));
        add("Height", double(area.height()));
    }
    add("XPos", double(place.x()));
    add("YPos", double(place.y()));
    long created = 0;
    add("Result", &created);
    const kernel::ActionLock lock(context().kernel.lock());
    if (!VtxUtilGeometrySetX(&list)) {
        Q_EMIT context().widget.statusMessage(QString::fromStdString(context().kernel.lastError()));
        return;
    }
    // Recorded as well: a deletion recorded later is one of what is picked.
    VtxUtilPickClear();
    VtxUtilPickGeometry(created);
}

void InsertTool::paint(QPainter& painter) const
{
    if (!m_isDragging) {
        return;
    }
    const QPointF from = context().paper.toWidget(m_from);
    const QPointF to = context().paper.toWidget(m_to);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(MouseContext::highlight, 1.0, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    if (m_type == GeomType_Line) {
        painter.drawLine(from, to);
    } else if (m_type == GeomType_Ellipse || m_type == GeomType_Circle) {
        painter.drawEllipse(QRectF(from, to).normalized());
    } else {
        painter.drawRect(QRectF(from, to).normalized());
    }
}

} // namespace vantrix::view
