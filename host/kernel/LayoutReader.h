#pragma once

#include "kernel/DataHistory.h"
#include "kernel/Document.h"
#include "kernel/LayoutUnknown.h"
#include "kernel/StyleStore.h"

#include <filesystem>
#include <initializer_list>
#include <istream>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vantrix::kernel {

/*
 * A layout as it is read: pages and frames with their data and style, that nobody shows yet. Data are read on the way,
 * so that whatever is wrong with a layout is found before anything is replaced.
 */
class LayoutReader
{
public:
    LayoutReader(Document& document, const StyleStore& style, ReportProgress progress)
        : m_document(document)
        , m_style(style)
        , m_progress(std::move(progress))
    {}

    /* `folder` is where relative names of data files begin. Throws DataError that names the line and the cause. */
    void read(std::istream& stream, const std::filesystem::path& folder);

    struct Style
    {
        long scopeId;
        std::vector<StyleStore::Stored> values;
        std::vector<long> lines; /* of the file, of each value */
    };

    std::vector<std::shared_ptr<Page>> pages;
    std::size_t activePage = 0;
    std::vector<Style> styles; /* of each page and frame */
    LayoutUnknown unknown;

private:
    void readLine(const std::string& text);
    void readCommand(const MacroCommand& command, const std::string& text, bool isIndented);
    bool isOfDataSet(const MacroCommand& command, bool isIndented) const;
    void beginDataSet(const MacroCommand& command);
    void beginPage(const MacroCommand& command);
    void beginFrame(const MacroCommand& command);
    void addStyle(const MacroCommand& command, const std::string& text);
    void addData(MacroCommand command);
    void finishDataSet();
    template<class Object>
    void addObject(const MacroCommand& command);
    void keepUnknown(const std::string& line);
    void keepUnknown(const MacroCommand& command, std::initializer_list<std::string_view> known,
                     std::vector<MacroCommand::Argument>& kept);
    void checkPlotTypes();
    void checkAxisRanges();

    Document& m_document;
    const StyleStore& m_style;
    ReportProgress m_progress;
    std::filesystem::path m_folder;
    long m_line = 1; /* of the file, that is being read or checked */
    bool m_hasHead = false;
    std::unique_ptr<DataSet> m_dataSet; /* being made */
    long m_dataSetId = 0;
    bool m_isInUnknown = false; /* behind an entry beside the data set that is not known */
    std::map<long, std::shared_ptr<const DataSet>> m_dataSets;
    std::shared_ptr<Frame> m_frame;
};

} // namespace vantrix::kernel
