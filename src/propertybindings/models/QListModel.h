#pragma once

#include "propertybindings/ListedTypes.h"
#include "propertybindings/models/ListModelInterface.h"
#include "propertybindings/models/ListModelRole.h"

#include <QAbstractListModel>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// Shows a list model to Qt's views. It keeps no copy: every row that a view asks for is asked of the list model.
///
/// The list model has changed already when it tells so; the begin and end calls that Qt asks for are therefore made
/// back to back. Whoever has to act on rows of this model on a change of the list connects to the list after this model
/// does.
template<typename T>
class QListModel : public QAbstractListModel
{
public:
    /// @param model  must outlive this object
    explicit QListModel(ListModelInterface<T> const& model, QObject* parent = nullptr);

    int rowCount(QModelIndex const& parent = QModelIndex()) const override;

    /// Texts for the display, tool-tip and edit roles; the value for ListModelValueRole, an integer unless T is a
    /// floating-point type; nothing for other roles and for rows that the list does not have.
    QVariant data(QModelIndex const& index, int role = Qt::DisplayRole) const override;

    /// Hands the value's text to the list model and returns whether that accepted it.
    bool setData(QModelIndex const& index, QVariant const& value, int role = Qt::EditRole) override;

    Qt::ItemFlags flags(QModelIndex const& index) const override;

private:
    void resetAll();

    ListModelInterface<T> const& m_model;
    boost::signals2::scoped_connection m_connections[4];
};

#define VX_DECLARE_QLISTMODEL(Type) extern template class QListModel<Type>;
VX_FOR_EACH_LISTED_TYPE(VX_DECLARE_QLISTMODEL)
#undef VX_DECLARE_QLISTMODEL

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
