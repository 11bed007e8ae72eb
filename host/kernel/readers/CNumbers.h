#pragma once

#include <clocale>
#include <locale.h>

namespace vantrix::kernel::readers {

/* While it lives, numbers on this thread have a decimal point, whatever the user's locale: some readers ask it. */
class CNumbers
{
public:
    CNumbers()
        : m_numbers(newlocale(LC_NUMERIC_MASK, "C", duplocale(LC_GLOBAL_LOCALE)))
        , m_before(uselocale(m_numbers))
    {}
    ~CNumbers()
    {
        uselocale(m_before);
        freelocale(m_numbers);
    }
    CNumbers(const CNumbers&) = delete;
    CNumbers& operator=(const CNumbers&) = delete;

private:
    locale_t m_numbers;
    locale_t m_before;
};

} // namespace vantrix::kernel::readers
