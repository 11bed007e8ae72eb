#include "kernel/interface/ArgumentList.h"
#include "kernel/interface/Boundary.h"

using namespace vantrix::kernel;

namespace {

template<class Value>
void append(VtxArgListHandle list, const char* name, Value&& value)
{
    boundary::guarded([&] {
        if (!list || !name) {
            boundary::fail("An argument needs a list and a name.");
            return;
        }
        for (VtxArgList::Argument& argument : list->arguments) {
            if (argument.name == name) {
                argument.value = std::forward<Value>(value);
                return;
            }
        }
        list->arguments.push_back({name, std::forward<Value>(value)});
    });
}

} // namespace

VtxArgListHandle VtxUtilArgListAlloc(void)
{
    return boundary::guarded<VtxArgListHandle>(nullptr, [] { return new VtxArgList; });
}

void VtxUtilArgListDealloc(VtxArgListHandle* list)
{
    if (list) {
        delete *list;
        *list = nullptr;
    }
}

void VtxUtilArgListClear(VtxArgListHandle list)
{
    if (list) {
        list->arguments.clear();
    }
}

void VtxUtilArgListAppendArbParam(VtxArgListHandle list, const char* name, long value)
{
    append(list, name, value);
}

void VtxUtilArgListAppendArbParamPtr(VtxArgListHandle list, const char* name, long* value)
{
    append(list, name, value);
}

void VtxUtilArgListAppendDouble(VtxArgListHandle list, const char* name, double value)
{
    append(list, name, value);
}

void VtxUtilArgListAppendDoublePtr(VtxArgListHandle list, const char* name, double* value)
{
    append(list, name, value);
}

void VtxUtilArgListAppendString(VtxArgListHandle list, const char* name, const char* value)
{
    boundary::guarded([&] { append(list, name, std::string(value ? value : "")); });
}

void VtxUtilArgListAppendStringPtr(VtxArgListHandle list, const char* name, char** value)
{
    append(list, name, value);
}

void VtxUtilArgListAppendSet(VtxArgListHandle list, const char* name, VtxSetHandle value)
{
    boundary::guarded([&] { append(list, name, value ? *value : VtxSet{}); });
}

VtxSetHandle VtxUtilSetAlloc(void)
{
    return boundary::guarded<VtxSetHandle>(nullptr, [] { return new VtxSet; });
}

void VtxUtilSetDealloc(VtxSetHandle* set)
{
    if (set) {
        delete *set;
        *set = nullptr;
    }
}

bool VtxUtilSetAddMember(VtxSetHandle set, long member)
{
    return boundary::guarded(false, [&] {
        if (!set || member < 1) {
            return boundary::fail("A set takes numbers from 1.");
        }
        set->members.insert(set->members.end(), member);
        return true;
    });
}

void VtxUtilSetRemoveMember(VtxSetHandle set, long member)
{
    if (set) {
        set->members.erase(member);
    }
}

bool VtxUtilSetIsMember(VtxSetHandle set, long member)
{
    return set && set->members.contains(member);
}

long VtxUtilSetGetMemberCount(VtxSetHandle set)
{
    return set ? static_cast<long>(set->members.size()) : 0;
}

long VtxUtilSetGetNextMember(VtxSetHandle set, long after)
{
    if (!set) {
        return 0;
    }
    const auto next = set->members.upper_bound(after);
    return next != set->members.end() ? *next : 0;
}
