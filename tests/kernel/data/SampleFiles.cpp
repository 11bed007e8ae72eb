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

#include <array>
#include <cstdint>
#include <cstring>
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
    auto points = vtkSmartPointer<vtkPoints>::New();
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

template<typename Value>
void put(std::ofstream& file, Value value)
{
    file.write(reinterpret_cast<const char*>(&value), sizeof value);
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
        auto array = vtkSmartPointer<vtkDoubleArray>::New();
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
    auto all = vtkSmartPointer<vtkMultiBlockDataSet>::New();
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
    std::vector<std::string> files{folder + "/sample.case", folder + "/sample.geo", folder + "/sample.temperature"};
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

std::vector<std::string> writeEnSight6(const std::string& folder)
{
    std::vector<std::string> files{folder + "/six.case", folder + "/six.geo", folder + "/six.temperature",
                                   folder + "/six.load"};
    std::ofstream(files[0]) << "FORMAT\ntype: ensight\n\nGEOMETRY\nmodel: six.geo\n\nVARIABLE\n"
                               "scalar per node: Temperature six.temperature\nscalar per element: Load six.load\n";
    std::ofstream(files[1]) << "Geometry of a test\ntwo triangles and a block\nnode id given\nelement id off\n"
                               "coordinates\n       4\n"
                               "       1 0.00000e+00 0.00000e+00 0.00000e+00\n"
                               "       2 1.00000e+00 0.00000e+00 0.00000e+00\n"
                               "       3 1.00000e+00 1.00000e+00 0.00000e+00\n"
                               "       4 0.00000e+00 1.00000e+00 0.00000e+00\n"
                               "part 1\nSquare\ntria3\n       2\n       1       2       3\n       1       3       4\n"
                               "part 2\nBlock\nblock\n       2       2       1\n"
                               " 0.00000e+00 1.00000e+00 0.00000e+00 1.00000e+00\n"
                               " 2.00000e+00 2.00000e+00 3.00000e+00 3.00000e+00\n"
                               " 0.00000e+00 0.00000e+00 0.00000e+00 0.00000e+00\n";
    std::ofstream(files[2]) << "Temperature of a test\n 1.00000e+01 2.00000e+01 3.00000e+01 4.00000e+01\n"
                               "part 2\nblock\n 5.00000e+01 6.00000e+01 7.00000e+01 8.00000e+01\n";
    std::ofstream(files[3]) << "Load of a test\npart 1\ntria3\n 1.00000e+00 2.00000e+00\n";
    return files;
}

std::vector<std::string> writeBinaryEnSight(const std::string& folder)
{
    const auto grid = bricks();
    std::vector<std::string> files{folder + "/binary.case", folder + "/binary.geo", folder + "/binary.pressure"};
    std::ofstream(files[0]) << "FORMAT\ntype: ensight gold\n\nGEOMETRY\nmodel: binary.geo\n\nVARIABLE\n"
                               "scalar per node: Pressure binary.pressure\n";
    const auto text = [](std::ofstream& file, std::string line) {
        line.resize(80, ' ');
        file << line;
    };
    std::ofstream geometry(files[1], std::ios::binary), pressure(files[2], std::ios::binary);
    for (const char* line :
         {"C Binary", "Geometry of a test", "bricks", "node id assign", "element id assign", "part"}) {
        text(geometry, line);
    }
    put(geometry, std::int32_t{1});
    text(geometry, "Bricks");
    text(geometry, "coordinates");
    put(geometry, static_cast<std::int32_t>(grid->GetNumberOfPoints()));
    text(pressure, "Pressure of a test");
    text(pressure, "part");
    put(pressure, std::int32_t{1});
    text(pressure, "coordinates");
    for (int axis = 0; axis < 3; ++axis) {
        for (vtkIdType i = 0; i < grid->GetNumberOfPoints(); ++i) {
            put(geometry, static_cast<float>(grid->GetPoint(i)[axis]));
        }
    }
    for (vtkIdType i = 0; i < grid->GetNumberOfPoints(); ++i) {
        put(pressure, static_cast<float>(grid->GetPointData()->GetArray("Pressure")->GetComponent(i, 0)));
    }
    text(geometry, "hexa8");
    put(geometry, static_cast<std::int32_t>(grid->GetNumberOfCells()));
    for (vtkIdType cell = 0; cell < grid->GetNumberOfCells(); ++cell) {
        for (vtkIdType corner = 0; corner < 8; ++corner) {
            put(geometry, static_cast<std::int32_t>(grid->GetCell(cell)->GetPointId(static_cast<int>(corner)) + 1));
        }
    }
    return files;
}

namespace {

/* Writes the numbers of a PLOT3D file, record by record. */
class Plot3dFile
{
public:
    Plot3dFile(const std::string& file, const Plot3dLayout& layout)
        : m_stream(file, std::ios::binary)
        , m_layout(layout)
    {}

    void integer(std::int32_t value) { add(value); }
    void real(double value) { m_layout.isDoublePrecision ? add(value) : add(static_cast<float>(value)); }

    void endRecord()
    {
        const std::string record = std::move(m_record);
        m_record.clear();
        if (m_layout.hasByteCounts) {
            add(static_cast<std::int32_t>(record.size()));
        }
        const std::string mark = std::move(m_record);
        m_record.clear();
        m_stream << mark << record << mark;
    }

private:
    template<typename Value>
    void add(Value value)
    {
        if (m_layout.isText) {
            m_record += std::to_string(value) + "\n";
            return;
        }
        std::string bytes(sizeof value, '\0');
        std::memcpy(bytes.data(), &value, sizeof value);
        m_record += m_layout.isBigEndian ? std::string(bytes.rbegin(), bytes.rend()) : bytes;
    }

    std::ofstream m_stream;
    Plot3dLayout m_layout;
    std::string m_record;
};

} // namespace

void writePlot3d(const std::string& gridFile, const std::string& solutionFile, const Plot3dLayout& layout)
{
    Plot3dFile xyz(gridFile, layout), q(solutionFile, layout);
    std::vector<std::array<int, 3>> blocks{{4, 3, 2}};
    if (layout.isMultiGrid) {
        blocks.push_back({2, 2, 2});
    }
    const int axes = layout.isTwoDimensional ? 2 : 3;
    for (Plot3dFile* file : {&xyz, &q}) {
        if (layout.isMultiGrid) {
            file->integer(static_cast<std::int32_t>(blocks.size()));
            file->endRecord();
        }
        for (const auto& size : blocks) {
            for (int axis = 0; axis < axes; ++axis) {
                file->integer(size[static_cast<std::size_t>(axis)]);
            }
        }
        file->endRecord();
    }
    for (const auto& [iMax, jMax, kMax] : blocks) {
        const int points = iMax * jMax * (layout.isTwoDimensional ? 1 : kMax);
        for (int axis = 0; axis < axes; ++axis) {
            for (int n = 0; n < points; ++n) {
                const int k = n / iMax / jMax;
                const std::array<double, 3> place{1.0 * (n % iMax), 0.5 * (n / iMax % jMax), 2.0 * k};
                xyz.real(place[static_cast<std::size_t>(axis)]);
            }
        }
        for (int n = 0; n < points && layout.hasBlanking; ++n) {
            xyz.integer(n > 0);
        }
        xyz.endRecord();
        for (const double condition : {0.5, 0.0, 1000.0, 0.0}) {
            q.real(condition);
        }
        q.endRecord();
        for (int component = 0; component < axes + 2; ++component) {
            for (int n = 0; n < points; ++n) {
                q.real(1 + component + 0.125 * n);
            }
        }
        q.endRecord();
    }
}

} // namespace samplefiles
