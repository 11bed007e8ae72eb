#pragma once

#include "api/VtxEnumerations.h"

#include <string>

namespace vantrix::toolbox {
class StateChangeEventInterface;
}

/// What the managers of the dialogs that create zones share.
namespace vantrix::sdk::ui::propertymanager::zonecreation {

/// Whether a zone can be created: in a 2D or 3D Cartesian plot, or in a sketch that has no data yet.
bool contextIsValid();

/// What contextIsValid() asks for, as a sentence for the user.
extern std::string const contextExplanation;

/// Why a zone is limited to one K plane, as a sentence for the user.
extern std::string const oneKPlaneExplanation;

/// Whether a state change may decide otherwise on zones with more than one K plane; never while contextIsValid() is
/// false.
bool mayAffect3DZones(toolbox::StateChangeEventInterface const& event);

/// Brings back the mouse mode that was in use when it was made, if that is still valid.
class MouseModeKeeper
{
public:
    MouseModeKeeper();
    ~MouseModeKeeper();
    MouseModeKeeper(MouseModeKeeper const&) = delete;
    MouseModeKeeper& operator=(MouseModeKeeper const&) = delete;

private:
    MouseMode_e m_mouseMode;
};

} // namespace vantrix::sdk::ui::propertymanager::zonecreation
