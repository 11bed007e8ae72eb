#pragma once

#include "api/VtxUtil.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

namespace vantrix::test {

/// A host in memory behind the function interface, for tests of the layers that need no plot: it keeps style values,
/// notifies, counts and records calls, and fails on demand. Link `vx_recording_host` to use it.
class RecordingHost
{
public:
    using Value = std::variant<long, double, std::string>;
    using Path = std::initializer_list<char const*>;

    static RecordingHost& instance();

    /// As new: no style values, no records. Listeners stay, for they live as long as the process.
    void reset();

    /// Makes a style value. Its default is what it has for every pair of offsets until one is set.
    void define(Path path, Value const& byDefault);
    /// Changes a value as another part of the application would: silently, or with the notification.
    void put(Path path, Value const& value, long first = -1, long second = -1);
    void change(Path path, Value const& value, long first = -1, long second = -1);
    Value get(Path path, long first = -1, long second = -1);
    /// Sends a state change of a kind that has no style path.
    void notify(int kind, long object = 0);

    /// What the next write answers; then Ok again. With Adjusted the host keeps `adjustedValue`.
    SetValueReturnCode_e nextWriteCode = SetValueReturnCode_Ok;
    Value adjustedValue = 0L;
    bool failReads = false;
    bool hasErrorText = true;
    bool notifyOnWrite = true;

    int reads = 0;
    int writes = 0;
    int writesWithoutLock = 0;
    int lockDepth = 0;
    bool lastLockRecorded = false;
    int waitDepth = 0;
    std::vector<std::string> errors;
    std::vector<std::string> statusMessages;
    bool isCancelled = false; // whether the last failure was the user's wish
    /// Names of the arguments of the last write, in alphabetical order.
    std::vector<std::string> lastWriteArguments;

    /// Texts of message boxes; each is answered with "OK".
    std::vector<std::string> messages;
    std::vector<std::string> helpPages;
    bool helpIsThere = true;

    long pageCount = 1;
    long frameCount = 1;
    MouseMode_e mouseMode = MouseMode_Selector;
    std::set<MouseMode_e> validMouseModes = {MouseMode_Selector, MouseMode_Zoom};
    PlotType_e plotType = PlotType_Sketch;
    bool allowsRGBColoring = false;
    bool dataSetIsAvailable = false;
    std::map<char, long> axisVariables;
    std::map<long, std::pair<double, double>> extents;
    std::map<long, std::tuple<long, long, long>> zoneDimensions;
    std::set<long> enabledZones;
    std::set<long> enabledVariables;
    std::map<long, std::string> zoneNames;
    std::map<long, std::string> variableNames;
    std::vector<std::string> lineMapNames;
    /// How often the name of a zone, variable or line map was asked for.
    int nameReads = 0;

    /// Calls of VtxUtilCreate...Zone(), whether the lock was held, and what the next answers. `onCreateZone` plays what
    /// the host does meanwhile.
    struct CircularZone
    {
        long iMax, jMax, kMax;
        double xOrigin, yOrigin, radius, zMin, zMax;
        FieldDataType_e dataType;
        bool operator==(CircularZone const&) const = default;
    };
    std::vector<CircularZone> circularZones;
    struct RectangularZone
    {
        long iMax, jMax, kMax;
        double xMin, yMin, zMin, xMax, yMax, zMax;
        FieldDataType_e dataType;
        bool operator==(RectangularZone const&) const = default;
    };
    std::vector<RectangularZone> rectangularZones;
    bool createdUnderLock = false;
    bool createSucceeds = true;
    std::function<void()> onCreateZone = [] {};

    // For the function interface.
    struct Change
    {
        int kind = 0;
        long entry = -1;
        long object = 0;
    };
    using Listener = std::pair<VtxStateChangeFunction, void*>;

    long nameNumber(char const* name);
    long entryNumber(std::vector<long> const& path) const;
    char const* pathName(long entry, int index) const;
    unsigned long stamp(long entry) const;
    Value const* find(long entry, long first, long second) const;
    void write(long entry, long first, long second, Value const& value);
    void send(Change const& change);
    std::vector<Listener> listeners;

private:
    struct Entry
    {
        std::vector<long> path;
        Value byDefault;
        unsigned long stamp = 1;
    };

    long entryOf(Path path);

    std::vector<std::string> m_names;
    std::vector<Entry> m_entries;
    std::map<std::tuple<long, long, long>, Value> m_values;
    std::vector<Change> m_waiting;
    bool m_sending = false;
    // Never goes back, so that a stamp of an earlier test is never taken for one of this test.
    unsigned long m_lastStamp = 1;
};

} // namespace vantrix::test
