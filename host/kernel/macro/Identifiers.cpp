#include "kernel/macro/Identifiers.h"

#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"

#include <algorithm>
#include <sstream>

namespace vantrix::kernel {

namespace {

const Document& document()
{
    return Kernel::instance().document();
}

/* A frame's place: of its page, and on it, both from 1; 0 for what is active. */
struct FramePlace
{
    long page = 0;
    long frame = 0;
};

template<class List>
const typename List::value_type* at(const List& list, long position)
{
    return position >= 1 && position <= static_cast<long>(list.size()) ? &list[static_cast<std::size_t>(position - 1)]
                                                                       : nullptr;
}

const Page& pageAt(long position)
{
    const auto* page = position == 0 ? nullptr : at(document().pages(), position);
    if (position != 0 && !page) {
        throw DataError("There is no page " + std::to_string(position) + "; there are " +
                        std::to_string(document().pages().size()) + '.');
    }
    const Page* found = page ? page->get() : document().activePage();
    if (!found) {
        throw DataError("There is no page.");
    }
    return *found;
}

const Frame& frameAt(FramePlace place)
{
    const Page& page = pageAt(place.page);
    if (place.frame == 0 && place.page == 0 && document().activeFrame()) {
        return *document().activeFrame();
    }
    const auto* frame = at(page.frames, place.frame);
    if (!frame) {
        throw DataError("There is no frame " + std::to_string(place.frame) + " on the " +
                        (place.page == 0 ? std::string("active page") : "page " + std::to_string(place.page)) +
                        ", which has " + std::to_string(page.frames.size()) + '.');
    }
    return **frame;
}

/* "2", "2 of frame 3", "2 of frame 3 of page 1" */
std::string placeText(long position, FramePlace place)
{
    std::string text = std::to_string(position) + " of frame " + std::to_string(place.frame);
    return place.page == 0 ? text : text + " of page " + std::to_string(place.page);
}

long readPlace(const MacroCommand& command, std::string_view argument, FramePlace& place)
{
    const MacroValue* value = command.find(argument);
    const auto* text = value ? std::get_if<std::string>(value) : nullptr;
    if (!text) {
        return command.integer(argument);
    }
    long position = 0;
    std::string of;
    std::string what;
    std::istringstream words(*text);
    words.imbue(std::locale::classic());
    words >> position >> of >> what >> place.frame;
    bool isRight = words && of == "of" && what == "frame" && place.frame > 0;
    if (words >> of) {
        isRight = words >> what >> place.page && of == "of" && what == "page" && place.page > 0 && isRight;
    }
    if (!isRight) {
        throw DataError(command.name + ": \"" + std::string(argument) +
                        "\" has to be a position in the active frame, or as in \"2 of frame 3 of page 1\".");
    }
    return position;
}

/* The objects of a frame that such an argument is about. */
template<class Visit>
auto visitObjects(std::string_view argument, const Frame& frame, Visit&& visit)
{
    return argument == textArgument ? visit(frame.texts()) : visit(frame.geometries());
}

long positionOf(std::string_view argument, const Frame& frame, long identifier)
{
    return visitObjects(argument, frame, [&](const auto& objects) {
        const auto found =
            std::ranges::find_if(objects, [&](const auto& object) { return object->handle == identifier; });
        return found == objects.end() ? 0 : static_cast<long>(found - objects.begin()) + 1;
    });
}

MacroValue objectPlace(std::string_view argument, long identifier)
{
    const auto& pages = document().pages();
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const auto& frames = pages[page]->frames;
        for (std::size_t frame = 0; frame < frames.size(); ++frame) {
            const long position = positionOf(argument, *frames[frame], identifier);
            if (position == 0) {
                continue;
            }
            if (frames[frame].get() == document().activeFrame()) {
                return position;
            }
            const bool isOnActivePage = pages[page].get() == document().activePage();
            return placeText(position,
                             {isOnActivePage ? 0 : static_cast<long>(page) + 1, static_cast<long>(frame) + 1});
        }
    }
    return 0L;
}

long objectAtPlace(const MacroCommand& command, std::string_view argument)
{
    FramePlace place;
    const long position = readPlace(command, argument, place);
    const Frame& frame = frameAt(place);
    return visitObjects(argument, frame, [&](const auto& objects) {
        const auto* object = at(objects, position);
        if (!object) {
            const char* what = argument == textArgument ? " text" : " geometry";
            throw DataError("There is no" + std::string(what) + ' ' + std::to_string(position) +
                            " in the frame, which has " + std::to_string(objects.size()) + '.');
        }
        return (*object)->handle;
    });
}

long framePosition(long identifier)
{
    const Page* page = document().activePage();
    if (!page) {
        return 0;
    }
    const auto found = std::ranges::find_if(page->frames, [&](const auto& each) { return each->id() == identifier; });
    return found == page->frames.end() ? 0 : static_cast<long>(found - page->frames.begin()) + 1;
}

} // namespace

bool isIdentifier(std::string_view argument)
{
    return argument == frameArgument || argument == textArgument || argument == geometryArgument;
}

MacroValue placeOfIdentifier(std::string_view argument, long identifier)
{
    return argument == frameArgument ? framePosition(identifier) : objectPlace(argument, identifier);
}

long identifierAtPlace(const MacroCommand& command, std::string_view argument)
{
    if (argument != frameArgument) {
        return objectAtPlace(command, argument);
    }
    const long position = command.integer(argument);
    if (position < 1) {
        throw DataError("There is no frame " + std::to_string(position) + "; frames count from 1.");
    }
    return frameAt({0, position}).id();
}

} // namespace vantrix::kernel
