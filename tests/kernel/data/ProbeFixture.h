#pragma once

#include "LastError.h"
#include "kernel/KernelFixture.h"
#include "kernel/ProbeService.h"
#include "kernel/ZoneGrid.h"

#include <vtkIdList.h>

#include <random>

namespace vantrix::kernel {

/* An argument list that is written as it is filled. */
class Arguments
{
public:
    ~Arguments() { VtxUtilArgListDealloc(&m_list); }
    Arguments& with(const char* name, long value)
    {
        VtxUtilArgListAppendArbParam(m_list, name, value);
        return *this;
    }
    Arguments& with(const char* name, double value)
    {
        VtxUtilArgListAppendDouble(m_list, name, value);
        return *this;
    }
    Arguments& with(const char* name, const char* value)
    {
        VtxUtilArgListAppendString(m_list, name, value);
        return *this;
    }
    operator VtxArgListHandle() const { return m_list; }

private:
    VtxArgListHandle m_list = VtxUtilArgListAlloc();
};

/* A place inside a cell: a random mixture of its corners. */
inline Position placeIn(vtkDataSet& grid, vtkIdType cell, std::mt19937& random)
{
    vtkNew<vtkIdList> corners;
    grid.GetCellPoints(cell, corners);
    std::uniform_real_distribution<double> part(0.05, 1.0);
    Position place{0.0, 0.0, 0.0};
    double total = 0.0;
    for (vtkIdType i = 0; i < corners->GetNumberOfIds(); ++i) {
        const double weight = part(random);
        const double* corner = grid.GetPoint(corners->GetId(i));
        for (std::size_t axis = 0; axis < 3; ++axis) {
            place[axis] += weight * corner[axis];
        }
        total += weight;
    }
    for (double& coordinate : place) {
        coordinate /= total;
    }
    return place;
}

/* Probes of the kernel, through its interface. */
class ProbeTest : public KernelTest
{
protected:
    static CoordinateVariables coordinates()
    {
        return {VtxUtilVarGetNumByAssignment('X'), VtxUtilVarGetNumByAssignment('Y'),
                VtxUtilVarGetNumByAssignment('Z')};
    }

    static vtkSmartPointer<vtkDataSet> grid(long zone)
    {
        return zoneGrid(*document().activeDataSet(), zone, coordinates());
    }

    static bool probeAt(Position at, bool isInVolume = false, bool isNearest = false)
    {
        const LockScope lock;
        return VtxUtilProbeAtFieldPositionX(Arguments()
                                                .with("X", at[0])
                                                .with("Y", at[1])
                                                .with("Z", at[2])
                                                .with("SearchVolume", long{isInVolume})
                                                .with("NearestPoint", long{isNearest}));
    }

    static bool probeIndex(long i, long j, long k, long zone)
    {
        const LockScope lock;
        return VtxUtilProbeAtFieldIndexX(Arguments().with("I", i).with("J", j).with("K", k).with("Zone", zone));
    }

    static bool probeLine(char axis, long number, double position)
    {
        const LockScope lock;
        return VtxUtilProbeAtLinePositionX(
            Arguments().with("Axis", long{axis}).with("AxisNum", number).with("Position", position));
    }

    /* A 3D plot of an ordered zone of 6 x 5 x 4 points, one apart. */
    static void showBox()
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(6, 5, 4, 0, 0, 0, 5, 4, 3, FieldDataType_Double)) << lastError();
        ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_Cartesian3D)) << lastError();
    }
};

} // namespace vantrix::kernel
