#include "toolbox/ArgList.h"

#include "toolbox/Set.h"

#include <utility>

namespace vantrix::toolbox {

ArgList::ArgList()
    : m_handle(VtxUtilArgListAlloc())
{}

ArgList::~ArgList()
{
    VtxUtilArgListDealloc(&m_handle);
}

ArgList::ArgList(ArgList&& other) noexcept
    : m_handle(std::exchange(other.m_handle, nullptr))
{}

ArgList& ArgList::operator=(ArgList&& other) noexcept
{
    std::swap(m_handle, other.m_handle);
    return *this;
}

void ArgList::clear()
{
    VtxUtilArgListClear(m_handle);
}

void ArgList::appendArbParam(char const* name, long value)
{
    VtxUtilArgListAppendArbParam(m_handle, name, value);
}

void ArgList::appendArbParamPtr(char const* name, long* value)
{
    VtxUtilArgListAppendArbParamPtr(m_handle, name, value);
}

void ArgList::appendDouble(char const* name, double value)
{
    VtxUtilArgListAppendDouble(m_handle, name, value);
}

void ArgList::appendDoublePtr(char const* name, double* value)
{
    VtxUtilArgListAppendDoublePtr(m_handle, name, value);
}

void ArgList::appendString(char const* name, std::string const& value)
{
    VtxUtilArgListAppendString(m_handle, name, value.c_str());
}

void ArgList::appendStringPtr(char const* name, char** value)
{
    VtxUtilArgListAppendStringPtr(m_handle, name, value);
}

void ArgList::appendSet(char const* name, Set const& value)
{
    VtxUtilArgListAppendSet(m_handle, name, value.handle());
}

} // namespace vantrix::toolbox
