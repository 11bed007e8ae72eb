#include "kernel/ValueBlanking.h"
#include "kernel/DataSet.h"
#include "kernel/FieldValues.h"
#include "kernel/SampleData.h"
#include "kernel/ZoneGrid.h"

#include <gtest/gtest.h>
#include <vtkIdList.h>

#include <functional>
#include <limits>
#include <random>

using namespace vantrix::kernel;

namespace {

/* A sample's zone 1 with small whole numbers at random as the values of its last three variables, the last one
 * cell-centred: many are equal. */
DataSet randomData(const char* sample)
{
    DataSet dataSet(1);
    SampleData::make(sample, dataSet);
    Zone zone = *dataSet.zones[0];
    std::mt19937 random(7);
    for (std::size_t i = 0; i < 3; ++i) {
        dataSet.variables.push_back({"random " + std::to_string(i), true});
        const auto location = i == 2 ? ValueLocation_CellCentered : ValueLocation_Nodal;
        const long count = i == 2 ? zone.cellCount() : zone.pointCount();
        const auto values = makeValues(FieldDataType_Float, count);
        for (long n = 0; n < count; ++n) {
            values->SetComponent(n, 0, static_cast<double>(random() % 7));
        }
        zone.fields.push_back({values, location, {}});
    }
    dataSet.zones[0] = std::make_shared<const Zone>(std::move(zone));
    return dataSet;
}

struct Relation
{
    RelOp_e number;
    std::function<bool(double, double)> holds;
};

const std::vector<Relation>& relations()
{
    static const std::vector<Relation> all{{RelOp_LessThanOrEqual, std::less_equal<>()},
                                           {RelOp_GreaterThanOrEqual, std::greater_equal<>()},
                                           {RelOp_LessThan, std::less<>()},
                                           {RelOp_GreaterThan, std::greater<>()},
                                           {RelOp_EqualTo, std::equal_to<>()},
                                           {RelOp_NotEqualTo, std::not_equal_to<>()}};
    return all;
}

} // namespace

TEST(ValueBlanking, BlanksThePointsAndCellsThatMeetAConstraint)
{
    for (const char* sample : {"flow3d", "fe2d", "polyhedra"}) {
        const DataSet dataSet = randomData(sample);
        const long last = dataSet.variableCount();
        const vtkSmartPointer<vtkDataSet> grid = zoneGrid(dataSet, 1, {1, 2, 3});
        const auto a = dataSet.field(1, last - 2)->values;
        const auto b = dataSet.field(1, last - 1)->values;
        const auto corners = vtkSmartPointer<vtkIdList>::New();
        for (const Relation& relation : relations()) {
            for (const bool comparesVariables : {false, true}) {
                ValueBlanking blanking;
                blanking.constraints = {{last - 2, relation.number, comparesVariables ? last - 1 : 0, 3.0}};
                const auto isMet = [&](vtkIdType i) {
                    return relation.holds(a->GetComponent(i, 0), comparesVariables ? b->GetComponent(i, 0) : 3.0);
                };
                for (const auto mode :
                     {ValueBlankCellMode_AllCorners, ValueBlankCellMode_AnyCorner, ValueBlankCellMode_PrimaryValue}) {
                    blanking.cellMode = mode;
                    const auto blanked = blanking.of(dataSet, 1);
                    ASSERT_TRUE(blanked);
                    ASSERT_EQ(long(blanked->points.size()), grid->GetNumberOfPoints());
                    ASSERT_EQ(long(blanked->cells.size()), grid->GetNumberOfCells());
                    long wrong = 0;
                    for (vtkIdType i = 0; i < grid->GetNumberOfPoints(); ++i) {
                        wrong += (blanked->points[std::size_t(i)] != 0) != isMet(i);
                    }
                    for (vtkIdType cell = 0; cell < grid->GetNumberOfCells(); ++cell) {
                        grid->GetCellPoints(cell, corners);
                        const auto met = std::count_if(corners->begin(), corners->end(), isMet);
                        const bool isBlanked = mode == ValueBlankCellMode_AllCorners  ? met == corners->GetNumberOfIds()
                                               : mode == ValueBlankCellMode_AnyCorner ? met > 0
                                                                                      : isMet(corners->GetId(0));
                        wrong += (blanked->cells[std::size_t(cell)] != 0) != isBlanked;
                    }
                    EXPECT_EQ(wrong, 0) << sample << ", relation " << relation.number << ", mode " << mode;
                }
            }
        }
    }
}

TEST(ValueBlanking, OfCellCentredValuesDecidesOnCells)
{
    const DataSet dataSet = randomData("flow3d");
    const long last = dataSet.variableCount();
    ValueBlanking blanking;
    blanking.constraints = {{last, RelOp_GreaterThan, 0, 4.0}};
    const auto blanked = blanking.of(dataSet, 1);
    ASSERT_TRUE(blanked);
    for (std::size_t cell = 0; cell < blanked->cells.size(); ++cell) {
        ASSERT_EQ(blanked->cells[cell] != 0, dataSet.field(1, last)->values->GetComponent(long(cell), 0) > 4.0);
    }
    EXPECT_EQ(std::ranges::count(blanked->points, 1), 0);
}

TEST(ValueBlanking, AddsUpConstraintsAndTakesNoNumberForBlankedOnlyWhereItIsUnequal)
{
    DataSet dataSet(1);
    dataSet.variables = {{"V", true}};
    Zone zone = Zone::ordered("line", 4, 1, 1);
    const auto values = makeValues(FieldDataType_Double, 4);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (long i = 0; i < 4; ++i) {
        values->SetComponent(i, 0, std::array{0.0, 1.0, 2.0, nan}[std::size_t(i)]);
    }
    zone.fields = {{values, ValueLocation_Nodal, {}}};
    dataSet.addZone(std::move(zone));
    using Points = std::vector<unsigned char>;
    ValueBlanking blanking;
    blanking.constraints = {{1, RelOp_LessThan, 0, 0.5}, {1, RelOp_GreaterThan, 0, 1.5}};
    EXPECT_EQ(blanking.of(dataSet, 1)->points, (Points{1, 0, 1, 0}));
    EXPECT_EQ(blanking.of(dataSet, 1)->cells, (Points{0, 0, 0}));
    blanking.constraints = {{1, RelOp_NotEqualTo, 0, 1.0}};
    EXPECT_EQ(blanking.of(dataSet, 1)->points, (Points{1, 0, 1, 1}));
    blanking.constraints = {{1, RelOp_LessThan, 0, -5.0}};
    EXPECT_FALSE(blanking.of(dataSet, 1)) << "nothing is left out";
    blanking.constraints = {{7, RelOp_NotEqualTo, 0, 1.0}};
    EXPECT_FALSE(blanking.of(dataSet, 1)) << "there is no such variable";
}

TEST(ValueBlanking, IsFoundAgainOnlyWhenWhatItComparesChanged)
{
    DataSet dataSet = randomData("flow3d");
    const long compared = dataSet.variableCount() - 2;
    ValueBlanking blanking;
    blanking.constraints = {{compared, RelOp_LessThan, 0, 3.0}};
    const auto first = blanking.of(dataSet, 1);
    EXPECT_EQ(blanking.of(dataSet, 1), first);
    ValueBlanking other = blanking;
    other.cellMode = ValueBlankCellMode_AnyCorner;
    EXPECT_NE(other.of(dataSet, 1), first);
    EXPECT_EQ(blanking.of(dataSet, 1), first) << "another frame must not displace it";

    const auto change = [&](long variable) {
        Zone edited = *dataSet.zones[0];
        FieldArray& field = edited.fields[std::size_t(variable - 1)];
        field.values = makeZeros(FieldDataType_Double, field.values->GetNumberOfTuples());
        dataSet.zones[0] = std::make_shared<const Zone>(std::move(edited));
    };
    change(compared + 1);
    EXPECT_EQ(blanking.of(dataSet, 1), first) << "that variable is not compared";
    change(compared);
    const auto second = blanking.of(dataSet, 1);
    ASSERT_TRUE(second);
    EXPECT_EQ(std::ranges::count(second->points, 0), 0) << "0 is less than 3 everywhere";
}
