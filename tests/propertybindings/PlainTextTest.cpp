#include "propertybindings/PlainText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

using vantrix::sdk::ui::dialogs::propertybindings::plainText;

TEST(PlainText, IsWhatAStreamWritesInTheClassicLocale)
{
    for (double const value : {0.0, -0.0, 1.0, 0.1, -2.5, 999999.5, 1e6, 123456.7, 1.0 / 3.0, 1e-5, 0.0001, 5e-324,
                               1e300, 1.7976931348623157e308, std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(), std::nan("")}) {
        std::ostringstream stream;
        stream.imbue(std::locale::classic());
        stream << value;
        EXPECT_EQ(plainText(value).toStdString(), stream.str());
    }
    EXPECT_EQ(plainText(std::numeric_limits<int>::min()).toStdString(), "-2147483648");
    EXPECT_EQ(plainText(std::numeric_limits<long>::max()).toStdString(), "9223372036854775807");
    EXPECT_EQ(plainText(std::string("Größe")).toStdString(), "Größe");
}
