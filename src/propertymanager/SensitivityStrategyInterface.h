#pragma once

namespace vantrix::sdk::ui::propertymanager {

/// Decides what a controlling flag means for the properties that depend on it.
class SensitivityStrategyInterface
{
public:
    virtual ~SensitivityStrategyInterface() = default;

    virtual bool isSensitive(bool controllerValue) const = 0;
};

} // namespace vantrix::sdk::ui::propertymanager
