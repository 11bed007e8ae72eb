#pragma once

#include "propertymanager/generated/UIKernelStylePropertiesInterface.h"

#include <boost/shared_ptr.hpp>

#include <type_traits>
#include <vector>

namespace vantrix::sdk::ui::propertymanager {

/// What every generated property set shares. Sets live on the thread of the user interface; a nested set lives in the
/// set that it is nested in.
class UIKernelStylePropertiesAbstract : public virtual UIKernelStylePropertiesInterface
{
public:
    UIKernelStylePropertiesAbstract* parent() const override { return m_parent; }
    void init() override;
    bool isModal() const override { return m_modal; }
    void submit() override;
    void setCollectionOffset(int const& offset) override;
    int collectionOffset() const override { return m_collectionOffset; }
    void parentSubmitted() override;

protected:
    explicit UIKernelStylePropertiesAbstract(bool modal);
    /// A nested set is modal when the one around it is.
    explicit UIKernelStylePropertiesAbstract(UIKernelStylePropertiesAbstract* parent);

    /// What init() aims the members at again.
    void rememberOffset(int first, int second);

    /// Puts a set of a derived kind in the place of a nested one, in the constructor of a derived set.
    template<typename Set>
    void replaceNested(boost::shared_ptr<Set>& nested, std::type_identity_t<boost::shared_ptr<Set>> replacement)
    {
        forget(*nested);
        nested = std::move(replacement);
    }

private:
    void forget(UIKernelStylePropertiesAbstract const& nested);

    UIKernelStylePropertiesAbstract* m_parent = nullptr;
    std::vector<UIKernelStylePropertiesAbstract*> m_nested;
    bool m_modal;
    int m_collectionOffset = -1;
    int m_firstOffset = -1;
    int m_secondOffset = -1;
};

} // namespace vantrix::sdk::ui::propertymanager
