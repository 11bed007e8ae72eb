// The functions of the interface, over the recording host.

#include "support/RecordingHost.h"

#include <cstring>
#include <optional>
#include <utility>

using vantrix::test::RecordingHost;

struct VtxSet
{
    std::set<long> members;
};

struct VtxArgList
{
    using Value = std::variant<long, long*, double, double*, std::string, char**, std::set<long>>;

    template<typename T>
    std::optional<T> get(char const* name) const
    {
        auto const found = values.find(name);
        T const* const value = found == values.end() ? nullptr : std::get_if<T>(&found->second);
        return value != nullptr ? std::optional<T>(*value) : std::nullopt;
    }

    std::map<std::string, Value> values;
};

namespace {

RecordingHost& host()
{
    return RecordingHost::instance();
}

char* copyOf(std::string const& text)
{
    char* const copy = new char[text.size() + 1];
    std::memcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

RecordingHost::Change const& changeOf(VtxStateChangeHandle change)
{
    return *reinterpret_cast<RecordingHost::Change const*>(change);
}

bool giveName(std::map<long, std::string> const& names, long number, char** name)
{
    ++host().nameReads;
    auto const found = names.find(number);
    if (found == names.end()) {
        return false;
    }
    *name = copyOf(found->second);
    return true;
}

std::optional<RecordingHost::Value> valueToWrite(VtxArgList const& arguments, RecordingHost::Value const& present)
{
    if (std::holds_alternative<double>(present)) {
        return arguments.get<double>("DValue");
    }
    if (std::holds_alternative<std::string>(present)) {
        return arguments.get<std::string>("StrValue");
    }
    return arguments.get<long>("IValue");
}

} // namespace

extern "C" {

void VtxUtilStringDealloc(char** string)
{
    if (string != nullptr) {
        delete[] * string;
        *string = nullptr;
    }
}

VtxArgListHandle VtxUtilArgListAlloc(void)
{
    return new VtxArgList;
}
void VtxUtilArgListDealloc(VtxArgListHandle* list)
{
    delete *list;
    *list = nullptr;
}
void VtxUtilArgListClear(VtxArgListHandle list)
{
    list->values.clear();
}
void VtxUtilArgListAppendArbParam(VtxArgListHandle list, const char* name, long value)
{
    list->values[name] = value;
}
void VtxUtilArgListAppendArbParamPtr(VtxArgListHandle list, const char* name, long* value)
{
    list->values[name] = value;
}
void VtxUtilArgListAppendDouble(VtxArgListHandle list, const char* name, double value)
{
    list->values[name] = value;
}
void VtxUtilArgListAppendDoublePtr(VtxArgListHandle list, const char* name, double* value)
{
    list->values[name] = value;
}
void VtxUtilArgListAppendString(VtxArgListHandle list, const char* name, const char* value)
{
    list->values[name] = std::string(value);
}
void VtxUtilArgListAppendStringPtr(VtxArgListHandle list, const char* name, char** value)
{
    list->values[name] = value;
}
void VtxUtilArgListAppendSet(VtxArgListHandle list, const char* name, VtxSetHandle value)
{
    list->values[name] = value->members;
}

VtxSetHandle VtxUtilSetAlloc(void)
{
    return new VtxSet;
}
void VtxUtilSetDealloc(VtxSetHandle* set)
{
    delete *set;
    *set = nullptr;
}
bool VtxUtilSetAddMember(VtxSetHandle set, long member)
{
    if (member < 1) {
        return false;
    }
    set->members.insert(member);
    return true;
}
void VtxUtilSetRemoveMember(VtxSetHandle set, long member)
{
    set->members.erase(member);
}
bool VtxUtilSetIsMember(VtxSetHandle set, long member)
{
    return set->members.count(member) > 0;
}
long VtxUtilSetGetMemberCount(VtxSetHandle set)
{
    return static_cast<long>(set->members.size());
}
long VtxUtilSetGetNextMember(VtxSetHandle set, long after)
{
    auto const next = set->members.upper_bound(after);
    return next == set->members.end() ? 0 : *next;
}

long VtxUtilStyleGetMacroID(const char* name)
{
    return host().nameNumber(name);
}
long VtxUtilStyleFindEntry(const long* macroIDs, int count)
{
    return host().entryNumber({macroIDs, macroIDs + count});
}
unsigned long VtxUtilStyleGetChangeStamp(long entry)
{
    return host().stamp(entry);
}

GetValueReturnCode_e VtxUtilStyleGetLowLevelX(VtxArgListHandle arguments)
{
    ++host().reads;
    long const entry = arguments->get<long>("Entry").value_or(-1);
    if (host().failReads) {
        return GetValueReturnCode_NoContext;
    }
    if (entry < 0) {
        return GetValueReturnCode_UnknownPath;
    }
    RecordingHost::Value const& value =
        *host().find(entry, arguments->get<long>("Offset1").value_or(-1), arguments->get<long>("Offset2").value_or(-1));
    if (auto const integer = arguments->get<long*>("IValue"); integer && std::holds_alternative<long>(value)) {
        **integer = std::get<long>(value);
        return GetValueReturnCode_Ok;
    }
    if (auto const number = arguments->get<double*>("DValue"); number && std::holds_alternative<double>(value)) {
        **number = std::get<double>(value);
        return GetValueReturnCode_Ok;
    }
    if (auto const text = arguments->get<char**>("StrValue"); text && std::holds_alternative<std::string>(value)) {
        **text = copyOf(std::get<std::string>(value));
        return GetValueReturnCode_Ok;
    }
    return GetValueReturnCode_WrongType;
}

SetValueReturnCode_e VtxUtilStyleSetLowLevelX(VtxArgListHandle arguments)
{
    RecordingHost& recorder = host();
    ++recorder.writes;
    recorder.writesWithoutLock += recorder.lockDepth == 0 ? 1 : 0;
    recorder.lastWriteArguments.clear();
    for (auto const& [name, value] : arguments->values) {
        recorder.lastWriteArguments.push_back(name);
    }
    SetValueReturnCode_e const code = std::exchange(recorder.nextWriteCode, SetValueReturnCode_Ok);
    long const entry = arguments->get<long>("Entry").value_or(-1);
    if (entry < 0) {
        return SetValueReturnCode_UnknownPath;
    }
    if (code != SetValueReturnCode_Ok && code != SetValueReturnCode_Adjusted) {
        return code;
    }
    long const first = arguments->get<long>("Offset1").value_or(-1);
    long const second = arguments->get<long>("Offset2").value_or(-1);
    RecordingHost::Value const present = *recorder.find(entry, first, second);
    std::optional<RecordingHost::Value> const given = valueToWrite(*arguments, present);
    if (!given) {
        return SetValueReturnCode_WrongType;
    }
    RecordingHost::Value const kept = code == SetValueReturnCode_Adjusted ? recorder.adjustedValue : *given;
    if (kept != present) {
        recorder.write(entry, first, second, kept);
        if (recorder.notifyOnWrite) {
            recorder.send({StateChange_Style, entry, 0});
        }
    }
    return code;
}

char* VtxUtilStyleGetLastErrorString(void)
{
    return host().hasErrorText ? copyOf("The host refused the value.") : nullptr;
}

void VtxUtilLockStart(bool record)
{
    ++host().lockDepth;
    host().lastLockRecorded = record;
}
void VtxUtilLockFinish(void)
{
    --host().lockDepth;
}

void VtxUtilStateChangeAddListener(VtxStateChangeFunction function, void* clientData)
{
    host().listeners.emplace_back(function, clientData);
}
int VtxUtilStateChangeGetKind(VtxStateChangeHandle change)
{
    return changeOf(change).kind;
}
const char* VtxUtilStateChangeGetStyleParam(VtxStateChangeHandle change, int index)
{
    return host().pathName(changeOf(change).entry, index);
}
long VtxUtilStateChangeGetStyleEntry(VtxStateChangeHandle change)
{
    return changeOf(change).entry;
}
long VtxUtilStateChangeGetObject(VtxStateChangeHandle change)
{
    return changeOf(change).object;
}

char* VtxUtilGetLastErrorString(void)
{
    return copyOf("The host's last error");
}

bool VtxUtilLastErrorIsCancellation(void)
{
    return host().isCancelled;
}

void VtxUtilDialogErrMsg(const char* text)
{
    host().errors.emplace_back(text);
}
bool VtxUtilDialogMessageBox(const char* text, MessageBox_e)
{
    host().messages.emplace_back(text);
    return true;
}
bool VtxUtilHelpLaunch(const char* page)
{
    host().helpPages.emplace_back(page);
    return host().helpIsThere;
}
void VtxUtilStatusMessage(const char* text)
{
    host().statusMessages.emplace_back(text);
}
void VtxUtilWaitBegin(void)
{
    ++host().waitDepth;
}
void VtxUtilWaitEnd(void)
{
    --host().waitDepth;
}

bool VtxUtilDataSetIsAvailable(void)
{
    return host().dataSetIsAvailable;
}
long VtxUtilVarGetNumByAssignment(char axis)
{
    auto const found = host().axisVariables.find(axis);
    return found == host().axisVariables.end() ? 0 : found->second;
}
bool VtxUtilVarGetMinMax(long variable, double* minimum, double* maximum)
{
    auto const found = host().extents.find(variable);
    if (found == host().extents.end()) {
        return false;
    }
    *minimum = found->second.first;
    *maximum = found->second.second;
    return true;
}
VtxSetHandle VtxUtilZoneGetEnabled(void)
{
    return new VtxSet{host().enabledZones};
}
VtxSetHandle VtxUtilVarGetEnabled(void)
{
    return new VtxSet{host().enabledVariables};
}
bool VtxUtilZoneGetName(long zone, char** name)
{
    return giveName(host().zoneNames, zone, name);
}
bool VtxUtilVarGetName(long variable, char** name)
{
    return giveName(host().variableNames, variable, name);
}
long VtxUtilLineMapGetCount(void)
{
    return static_cast<long>(host().lineMapNames.size());
}
bool VtxUtilLineMapGetName(long lineMap, char** name)
{
    ++host().nameReads;
    *name = copyOf(host().lineMapNames.at(static_cast<std::size_t>(lineMap - 1)));
    return true;
}
void VtxUtilZoneGetIJK(long zone, long* iMax, long* jMax, long* kMax)
{
    std::tie(*iMax, *jMax, *kMax) = host().zoneDimensions[zone];
}
PlotType_e VtxUtilFrameGetPlotType(void)
{
    return host().plotType;
}
long VtxUtilPageGetCount(void)
{
    return host().pageCount;
}
long VtxUtilFrameGetCount(void)
{
    return host().frameCount;
}
MouseMode_e VtxUtilMouseGetCurrentMode(void)
{
    return host().mouseMode;
}
bool VtxUtilMouseIsValidMode(MouseMode_e mode)
{
    return host().validMouseModes.count(mode) > 0;
}
bool VtxUtilMouseSetMode(MouseMode_e mode)
{
    host().mouseMode = mode;
    return true;
}

void VtxUtilUndoSetStepName(const char*) {}
static bool createZone()
{
    host().createdUnderLock = host().lockDepth > 0;
    host().onCreateZone();
    return host().createSucceeds;
}

bool VtxUtilContourOkToTurnOnRGBColoring(void)
{
    return host().allowsRGBColoring;
}

bool VtxUtilCreateCircularZone(long iMax, long jMax, long kMax, double xOrigin, double yOrigin, double radius,
                               double zMin, double zMax, FieldDataType_e dataType)
{
    host().circularZones.push_back({iMax, jMax, kMax, xOrigin, yOrigin, radius, zMin, zMax, dataType});
    return createZone();
}
bool VtxUtilCreateRectangularZone(long iMax, long jMax, long kMax, double xMin, double yMin, double zMin, double xMax,
                                  double yMax, double zMax, FieldDataType_e dataType)
{
    host().rectangularZones.push_back({iMax, jMax, kMax, xMin, yMin, zMin, xMax, yMax, zMax, dataType});
    return createZone();
}

} // extern "C"
