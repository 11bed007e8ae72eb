#pragma once

#include <QListView>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Gives a list view the manners of a list of the dialogs: how many rows can be selected, and rows of one height, so
/// that a list of many rows opens at once. What is selected is kept in step with a property by a
/// ListViewPropertySynchronizer.
class ListViewPropertyBinding
{
public:
    enum SelectionMode_e
    {
        SingleSelection = 0,
        ExtendedSelection = 1 ///< several rows, with Shift, Ctrl, Ctrl+A and by dragging
    };

    ListViewPropertyBinding(QListView& view, SelectionMode_e mode);
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
