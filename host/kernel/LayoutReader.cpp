#include "kernel/LayoutReader.h"

#include "kernel/AxisRangeRules.h"
#include "kernel/DataError.h"
#include "kernel/GeometryValues.h"
#include "kernel/PlotAxes.h"
#include "kernel/StreamtraceValues.h"
#include "kernel/StyleActions.h"
#include "kernel/StyleCheck.h"
#include "kernel/StylePath.h"
#include "kernel/TextValues.h"
#include "kernel/macro/MacroCommand.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantrix::kernel {

namespace {

constexpr long layoutVersion = 1;
constexpr std::array<std::string_view, 4> styleArguments{"Path", "Object", "Object2", "Value"};

bool flagOf(const MacroCommand& command, const char* name)
{
    return command.find(name) && command.integer(name) != 0;
}

const std::set<long>& setOf(const MacroCommand& command, const char* name)
{
    static const std::set<long> none;
    const MacroValue* value = command.find(name);
    const auto* numbers = value ? std::get_if<std::set<long>>(value) : nullptr;
    if (value && !numbers) {
        throw DataError('"' + std::string(name) + "\" has to be a set of numbers in braces, as in {1-3,7}.");
    }
    return numbers ? *numbers : none;
}

} // namespace

void LayoutReader::read(std::istream& stream, const std::filesystem::path& folder)
{
    m_folder = folder;
    std::string text;
    try {
        for (; std::getline(stream, text); ++m_line) {
            readLine(m_line == 1 ? std::string(withoutByteOrderMark(text)) : text);
        }
        finishDataSet();
        if (!m_hasHead) {
            throw DataError("the file is empty; it is no layout.");
        }
        if (pages.empty()) {
            throw DataError("the layout has no page.");
        }
        checkPlotTypes();
        checkAxisRanges();
    } catch (const ActionCancelled&) {
        throw;
    } catch (const std::exception& failure) {
        throw DataError("line " + std::to_string(m_line) + ": " + failure.what());
    }
    for (const auto& page : pages) {
        if (page->frames.empty()) {
            page->frames.push_back(std::make_shared<Frame>(m_document.newId()));
        }
        page->activeFrame = page->activeFrame > 0 ? page->activeFrame : static_cast<long>(page->frames.size());
    }
}

void LayoutReader::readLine(const std::string& text)
{
    const std::vector<MacroCommand> commands = parseMacroLine(text);
    if (commands.empty()) {
        return;
    }
    if (commands.size() > 1) {
        throw DataError("one entry a line is expected.");
    }
    const std::size_t begin = text.find_first_not_of(" \t");
    readCommand(commands.front(), text.substr(begin), begin > 0);
}

void LayoutReader::readCommand(const MacroCommand& command, const std::string& text, bool isIndented)
{
    if (!m_hasHead) {
        if (command.name != "Layout") {
            throw DataError("a layout begins with \"Layout Version=1\".");
        }
        if (command.integer("Version") > layoutVersion) {
            throw DataError("the layout has version " + std::to_string(command.integer("Version")) +
                            "; this program knows versions up to " + std::to_string(layoutVersion) + '.');
        }
        m_hasHead = true;
        keepUnknown(command, {"Version"}, unknown.arguments[0]);
    } else if (command.name == "DataSet") {
        beginDataSet(command);
    } else if (command.name == "Page") {
        beginPage(command);
    } else if (command.name == "Frame") {
        beginFrame(command);
    } else if (isOfDataSet(command, isIndented)) {
        addData(command);
    } else if (command.name == "StyleSet") {
        addStyle(command, text);
    } else if (command.name == "Text" && m_frame) {
        addObject<Text>(command);
    } else if (command.name == "Geometry" && m_frame) {
        addObject<Geometry>(command);
    } else if (command.name == "Streamtrace" && m_frame) {
        addObject<Streamtrace>(command);
    } else {
        m_isInUnknown = true;
        keepUnknown(text);
    }
}

/* What is not known stands beside the data set, unless it is indented below it: then it could be a way to make data. */
bool LayoutReader::isOfDataSet(const MacroCommand& command, bool isIndented) const
{
    const bool isKnown = command.name == "DataState" || DataHistory::knows(command.name);
    return m_dataSet && (isKnown || (isIndented && !m_isInUnknown));
}

void LayoutReader::keepUnknown(const std::string& line)
{
    unknown.lines[styles.empty() ? 0 : styles.back().scopeId].push_back(line);
    unknown.texts.push_back(line);
}

void LayoutReader::keepUnknown(const MacroCommand& command, std::initializer_list<std::string_view> known,
                               std::vector<MacroCommand::Argument>& kept)
{
    for (const MacroCommand::Argument& argument : command.arguments) {
        if (std::ranges::find(known, argument.first) == known.end()) {
            kept.push_back(argument);
            unknown.texts.push_back(macroText(MacroCommand{command.name, {argument}}));
        }
    }
}

void LayoutReader::beginDataSet(const MacroCommand& command)
{
    finishDataSet();
    m_dataSetId = command.integer("Id");
    if (m_dataSets.contains(m_dataSetId)) {
        throw DataError("there is a data set " + std::to_string(m_dataSetId) + " already.");
    }
    m_dataSet = std::make_unique<DataSet>(m_document.newDataSet());
    keepUnknown(command, {"Id"}, unknown.arguments[m_dataSet->id()]);
    m_isInUnknown = false;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): its file names are changed
void LayoutReader::addData(MacroCommand command)
{
    if (command.name == "DataState") {
        LayoutUnknown::Disabled& absent = unknown.disabled[m_dataSet->id()];
        for (const long zone : setOf(command, "DisabledZones")) {
            if (zone <= m_dataSet->zoneCount()) {
                m_dataSet->zoneEnabled[static_cast<std::size_t>(zone - 1)] = false;
            } else {
                absent.zones.insert(zone);
            }
        }
        for (const long variable : setOf(command, "DisabledVariables")) {
            if (variable <= m_dataSet->variableCount()) {
                m_dataSet->variables[static_cast<std::size_t>(variable - 1)].enabled = false;
            } else {
                absent.variables.insert(variable);
            }
        }
        for (const auto& [name, numbers] :
             {std::pair{"DisabledZones", absent.zones}, {"DisabledVariables", absent.variables}}) {
            if (!numbers.empty()) {
                unknown.texts.push_back(macroText(MacroCommand{command.name, {{name, numbers}}}));
            }
        }
        keepUnknown(command, {"DisabledZones", "DisabledVariables"}, unknown.ofDataStates[m_dataSet->id()]);
        return;
    }
    for (auto& [name, value] : command.arguments) {
        if (auto* files = std::get_if<std::vector<std::string>>(&value)) {
            for (std::string& file : *files) {
                file = (m_folder / file).lexically_normal().string();
            }
        }
    }
    DataHistory::apply(command, *m_dataSet, m_progress);
}

void LayoutReader::finishDataSet()
{
    if (m_dataSet) {
        m_dataSets[m_dataSetId] = std::make_shared<const DataSet>(std::move(*m_dataSet));
        m_dataSet.reset();
    }
}

void LayoutReader::beginPage(const MacroCommand& command)
{
    finishDataSet();
    pages.push_back(std::make_shared<Page>());
    pages.back()->id = m_document.newId();
    if (flagOf(command, "Active")) {
        activePage = pages.size() - 1;
    }
    m_frame.reset();
    styles.push_back({pages.back()->id, {}, {}});
    keepUnknown(command, {"Active"}, unknown.arguments[pages.back()->id]);
}

void LayoutReader::beginFrame(const MacroCommand& command)
{
    finishDataSet();
    if (pages.empty()) {
        throw DataError("a frame stands behind the page that it lies on.");
    }
    m_frame = std::make_shared<Frame>(m_document.newId());
    Page& page = *pages.back();
    page.frames.push_back(m_frame);
    if (flagOf(command, "Active")) {
        page.activeFrame = static_cast<long>(page.frames.size());
    }
    if (command.find("DataSet")) {
        const auto found = m_dataSets.find(command.integer("DataSet"));
        if (found == m_dataSets.end()) {
            throw DataError("there is no data set " + std::to_string(command.integer("DataSet")) +
                            " before this frame.");
        }
        m_frame->setDataSet(found->second);
    }
    styles.push_back({m_frame->id(), {}, {}});
    keepUnknown(command, {"Active", "DataSet"}, unknown.arguments[m_frame->id()]);
}

void LayoutReader::addStyle(const MacroCommand& command, const std::string& text)
{
    const long entry = m_style.entry(command.text("Path").c_str());
    const StyleScope scope = m_frame ? StyleScope::Frame : StyleScope::Page;
    const bool isOfScope = entry >= 0 && styleDescription(entry).scope == scope;
    if (styles.empty() || !isOfScope) {
        m_isInUnknown = true;
        keepUnknown(text);
        return;
    }
    const StyleEntry& about = styleDescription(entry);
    StyleStore::Stored stored{entry,
                              command.find("Object") ? command.integer("Object") : -1,
                              command.find("Object2") ? command.integer("Object2") : -1,
                              {}};
    stored.value = StyleActions::value(entry, command);
    const DataSet* data = m_frame ? m_frame->dataSet().get() : nullptr;
    const long zones = data ? data->zoneCount() : 0;
    if (styleIndex(about, stored.offset1, stored.offset2, zones) < 0) {
        throw DataError(badOffsetText(entry, stored.offset1, stored.offset2, zones));
    }
    if (const StyleRefusal refusal = checkStyleValue(entry, stored.value); refusal.code != SetValueReturnCode_Ok) {
        throw DataError(refusal.text);
    }
    for (const MacroCommand::Argument& argument : command.arguments) {
        if (std::ranges::find(styleArguments, argument.first) == styleArguments.end()) {
            unknown.styleArguments[styles.back().scopeId][{entry, stored.offset1, stored.offset2}].push_back(argument);
            unknown.texts.push_back(macroText(MacroCommand{command.name, {{"Path", stylePath(entry)}, argument}}));
        }
    }
    styles.back().values.push_back(std::move(stored));
    styles.back().lines.push_back(m_line);
}

template<class Object>
void LayoutReader::addObject(const MacroCommand& command)
{
    const std::string noun = ObjectTraits<Object>::noun;
    Object object;
    object.handle = m_document.newId();
    for (const auto& [name, given] : command.arguments) {
        const ObjectValue<Object>* value = findObjectValue<Object>(name);
        if (!value) {
            unknown.arguments[object.handle].emplace_back(name, given);
            unknown.texts.push_back(macroText(MacroCommand{command.name, {{name, given}}}));
        } else if (const long* number = std::get_if<long>(&given)) {
            value->assign(object, *number);
        } else if (const double* real = std::get_if<double>(&given)) {
            value->assign(object, *real);
        } else if (const auto* string = std::get_if<std::string>(&given)) {
            value->assign(object, *string);
        } else {
            throw DataError('"' + name + "\" of a " + noun + " is a number or a string.");
        }
    }
    ObjectTraits<Object>::check(object);
    ObjectList<Object> objects = m_frame->objects<Object>();
    objects.push_back(std::make_shared<const Object>(std::move(object)));
    m_frame->setObjects<Object>(std::move(objects));
}

void LayoutReader::checkPlotTypes()
{
    const long plotType = m_style.entry("PlotType");
    for (const auto& page : pages) {
        for (const auto& frame : page->frames) {
            for (const Style& style : styles) {
                for (std::size_t i = 0; i < style.values.size(); ++i) {
                    const StyleStore::Stored& stored = style.values[i];
                    if (style.scopeId != frame->id() || stored.entry != plotType) {
                        continue;
                    }
                    const std::string refused = whyPlotTypeIsRefused(
                        frame->dataSet().get(), static_cast<PlotType_e>(std::get<long>(stored.value)));
                    if (!refused.empty()) {
                        m_line = style.lines[i];
                        throw DataError(refused);
                    }
                }
            }
        }
    }
}

void LayoutReader::checkAxisRanges()
{
    for (const Style& style : styles) {
        if (const auto violation = AxisRangeRules::find(m_style, style.values)) {
            m_line = style.lines[violation->value];
            throw DataError(violation->text);
        }
    }
}

} // namespace vantrix::kernel
