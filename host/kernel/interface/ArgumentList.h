#pragma once

#include "api/VtxUtilArgList.h"

#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/* What the interface hands out as VtxSetHandle. */
struct VtxSet
{
    std::set<long> members;
};

/* What the interface hands out as VtxArgListHandle: few arguments, so a name is found by looking at each. */
struct VtxArgList
{
    using Value = std::variant<long, double, std::string, VtxSet, long*, double*, char**>;
    struct Argument
    {
        std::string name;
        Value value;
    };
    std::vector<Argument> arguments;

    /* Null when there is no argument of that name. */
    const Value* find(std::string_view name) const
    {
        for (const Argument& argument : arguments) {
            if (argument.name == name) {
                return &argument.value;
            }
        }
        return nullptr;
    }

    /* The value of that name when it has that type, else null. */
    template<class Type>
    const Type* findAs(std::string_view name) const
    {
        const Value* value = find(name);
        return value ? std::get_if<Type>(value) : nullptr;
    }
};
