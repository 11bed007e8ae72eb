#pragma once

#include "api/VtxUtilBase.h"
#include "toolbox/StateChangeEventInterface.h"

namespace vantrix::toolbox {

/// A state change as the host hands it over.
class StateChangeEvent : public StateChangeEventInterface
{
public:
    explicit StateChangeEvent(VtxStateChangeHandle change);

    int kind() const override;
    std::string styleParam(int index) const override;
    long styleEntry() const override;
    long object() const override;

private:
    VtxStateChangeHandle m_change;
    // Every listener asks for it.
    int m_kind;
};

} // namespace vantrix::toolbox
