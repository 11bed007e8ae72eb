#pragma once

class QWidget;

namespace vantrix::dialogs::common {

/// Moves a dialog that is not shown yet to where it covers as little as it can of what its parent's window is about:
/// its central widget, or all of it where it has none; and of the window's dialogs that are shown. The window's right
/// side is tried first.
void placeBesidePlot(QWidget& dialog);

} // namespace vantrix::dialogs::common
