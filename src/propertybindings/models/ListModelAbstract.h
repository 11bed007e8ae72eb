#pragma once

#include "propertybindings/models/ListModelInterface.h"

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// A list of fixed, plain rows: nothing can be set or edited, no row is a heading. A subclass supplies size(), get()
/// and getStr(), and overrides what it does otherwise.
template<typename T>
class ListModelAbstract : public virtual ListModelInterface<T>
{
public:
    std::string getStrForEdit(int row) const override { return this->getStr(row); }
    void set(T /*value*/, int /*row*/) override {}
    bool setEditedItem(std::string const& /*text*/, int /*row*/) const override { return false; }
    bool isEditable() const override { return false; }
    bool isHeader(int /*row*/) const override { return false; }

    /// Looks at every row in turn. The size is asked before each step: a model may shrink while it is read.
    int indexOf(T const& value) const override
    {
        for (int row = 0; row < this->size(); ++row) {
            if (this->get(row) == value) {
                return row;
            }
        }
        return -1;
    }
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
