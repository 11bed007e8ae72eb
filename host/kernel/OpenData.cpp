#include "kernel/OpenData.h"

#include "kernel/ApplicationLock.h"
#include "kernel/DataError.h"
#include "kernel/DataReader.h"
#include "kernel/Document.h"
#include "kernel/FrontEnd.h"
#include "kernel/Kernel.h"
#include "kernel/PlotDefaults.h"
#include "kernel/SampleData.h"
#include "kernel/UndoStack.h"

namespace vantrix::kernel {

namespace {

class Busy
{
public:
    explicit Busy(FrontEnd& frontEnd)
        : m_frontEnd(frontEnd)
    {
        m_frontEnd.setBusy(true);
    }
    ~Busy() { m_frontEnd.setBusy(false); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    FrontEnd& m_frontEnd;
};

class Locked
{
public:
    explicit Locked(ApplicationLock& lock)
        : m_lock(lock)
    {
        m_lock.start(true);
    }
    ~Locked() { m_lock.finish(); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

private:
    ApplicationLock& m_lock;
};

/* Takes the progress away from the screen however the work ends. */
class Progress
{
public:
    Progress(FrontEnd& frontEnd, std::string task)
        : m_frontEnd(frontEnd)
        , m_task(std::move(task))
    {}
    ~Progress() { m_frontEnd.reportProgress(m_task, 2.0); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    bool report(double fraction) { return m_frontEnd.reportProgress(m_task, fraction); }

private:
    FrontEnd& m_frontEnd;
    std::string m_task;
};

} // namespace

void OpenData::files(const std::vector<std::string>& names)
{
    DataSet read = m_kernel.document().newDataSet();
    {
        const Busy busy(m_kernel.frontEnd());
        Progress progress(m_kernel.frontEnd(), "Reading data");
        DataReader::read(names, read, [&](double fraction) { return progress.report(fraction); });
    }
    show(std::move(read), "Open");
}

void OpenData::sample(const std::string& name)
{
    DataSet made = m_kernel.document().newDataSet();
    SampleData::make(name, made);
    show(std::move(made), "Open Sample");
}

void OpenData::show(DataSet dataSet, const char* stepName)
{
    Frame* frame = m_kernel.document().activeFrame();
    if (!frame) {
        throw DataError("There is no frame to show the data in. Create a frame first.");
    }
    const Locked locked(m_kernel.lock());
    m_kernel.undoStack().nameStep(stepName);
    m_kernel.document().attachDataSet(*frame, std::make_shared<const DataSet>(std::move(dataSet)));
    PlotDefaults::apply(*frame);
}

} // namespace vantrix::kernel
