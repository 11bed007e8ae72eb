#include "propertymanager/RelevanceInterface.h"

#include <boost/make_shared.hpp>

namespace vantrix::sdk::ui::propertymanager {

RelevanceInterface::RelevanceInterface()
    : m_lifeToken(boost::make_shared<char>())
{}

void RelevanceInterface::signalRelevanceChangedConnected() const {}

RelevanceInterface::~RelevanceInterface() = default;

std::string RelevanceInterface::reason() const
{
    return isRelevant() ? std::string() : m_reason;
}

} // namespace vantrix::sdk::ui::propertymanager
