#pragma once

#include <optional>
#include <string>

namespace vantrix::kernel::readers {

/*
 * What a PLOT3D file does not say of itself. It is found by trying: of all variants, the one whose size (in bytes, or
 * in numbers of a text) for the dimensions in the file is the size of the file. (VTK's own detection reads beyond its
 * memory for what is no grid, and does not know texts.) In a text, only the grid's layout counts.
 */
struct Plot3dVariant
{
    bool isText = false;
    bool isBigEndian = true;
    bool hasByteCounts = false; /* Fortran records */
    bool isMultiGrid = false;
    bool isTwoDimensional = false;
    bool isDoublePrecision = false;
    bool hasBlanking = false;

    /* Nothing when the file is no grid in any variant. */
    static std::optional<Plot3dVariant> ofGrid(const std::string& file);

    /* Whether a file is a solution of five quantities on a grid of this variant; some writers add to its end. */
    bool fitsSolution(const std::string& grid, const std::string& solution) const;
};

} // namespace vantrix::kernel::readers
