#pragma once

#include <string>

namespace vantrix::sdk::ui::dialogs::propertybindings::intern {

/// Reads a value from the text of a field, in the C locale whatever the user's is.
///
/// A number must stand at the very start of the text: a leading blank is an error. What follows the number is ignored.
class StringConverter
{
public:
    /// @param text  UTF-8
    explicit StringConverter(std::string text);

    /// @throws vantrix::InvalidArgumentException when the text does not begin with a number of that type, or the number
    /// does not fit; the argument is then unspecified.
    void convert(short& value) const;
    void convert(int& value) const;
    void convert(long& value) const;
    void convert(double& value) const;

    /// The text itself.
    void convert(std::string& value) const;

private:
    template<typename T>
    void extract(T& value) const;

    std::string m_text;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::intern
