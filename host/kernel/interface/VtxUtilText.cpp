#include "api/VtxUtilText.h"

#include "kernel/StateChanges.h"
#include "kernel/TextValues.h"
#include "kernel/UndoStack.h"
#include "kernel/interface/FrameObjectInterface.h"

using namespace vantrix::kernel;
using vantrix::kernel::boundary::nameStep;

namespace {

FrameObjectInterface<Text> texts()
{
    return FrameObjectInterface<Text>(Kernel::instance().texts());
}

} // namespace

bool VtxUtilTextSetX(VtxArgListHandle arguments)
{
    const auto set = [&] {
        const long* handle = arguments->findAs<long>("TextID");
        nameStep(handle ? "Edit Text" : "Insert Text");
        const Text* before = handle ? Kernel::instance().texts().find(*handle) : nullptr;
        if (!texts().set(*arguments)) {
            return false;
        }
        const bool isAsBefore = before && before == Kernel::instance().texts().find(*handle);
        if (isAsBefore && before->type == TextType_LaTeX && arguments->find("Text")) {
            Kernel::instance().stateChanges().send({StateChange_Text, -1, *handle}); // LaTeX is set anew
        }
        return true;
    };
    return boundary::change<&VtxUtilTextSetX>(false, set, arguments);
}

bool VtxUtilTextGetX(VtxArgListHandle arguments)
{
    return boundary::guarded(false, [&] { return texts().get(*arguments); });
}

bool VtxUtilTextSetHeight(long text, double height)
{
    const auto set = [&] {
        nameStep("Edit Text");
        return texts().setValue(text, "Height", height);
    };
    return boundary::change<&VtxUtilTextSetHeight>(false, set, text, height);
}

bool VtxUtilTextDelete(long text)
{
    const auto remove = [&] {
        nameStep("Delete Text");
        return texts().remove(text);
    };
    return boundary::change<&VtxUtilTextDelete>(false, remove, text);
}

bool VtxUtilTextIsValid(long text)
{
    return texts().isValid(text);
}

long VtxUtilTextGetFirst(void)
{
    return texts().first();
}

long VtxUtilTextGetNext(long text)
{
    return texts().next(text);
}
