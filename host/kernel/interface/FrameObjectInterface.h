#pragma once

#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/interface/Boundary.h"

#include <algorithm>

/* What the functions on texts and on geometries have in common; VtxUtilText.h and VtxUtilGeometry.h tell the rest. */
namespace vantrix::kernel {

template<class Object>
class FrameObjectInterface
{
public:
    explicit FrameObjectInterface(FrameObjects<Object>& objects)
        : m_objects(objects)
    {}

    bool noSuch(long handle) const
    {
        return boundary::fail("There is no " + std::string(Traits::noun) + ' ' + std::to_string(handle) + '.');
    }

    /* Creates an object, or changes the one that the list names. */
    bool set(const VtxArgList& arguments)
    {
        const long* handle = arguments.findAs<long>(Traits::handleArgument);
        return handle ? change(arguments, *handle) : create(arguments);
    }

    bool get(const VtxArgList& arguments) const
    {
        const long* handle = arguments.findAs<long>(Traits::handleArgument);
        const Object* object = handle ? m_objects.find(*handle) : nullptr;
        if (!object) {
            return noSuch(handle ? *handle : 0);
        }
        const auto isUnknown = [](const Argument& argument) {
            return argument.name != Traits::handleArgument && !findObjectValue<Object>(argument.name);
        };
        const auto wrong = std::ranges::find_if(arguments.arguments, isUnknown);
        if (wrong != arguments.arguments.end()) {
            return unknown(*wrong);
        }
        for (const Argument& argument : arguments.arguments) {
            if (argument.name != Traits::handleArgument &&
                !put(argument, findObjectValue<Object>(argument.name)->get(*object))) {
                return unknown(argument);
            }
        }
        return true;
    }

    /* Sets one value of an object. */
    bool setValue(long handle, std::string_view name, const ObjectData& value)
    {
        const Object* existing = m_objects.find(handle);
        if (!existing) {
            return noSuch(handle);
        }
        Object changed = *existing;
        findObjectValue<Object>(name)->assign(changed, value);
        return m_objects.change(std::move(changed));
    }

    bool remove(long handle) { return m_objects.remove(handle) || noSuch(handle); }
    bool isValid(long handle) const { return m_objects.find(handle) != nullptr; }

    long first() const
    {
        const Frame* frame = Kernel::instance().document().activeFrame();
        return frame && !frame->objects<Object>().empty() ? frame->objects<Object>().front()->handle : 0;
    }

    long next(long handle) const
    {
        const Frame* frame = m_objects.frameOf(handle);
        if (!frame) {
            return 0;
        }
        const auto& all = frame->objects<Object>();
        const auto found = std::ranges::find_if(all, [&](const auto& each) { return each->handle == handle; });
        const auto after = std::next(found);
        return after == all.end() ? 0 : (*after)->handle;
    }

private:
    using Traits = ObjectTraits<Object>;
    using Argument = VtxArgList::Argument;

    static bool unknown(const Argument& argument)
    {
        return boundary::fail("The argument \"" + argument.name + "\" is unknown or has a wrong type.");
    }

    /* What the list gives as a value; false when it gives something else. */
    static bool take(const Argument& argument, ObjectData& data)
    {
        return takeAs<long>(argument, data) || takeAs<double>(argument, data) || takeAs<std::string>(argument, data);
    }
    template<class Type>
    static bool takeAs(const Argument& argument, ObjectData& data)
    {
        const Type* value = std::get_if<Type>(&argument.value);
        if (value) {
            data = *value;
        }
        return value != nullptr;
    }

    /* Writes a value to where an argument points to; false when it points to another type. */
    static bool put(const Argument& argument, const ObjectData& value)
    {
        if (putAs<long>(argument, value) || putAs<double>(argument, value)) {
            return true;
        }
        auto* const* target = std::get_if<char**>(&argument.value);
        const auto* text = std::get_if<std::string>(&value);
        if (target && text) {
            **target = boundary::copyString(*text);
        }
        return target && text;
    }
    template<class Type>
    static bool putAs(const Argument& argument, const ObjectData& value)
    {
        auto* const* target = std::get_if<Type*>(&argument.value);
        const Type* number = std::get_if<Type>(&value);
        if (target && number) {
            **target = *number;
        }
        return target && number;
    }

    /* What the list asks for, on top of an existing object or of the defaults. */
    static bool assign(const VtxArgList& arguments, Object& object)
    {
        for (const Argument& argument : arguments.arguments) {
            if (argument.name == Traits::handleArgument || argument.name == "Result") {
                continue;
            }
            const ObjectValue<Object>* value = findObjectValue<Object>(argument.name);
            ObjectData given;
            if (!value || !take(argument, given)) {
                return unknown(argument);
            }
            value->assign(object, given);
        }
        Traits::check(object);
        return true;
    }

    bool change(const VtxArgList& arguments, long handle)
    {
        const Object* existing = m_objects.find(handle);
        if (!existing) {
            return noSuch(handle);
        }
        Object object = *existing;
        return assign(arguments, object) && m_objects.change(std::move(object));
    }

    bool create(const VtxArgList& arguments)
    {
        Frame* frame = Kernel::instance().document().activeFrame();
        if (!frame) {
            return boundary::fail("There is no frame to put a " + std::string(Traits::noun) + " into.");
        }
        Object object;
        if (!assign(arguments, object)) {
            return false;
        }
        const long created = m_objects.add(*frame, std::move(object));
        if (long* const* result = arguments.findAs<long*>("Result")) {
            **result = created;
        }
        return true;
    }

    FrameObjects<Object>& m_objects;
};

} // namespace vantrix::kernel
