#pragma once

#include "propertybindings/BindingInterface.h"
#include "propertybindings/WidgetPropertySynchronizerInterface.h"
#include "propertybindings/models/QListModel.h"
#include "propertymanager/UIStylePropertyAbstract.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"
#include "sdk/SignalConnectionCollection.h"

#include <QItemSelection>
#include <QListView>
#include <QPointer>

#include <memory>
#include <set>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Keeps the selection of a list view and a property that holds a set equal: the property has the values of the
/// selected rows. Made for std::set<int>.
///
/// What the user selects reaches the property at once, in one set; a set that the property refuses is told to the user
/// and the selection goes back. A change of the property reaches the view at once. After a change of the list the
/// property decides what is selected, and values that have no row any more drop out of it: at once, or in the mode
/// OnIdle once on the next idle turn.
///
/// Selections are handled as runs of neighbouring rows, so that lists of many rows are no slower to select at a stroke
/// than row by row. The view's selection model signals the rows that the property selects, not those it deselects.
template<typename T>
class ListViewPropertySynchronizer : public WidgetPropertySynchronizerInterface
{
public:
    using Value = typename T::value_type;
    using Model = models::ListModelInterface<Value>;

    ListViewPropertySynchronizer(QListView& view, boost::shared_ptr<PropertyAbstract<T>> property,
                                 boost::shared_ptr<Model const> model, BindingInterface::WidgetUpdateMode_e updateMode);

    /// @param property  must outlive the synchronizer, as must the model. The view follows its visibility and
    ///                  sensitivity too.
    ListViewPropertySynchronizer(QListView& view, propertymanager::UIStylePropertyAbstract<T>& property,
                                 Model const& model, BindingInterface::WidgetUpdateMode_e updateMode);

    ~ListViewPropertySynchronizer() override;

    /// Selects the rows whose values are in the property's set, and no others.
    void updateWidgetFromProperty() override;

    /// Sets the property from the selection; does nothing while the synchronizer itself changes the selection.
    void updatePropertyFromWidget() override;

    /// Brings the view, then the property, up to date: what the property holds is selected as far as there are rows.
    void synchronizePropertyAndSelection();

    void updateVisibility();
    void updateSensitivity();

private:
    void setupModel();
    void preserveSelectionOnModelChange();
    void setSelectionForPropertyValues(T const& values);
    QItemSelection selectionFor(T const& values) const;
    T selectedValues() const;

    QPointer<QListView> m_view;
    boost::shared_ptr<PropertyAbstract<T>> m_propertyOwner;
    PropertyAbstract<T>& m_property;
    propertymanager::UIPropertyInterface* m_uiProperty = nullptr;
    boost::shared_ptr<Model const> m_modelOwner;
    Model const& m_model;
    bool m_isUpdating = false;
    OnIdleActionPerformerSingleShot m_synchronizeOnIdle;
    BindingInterface::WidgetUpdateMode_e m_updateMode;
    std::unique_ptr<models::QListModel<Value>> m_listModel;
    SignalConnectionCollection m_connections;
    QObject m_context; ///< ends the connection to the view's selection
};

extern template class ListViewPropertySynchronizer<std::set<int>>;

} // namespace vantrix::sdk::ui::dialogs::propertybindings
