#pragma once

#include "api/VtxUtilPick.h"
#include "api/VtxUtilState.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrix::kernel {

class Kernel;

/* An object of a frame's plot, or a frame. What the type does not have is 0. */
struct PickedObject
{
    PickObject_e type = PickObject_None;
    long frameId = 0;
    long number = 0; /* of a zone or line map, the handle of a text, geometry or streamtrace */
    char axis = 0;   /* 'X', 'Y', 'Z', 'T' or 'R' */
    int axisNumber = 0;
    AxisSubObject_e part = AxisSubObject_GridArea;

    bool operator==(const PickedObject&) const = default;
};

/* Whoever draws the page tells what is seen at a place of it. */
class PickSurface
{
public:
    virtual ~PickSurface() = default;

    /* `x` and `y` are inches from the lower left corner of the active page's paper. */
    virtual std::optional<PickedObject> objectAt(double x, double y) const = 0;
};

/*
 * The objects that were picked, in the order of picking and each once; see VtxUtilPick.h. All lie on the active page.
 * The list empties itself when one of them goes or another page becomes active.
 */
class PickList
{
public:
    explicit PickList(Kernel& kernel);
    ~PickList();
    PickList(const PickList&) = delete;
    PickList& operator=(const PickList&) = delete;

    const std::vector<PickedObject>& objects() const { return m_objects; }
    bool contains(const PickedObject& object) const;

    /* Null when there is no such position (from 1). */
    const PickedObject* at(long position) const;

    void clear();

    /* Adds an object at the end; one without a frame belongs to the active one. Throws DataError for what does not
     * exist. Adding an object again changes nothing. */
    void add(PickedObject object);

    /* What VtxUtilPickAtPosition() would pick. Throws DataError where nothing is drawn on a screen. */
    std::optional<PickedObject> objectAt(double x, double y) const;

    /* See VtxUtilPickDelete(). Throws DataError when nothing that is picked can be deleted. */
    void deleteObjects();

    /* Not owned; null when it goes. */
    void setSurface(const PickSurface* surface) { m_surface = surface; }

private:
    class Change;
    void remember();
    static void stateChanged(VtxStateChangeHandle change, void* list);

    /* Why an object cannot be picked; empty when it can. */
    std::string problemWith(const PickedObject& object) const;

    Kernel& m_kernel;
    const PickSurface* m_surface = nullptr;
    std::vector<PickedObject> m_objects;
};

} // namespace vantrix::kernel
