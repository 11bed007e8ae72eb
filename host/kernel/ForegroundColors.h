#pragma once

namespace vantrix::kernel {

class Frame;
class Kernel;

/*
 * Gives what a frame draws in the colour of its new background another colour: its style's foreground colours, its
 * texts and its geometries. Fills keep their colour, and so does what is drawn on or around a fill of another colour,
 * which stays visible. Part of the undo step under way.
 */
void replaceForegroundColors(Kernel& kernel, Frame& frame, long background, long visible);

} // namespace vantrix::kernel
