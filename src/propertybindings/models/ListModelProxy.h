#pragma once

#include "propertybindings/models/ListModelAbstract.h"

#include <boost/shared_ptr.hpp>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// Presents another list that can be exchanged while widgets stay bound. Without one it has no rows.
template<typename T>
class ListModelProxy : public ListModelAbstract<T>
{
public:
    using Model = boost::shared_ptr<ListModelInterface<T>>;

    /// Presents another list from now on, and tells so by the data-changed signal unless it is the present one.
    /// @param model  null for no rows; kept alive by the proxy
    void setModel(Model const& model) const
    {
        if (model == m_model) {
            return;
        }
        for (auto& connection : m_connections) {
            connection.disconnect();
        }
        m_model = model;
        if (model) {
            m_connections[0] = model->connectToDataChangedSignal([this] { this->m_dataChanged(); });
            m_connections[1] = model->connectToItemChangedSignal([this](int row) { this->m_itemChanged(row); });
            m_connections[2] = model->connectToItemsInsertedSignal(
                [this](int first, int last) { this->m_itemsInserted(first, last); });
            m_connections[3] =
                model->connectToItemsRemovedSignal([this](int first, int last) { this->m_itemsRemoved(first, last); });
        }
        this->m_dataChanged();
    }

    int size() const override { return m_model ? m_model->size() : 0; }
    T get(int row) const override { return m_model->get(row); }
    std::string getStr(int row) const override { return m_model->getStr(row); }
    int indexOf(T const& value) const override { return m_model ? m_model->indexOf(value) : -1; }

    void set(T value, int row) override
    {
        if (m_model) {
            m_model->set(value, row);
        }
    }

private:
    mutable Model m_model;
    mutable boost::signals2::scoped_connection m_connections[4];
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
