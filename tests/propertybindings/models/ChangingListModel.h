#pragma once

#include "propertybindings/models/ListModelAbstract.h"

#include <utility>
#include <vector>

namespace vantrix::test {

/// A list of integers that a test changes under the widgets that show it. Row `headerRow` is a heading.
class ChangingListModel : public sdk::ui::dialogs::propertybindings::models::ListModelAbstract<int>
{
public:
    explicit ChangingListModel(std::vector<int> rows)
        : m_rows(std::move(rows))
    {}

    int size() const override { return static_cast<int>(m_rows.size()); }
    int get(int row) const override { return m_rows.at(static_cast<std::size_t>(row)); }
    std::string getStr(int row) const override { return "row " + std::to_string(get(row)); }
    bool isHeader(int row) const override { return row == headerRow; }
    bool isEditable() const override { return editable; }
    std::string getStrForEdit(int row) const override { return std::to_string(get(row)); }

    void replaceAll(std::vector<int> rows)
    {
        m_rows = std::move(rows);
        m_dataChanged();
    }
    void replace(int row, int value)
    {
        m_rows.at(static_cast<std::size_t>(row)) = value;
        m_itemChanged(row);
    }
    void insert(int row, int value)
    {
        m_rows.insert(m_rows.begin() + row, value);
        m_itemsInserted(row, row);
    }
    void remove(int row)
    {
        m_rows.erase(m_rows.begin() + row);
        m_itemsRemoved(row, row);
    }

    int headerRow = -1;
    bool editable = false;

private:
    std::vector<int> m_rows;
};

} // namespace vantrix::test
