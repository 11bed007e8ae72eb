#pragma once

#include <vector>

class QWidget;

namespace vantrix::dialogs::common {

/// The widgets below `root` that the tab key can reach, in reading order: by the rows of the layouts, page by page.
std::vector<QWidget*> widgetsInReadingOrder(QWidget& root);

/// Makes the tab key visit the widgets in the given order.
void applyTabOrder(std::vector<QWidget*> const& widgets);

} // namespace vantrix::dialogs::common
