#pragma once

#include <QString>

namespace vantrix::app {

/* The folder with the help pages: beside the installed program, else in the source tree. Empty when there is none. */
QString helpDirectory();

} // namespace vantrix::app
