#include "kernel/readers/LegacyFileCheck.h"

#include "kernel/DataError.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace vantrix::kernel::readers {

namespace {

double bytesOf(double values, const std::string& type)
{
    if (type == "bit") {
        return (values + 7.0) / 8.0;
    }
    if (type == "double" || type == "long" || type == "unsigned_long" || type == "vtkIdType" ||
        type == "vtktypeint64") {
        return 8.0 * values;
    }
    if (type == "short" || type == "unsigned_short") {
        return 2.0 * values;
    }
    if (type == "char" || type == "unsigned_char" || type == "signed_char") {
        return values;
    }
    return 4.0 * values;
}

/* Walks from keyword to keyword and steps over the binary arrays between them. */
class LegacyWalk
{
public:
    explicit LegacyWalk(const std::string& file)
        : m_stream(file, std::ios::binary)
        , m_size(static_cast<double>(std::filesystem::file_size(file)))
    {}

    void run()
    {
        std::string line;
        for (int i = 0; i < 3 && std::getline(m_stream, line); ++i) {
        }
        if (line.rfind("BINARY", 0) != 0) {
            return;
        }
        while (std::getline(m_stream, line)) {
            section(std::istringstream(line));
        }
    }

private:
    void section(std::istringstream words)
    {
        std::string keyword, name, type;
        double count = 0.0, components = 1.0;
        words >> keyword;
        if (keyword == "POINTS" || keyword.ends_with("_COORDINATES")) {
            words >> count >> type;
            step(keyword, bytesOf((keyword == "POINTS" ? 3.0 : 1.0) * count, type));
        } else if (keyword == "CELLS" || keyword == "VERTICES" || keyword == "LINES" || keyword == "POLYGONS" ||
                   keyword == "TRIANGLE_STRIPS") {
            words >> m_offsets >> m_connectivity;
            cells(keyword);
        } else if (keyword == "OFFSETS" || keyword == "CONNECTIVITY") {
            words >> type;
            step(keyword, bytesOf(keyword == "OFFSETS" ? m_offsets : m_connectivity, type));
        } else if (keyword == "CELL_TYPES") {
            words >> count;
            step(keyword, 4.0 * count);
        } else if (keyword == "POINT_DATA" || keyword == "CELL_DATA") {
            words >> m_tuples;
        } else if (keyword == "SCALARS") {
            words >> name >> type;
            words >> components;
            std::string lookupTable;
            std::getline(m_stream, lookupTable);
            step(name, bytesOf(m_tuples * (words ? components : 1.0), type));
        } else if (keyword == "LOOKUP_TABLE") {
            words >> name >> count;
            step(name, 4.0 * count);
        } else if (keyword == "COLOR_SCALARS") {
            words >> name >> components;
            step(name, m_tuples * components);
        } else if (keyword == "TEXTURE_COORDINATES") {
            words >> name >> components >> type;
            step(name, bytesOf(m_tuples * components, type));
        } else if (keyword == "FIELD") {
            words >> name >> count;
            field(count);
        } else if (const double each = componentsOf(keyword); each > 0.0) {
            words >> name >> type;
            step(name, bytesOf(m_tuples * each, type));
        }
    }

    static double componentsOf(const std::string& keyword)
    {
        return keyword == "VECTORS" || keyword == "NORMALS"           ? 3.0
               : keyword == "TENSORS"                                 ? 9.0
               : keyword == "TENSORS6"                                ? 6.0
               : keyword == "GLOBAL_IDS" || keyword == "PEDIGREE_IDS" ? 1.0
                                                                      : 0.0;
    }

    /* Since version 5 a line with "OFFSETS" follows; before it the numbers themselves do. */
    void cells(const std::string& keyword)
    {
        const auto here = m_stream.tellg();
        std::string next;
        m_stream >> next;
        m_stream.clear();
        m_stream.seekg(here);
        if (next != "OFFSETS") {
            step(keyword, 4.0 * m_connectivity);
        }
    }

    void field(double arrays)
    {
        std::string line;
        while (arrays > 0.0 && std::getline(m_stream, line)) {
            std::istringstream words(line);
            std::string name, type;
            double components = 0.0, tuples = 0.0;
            if (words >> name >> components >> tuples >> type) {
                step(name, bytesOf(components * tuples, type));
                --arrays;
            }
        }
        if (arrays > 0.0) {
            throw DataError("it ends within its field data");
        }
    }

    void step(const std::string& what, double bytes)
    {
        const double end = static_cast<double>(m_stream.tellg()) + bytes;
        if (!m_stream || end > m_size) {
            throw DataError("it ends within \"" + what + "\"");
        }
        m_stream.seekg(static_cast<std::streamoff>(end));
    }

    std::ifstream m_stream;
    double m_size;
    double m_tuples = 0.0;
    double m_offsets = 0.0;
    double m_connectivity = 0.0;
};

} // namespace

void expectWholeLegacyFile(const std::string& file)
{
    LegacyWalk(file).run();
}

} // namespace vantrix::kernel::readers
