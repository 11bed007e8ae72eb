#pragma once

#include "kernel/FrontEnd.h"

#include <functional>
#include <string>
#include <utility>

namespace vantrix::kernel {

/* Told how much of some work is done, from 0 to 1; false when the work is to stop. */
using ReportProgress = std::function<bool(double)>;

/*
 * Long work as the user sees it: the program is busy, and how far it is can be reported, from the thread of the user
 * interface. However the work ends, both go from the screen with this object.
 */
class Progress
{
public:
    Progress(FrontEnd& frontEnd, std::string task)
        : m_frontEnd(frontEnd)
        , m_task(std::move(task))
    {
        m_frontEnd.setBusy(true);
    }
    ~Progress()
    {
        m_frontEnd.reportProgress(m_task, 2.0);
        m_frontEnd.setBusy(false);
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /* For work that is done while this object lives. */
    ReportProgress report() const
    {
        return [this](double fraction) { return m_frontEnd.reportProgress(m_task, fraction); };
    }

private:
    FrontEnd& m_frontEnd;
    std::string m_task;
};

} // namespace vantrix::kernel
