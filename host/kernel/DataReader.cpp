#include "kernel/DataReader.h"

#include "kernel/DataError.h"
#include "kernel/VariableFiles.h"
#include "kernel/readers/ArraySelection.h"
#include "kernel/readers/BlockImport.h"
#include "kernel/readers/CNumbers.h"
#include "kernel/readers/FileFormats.h"
#include "kernel/readers/VtkMessages.h"

#include <vtkCallbackCommand.h>
#include <vtkCommand.h>
#include <vtkNew.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <new>

namespace vantrix::kernel {

namespace {

using namespace readers;

std::string quoted(const std::string& file)
{
    return "\"" + file + "\"";
}

std::string suffixOf(const std::string& file)
{
    std::string suffix = std::filesystem::path(file).extension().string();
    suffix.erase(0, 1);
    std::transform(suffix.begin(), suffix.end(), suffix.begin(), [](unsigned char c) { return std::tolower(c); });
    return suffix;
}

void expectReadable(const std::string& file)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(file, error);
    if (!std::filesystem::exists(status)) {
        throw DataError("The file " + quoted(file) + " does not exist. Choose a file that does.");
    }
    if (std::filesystem::is_directory(status)) {
        throw DataError(quoted(file) + " is a folder. Choose a file in it.");
    }
    if (!std::ifstream(file)) {
        throw DataError("The file " + quoted(file) + " cannot be opened. You need the permission to read it.");
    }
    if (std::filesystem::file_size(file, error) == 0) {
        throw DataError("The file " + quoted(file) + " is empty. Choose one that holds data.");
    }
}

/* Runs readers one after the other over a span of the progress, and makes their failures ours. */
class Run
{
public:
    Run(const ReportProgress& progress, std::size_t readerCount, const std::string& onlyVariable)
        : m_progress(progress)
        , m_onlyVariable(onlyVariable)
        , m_share(1.0 / static_cast<double>(readerCount))
    {
        report(0.0);
    }

    /* Null when VTK could not read all of it; failure() tells why. */
    vtkSmartPointer<vtkDataObject> read(vtkAlgorithm& reader)
    {
        vtkNew<vtkCallbackCommand> observer;
        observer->SetClientData(this);
        observer->SetCallback([](vtkObject* caller, unsigned long, void* self, void*) {
            auto* algorithm = static_cast<vtkAlgorithm*>(caller);
            if (!static_cast<Run*>(self)->ask(algorithm->GetProgress())) {
                algorithm->AbortExecuteOn();
            }
        });
        if (!m_onlyVariable.empty()) {
            selectArraysOf(reader, m_onlyVariable);
        }
        const unsigned long tag = reader.AddObserver(vtkCommand::ProgressEvent, observer);
        reader.Update();
        reader.RemoveObserver(tag);
        report(1.0);
        vtkDataObject* output = reader.GetOutputDataObject(0);
        return m_messages.failure().empty() && reader.GetErrorCode() == 0 ? output : nullptr;
    }

    std::string failure() const { return m_messages.failure().empty() ? "it is not complete" : m_messages.failure(); }

    void nextReader() { m_done += m_share; }

private:
    bool ask(double fraction)
    {
        m_isStopped = m_isStopped || !m_progress(std::min(m_done + m_share * fraction, 1.0));
        return !m_isStopped;
    }

    void report(double fraction)
    {
        if (!ask(fraction)) {
            throw ActionCancelled();
        }
    }

    const ReportProgress& m_progress;
    const std::string& m_onlyVariable; /* empty for all */
    VtkMessages m_messages;
    double m_share;
    double m_done = 0.0;
    bool m_isStopped = false;
};

[[noreturn]] void refuse(const std::string& file, const std::string& format, const std::string& cause)
{
    throw DataError("The file " + quoted(file) + " cannot be read as " + format + ": " + cause +
                    ". It must be a complete file of that format.");
}

/* An import that tells of which file a failure is. */
void import(vtkDataObject& object, const std::string& file, const std::string& format, BlockImport& blocks)
{
    BlockImport trial;
    try {
        trial.add(object, std::filesystem::path(file).stem().string());
        if (trial.isEmpty()) {
            throw DataError("it has no points");
        }
    } catch (const DataError& error) {
        refuse(file, format, error.what());
    }
    blocks.add(std::move(trial));
}

void readFile(const std::string& file, const FileFormat& format, Run& run, BlockImport& blocks)
{
    vtkSmartPointer<vtkAlgorithm> reader;
    try {
        reader = format.makeReader(file);
    } catch (const DataError& error) {
        refuse(file, format.name, error.what());
    }
    const vtkSmartPointer<vtkDataObject> object = run.read(*reader);
    if (!object) {
        refuse(file, format.name, run.failure());
    }
    import(*object, file, format.name, blocks);
    run.nextReader();
}

void readPlot3d(const std::vector<std::string>& files, Run& run, BlockImport& blocks)
{
    if (files.size() > 2) {
        throw DataError("PLOT3D data is a grid and a solution on it; " + std::to_string(files.size()) +
                        " files are too many. Choose those two, or the grid alone.");
    }
    const bool isPair = files.size() == 2;
    std::string cause;
    for (std::size_t grid = 0; grid < files.size(); ++grid) {
        const std::string solution = isPair ? files[1 - grid] : std::string();
        vtkSmartPointer<vtkAlgorithm> reader;
        try {
            reader = makePlot3dReader(files[grid], solution);
        } catch (const DataError& error) {
            cause += (cause.empty() ? "" : "; ") + std::string(error.what());
            continue;
        }
        const vtkSmartPointer<vtkDataObject> object = run.read(*reader);
        if (!object) {
            refuse(files[grid], "PLOT3D grid", run.failure());
        }
        import(*object, files[grid], "PLOT3D grid", blocks);
        run.nextReader();
        return;
    }
    throw DataError("The file " + quoted(files[0]) + (isPair ? " and " + quoted(files[1]) : "") +
                    " cannot be read as PLOT3D: " + cause + ". Choose a grid, or a grid and a solution on it.");
}

/* `onlyVariable` is empty for all. */
void readFiles(const std::vector<std::string>& files, const std::string& onlyVariable, DataSet& dataSet,
               const ReportProgress& progress)
{
    if (files.empty()) {
        throw DataError("No file is named. Choose at least one.");
    }
    std::vector<std::string> plot3dFiles;
    for (const std::string& file : files) {
        expectReadable(file);
        const std::string suffix = suffixOf(file);
        if (isPlot3dSuffix(suffix)) {
            plot3dFiles.push_back(file);
        } else if (!formatForSuffix(suffix)) {
            throw DataError("The file " + quoted(file) + " has the suffix \"" + suffix +
                            "\", which tells no known format. Known ones: " + knownSuffixes() + ".");
        }
    }
    const CNumbers numbers;
    Run run(progress, files.size() - plot3dFiles.size() + (plot3dFiles.empty() ? 0 : 1), onlyVariable);
    BlockImport blocks;
    try {
        for (const std::string& file : files) {
            if (const FileFormat* format = formatForSuffix(suffixOf(file))) {
                readFile(file, *format, run, blocks);
            }
        }
        if (!plot3dFiles.empty()) {
            readPlot3d(plot3dFiles, run, blocks);
        }
        blocks.fill(dataSet);
    } catch (const std::bad_alloc&) {
        throw DataError("There is not enough memory to read " + quoted(files.front()) + ".");
    }
}

} // namespace

void DataReader::read(const std::vector<std::string>& files, DataSet& dataSet, const ReportProgress& progress)
{
    readFiles(files, {}, dataSet, progress);
    VariableFiles::attach(dataSet, files);
    dataSet.title = std::filesystem::path(files.front()).filename().string();
}

void DataReader::readVariable(const std::vector<std::string>& files, const std::string& variable, DataSet& dataSet)
{
    readFiles(files, variable, dataSet, [](double) { return true; });
}

} // namespace vantrix::kernel
