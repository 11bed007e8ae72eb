#pragma once

#include <string>

namespace vantrix::kernel::readers {

/*
 * The netCDF library reads zeros behind the end of a file in its classic formats. This looks whether the file is as
 * long as the variables that its header lists, and throws DataError when it is not. Files of other kinds pass: the
 * library finds those that end early by itself.
 */
void expectWholeNetcdf(const std::string& file);

} // namespace vantrix::kernel::readers
