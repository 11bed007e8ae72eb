#pragma once

#include <string>
#include <vector>

namespace vantrix::kernel::readers {

/* What an EnSight case file names: the geometry and the variables on it, as they are at the first time. */
struct EnSightCase
{
    struct Variable
    {
        std::string file; /* with its folder */
        long components = 1;
        bool isPerElement = false;
    };

    bool isGold = false;
    std::string geometry; /* with its folder; empty where none is named */
    std::vector<Variable> variables;

    /* What is not understood is left out; the reader tells about it. */
    static EnSightCase read(const std::string& file);
};

} // namespace vantrix::kernel::readers
