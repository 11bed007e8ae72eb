#include "kernel/readers/EnSightFileCheck.h"

#include "kernel/DataError.h"
#include "kernel/readers/EnSightCase.h"
#include "kernel/readers/EnSightStream.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>

namespace vantrix::kernel::readers {

namespace {

struct Part
{
    long points = 0;
    long blockCells = 0;
    std::map<std::string, long> cells; /* by kind of element */
};

struct Geometry
{
    long sharedPoints = 0; /* EnSight 6 has the points of all parts that are no blocks together */
    std::map<long, Part> parts;
};

/* Something that the walk has no rule for. */
struct Unknown
{};

const std::map<std::string, long>& pointsOfElements()
{
    static const std::map<std::string, long> points{
        {"point", 1},    {"bar2", 2},   {"bar3", 3},     {"tria3", 3},    {"tria6", 6},      {"quad4", 4},
        {"quad8", 8},    {"tetra4", 4}, {"tetra10", 10}, {"pyramid5", 5}, {"pyramid13", 13}, {"penta6", 6},
        {"penta15", 15}, {"hexa8", 8},  {"hexa20", 20},  {"nsided", 0},   {"nfaced", 0}};
    return points;
}

/* "hexa8" of "g_hexa8 ..."; empty for another keyword. */
std::string elementKind(const std::string& heading)
{
    std::string kind = heading.substr(0, heading.find(' '));
    if (kind.rfind("g_", 0) == 0) {
        kind.erase(0, 2);
    }
    return pointsOfElements().count(kind) > 0 ? kind : std::string();
}

bool isKeyword(const std::string& heading, const std::string& keyword)
{
    return heading.rfind(keyword, 0) == 0;
}

bool isGiven(const std::string& heading)
{
    return heading.find("given") != std::string::npos || heading.find("ignore") != std::string::npos;
}

/* A heading without a rule: the end of the file cuts it short, or it is of a kind that the walk does not know. */
[[noreturn]] void rejectHeading(EnSightStream& stream)
{
    if (stream.isAtEnd()) {
        throw DataError("it ends early");
    }
    throw Unknown();
}

/* Behind the heading "part" of Gold, in the heading "part 1" of EnSight 6. */
long partNumber(EnSightStream& stream, const std::string& heading, bool isGold)
{
    return isGold ? stream.count() : std::atol(heading.substr(4).c_str());
}

/* Walks a geometry file and remembers how much of what there is in it. */
class GeometryWalk
{
public:
    GeometryWalk(EnSightStream& stream, bool isGold)
        : m_stream(stream)
        , m_isGold(isGold)
    {}

    const Geometry& geometry() const { return m_geometry; }

    void run()
    {
        if (!m_stream.isText()) {
            m_stream.description(); /* "C Binary" */
        }
        if (isKeyword(m_stream.description(), "BEGIN TIME STEP")) {
            throw Unknown();
        }
        m_stream.description();
        m_hasNodeIds = isGiven(m_stream.heading());
        m_hasElementIds = isGiven(m_stream.heading());
        std::string heading = m_stream.heading();
        if (isKeyword(heading, "extents")) {
            m_stream.passReals(6, 2);
            heading = m_stream.heading();
        }
        if (!m_isGold && isKeyword(heading, "coordinates")) {
            passSharedPoints();
            heading = m_stream.heading();
        }
        while (isKeyword(heading, "part")) {
            const std::optional<std::string> next = passPart(heading);
            if (!next) {
                return;
            }
            heading = *next;
        }
        rejectHeading(m_stream);
    }

private:
    void passSharedPoints()
    {
        m_geometry.sharedPoints = m_stream.count();
        if (m_stream.isText()) {
            m_stream.passReals(3 * m_geometry.sharedPoints, 3);
            return;
        }
        if (m_hasNodeIds) {
            m_stream.passIntegers(m_geometry.sharedPoints);
        }
        m_stream.passReals(3 * m_geometry.sharedPoints);
    }

    /* What stands behind the part; nothing at the end of the file. */
    std::optional<std::string> passPart(const std::string& heading)
    {
        Part& part = m_geometry.parts[partNumber(m_stream, heading, m_isGold)];
        m_stream.description();
        for (bool hasCells = false; !hasCells || !m_stream.isAtEnd();) {
            const std::string next = m_stream.heading();
            const std::string kind = elementKind(next);
            if (m_isGold && isKeyword(next, "coordinates")) {
                passOwnPoints(part);
                continue;
            }
            if (isKeyword(next, "block")) {
                passBlock(part, next);
            } else if (!kind.empty()) {
                passElements(part, kind);
            } else {
                return next;
            }
            hasCells = true;
        }
        return std::nullopt;
    }

    void passOwnPoints(Part& part)
    {
        part.points = m_stream.count();
        if (m_hasNodeIds) {
            m_stream.passIntegers(part.points);
        }
        for (int axis = 0; axis < 3; ++axis) {
            m_stream.passReals(part.points);
        }
    }

    void passElements(Part& part, const std::string& kind)
    {
        const long count = m_stream.count();
        part.cells[kind] += count;
        const bool isInline = !m_isGold && m_stream.isText(); /* the numbers of elements stand in their lines */
        if (m_hasElementIds && !isInline) {
            m_stream.passIntegers(count);
        }
        const long points = pointsOfElements().at(kind);
        if (points > 0) {
            m_stream.passIntegers(count * points, points);
        } else if (kind == "nsided") {
            passPolygons(count);
        } else {
            passPolygons(m_stream.sumOfIntegers(count));
        }
    }

    /* How many corners each polygon has, then the corners, those of one in a line. */
    void passPolygons(long count)
    {
        const long corners = m_stream.sumOfIntegers(count);
        m_stream.isText() ? m_stream.passIntegers(count) : m_stream.passIntegers(corners);
    }

    void passBlock(Part& part, const std::string& heading)
    {
        for (const char* word : {"range", "with_ghost"}) {
            if (heading.find(word) != std::string::npos) {
                throw Unknown();
            }
        }
        long size[3];
        m_stream.counts(size);
        part.points = size[0] * size[1] * size[2];
        part.blockCells = 1;
        for (const long points : size) {
            part.blockCells *= points > 1 ? points - 1 : 1;
        }
        const long perLine = m_isGold ? 1 : 6;
        if (m_isGold && heading.find("uniform") != std::string::npos) {
            m_stream.passReals(3);
            m_stream.passReals(3);
        } else {
            const bool isRectilinear = m_isGold && heading.find("rectilinear") != std::string::npos;
            for (const long points : size) {
                m_stream.passReals(isRectilinear ? points : part.points, perLine);
            }
        }
        if (heading.find("iblanked") != std::string::npos) {
            m_stream.passIntegers(part.points, m_isGold ? 1 : 10);
        }
    }

    EnSightStream& m_stream;
    bool m_isGold;
    bool m_hasNodeIds = false;
    bool m_hasElementIds = false;
    Geometry m_geometry;
};

void walkVariable(EnSightStream& stream, bool isGold, const EnSightCase::Variable& variable, const Geometry& geometry)
{
    const auto pass = [&](long values) {
        if (isGold) {
            for (long i = 0; i < variable.components; ++i) {
                stream.passReals(values);
            }
        } else {
            stream.passReals(variable.components * values, 6);
        }
    };
    const auto passBlock = [&](const Part& part) {
        for (long i = 0; i < variable.components; ++i) {
            stream.passReals(variable.isPerElement ? part.blockCells : part.points, isGold ? 1 : 6);
        }
    };
    if (isKeyword(stream.description(), "BEGIN TIME STEP")) {
        throw Unknown();
    }
    if (!isGold && !variable.isPerElement) {
        pass(geometry.sharedPoints);
        if (geometry.sharedPoints > 0 && stream.isAtEnd()) {
            return;
        }
    }
    const Part* part = nullptr;
    bool hasValues = false;
    while (!hasValues || !stream.isAtEnd()) {
        const std::string heading = stream.heading();
        const std::string kind = elementKind(heading);
        if (heading.find("undef") != std::string::npos || heading.find("partial") != std::string::npos) {
            throw Unknown();
        }
        if (isKeyword(heading, "part")) {
            const long number = partNumber(stream, heading, isGold);
            const auto found = geometry.parts.find(number);
            if (found == geometry.parts.end()) {
                throw DataError("it has values of part " + std::to_string(number) +
                                ", which the geometry does not have or which is cut off there");
            }
            part = &found->second;
            hasValues = false;
            continue;
        }
        if (part && isKeyword(heading, "coordinates")) {
            pass(part->points);
        } else if (part && isKeyword(heading, "block")) {
            passBlock(*part);
        } else if (part && part->cells.count(kind) > 0) {
            pass(part->cells.at(kind));
        } else {
            rejectHeading(stream);
        }
        hasValues = true;
    }
}

/* Failures in a file of a case with the name of the file; what is not there is for the reader to tell. */
template<typename Walk>
bool walkFile(const std::string& file, Walk walk)
{
    if (!std::filesystem::is_regular_file(file)) {
        return false;
    }
    try {
        const std::unique_ptr<EnSightStream> stream = EnSightStream::open(file);
        walk(*stream);
        return true;
    } catch (const Unknown&) {
        return false;
    } catch (const DataError& error) {
        throw DataError("of its file \"" + file + "\", " + error.what());
    }
}

} // namespace

void expectWholeEnSight(const std::string& caseFile)
{
    const EnSightCase files = EnSightCase::read(caseFile);
    Geometry geometry;
    const bool isKnown = walkFile(files.geometry, [&](EnSightStream& stream) {
        GeometryWalk walk(stream, files.isGold);
        walk.run();
        geometry = walk.geometry();
    });
    if (!isKnown) {
        return;
    }
    for (const EnSightCase::Variable& variable : files.variables) {
        walkFile(variable.file, [&](EnSightStream& stream) { walkVariable(stream, files.isGold, variable, geometry); });
    }
}

} // namespace vantrix::kernel::readers
