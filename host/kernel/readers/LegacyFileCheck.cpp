#include "kernel/readers/LegacyFileCheck.h"

#include "kernel/DataError.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace vantrix::kernel::readers {

void expectWholeLegacyPoints(const std::string& file)
{
    constexpr int headerLines = 64; /* more than any file has before its points */
    std::ifstream stream(file, std::ios::binary);
    std::string line;
    bool isBinary = false;
    for (int i = 0; i < headerLines && std::getline(stream, line); ++i) {
        std::istringstream words(line);
        std::string word, type;
        double count = 0.0;
        words >> word;
        isBinary = isBinary || word == "BINARY";
        if (word != "POINTS" || !isBinary || !(words >> count >> type)) {
            continue;
        }
        const auto there = static_cast<double>(std::filesystem::file_size(file)) - static_cast<double>(stream.tellg());
        const double size = type == "double" ? 8.0 : type == "float" ? 4.0 : 1.0;
        if (there < 3.0 * size * count) {
            throw DataError("it ends within its points");
        }
        return;
    }
}

} // namespace vantrix::kernel::readers
