#pragma once

#include "propertybindings/models/ListModelAbstract.h"
#include "toolbox/StateChangeEventInterface.h"

#include "api/VtxEnumerations.h"

#include <boost/signals2.hpp>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// The stream-trace types that the active frame's plot can show: lines in a plane in a 2D plot, the surface line and
/// the volume types in any other. Announced by the data-changed signal when a state change brings the other list.
class StreamTraceTypeListModel : public ListModelAbstract<Streamtrace_e>
{
public:
    StreamTraceTypeListModel();
    ~StreamTraceTypeListModel() override;

    int size() const override;
    Streamtrace_e get(int row) const override;
    std::string getStr(int row) const override;

private:
    void stateChanged(toolbox::StateChangeEventInterface const& event);
    static bool frameIsTwoDimensional();

    bool m_isTwoDimensional;
    boost::signals2::scoped_connection m_connection;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
