#pragma once

namespace vantrix::sdk::ui::dialogs {

/// One page of the axis dialog while it is on show: its manager, bindings and relevances. They go with it.
class AxisEditPageInterface
{
public:
    AxisEditPageInterface() = default;
    AxisEditPageInterface(AxisEditPageInterface const&) = delete;
    AxisEditPageInterface& operator=(AxisEditPageInterface const&) = delete;
    virtual ~AxisEditPageInterface() = default;
};

} // namespace vantrix::sdk::ui::dialogs
