#pragma once

#include "propertybindings/models/ListModelAbstract.h"
#include "toolbox/StateChangeEventInterface.h"

#include <boost/signals2.hpp>

#include <optional>
#include <vector>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// A list of numbered objects of the host, a row's value being the object's number and its text "number: name".
///
/// The numbers are asked of the host once after each state change that concerns the list, when the first row is asked
/// for; a name is asked for when its row is shown. The change is announced by the data-changed signal within the host's
/// notification.
class HostListModelAbstract : public ListModelAbstract<int>
{
public:
    ~HostListModelAbstract() override;

    int size() const override;
    int get(int row) const override;
    std::string getStr(int row) const override;
    int indexOf(int const& value) const override;

protected:
    HostListModelAbstract();

    /// The numbers of the objects to list, in ascending order.
    virtual std::vector<int> readNumbers() const = 0;

    /// The host's name of an object; empty when it has none.
    virtual std::string nameOf(int number) const = 0;

    /// Whether the list, or a name in it, may be another one after a state change of a kind (StateChange_e).
    virtual bool isConcernedBy(int stateChangeKind) const = 0;

    /// Whether the frame, or all of its data, may be another one after a state change of a kind.
    static bool isChangeOfFrameOrData(int stateChangeKind);

private:
    void stateChanged(toolbox::StateChangeEventInterface const& event);
    std::vector<int> const& numbers() const;

    mutable std::optional<std::vector<int>> m_numbers;
    boost::signals2::scoped_connection m_connection;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
