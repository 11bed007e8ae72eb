#include "kernel/readers/EnSightCase.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace vantrix::kernel::readers {

namespace {

std::vector<std::string> wordsOf(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

bool isNumber(const std::string& word)
{
    return !word.empty() && std::all_of(word.begin(), word.end(), [](unsigned char c) { return std::isdigit(c); });
}

/* A name with "**" in the place of the number of the time. */
std::string atNumber(std::string name, const std::string& number)
{
    const std::size_t begin = name.find('*');
    if (begin == std::string::npos) {
        return name;
    }
    const std::size_t end = std::min(name.find_first_not_of('*', begin), name.size());
    std::string digits = number;
    digits.insert(0, end - begin > digits.size() ? end - begin - digits.size() : 0, '0');
    return name.replace(begin, end - begin, digits);
}

struct NamedFile
{
    std::string timeSet;
    std::string name;
};

/* "[time set] [file set] [description] name" */
NamedFile namedFile(const std::vector<std::string>& words, std::size_t textsBehindSets)
{
    const bool hasSet = words.size() > 1 + textsBehindSets && isNumber(words.front());
    return {hasSet ? words.front() : "1", words.back()};
}

} // namespace

EnSightCase EnSightCase::read(const std::string& file)
{
    static const std::map<std::string, long> components{
        {"scalar", 1}, {"vector", 3}, {"tensor symm", 6}, {"tensor asym", 9}};
    EnSightCase result;
    NamedFile geometry;
    std::vector<std::pair<NamedFile, Variable>> variables;
    std::map<std::string, std::string> firstNumbers; /* by time set */
    std::string timeSet = "1";
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        const std::size_t colon = line.find(':');
        if (colon == std::string::npos || line.front() == '#') {
            continue;
        }
        const std::string key = line.substr(0, colon);
        std::vector<std::string> words = wordsOf(line.substr(colon + 1));
        if (words.size() > 1 && words.back() == "change_coords_only") {
            words.pop_back();
        }
        if (words.empty()) {
            continue;
        }
        if (key == "type") {
            result.isGold = words.size() > 1 && words[1] == "gold";
        } else if (key == "model") {
            geometry = namedFile(words, 0);
        } else if (key == "time set") {
            timeSet = words.front();
        } else if (key == "filename start number" || key == "filename numbers") {
            firstNumbers[timeSet] = words.front();
        } else if (const std::size_t per = key.find(" per "); per != std::string::npos && words.size() > 1) {
            const auto kind = components.find(key.substr(0, per));
            const std::string place = key.substr(per + 5);
            if (kind != components.end() && (place == "node" || place == "element")) {
                variables.push_back({namedFile(words, 1), {{}, kind->second, place == "element"}});
            }
        }
    }
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    const auto pathOf = [&](const NamedFile& named) {
        return (folder / atNumber(named.name, firstNumbers[named.timeSet])).string();
    };
    result.geometry = geometry.name.empty() ? std::string() : pathOf(geometry);
    for (auto& [named, variable] : variables) {
        variable.file = pathOf(named);
        result.variables.push_back(variable);
    }
    return result;
}

} // namespace vantrix::kernel::readers
