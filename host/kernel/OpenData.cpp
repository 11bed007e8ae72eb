#include "kernel/OpenData.h"

#include "kernel/ApplicationLock.h"
#include "kernel/DataError.h"
#include "kernel/DataHistory.h"
#include "kernel/DataReader.h"
#include "kernel/Document.h"
#include "kernel/FrontEnd.h"
#include "kernel/Kernel.h"
#include "kernel/PlotDefaults.h"
#include "kernel/SampleData.h"
#include "kernel/UndoStack.h"
#include "kernel/macro/MacroRecorder.h"

#include <filesystem>

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
    std::vector<std::string> paths;
    paths.reserve(names.size());
    for (const std::string& name : names) {
        paths.push_back(std::filesystem::absolute(name).string());
    }
    show(std::move(read), "Open", DataHistory::reading(paths));
}

void OpenData::sample(const std::string& name)
{
    DataSet made = m_kernel.document().newDataSet();
    SampleData::make(name, made);
    show(std::move(made), "Open Sample", DataHistory::readingSample(name));
}

void OpenData::show(DataSet dataSet, const char* stepName, MacroCommand command)
{
    dataSet.history = {std::make_shared<const MacroCommand>(command)};
    Frame* frame = m_kernel.document().activeFrame();
    if (!frame) {
        throw DataError("There is no frame to show the data in. Create a frame first.");
    }
    const ActionLock lock(m_kernel.lock());
    MacroRecorder::Call call(m_kernel.macroRecorder(), m_kernel.lock().isRecorded());
    m_kernel.undoStack().nameStep(stepName);
    m_kernel.document().attachDataSet(*frame, std::make_shared<const DataSet>(std::move(dataSet)));
    PlotDefaults::apply(*frame);
    if (call.isDescribed()) {
        call.succeeded(std::move(command));
    }
}

} // namespace vantrix::kernel
