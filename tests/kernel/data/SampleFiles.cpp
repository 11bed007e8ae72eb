#include "SampleFiles.h"

#include <vtkAppendFilter.h>
#include <vtkCellData.h>
#include <vtkCompositeDataSet.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkDoubleArray.h>
#include <vtkExodusIIWriter.h>
#include <vtkFloatArray.h>
#include <vtkGenericDataObjectWriter.h>
#include <vtkImageData.h>
#include <vtkInformation.h>
#include <vtkIntArray.h>
#include <vtkPLYWriter.h>
#include <vtkPointData.h>
#include <vtkRectilinearGrid.h>
#include <vtkSTLWriter.h>
#include <vtkTriangleFilter.h>
#include <vtkXMLDataSetWriter.h>
#include <vtkXMLMultiBlockDataWriter.h>
#include <vtkXMLPUnstructuredGridWriter.h>

#include <cstdint>
#include <fstream>

namespace samplefiles {

namespace {

template<class Grid>
vtkSmartPointer<Grid> withValues(vtkSmartPointer<Grid> grid)
{
    vtkNew<vtkDoubleArray> pressure;
    pressure->SetName("Pressure");
    vtkNew<vtkFloatArray> velocity;
    velocity->SetName("Velocity");
    velocity->SetNumberOfComponents(3);
    for (vtkIdType i = 0; i < grid->GetNumberOfPoints(); ++i) {
        double p[3];
        grid->GetPoint(i, p);
        pressure->InsertNextValue(1 + 2 * p[0] + 3 * p[1] + 4 * p[2]);
        velocity->InsertNextTuple3(p[0], 2 * p[1], 3 * p[2]);
    }
    grid->GetPointData()->AddArray(pressure);
    grid->GetPointData()->AddArray(velocity);
    vtkNew<vtkIntArray> part;
    part->SetName("Part");
    for (int i = 0; i < grid->GetNumberOfCells(); ++i) {
        part->InsertNextValue(i);
    }
    grid->GetCellData()->AddArray(part);
    return grid;
}

vtkSmartPointer<vtkPoints> boxPoints()
{
    const auto points = vtkSmartPointer<vtkPoints>::New();
    for (int k = 0; k < 2; ++k) {
        for (int j = 0; j < 3; ++j) {
            for (int i = 0; i < 4; ++i) {
                points->InsertNextPoint(i, 0.5 * j, 2 * k);
            }
        }
    }
    return points;
}

template<class Writer>
void writeWith(const std::string& file, vtkDataObject* data, bool binary = false)
{
    vtkNew<Writer> writer;
    writer->SetInputData(data);
    writer->SetFileName(file.c_str());
    if constexpr (requires { writer->SetFileTypeToBinary(); }) {
        if (binary) {
            writer->SetFileTypeToBinary();
        } else {
            writer->SetFileTypeToASCII();
        }
    } else if constexpr (requires { writer->SetDataModeToAppended(); }) {
        if (!binary) {
            writer->SetDataModeToAscii();
        }
    }
    writer->Write();
}

vtkSmartPointer<vtkPolyData> triangles()
{
    vtkNew<vtkTriangleFilter> filter;
    filter->SetInputData(surface());
    filter->Update();
    return filter->GetOutput();
}

} // namespace

vtkSmartPointer<vtkStructuredGrid> structured()
{
    const auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
    grid->SetDimensions(4, 3, 2);
    grid->SetPoints(boxPoints());
    return withValues(grid);
}

vtkSmartPointer<vtkDataSet> rectilinear()
{
    const auto axis = [](std::initializer_list<double> values) {
        const auto array = vtkSmartPointer<vtkDoubleArray>::New();
        for (const double value : values) {
            array->InsertNextValue(value);
        }
        return array;
    };
    const auto grid = vtkSmartPointer<vtkRectilinearGrid>::New();
    grid->SetDimensions(4, 3, 2);
    grid->SetXCoordinates(axis({0, 1, 5, 6}));
    grid->SetYCoordinates(axis({-1, 0, 4}));
    grid->SetZCoordinates(axis({2, 3}));
    return withValues<vtkDataSet>(grid);
}

vtkSmartPointer<vtkDataSet> image()
{
    const auto grid = vtkSmartPointer<vtkImageData>::New();
    grid->SetExtent(2, 5, 1, 3, 0, 1);
    grid->SetOrigin(10, 20, 30);
    grid->SetSpacing(1, 2, 0.5);
    return withValues<vtkDataSet>(grid);
}

vtkSmartPointer<vtkUnstructuredGrid> bricks()
{
    vtkNew<vtkAppendFilter> append;
    append->AddInputData(structured());
    append->Update();
    return append->GetOutput();
}

vtkSmartPointer<vtkUnstructuredGrid> mixedVolume()
{
    const double places[][3] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0},   {0, 1, 0},   {0, 0, 1},     {1, 0, 1},
                                {1, 1, 1}, {0, 1, 1}, {0, 0.5, 2}, {1, 0.5, 2}, {2, 0.5, 0.5}, {3, 0.5, 0.5}};
    vtkNew<vtkPoints> points;
    points->SetDataTypeToDouble();
    for (const auto& place : places) {
        points->InsertNextPoint(place);
    }
    const auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    grid->SetPoints(points);
    const auto add = [&](int type, std::vector<vtkIdType> corners) {
        grid->InsertNextCell(type, static_cast<vtkIdType>(corners.size()), corners.data());
    };
    add(VTK_HEXAHEDRON, {0, 1, 2, 3, 4, 5, 6, 7});
    add(VTK_WEDGE, {4, 8, 7, 5, 9, 6}); /* a roof: VTK's base triangle looks away from the other */
    add(VTK_PYRAMID, {1, 2, 6, 5, 10});
    add(VTK_TETRA, {2, 11, 6, 10});
    return withValues(grid);
}

vtkSmartPointer<vtkPolyData> surface()
{
    vtkNew<vtkDataSetSurfaceFilter> filter;
    filter->SetInputData(bricks());
    filter->Update();
    const auto data = vtkSmartPointer<vtkPolyData>::New();
    data->CopyStructure(filter->GetOutput());
    return withValues(data);
}

vtkSmartPointer<vtkMultiBlockDataSet> blocks()
{
    const auto all = vtkSmartPointer<vtkMultiBlockDataSet>::New();
    all->SetBlock(0, bricks());
    all->GetMetaData(0u)->Set(vtkCompositeDataSet::NAME(), "Inlet");
    const auto wall = surface();
    wall->GetPointData()->RemoveArray("Pressure");
    all->SetBlock(1, wall);
    all->GetMetaData(1u)->Set(vtkCompositeDataSet::NAME(), "Wall");
    return all;
}

const std::vector<Format>& formats()
{
    static const std::vector<Format> all{
        {"vts", [](auto& file) { writeWith<vtkXMLDataSetWriter>(file, structured(), true); }, 24, 6, true},
        {"vtr", [](auto& file) { writeWith<vtkXMLDataSetWriter>(file, rectilinear(), true); }, 24, 6, true},
        {"vti", [](auto& file) { writeWith<vtkXMLDataSetWriter>(file, image(), true); }, 24, 6, true},
        {"vtp", [](auto& file) { writeWith<vtkXMLDataSetWriter>(file, surface(), true); }, 24, 22, true},
        {"vtu", [](auto& file) { writeWith<vtkXMLDataSetWriter>(file, bricks(), true); }, 24, 6, true},
        {"ascii.vtu", [](auto& file) { writeWith<vtkXMLDataSetWriter>(file, bricks()); }, 24, 6, true},
        {"pvtu", [](auto& file) { writeWith<vtkXMLPUnstructuredGridWriter>(file, bricks()); }, 24, 6, true},
        {"vtk", [](auto& file) { writeWith<vtkGenericDataObjectWriter>(file, bricks()); }, 24, 6, true},
        {"binary.vtk", [](auto& file) { writeWith<vtkGenericDataObjectWriter>(file, bricks(), true); }, 24, 6, true},
        {"structured.vtk", [](auto& file) { writeWith<vtkGenericDataObjectWriter>(file, structured(), true); }, 24, 6,
         true},
        {"exo", [](auto& file) { writeWith<vtkExodusIIWriter>(file, bricks()); }, 24, 6, true},
        {"stl", [](auto& file) { writeWith<vtkSTLWriter>(file, triangles()); }, 24, 44, false},
        {"binary.stl", [](auto& file) { writeWith<vtkSTLWriter>(file, triangles(), true); }, 24, 44, false},
        {"ply", [](auto& file) { writeWith<vtkPLYWriter>(file, triangles()); }, 24, 44, false},
        {"binary.ply", [](auto& file) { writeWith<vtkPLYWriter>(file, triangles(), true); }, 24, 44, false},
    };
    return all;
}

std::vector<std::string> writeEnSight(const std::string& folder)
{
    const std::vector<std::string> files{folder + "/sample.case", folder + "/sample.geo",
                                         folder + "/sample.temperature"};
    std::ofstream(files[0]) << "FORMAT\ntype: ensight gold\n\nGEOMETRY\nmodel: sample.geo\n\nVARIABLE\n"
                               "scalar per node: Temperature sample.temperature\n";
    std::ofstream(files[1])
        << "Geometry of a test\ntwo triangles of a square\nnode id assign\nelement id assign\npart\n"
           "         1\nSquare\ncoordinates\n         4\n"
           " 0.00000e+00\n 1.00000e+00\n 1.00000e+00\n 0.00000e+00\n"
           " 0.00000e+00\n 0.00000e+00\n 1.00000e+00\n 1.00000e+00\n"
           " 0.00000e+00\n 0.00000e+00\n 0.00000e+00\n 0.00000e+00\n"
           "tria3\n         2\n         1         2         3\n         1         3         4\n";
    std::ofstream(files[2]) << "Temperature of a test\npart\n         1\ncoordinates\n"
                               " 1.00000e+01\n 2.00000e+01\n 3.00000e+01\n 4.00000e+01\n";
    return files;
}

void writePlot3d(const std::string& gridFile, const std::string& solutionFile)
{
    const auto grid = structured();
    const auto put = [](std::ofstream& file, auto value) { file.write(reinterpret_cast<char*>(&value), sizeof value); };
    std::ofstream xyz(gridFile, std::ios::binary), q(solutionFile, std::ios::binary);
    for (const std::int32_t dimension : {4, 3, 2}) {
        put(xyz, dimension);
        put(q, dimension);
    }
    for (const float condition : {0.5f, 0.0f, 1000.0f, 0.0f}) {
        put(q, condition);
    }
    for (int axis = 0; axis < 3; ++axis) {
        for (vtkIdType i = 0; i < 24; ++i) {
            put(xyz, static_cast<float>(grid->GetPoint(i)[axis]));
        }
    }
    for (int component = 0; component < 5; ++component) {
        for (int i = 0; i < 24; ++i) {
            put(q, static_cast<float>(1 + component + 0.125 * i));
        }
    }
}

} // namespace samplefiles
