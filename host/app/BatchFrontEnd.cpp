#include "app/BatchFrontEnd.h"

#include <iostream>

namespace vantrix::app {

bool BatchFrontEnd::showMessage(const std::string& text, MessageBox_e type)
{
    m_hasFailed = m_hasFailed || type == MessageBox_Error;
    std::cerr << "vxplot: " << text << '\n';
    return true;
}

void BatchFrontEnd::showStatus(const std::string& text)
{
    if (!text.empty()) {
        std::cerr << "vxplot: " << text << '\n';
    }
}

} // namespace vantrix::app
