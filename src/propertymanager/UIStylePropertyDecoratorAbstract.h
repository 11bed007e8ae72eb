#pragma once

#include "propertymanager/UIStylePropertyAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// Shows a UI style property in another form than the one it is stored in. A subclass supplies retrieveValue() (inner
/// to outer) and storeValue() (outer to inner). The decorator is visible and sensitive exactly when the wrapped
/// property is, and relevances that are added to it are added there.
template<typename Outer, typename Inner>
class UIStylePropertyDecoratorAbstract : public UIStylePropertyAbstract<Outer>
{
public:
    /// @param wrapped  not owned; must outlive the decorator
    explicit UIStylePropertyDecoratorAbstract(UIStylePropertyAbstract<Inner>& wrapped,
                                              boost::shared_ptr<ValidatorInterface<Outer> const> validator =
                                                  boost::make_shared<AllowAnyValueValidator<Outer>>())
        : UIStylePropertyAbstract<Outer>(std::move(validator))
        , m_wrapped(wrapped)
    {}

    void addVisibilityRelevance(RelevanceInterface& relevance) override { m_wrapped.addVisibilityRelevance(relevance); }
    void addSensitivityRelevance(RelevanceInterface& relevance) override
    {
        m_wrapped.addSensitivityRelevance(relevance);
    }
    void removeVisibilityRelevance(RelevanceInterface& relevance) override
    {
        m_wrapped.removeVisibilityRelevance(relevance);
    }
    void removeSensitivityRelevance(RelevanceInterface& relevance) override
    {
        m_wrapped.removeSensitivityRelevance(relevance);
    }
    bool isVisible() const override { return m_wrapped.isVisible(); }
    bool isSensitive() const override { return m_wrapped.isSensitive(); }

    /// The three relays start with the first listener.
    void signalValueChangedConnected() const override
    {
        if (!m_valueConnection.connected()) {
            m_valueConnection = m_wrapped.connectToValueChangedSignal([this](Inner const&) { valueChanged(); });
        }
    }
    void signalVisibilityChangedConnected() const override
    {
        if (!m_visibilityConnection.connected()) {
            m_visibilityConnection =
                m_wrapped.connectToVisibilityChangedSignal([this] { this->m_visibilityChanged(); });
        }
    }
    void signalSensitivityChangedConnected() const override
    {
        if (!m_sensitivityConnection.connected()) {
            m_sensitivityConnection =
                m_wrapped.connectToSensitivityChangedSignal([this] { this->m_sensitivityChanged(); });
        }
    }

protected:
    UIStylePropertyAbstract<Inner>& wrapped() const { return m_wrapped; }

    /// Tells the decorator's listeners that the wrapped property has another value.
    void valueChanged() const { this->emitValueChangedSignal(this->retrieveValue()); }

private:
    UIStylePropertyAbstract<Inner>& m_wrapped;
    mutable boost::signals2::scoped_connection m_valueConnection;
    mutable boost::signals2::scoped_connection m_visibilityConnection;
    mutable boost::signals2::scoped_connection m_sensitivityConnection;
};

} // namespace vantrix::sdk::ui::propertymanager
