#include "propertybindings/ListViewPropertyBinding.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

ListViewPropertyBinding::ListViewPropertyBinding(QListView& view, SelectionMode_e mode)
{
    view.setSelectionMode(mode == ExtendedSelection ? QAbstractItemView::ExtendedSelection
                                                    : QAbstractItemView::SingleSelection);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setUniformItemSizes(true);
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
