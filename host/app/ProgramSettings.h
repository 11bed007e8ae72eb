#pragma once

namespace vantrix::kernel {
class StyleStore;
}

namespace vantrix::app {

/*
 * Style that belongs to the program and to no layout (performance, printing), kept in the user's settings from one
 * session to the next.
 */
class ProgramSettings
{
public:
    /* For the start of the program: is no step of undo, and no macro records it. A setting that this version does not
     * know or does not accept is left out. */
    static void read(kernel::StyleStore& style);

    /* What differs from its default. */
    static void write(const kernel::StyleStore& style);
};

} // namespace vantrix::app
