#pragma once

#include <boost/signals2.hpp>

namespace vantrix::sdk::ui::propertymanager {

class UIKernelStylePropertiesAbstract;

/// A tree of kernel style properties for one area of the style.
class UIKernelStylePropertiesInterface
{
public:
    UIKernelStylePropertiesInterface() = default;
    UIKernelStylePropertiesInterface(UIKernelStylePropertiesInterface const&) = delete;
    UIKernelStylePropertiesInterface& operator=(UIKernelStylePropertiesInterface const&) = delete;
    virtual ~UIKernelStylePropertiesInterface() = default;

    /// The set that this one is nested in; null for a top-level set.
    virtual UIKernelStylePropertiesAbstract* parent() const = 0;

    /// Takes the host's present values; edits of a modal set that were not submitted are dropped. Sends `initialized`.
    virtual void init() = 0;

    /// Whether edits wait for a submit.
    virtual bool isModal() const = 0;

    /// Writes all edits of a modal set to the host as one step, then sends `submitted`, nested sets included.
    /// @throws MemberRefusedException when the host refuses a value; the host is then as it was before and the edits
    ///         are still there
    virtual void submit() = 0;

    /// Aims the set at one object of a collection (an axis number, a constraint number), counted from 1.
    virtual void setCollectionOffset(int const& offset) = 0;

    /// The object that the set is aimed at; -1 until it is aimed.
    virtual int collectionOffset() const = 0;

    /// Writes what differs from the host, member by member in the order of declaration. Nothing in a modeless set,
    /// whose edits are with the host already. A refusal leaves the members before it written; see submit().
    virtual void submitProperties() = 0;

    /// Aims every member at another object, nested sets included except those that are collections of their own.
    /// Members signal when the new object's value differs.
    virtual void setOffset(int first, int second) = 0;

    /// Told to a nested set after the set that it is nested in was submitted.
    virtual void parentSubmitted() = 0;

    /// Called when a slot connects to the signal; a subclass may override it.
    virtual void signalInitializedConnected() const {}
    virtual void signalSubmittedConnected() const {}

    template<typename Slot>
    boost::signals2::connection connectToInitializedSignal(Slot const& slot)
    {
        boost::signals2::connection connection = m_initialized.connect(slot);
        signalInitializedConnected();
        return connection;
    }

    template<typename Slot>
    boost::signals2::connection connectToSubmittedSignal(Slot const& slot)
    {
        boost::signals2::connection connection = m_submitted.connect(slot);
        signalSubmittedConnected();
        return connection;
    }

protected:
    boost::signals2::signal<void()> m_initialized;
    boost::signals2::signal<void()> m_submitted;
};

} // namespace vantrix::sdk::ui::propertymanager
