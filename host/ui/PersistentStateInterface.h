#pragma once

class QSettings;

namespace vantrix::dialogs::common {

/// Something of a dialog that is kept from one run of the program to the next.
class PersistentStateInterface
{
public:
    virtual ~PersistentStateInterface() = default;

    /// Both are called with the group of the dialog open. A setting that is missing, or makes no sense any more, leaves
    /// the dialog as it is.
    virtual void save(QSettings& settings) const = 0;
    virtual void restore(QSettings const& settings) = 0;
};

} // namespace vantrix::dialogs::common
