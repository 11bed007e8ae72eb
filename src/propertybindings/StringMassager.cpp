#include "propertybindings/StringMassager.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

void StringMassager::prepareText(PropertyAbstract<double>&, QString&) const {}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
