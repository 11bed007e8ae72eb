#include "dialogs/probe/ProbeTables.h"

#include "api/VtxUtil.h"
#include "dialogs/probe/ProbeQueries.h"
#include "dialogs/probe/ProbeWidget.h"
#include "toolbox/HostString.h"

#include <QHeaderView>
#include <QTableWidget>

namespace vantrix::sdk::ui::dialogs::probetables {

namespace {

QString tr(char const* text)
{
    return ProbeWidget::tr(text);
}

/// Replaces the rows of a table one after another.
class RowWriter
{
public:
    explicit RowWriter(QTableWidget& table)
        : m_table(table)
    {
        m_table.setRowCount(0);
    }
    ~RowWriter()
    {
        for (int column = 0; column + 1 < m_table.columnCount(); ++column) { // the last one fills the table
            m_table.resizeColumnToContents(column);
        }
        m_table.resizeRowsToContents();
    }
    RowWriter(RowWriter const&) = delete;
    RowWriter& operator=(RowWriter const&) = delete;

    void add(QStringList const& cells, QString const& toolTip = {})
    {
        int const row = m_table.rowCount();
        m_table.insertRow(row);
        for (int column = 0; column < cells.size(); ++column) {
            auto* const item = new QTableWidgetItem(cells[column]);
            item->setToolTip(toolTip);
            m_table.setItem(row, column, item);
        }
    }
    void add(QString const& item, long value) { add({item, QString::number(value)}); }
    void add(QString const& item, std::string const& value) { add({item, QString::fromStdString(value)}); }

private:
    QTableWidget& m_table;
};

bool isPolytope(ZoneType_e type)
{
    return type == ZoneType_FEPolygon || type == ZoneType_FEPolyhedron;
}

QString indicesText(IJK_s const& at)
{
    return tr("I = %1").arg(at.i) + u'\n' + tr("J = %1\nK = %2").arg(at.j).arg(at.k);
}

void addOrderedCell(RowWriter& rows, bool isNearestPoint)
{
    IJKPlanes_e plane = IJKPlanes_Volume;
    IJK_s indices{1, 1, 1};
    FaceInfo_s face;
    bool hasCell = false;
    bool hasFace = false;
    if (!GetProbedOrderedCellInfo(isNearestPoint, plane, indices, hasCell, face, hasFace)) {
        return;
    }
    if (hasFace) {
        rows.add({tr("Face Plane"), QString::fromStdString(face.planeName + '\n' + face.planeText)});
        rows.add(tr("Face Indices"), face.indicesText);
    } else {
        rows.add({hasCell ? tr("Cell") : tr("Point"), indicesText(indices)});
    }
}

void addElementFaces(RowWriter& rows)
{
    std::vector<PolyFaceInfo_s> const faces = GetProbedPolytopeFaceNodes();
    rows.add(tr("Num Faces"), static_cast<long>(faces.size()));
    for (PolyFaceInfo_s const& face : faces) {
        QStringList nodes;
        for (long const node : face.nodes) {
            nodes << QString::number(node);
        }
        QString const toolTip =
            tr("Face Num: %1\nNum Nodes: %2\nNodes: %3").arg(face.number).arg(nodes.size()).arg(nodes.join(u' '));
        rows.add({tr("Face %1").arg(face.number), nodes.join(u' ')}, toolTip);
    }
}

void addElement(RowWriter& rows, bool isNearestPoint, ZoneType_e type)
{
    long element = 0;
    long node = 0;
    if (!GetProbedFECellInfo(isNearestPoint, element, node)) {
        return;
    }
    long const face = VtxUtilProbeFieldGetFace();
    if (isPolytope(type) && face != 0) {
        rows.add(tr("Current Face"), face);
    }
    if (node != 0) {
        rows.add(tr("Node Num"), node);
    }
    if (element == 0) {
        return;
    }
    rows.add(tr("Element Num"), element);
    long number = 0;
    for (long const corner : GetProbedFECellNodes()) {
        rows.add(tr("Node %1").arg(++number), corner);
    }
    if (isPolytope(type)) {
        addElementFaces(rows);
    }
}

QString numberedAxisCaption(char axis, int number)
{
    return tr("%1%2:").arg(QLatin1Char(axis)).arg(number);
}

QString acrossHeader(char probedAxis)
{
    switch (probedAxis) {
    case 'X':
        return tr("Y-Value");
    case 'Y':
        return tr("X-Value");
    case 'T':
        return tr("R-Value");
    default:
        return tr("Theta-Value");
    }
}

} // namespace

QString exactText(double value)
{
    return QString::asprintf("%.18g", value);
}

QString axisName()
{
    switch (VtxUtilProbeLineGetAxis()) {
    case 'T':
        return tr("Theta");
    case 'R':
        return tr("R");
    case 'Y':
        return tr("Y%1").arg(VtxUtilProbeLineGetAxisNumber());
    default:
        return tr("X%1").arg(VtxUtilProbeLineGetAxisNumber());
    }
}

QString axisCaption()
{
    char const axis = VtxUtilProbeLineGetAxis();
    return axis == 'T' || axis == 'R' ? axisName() + u':' : numberedAxisCaption(axis, VtxUtilProbeLineGetAxisNumber());
}

QString lineMapText(long lineMap)
{
    char* name = nullptr;
    VtxUtilLineMapGetName(lineMap, &name);
    return QStringLiteral("%1: %2").arg(lineMap).arg(QString::fromStdString(toolbox::takeHostString(name)));
}

void fillZoneInfo(QTableWidget& table)
{
    RowWriter rows(table);
    long const zone = VtxUtilProbeFieldGetZone();
    long iMax = 0;
    long jMax = 0;
    long kMax = 0;
    VtxUtilZoneGetIJK(zone, &iMax, &jMax, &kMax);
    rows.add(tr("Zone Type"), GetProbedZoneTypeString());
    if (VtxUtilZoneIsOrdered(zone)) {
        rows.add(tr("I-Max"), iMax);
        rows.add(tr("J-Max"), jMax);
        rows.add(tr("K-Max"), kMax);
        return;
    }
    rows.add(tr("Total Points"), iMax);
    rows.add(tr("Total Elements"), jMax);
    if (isPolytope(VtxUtilZoneGetType(zone))) {
        rows.add(tr("Total Faces"), VtxUtilZoneGetFaceCount(zone));
    }
}

void fillCellInfo(QTableWidget& table, bool isNearestPoint)
{
    RowWriter rows(table);
    ZoneType_e const type = VtxUtilZoneGetType(VtxUtilProbeFieldGetZone());
    if (type == ZoneType_Ordered) {
        addOrderedCell(rows, isNearestPoint);
    } else {
        addElement(rows, isNearestPoint, type);
    }
}

void fillFaceNeighbors(QTableWidget& table)
{
    RowWriter rows(table);
    long const zone = VtxUtilProbeFieldGetZone();
    for (FaceNeighbor_s const& neighbor : GetProbedItemFaceNeighbors()) {
        if (neighbor.cell == 0) {
            rows.add({QString::number(neighbor.face), tr("none"), QString(), QString()});
            continue;
        }
        QString const where = neighbor.zone == zone ? tr("self") : QString::number(neighbor.zone);
        rows.add({QString::number(neighbor.face), where, QString::number(neighbor.cell), tr("one to one")});
    }
}

void fillInterpolatedValues(QTableWidget& table)
{
    table.setHorizontalHeaderLabels({tr("Item"), acrossHeader(VtxUtilProbeLineGetAxis())});
    RowWriter rows(table);
    for (LineMapValue_s const& map : GetLineProbeDependentValues()) {
        rows.add({lineMapText(map.lineMap), map.isValid ? exactText(map.value) : tr("N/A")});
    }
}

void fillSpecificValues(QTableWidget& table)
{
    bool const isPolar = VtxUtilProbeLineGetAxis() == 'T';
    long const map = VtxUtilProbeLineGetPickedMap();
    double x = 0.0;
    double y = 0.0;
    int xAxis = 1;
    int yAxis = 1;
    VtxUtilProbeLineGetPickedValues(&x, &y);
    VtxUtilLineMapGetAssignment(map, nullptr, nullptr, nullptr, &xAxis, &yAxis);
    RowWriter rows(table);
    rows.add({tr("Line Map"), lineMapText(map)});
    rows.add(tr("Point"), VtxUtilProbeLineGetPoint());
    rows.add({isPolar ? tr("Theta-Value") : numberedAxisCaption('X', xAxis), exactText(x)});
    rows.add({isPolar ? tr("R-Value") : numberedAxisCaption('Y', yAxis), exactText(y)});
}

} // namespace vantrix::sdk::ui::dialogs::probetables
