#pragma once

#include <boost/function.hpp>
#include <boost/signals2.hpp>

#include <string>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// The choices behind a combo box or list view: a value and a text for each row, rows counted from 0. A row that is
/// asked for must exist (0 to size() - 1); what a model does for another row is its own affair.
///
/// A model that changes does so first and tells afterwards, so that whoever hears a signal reads the new state.
template<typename T>
class ListModelInterface
{
public:
    using DataChangedSignal = boost::signals2::signal<void()>;
    using ItemChangedSignal = boost::signals2::signal<void(int row)>;
    using ItemsInsertedSignal = boost::signals2::signal<void(int first, int last)>;
    using ItemsRemovedSignal = boost::signals2::signal<void(int first, int last)>;

    ListModelInterface() = default;
    ListModelInterface(ListModelInterface const&) = delete;
    ListModelInterface& operator=(ListModelInterface const&) = delete;

    virtual int size() const = 0;
    virtual T get(int row) const = 0;

    /// The text of a row, UTF-8.
    virtual std::string getStr(int row) const = 0;

    /// The text that a user begins with who edits a row, UTF-8.
    virtual std::string getStrForEdit(int row) const = 0;

    /// Replaces the value of a row. A model whose rows are fixed does nothing.
    virtual void set(T value, int row) = 0;

    /// Takes a text that the user typed for a row; returns whether it was accepted. A refused text changes nothing.
    virtual bool setEditedItem(std::string const& text, int row) const = 0;

    virtual bool isEditable() const = 0;

    /// Whether a row is a heading, which cannot be chosen.
    virtual bool isHeader(int row) const = 0;

    /// The first row that holds a value, -1 when there is none.
    virtual int indexOf(T const& value) const = 0;

    /// Each is called after a slot was connected to the signal of that name. A model that has to watch something to
    /// notice changes starts here. They do nothing by themselves.
    virtual void signalDataChangedConnected() const {}
    virtual void signalItemChangedConnected() const {}
    virtual void signalItemsInsertedConnected() const {}
    virtual void signalItemsRemovedConnected() const {}

    virtual ~ListModelInterface() = default;

    /// Called when the whole list may be another one.
    boost::signals2::connection connectToDataChangedSignal(boost::function<void()> const& slot) const
    {
        boost::signals2::connection connection = m_dataChanged.connect(slot);
        signalDataChangedConnected();
        return connection;
    }

    /// Called with the row that has another value or text.
    boost::signals2::connection connectToItemChangedSignal(boost::function<void(int)> const& slot) const
    {
        boost::signals2::connection connection = m_itemChanged.connect(slot);
        signalItemChangedConnected();
        return connection;
    }

    /// Called with the first and the last row that are new.
    boost::signals2::connection connectToItemsInsertedSignal(boost::function<void(int, int)> const& slot) const
    {
        boost::signals2::connection connection = m_itemsInserted.connect(slot);
        signalItemsInsertedConnected();
        return connection;
    }

    /// Called with the first and the last row that are gone, as they were numbered before.
    boost::signals2::connection connectToItemsRemovedSignal(boost::function<void(int, int)> const& slot) const
    {
        boost::signals2::connection connection = m_itemsRemoved.connect(slot);
        signalItemsRemovedConnected();
        return connection;
    }

protected:
    mutable DataChangedSignal m_dataChanged;
    mutable ItemChangedSignal m_itemChanged;
    mutable ItemsInsertedSignal m_itemsInserted;
    mutable ItemsRemovedSignal m_itemsRemoved;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
