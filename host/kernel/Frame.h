#pragma once

#include "kernel/DataSet.h"
#include "kernel/Text.h"

#include <memory>
#include <vector>

namespace vantrix::kernel {

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

    /* The texts, the last on top. */
    const std::vector<std::shared_ptr<const Text>>& texts() const { return m_texts; }

    /* Only Texts calls this. */
    void setTexts(std::vector<std::shared_ptr<const Text>> texts) { m_texts = std::move(texts); }

private:
    long m_id;
    std::shared_ptr<const DataSet> m_dataSet;
    std::vector<std::shared_ptr<const Text>> m_texts;
};

} // namespace vantrix::kernel
