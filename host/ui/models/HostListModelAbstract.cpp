#include "ui/models/HostListModelAbstract.h"

#include "api/VtxEnumerations.h"
#include "sdk/StateChangeEventObservable.h"

#include <algorithm>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

HostListModelAbstract::HostListModelAbstract()
    : m_connection(integration::StateChangeEventObservable::getInstance().connect(
          [this](toolbox::StateChangeEventInterface const& event) { stateChanged(event); }))
{}

HostListModelAbstract::~HostListModelAbstract() = default;

int HostListModelAbstract::size() const
{
    return static_cast<int>(numbers().size());
}

int HostListModelAbstract::get(int row) const
{
    return numbers().at(static_cast<std::size_t>(row));
}

std::string HostListModelAbstract::getStr(int row) const
{
    int const number = get(row);
    return std::to_string(number) + ": " + nameOf(number);
}

int HostListModelAbstract::indexOf(int const& value) const
{
    auto const found = std::lower_bound(numbers().begin(), numbers().end(), value);
    return found != numbers().end() && *found == value ? static_cast<int>(found - numbers().begin()) : -1;
}

bool HostListModelAbstract::isChangeOfFrameOrData(int stateChangeKind)
{
    switch (stateChangeKind) {
    case StateChange_FrameDeleted:
    case StateChange_NewActiveFrame:
    case StateChange_DataSetReset:
    case StateChange_NewLayout:
    case StateChange_CompleteReset:
    case StateChange_UpdatesResumed:
    case StateChange_PageDeleted:
    case StateChange_NewActivePage:
        return true;
    default:
        return false;
    }
}

void HostListModelAbstract::stateChanged(toolbox::StateChangeEventInterface const& event)
{
    if (event.kind() == StateChange_Quit) {
        m_connection.disconnect();
    } else if (isConcernedBy(event.kind())) {
        m_numbers.reset();
        m_dataChanged();
    }
}

std::vector<int> const& HostListModelAbstract::numbers() const
{
    if (!m_numbers) {
        m_numbers = readNumbers();
    }
    return *m_numbers;
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
