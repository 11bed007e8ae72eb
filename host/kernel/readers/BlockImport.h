#pragma once

#include "kernel/DataSet.h"

#include <vtkDataObject.h>
#include <vtkDataSet.h>
#include <vtkIdList.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace vantrix::kernel::readers {

/*
 * Collects what readers return and makes zones and variables of it; see DataReader for what becomes of what. Blocks
 * are added first, because which variables there are, and their names, follows from all of them.
 */
class BlockImport
{
public:
    /* `name` serves where a block has none. Throws DataError for values that do not fit the points or cells. */
    void add(vtkDataObject& object, const std::string& name);

    /* What another import collected. */
    void add(BlockImport other);

    /* Whether any block had points. */
    bool isEmpty() const { return m_blocks.empty(); }

    void fill(DataSet& dataSet) const;

private:
    struct Block
    {
        std::string name;
        std::vector<Zone> zones; /* one, or one a kind of cells; without values */
        std::map<std::string, FieldArray> nodal;
        std::map<std::string, std::vector<FieldArray>> cell; /* one array a zone */
        std::vector<vtkSmartPointer<vtkIdList>> pointOrigin; /* of each zone; null when all in order */
        vtkSmartPointer<vtkPoints> points;                   /* as the reader gave them; may be null */
    };

    void addBlock(vtkDataSet& grid, const std::string& name);
    void addArrays(vtkDataSet& grid, Block& block, const std::vector<vtkSmartPointer<vtkIdList>>& cellOrigin);
    std::string cellName(const std::string& name) const;

    std::vector<Block> m_blocks;
    std::vector<std::string> m_nodalNames; /* in order of appearance */
    std::vector<std::string> m_cellNames;
    std::set<std::string> m_ambiguous; /* names that a block has at its points and in its cells */
};

} // namespace vantrix::kernel::readers
