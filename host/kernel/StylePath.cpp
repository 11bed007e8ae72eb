#include "kernel/StylePath.h"

#include "kernel/StyleVocabulary.h"

#include <algorithm>

namespace vantrix::kernel {

namespace {

using Path = std::array<short, VTX_STYLE_PATH_MAX>;

bool toPath(const long* nameIds, std::size_t count, Path& path)
{
    path.fill(-1);
    const auto names = static_cast<long>(styleNames().size());
    if (count == 0 || count > path.size()) {
        return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (nameIds[i] < 0 || nameIds[i] >= names) {
            return false;
        }
        path[i] = static_cast<short>(nameIds[i]);
    }
    return true;
}

auto lowerBound(const Path& path)
{
    const auto entries = styleVocabulary();
    return std::lower_bound(entries.begin(), entries.end(), path,
                            [](const StyleEntry& entry, const Path& wanted) { return entry.path < wanted; });
}

std::string quotedPath(const short* path, std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += std::string(i == 0 ? "\"" : " / \"") + styleNames()[static_cast<std::size_t>(path[i])] + '"';
    }
    return text;
}

} // namespace

long styleNameId(std::string_view name)
{
    const auto names = styleNames();
    const auto found = std::lower_bound(names.begin(), names.end(), name,
                                        [](const char* one, std::string_view other) { return one < other; });
    return found != names.end() && *found == name ? found - names.begin() : -1;
}

long styleEntryOf(const long* nameIds, std::size_t count)
{
    Path path;
    if (!toPath(nameIds, count, path)) {
        return -1;
    }
    const auto found = lowerBound(path);
    return found != styleVocabulary().end() && found->path == path ? found - styleVocabulary().begin() : -1;
}

std::string knownPartOfStylePath(const long* nameIds, std::size_t count)
{
    for (std::size_t length = std::min<std::size_t>(count, VTX_STYLE_PATH_MAX); length > 0; --length) {
        Path path;
        if (!toPath(nameIds, length, path)) {
            continue;
        }
        const auto found = lowerBound(path);
        if (found != styleVocabulary().end() &&
            std::equal(path.begin(), path.begin() + static_cast<long>(length), found->path.begin())) {
            return quotedPath(path.data(), length);
        }
    }
    return {};
}

std::string stylePath(long entry)
{
    const StyleEntry& found = styleDescription(entry);
    std::string text;
    for (std::size_t i = 0; i < found.pathLength; ++i) {
        text += (i == 0 ? "" : "/") + std::string(styleNames()[static_cast<std::size_t>(found.path[i])]);
    }
    return text;
}

std::string stylePathText(long entry)
{
    const auto entries = styleVocabulary();
    if (entry < 0 || entry >= static_cast<long>(entries.size())) {
        return "style value number " + std::to_string(entry);
    }
    const StyleEntry& found = entries[static_cast<std::size_t>(entry)];
    return quotedPath(found.path.data(), found.pathLength);
}

} // namespace vantrix::kernel
