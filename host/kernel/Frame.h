#pragma once

#include "kernel/DataSet.h"
#include "kernel/Geometry.h"
#include "kernel/Streamtrace.h"
#include "kernel/Text.h"

#include <memory>
#include <tuple>
#include <vector>

namespace vantrix::kernel {

template<class Object>
using ObjectList = std::vector<std::shared_ptr<const Object>>;

/*
 * A rectangle of the paper that shows one plot of one data set (or of none). Its style, the plot type and its name
 * included, is in the style store under the frame's identifier.
 */
class Frame
{
public:
    explicit Frame(long id)
        : m_id(id)
    {}

    /* A number that no other frame of the process has; the style store keeps this frame's values under it. */
    long id() const { return m_id; }

    const std::shared_ptr<const DataSet>& dataSet() const { return m_dataSet; }

    /* Only Document calls this; see Document::replaceDataSet() and Document::attachDataSet(). */
    void setDataSet(std::shared_ptr<const DataSet> dataSet) { m_dataSet = std::move(dataSet); }

    /* The texts, or the geometries, the last on top; or the streamtraces, in the order of their numbers. */
    template<class Object>
    const ObjectList<Object>& objects() const
    {
        return std::get<ObjectList<Object>>(m_objects);
    }
    const ObjectList<Text>& texts() const { return objects<Text>(); }
    const ObjectList<Geometry>& geometries() const { return objects<Geometry>(); }
    const ObjectList<Streamtrace>& streamtraces() const { return objects<Streamtrace>(); }

    /* Only FrameObjects and who makes new frames call this. */
    template<class Object>
    void setObjects(ObjectList<Object> list)
    {
        std::get<ObjectList<Object>>(m_objects) = std::move(list);
    }

private:
    long m_id;
    std::shared_ptr<const DataSet> m_dataSet;
    std::tuple<ObjectList<Text>, ObjectList<Geometry>, ObjectList<Streamtrace>> m_objects;
};

} // namespace vantrix::kernel
