#pragma once

#include <string>

/// The types of UI style properties that are common enough to be instantiated once, as X(type). Others (enumerations,
/// sets) are instantiated where they are used.
#define VX_UI_PROPERTY_TYPES(X)                                                                                        \
    X(bool)                                                                                                            \
    X(int)                                                                                                             \
    X(long)                                                                                                            \
    X(double)                                                                                                          \
    X(std::string)
