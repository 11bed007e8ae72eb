#pragma once

#include "kernel/LayoutUnknown.h"

#include <functional>
#include <string>
#include <utility>

namespace vantrix::kernel {

class Kernel;

/*
 * Layout files: every page with its frames and all style that differs from the defaults, and how the data came to be,
 * as commands (see MacroCommand and docs/layout-format.md). Style of the program itself (drawing speed, memory,
 * printing) is not in it: a layout that is opened does not change the user's settings.
 */
class Layout
{
public:
    explicit Layout(Kernel& kernel);

    /* The layout of the present state; names of data files below `folder` are written relative to it. */
    std::string text(const std::string& folder = {}) const;

    /* See VtxUtilLayoutSave() and VtxUtilLayoutOpen(). Both throw DataError, ActionCancelled when the user stopped the
     * reading of data. The file then is the layout's file. */
    void save(const std::string& file);
    void open(const std::string& file);

    /* The same as save(), but only a copy: the layout's file and what counts as saved stay. */
    void saveCopy(const std::string& file) const;

    /* Opens a copy that a session left behind, as a layout that has not been saved to `original`, which may be empty.
     */
    void recover(const std::string& copy, const std::string& original);

    /* One page with one empty frame; the program's own settings stay. Nothing can be undone any more. All that replace
     * everything send `StateChange_NewLayout`. */
    void clear();

    /* Of the last save() or open(); empty for a layout without a file. */
    const std::string& fileName() const { return m_fileName; }

    /* Whether the state differs from the one that was saved or opened last; undoing back to it counts as equal. */
    bool isModified() const;

    /* The present state is as good as saved. */
    void setUnmodified();

    /* Called after save() and whatever else makes the present state the saved one, of which no state change tells;
     * an empty one ends that. */
    void setMarkListener(std::function<void()> listener) { m_markListener = std::move(listener); }

private:
    void load(const std::string& file);
    void drop();

    Kernel& m_kernel;
    std::string m_fileName;
    unsigned long m_savedState;
    std::function<void()> m_markListener;
    LayoutUnknown m_unknown;
};

} // namespace vantrix::kernel
