#include "ReadFiles.h"

#include "kernel/DataError.h"
#include "kernel/DataReader.h"

#include <gtest/gtest.h>

#include <fstream>

using namespace vantrix::kernel;

namespace readfiles {

DataSet readFiles(const std::vector<std::string>& files)
{
    DataSet dataSet(1);
    DataReader::read(files, dataSet, [](double) { return true; });
    return dataSet;
}

std::string refusal(const std::vector<std::string>& files)
{
    testing::internal::CaptureStderr();
    std::string text = "nothing was refused";
    try {
        readFiles(files);
    } catch (const DataError& error) {
        text = error.what();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << files.front();
    return text;
}

double at(const DataSet& dataSet, const std::string& variable, long index, long zone)
{
    const FieldArray* field = dataSet.field(zone, dataSet.variableNumber(variable));
    if (!field || !field->values) {
        ADD_FAILURE() << "no values of " << variable;
        return 0.0;
    }
    return field->values->GetComponent(index, 0);
}

std::vector<std::string> names(const DataSet& dataSet)
{
    std::vector<std::string> result;
    for (const Variable& variable : dataSet.variables) {
        result.push_back(variable.name);
    }
    return result;
}

std::string contents(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace readfiles
