#pragma once

#include "toolbox/StateChangeEventInterface.h"

/// Which state changes concern what a dialog shows, for relevances and idle performers. Those on plots, data and frames
/// also pass the changes after which anything may be different: another active frame or page, another layout, a
/// complete reset, notification that was held back.
namespace vantrix::sdk::ui::common {

/// Something was picked, or nothing is any more.
bool isPickListStateChange(toolbox::StateChangeEventInterface const& event);

/// The active frame's plot may be of another type.
bool isPlotTypeStateChange(toolbox::StateChangeEventInterface const& event);

/// Style of a field plot changed: plot type, layers, zones, contours, streamtraces, vectors, blanking, axes and view of
/// Cartesian plots.
bool isFieldStyleStateChange(toolbox::StateChangeEventInterface const& event);

/// Data changed: variables, zones, values, names, what is loaded or enabled.
bool isDataRelatedStateChange(toolbox::StateChangeEventInterface const& event);

/// Recording a macro began or ended.
bool isMacroRecordingStateChange(toolbox::StateChangeEventInterface const& event);

/// Another frame, or none, is the active one.
bool isNewActiveFrameStateChange(toolbox::StateChangeEventInterface const& event);

bool isFieldOrDataRelatedStateChange(toolbox::StateChangeEventInterface const& event);

} // namespace vantrix::sdk::ui::common
