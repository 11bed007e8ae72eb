#pragma once

#include "kernel/ApplicationLock.h"
#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/StyleStore.h"
#include "kernel/UndoStack.h"
#include "kernel/macro/CommandArguments.h"
#include "kernel/macro/Commands.h"
#include "kernel/macro/MacroRecorder.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>

/* What every function of the interface is made with: nothing thrown gets past it, and a failure leaves its text. */
namespace vantrix::kernel::boundary {

/* Keeps the text of a failure; returns false. */
inline bool fail(std::string text)
{
    Kernel::instance().setLastError(std::move(text));
    return false;
}

/* Runs a function; an exception becomes the error text and `failure` the result. */
template<class Result, class Function>
Result guarded(Result failure, Function&& function) noexcept
{
    try {
        return function();
    } catch (const ActionCancelled& cancelled) {
        Kernel::instance().setLastError(cancelled.what(), true);
    } catch (const std::exception& exception) {
        fail(exception.what());
    } catch (...) {
        fail("Unknown error");
    }
    return failure;
}

template<class Function>
void guarded(Function&& function) noexcept
{
    guarded(false, [&] {
        function();
        return true;
    });
}

inline StyleStore& style()
{
    return Kernel::instance().style();
}

inline const Document& document()
{
    return Kernel::instance().document();
}

/* The name of the step of undo under way. */
inline void nameStep(const char* name)
{
    Kernel::instance().undoStack().nameStep(name);
}

/* Keeps the style's text when a value was not taken as it was. */
template<class Code>
Code report(Code code)
{
    if (code != Code{}) {
        fail(style().lastError());
    }
    return code;
}

/* Gives an answer that the caller may not have asked for. */
template<class Target, class Value>
void setIfNotNull(Target* target, Value value)
{
    if (target) {
        *target = static_cast<Target>(value);
    }
}

/* To be called first by whatever changes state. */
inline void expectLocked()
{
    Kernel::instance().lock().expectLocked();
}

inline bool isSuccess(bool result)
{
    return result;
}

inline bool isSuccess(SetValueReturnCode_e code)
{
    return code == SetValueReturnCode_Ok || code == SetValueReturnCode_Adjusted;
}

/* A call of a function of the interface as a command of a macro. */
template<class... Arguments>
MacroCommand describe(const Command& about, const Arguments&... arguments)
{
    MacroCommand command{about.name, {}};
    [[maybe_unused]] std::size_t next = 0;
    [[maybe_unused]] const auto describeOne = [&](const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, VtxArgListHandle>) {
            describeList(command, about, *value);
        } else {
            const Parameter& parameter = about.parameters.at(next++);
            command.add(std::string(parameter.name), toMacro(parameter, value));
        }
    };
    (describeOne(arguments), ...);
    return command;
}

/*
 * What every function that changes state is made with: guarded(), under the lock, and recorded in the macro under way
 * when it succeeds. `Function` is the function itself, listed in Commands.cpp; `arguments` are those it was called
 * with.
 */
template<auto Function, class Result, class Work, class... Arguments>
Result change(Result failure, Work&& work, const Arguments&... arguments) noexcept
{
    return guarded(failure, [&] {
        expectLocked();
        const Kernel& kernel = Kernel::instance();
        MacroRecorder::Call call(kernel.macroRecorder(), kernel.lock().isRecorded());
        MacroCommand command;
        if (call.isDescribed()) {
            command = describe(commandOf(reinterpret_cast<const void*>(Function)), arguments...);
        }
        const Result result = work();
        if (call.isDescribed() && isSuccess(result)) {
            call.succeeded(std::move(command));
        }
        return result;
    });
}

/* A copy for VtxUtilStringDealloc(); null where memory is not to be had. */
inline char* copyString(const std::string& text)
{
    auto* copy = static_cast<char*>(std::malloc(text.size() + 1));
    return copy ? static_cast<char*>(std::memcpy(copy, text.c_str(), text.size() + 1)) : nullptr;
}

/* The same; null for an empty text, where the interface says that there is none. */
inline char* copyStringOrNull(const std::string& text)
{
    return text.empty() ? nullptr : copyString(text);
}

} // namespace vantrix::kernel::boundary
