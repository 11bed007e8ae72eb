#pragma once

#include "propertybindings/models/ListModelAbstract.h"

#include <utility>
#include <vector>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// A list of choices that never changes, in the order in which they are shown.
template<typename T>
class PremappedListModel : public ListModelAbstract<T>
{
public:
    using Rows = std::vector<std::pair<std::string, T>>;

    explicit PremappedListModel(Rows rows)
        : m_rows(std::move(rows))
    {}

    int size() const override { return static_cast<int>(m_rows.size()); }
    T get(int row) const override { return m_rows.at(static_cast<std::size_t>(row)).second; }
    std::string getStr(int row) const override { return m_rows.at(static_cast<std::size_t>(row)).first; }

private:
    Rows const m_rows;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
