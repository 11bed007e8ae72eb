#include "kernel/FieldArray.h"

namespace vantrix::kernel {

namespace {

unsigned long uses = 0;

} // namespace

unsigned long FieldArray::latestUse()
{
    return uses;
}

vtkSmartPointer<vtkDataArray> FieldArray::load() const
{
    lastUse = ++uses;
    if (!values && loaded) {
        values = loaded.Get(); /* somebody else still has them */
    } else if (!values && loader) {
        values = loader();
        loaded = values.Get();
    }
    return values;
}

bool FieldArray::unload() const
{
    if (!loader || !values || values.Get() != loaded.Get()) {
        return false;
    }
    values = nullptr;
    return true;
}

} // namespace vantrix::kernel
