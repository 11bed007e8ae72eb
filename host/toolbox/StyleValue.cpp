#include "toolbox/StyleValue.h"

#include "property/InvalidArgumentException.h"
#include "toolbox/HostString.h"
#include "toolbox/Set.h"

#include <algorithm>
#include <iterator>

namespace vantrix::toolbox {

namespace {

StringList pathOf(std::initializer_list<char const*> names)
{
    StringList path;
    std::for_each(names.begin(), std::find(names.begin(), names.end(), nullptr),
                  [&path](char const* name) { path.append(name); });
    return path;
}

void appendAddress(RawArray<long> const& ids, long first, long second, ArgList& arguments)
{
    arguments.clear();
    arguments.appendArbParam("Entry", StyleValue::findEntry(ids));
    arguments.appendArbParam("Offset1", first);
    arguments.appendArbParam("Offset2", second);
}

} // namespace

StyleValue::StyleValue(StringList const& path)
    : m_path(path)
{
    if (path.isEmpty() || path.size() > VTX_STYLE_PATH_MAX) {
        throw InvalidArgumentException("A style path has one to seven names; this one has " +
                                       std::to_string(path.size()) + ".");
    }
}

StyleValue::StyleValue(char const* name1, char const* name2, char const* name3, char const* name4, char const* name5,
                       char const* name6, char const* name7)
    : StyleValue(pathOf({name1, name2, name3, name4, name5, name6, name7}))
{}

void StyleValue::initMacroIDsfromStyleValueNames(RawArray<long>& ids) const
{
    ids.clear();
    std::transform(m_path.begin(), m_path.end(), std::back_inserter(ids),
                   [](std::string const& name) { return VtxUtilStyleGetMacroID(name.c_str()); });
}

RawArray<long> StyleValue::macroIDs() const
{
    RawArray<long> ids;
    initMacroIDsfromStyleValueNames(ids);
    return ids;
}

long StyleValue::findEntry(RawArray<long> const& ids)
{
    return VtxUtilStyleFindEntry(ids.data(), static_cast<int>(ids.size()));
}

void StyleValue::setupGetValueArgList(RawArray<long> const& ids, long first, long second, ArgList& arguments)
{
    appendAddress(ids, first, second, arguments);
}

void StyleValue::setupSetValueArgList(RawArray<long> const& ids, Set const* objects, long first, long second,
                                      AssignOp_e assignOp, ArgList& arguments)
{
    appendAddress(ids, first, second, arguments);
    arguments.appendArbParam("AssignOp", assignOp);
    if (objects != nullptr) {
        arguments.appendSet("ObjectSet", *objects);
    }
}

GetValueReturnCode_e StyleValue::getFinalValue(bool* value, ArgList& arguments)
{
    long number = 0;
    GetValueReturnCode_e const code = getFinalValue(&number, arguments);
    if (returnCodeOk(code)) {
        *value = number != 0;
    }
    return code;
}

GetValueReturnCode_e StyleValue::getFinalValue(long* value, ArgList& arguments)
{
    arguments.appendArbParamPtr("IValue", value);
    return VtxUtilStyleGetLowLevelX(arguments.handle());
}

GetValueReturnCode_e StyleValue::getFinalValue(double* value, ArgList& arguments)
{
    arguments.appendDoublePtr("DValue", value);
    return VtxUtilStyleGetLowLevelX(arguments.handle());
}

GetValueReturnCode_e StyleValue::getFinalValue(std::string* value, ArgList& arguments)
{
    char* text = nullptr;
    arguments.appendStringPtr("StrValue", &text);
    GetValueReturnCode_e const code = VtxUtilStyleGetLowLevelX(arguments.handle());
    if (returnCodeOk(code)) {
        *value = takeHostString(text);
    }
    return code;
}

SetValueReturnCode_e StyleValue::setFinalValue(bool value, ArgList& arguments)
{
    return setFinalValue(value ? 1L : 0L, arguments);
}

SetValueReturnCode_e StyleValue::setFinalValue(long value, ArgList& arguments)
{
    arguments.appendArbParam("IValue", value);
    return VtxUtilStyleSetLowLevelX(arguments.handle());
}

SetValueReturnCode_e StyleValue::setFinalValue(double value, ArgList& arguments)
{
    arguments.appendDouble("DValue", value);
    return VtxUtilStyleSetLowLevelX(arguments.handle());
}

SetValueReturnCode_e StyleValue::setFinalValue(std::string const& value, ArgList& arguments)
{
    arguments.appendString("StrValue", value);
    return VtxUtilStyleSetLowLevelX(arguments.handle());
}

bool StyleValue::returnCodeOk(GetValueReturnCode_e code)
{
    return code == GetValueReturnCode_Ok;
}

bool StyleValue::returnCodeOk(SetValueReturnCode_e code)
{
    return code == SetValueReturnCode_Ok || code == SetValueReturnCode_Adjusted;
}

} // namespace vantrix::toolbox
