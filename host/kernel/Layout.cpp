#include "kernel/Layout.h"

#include "kernel/ApplicationLock.h"
#include "kernel/AtomicFile.h"
#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/FrontEnd.h"
#include "kernel/GeometryValues.h"
#include "kernel/Kernel.h"
#include "kernel/LayoutReader.h"
#include "kernel/ProbeService.h"
#include "kernel/StateChanges.h"
#include "kernel/StreamtraceValues.h"
#include "kernel/StyleActions.h"
#include "kernel/StyleCheck.h"
#include "kernel/StylePath.h"
#include "kernel/StyleStore.h"
#include "kernel/TextValues.h"
#include "kernel/UndoStack.h"
#include "kernel/macro/MacroCommand.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace vantrix::kernel {

namespace {

std::string folderOf(const std::string& file)
{
    return std::filesystem::absolute(file).parent_path().string();
}

/* Writes the commands of a layout, one a line. */
class LayoutWriter
{
public:
    LayoutWriter(const StyleStore& style, const LayoutUnknown& unknown, std::string folder)
        : m_style(style)
        , m_unknown(unknown)
        , m_folder(std::move(folder))
    {}

    void write(int depth, const MacroCommand& command) { writeLine(depth, macroText(command)); }

    void writeLine(int depth, const std::string& line)
    {
        m_text += std::string(static_cast<std::size_t>(2 * depth), ' ') + line + '\n';
    }

    /* Values of zones that the scope's data do not have any more mean nothing there, and are left out. Those that have
     * arguments of the file are written though they are as by default. */
    void writeStyle(int depth, long scopeId, long zones)
    {
        const auto found = m_unknown.styleArguments.find(scopeId);
        auto unknown = found != m_unknown.styleArguments.end() ? found->second : decltype(found->second)();
        const auto writeOne = [&](const LayoutUnknown::StylePlace& place, const StyleData& value) {
            const StyleEntry& about = styleDescription(place.entry);
            if (styleIndex(about, place.offset1, place.offset2, zones) >= 0) {
                MacroCommand command = StyleActions::command(place.entry, {place.offset1}, place.offset2, value);
                const auto& more = unknown[place];
                command.arguments.insert(command.arguments.end(), more.begin(), more.end());
                write(depth, command);
            }
            unknown.erase(place);
        };
        for (const StyleStore::Stored& stored : m_style.storedValues(scopeId)) {
            writeOne({stored.entry, stored.offset1, stored.offset2}, stored.value);
        }
        while (!unknown.empty()) {
            const LayoutUnknown::StylePlace place = unknown.begin()->first;
            StyleData value;
            m_style.getOf(scopeId, place.entry, place.offset1, place.offset2, value);
            writeOne(place, value);
        }
    }

    void writeDataSet(long number, const DataSet& dataSet)
    {
        writeWithUnknown(0, {"DataSet", {{"Id", number}}}, dataSet.id());
        for (const auto& made : dataSet.history) {
            MacroCommand command = *made;
            for (auto& [name, value] : command.arguments) {
                if (auto* files = std::get_if<std::vector<std::string>>(&value)) {
                    for (std::string& file : *files) {
                        file = relative(file);
                    }
                }
            }
            write(1, command);
        }
        MacroCommand state{"DataState", {}};
        const auto found = m_unknown.disabled.find(dataSet.id());
        const LayoutUnknown::Disabled absent =
            found != m_unknown.disabled.end() ? found->second : LayoutUnknown::Disabled();
        addDisabled(state, "DisabledZones", absent.zones, dataSet.zones.size(),
                    [&](std::size_t i) { return dataSet.zoneEnabled[i]; });
        addDisabled(state, "DisabledVariables", absent.variables, dataSet.variables.size(),
                    [&](std::size_t i) { return dataSet.variables[i].enabled; });
        addUnknown(state, m_unknown.ofDataStates, dataSet.id());
        if (!state.arguments.empty()) {
            write(1, state);
        }
    }

    /* What differs from a text, a geometry or a streamtrace as it is made. */
    template<class Object>
    void writeObject(int depth, const char* entry, const Object& object)
    {
        MacroCommand command{entry, {}};
        const Object fresh;
        for (const ObjectValue<Object>& value : ObjectTraits<Object>::values()) {
            const ObjectData is = value.get(object);
            if (is != value.get(fresh)) {
                std::visit([&](const auto& each) { command.add(std::string(value.name), each); }, is);
            }
        }
        writeWithUnknown(depth, command, object.handle);
    }

    /* The command with the arguments that the file had besides. */
    void writeWithUnknown(int depth, MacroCommand command, long owner)
    {
        addUnknown(command, m_unknown.arguments, owner);
        write(depth, command);
    }

    void writeUnknownLines(int depth, long owner)
    {
        if (const auto found = m_unknown.lines.find(owner); found != m_unknown.lines.end()) {
            for (const std::string& line : found->second) {
                writeLine(depth, line);
            }
        }
    }

    const std::string& text() const { return m_text; }

private:
    static void addUnknown(MacroCommand& command, const std::map<long, std::vector<MacroCommand::Argument>>& unknown,
                           long owner)
    {
        if (const auto found = unknown.find(owner); found != unknown.end()) {
            command.arguments.insert(command.arguments.end(), found->second.begin(), found->second.end());
        }
    }

    /* `absent` are numbers of the file that were behind the last one there is; by now some may be there, and enabled.
     */
    template<class IsEnabled>
    static void addDisabled(MacroCommand& state, const char* name, const std::set<long>& absent, std::size_t count,
                            const IsEnabled& isEnabled)
    {
        std::set<long> disabled(absent.upper_bound(static_cast<long>(count)), absent.end());
        for (std::size_t i = 0; i < count; ++i) {
            if (!isEnabled(i)) {
                disabled.insert(static_cast<long>(i) + 1);
            }
        }
        if (!disabled.empty()) {
            state.add(name, disabled);
        }
    }

    std::string relative(const std::string& file) const
    {
        if (m_folder.empty()) {
            return file;
        }
        const std::filesystem::path path = std::filesystem::path(file).lexically_relative(m_folder);
        const bool isBelow = !path.empty() && *path.begin() != "..";
        return isBelow ? path.string() : file;
    }

    const StyleStore& m_style;
    const LayoutUnknown& m_unknown;
    std::string m_folder;
    std::string m_text;
};

} // namespace

Layout::Layout(Kernel& kernel)
    : m_kernel(kernel)
    , m_savedState(kernel.undoStack().state())
{}

std::string Layout::text(const std::string& folder) const
{
    const Document& document = m_kernel.document();
    LayoutWriter writer(m_kernel.style(), m_unknown, folder);
    writer.writeWithUnknown(0, {"Layout", {{"Version", 1L}}}, 0);
    writer.writeUnknownLines(0, 0);
    std::map<const DataSet*, long> numbers;
    for (const auto& data : document.dataSets()) {
        const long number = static_cast<long>(numbers.size()) + 1;
        numbers[data.get()] = number;
        writer.writeDataSet(number, *data);
    }
    for (const auto& page : document.pages()) {
        MacroCommand head{"Page", {}};
        if (page.get() == document.activePage()) {
            head.add("Active", 1L);
        }
        writer.writeWithUnknown(0, head, page->id);
        writer.writeStyle(1, page->id, 0);
        writer.writeUnknownLines(1, page->id);
        for (std::size_t i = 0; i < page->frames.size(); ++i) {
            const Frame& frame = *page->frames[i];
            MacroCommand frameHead{"Frame", {}};
            if (frame.dataSet()) {
                frameHead.add("DataSet", numbers.at(frame.dataSet().get()));
            }
            if (static_cast<long>(i) + 1 == page->activeFrame) {
                frameHead.add("Active", 1L);
            }
            writer.writeWithUnknown(1, frameHead, frame.id());
            writer.writeStyle(2, frame.id(), frame.dataSet() ? frame.dataSet()->zoneCount() : 0);
            for (const auto& streamtrace : frame.streamtraces()) {
                writer.writeObject(2, "Streamtrace", *streamtrace);
            }
            for (const auto& geometry : frame.geometries()) {
                writer.writeObject(2, "Geometry", *geometry);
            }
            for (const auto& text : frame.texts()) {
                writer.writeObject(2, "Text", *text);
            }
            writer.writeUnknownLines(2, frame.id());
        }
    }
    return writer.text();
}

void Layout::saveCopy(const std::string& file) const
{
    replaceFile(file, text());
}

void Layout::save(const std::string& file)
{
    replaceFile(file, text(folderOf(file)));
    m_fileName = std::filesystem::absolute(file).string();
    setUnmodified();
}

void Layout::open(const std::string& file)
{
    load(file);
    m_fileName = std::filesystem::absolute(file).string();
    setUnmodified();
    m_kernel.stateChanges().send(StateChange_NewLayout);
}

void Layout::recover(const std::string& copy, const std::string& original)
{
    load(copy);
    m_fileName = original;
    m_savedState = 0; // the state of no document
    m_kernel.stateChanges().send(StateChange_NewLayout);
}

void Layout::load(const std::string& file)
{
    if (m_kernel.lock().isOn()) {
        throw DataError("A layout cannot be opened in the middle of another action.");
    }
    std::ifstream stream(file);
    if (!stream || std::filesystem::is_directory(file)) {
        throw DataError("Cannot read the layout \"" + file + "\"; is there such a file, and may you read it?");
    }
    std::optional<Progress> progress(std::in_place, m_kernel.frontEnd(), "Opening layout");
    LayoutReader reader(m_kernel.document(), m_kernel.style(), progress->report());
    try {
        reader.read(stream, folderOf(file));
    } catch (const ActionCancelled&) {
        throw;
    } catch (const DataError& failure) {
        throw DataError("Layout \"" + file + "\", " + failure.what());
    }
    progress.reset();

    StyleStore& style = m_kernel.style();
    drop();
    for (const LayoutReader::Style& each : reader.styles) {
        style.fillScope(each.scopeId, each.values);
    }
    m_kernel.document().replacePages(std::move(reader.pages), reader.activePage);
    m_unknown = std::move(reader.unknown);
    if (const std::vector<std::string>& texts = m_unknown.texts; !texts.empty()) {
        m_kernel.frontEnd().showStatus("The layout has " + std::to_string(texts.size()) +
                                       (texts.size() == 1 ? " entry or value" : " entries or values") +
                                       " that this program does not know; the first is " + texts.front() +
                                       ". They are kept when it is saved.");
    }
}

void Layout::clear()
{
    drop();
    setUnmodified();
    m_kernel.stateChanges().send(StateChange_NewLayout);
}

void Layout::drop()
{
    m_kernel.undoStack().clear();
    StyleStore& style = m_kernel.style();
    for (const auto& page : m_kernel.document().pages()) {
        style.removeScope(page->id);
        for (const auto& frame : page->frames) {
            style.removeScope(frame->id());
        }
    }
    m_kernel.document().reset();
    m_kernel.probes().reset();
    m_unknown = {};
    m_fileName.clear();
}

bool Layout::isModified() const
{
    return m_kernel.undoStack().state() != m_savedState;
}

void Layout::setUnmodified()
{
    m_savedState = m_kernel.undoStack().state();
    if (m_markListener) {
        m_markListener();
    }
}

} // namespace vantrix::kernel
