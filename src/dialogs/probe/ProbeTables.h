#pragma once

#include <QString>

class QTableWidget;

/// Fills the tables of the probe widget with what the host's last probe found.
namespace vantrix::sdk::ui::dialogs::probetables {

/// Kind and size of the probed zone.
void fillZoneInfo(QTableWidget& table);

/// Where in the zone the probe was: cell, plane, corners, faces.
void fillCellInfo(QTableWidget& table, bool isNearestPoint);

/// What lies behind each face of the probed cell.
void fillFaceNeighbors(QTableWidget& table);

/// The values of the line maps at a position on an axis; and those of the one point that was taken.
void fillInterpolatedValues(QTableWidget& table);
void fillSpecificValues(QTableWidget& table);

/// The axis that a line probe was along: "X1", "Theta"; as the caption of its value "X1:".
QString axisName();
QString axisCaption();

/// "2: Lift".
QString lineMapText(long lineMap);

/// A number with 18 significant digits.
QString exactText(double value);

} // namespace vantrix::sdk::ui::dialogs::probetables
