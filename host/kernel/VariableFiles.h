#pragma once

#include <vtkDataArray.h>
#include <vtkSmartPointer.h>

#include <filesystem>
#include <string>
#include <vector>

namespace vantrix::kernel {

class DataSet;

/* The files that a data set was read from, from which its variables can be read again. */
class VariableFiles
{
public:
    explicit VariableFiles(const std::vector<std::string>& files);

    /* Lets every variable that a data set just read from these files has come back from them. */
    static void attach(DataSet& dataSet, const std::vector<std::string>& files);

    /*
     * The values of a variable in a zone (by number from 1). The variable is read of all zones; those of the other
     * zones are kept until another one is asked for. Throws DataError, with a text that names the file, when a file is
     * gone, has changed since or does not have them.
     */
    vtkSmartPointer<vtkDataArray> read(const std::string& variable, std::size_t zone);

    /* How often variables were read again in this process. */
    static unsigned long readCount();

private:
    struct File
    {
        std::string name;
        std::uintmax_t size;
        std::filesystem::file_time_type time;
        bool operator==(const File&) const = default;
    };

    static File describe(const std::string& name);
    void expectUnchanged(const std::string& variable) const;

    std::vector<File> m_files;
    std::string m_variable;
    std::vector<vtkSmartPointer<vtkDataArray>> m_values; /* of `m_variable`, one a zone */
};

} // namespace vantrix::kernel
