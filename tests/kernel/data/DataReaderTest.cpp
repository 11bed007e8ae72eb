#include "kernel/DataReader.h"
#include "SampleFiles.h"
#include "TemporaryFolder.h"
#include "kernel/DataError.h"
#include "kernel/ZoneGrid.h"

#include <gtest/gtest.h>
#include <vtkCell.h>
#include <vtkCellData.h>
#include <vtkCellSizeFilter.h>
#include <vtkIntArray.h>
#include <vtkPointData.h>
#include <vtkXMLDataSetWriter.h>
#include <vtkXMLMultiBlockDataWriter.h>

#include <clocale>

using namespace vantrix::kernel;

namespace {

DataSet readFiles(const std::vector<std::string>& files)
{
    DataSet dataSet(1);
    DataReader::read(files, dataSet, [](double) { return true; });
    return dataSet;
}

std::string refusal(const std::vector<std::string>& files)
{
    testing::internal::CaptureStderr();
    std::string text = "nothing was refused";
    try {
        readFiles(files);
    } catch (const DataError& error) {
        text = error.what();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << files.front();
    return text;
}

double at(const DataSet& dataSet, const std::string& variable, long index, long zone = 1)
{
    const FieldArray* field = dataSet.field(zone, dataSet.variableNumber(variable));
    if (!field || !field->values) {
        ADD_FAILURE() << "no values of " << variable;
        return 0.0;
    }
    return field->values->GetComponent(index, 0);
}

std::vector<std::string> names(const DataSet& dataSet)
{
    std::vector<std::string> result;
    for (const Variable& variable : dataSet.variables) {
        result.push_back(variable.name);
    }
    return result;
}

std::string contents(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

class DataReaderFormat : public testing::TestWithParam<samplefiles::Format>
{};

TEST_P(DataReaderFormat, KeepsValuesTopologyAndNames)
{
    const TemporaryFolder folder;
    const std::string file = folder.file("sample." + GetParam().suffix);
    GetParam().write(file);
    const DataSet dataSet = readFiles({file});

    ASSERT_EQ(dataSet.zoneCount(), 1);
    const Zone& zone = *dataSet.zone(1);
    EXPECT_EQ(zone.pointCount(), GetParam().points);
    EXPECT_EQ(zone.cellCount(), GetParam().cells);
    ASSERT_GE(dataSet.variableCount(), 3);
    EXPECT_EQ(dataSet.variables[2].name, "Z");
    if (!GetParam().hasValues) {
        return;
    }
    for (long i = 0; i < zone.pointCount(); ++i) {
        const double x = at(dataSet, "X", i), y = at(dataSet, "Y", i), z = at(dataSet, "Z", i);
        EXPECT_NEAR(at(dataSet, "Pressure", i), 1 + 2 * x + 3 * y + 4 * z, 1e-4);
        EXPECT_NEAR(at(dataSet, "Velocity Y", i), 2 * y, 1e-5);
        EXPECT_NEAR(at(dataSet, "Velocity Z", i), 3 * z, 1e-5);
    }
    const FieldArray* part = dataSet.field(1, dataSet.variableNumber("Part"));
    ASSERT_NE(part, nullptr);
    EXPECT_EQ(part->location, ValueLocation_CellCentered);
    EXPECT_EQ(at(dataSet, "Part", 5), 5);
}

TEST_P(DataReaderFormat, RefusesAFileCutShort)
{
    const TemporaryFolder folder;
    const std::string file = folder.file("sample." + GetParam().suffix);
    GetParam().write(file);
    const std::string whole = contents(file);
    for (const double part : {0.25, 0.5, 0.9, 0.99}) {
        if (part > 0.9 && GetParam().suffix != "exo") {
            continue; /* the last bytes of some formats hold no data */
        }
        const auto size = static_cast<std::size_t>(part * static_cast<double>(whole.size()));
        std::ofstream(file, std::ios::binary | std::ios::trunc) << whole.substr(0, size);
        const std::string text = refusal({file});
        EXPECT_NE(text.find(file), std::string::npos) << part << ": " << text;
    }
}

TEST_P(DataReaderFormat, RefusesForeignContents)
{
    const TemporaryFolder folder;
    const std::string file = folder.write("foreign." + GetParam().suffix, "Dear reader,\nthis is a letter.\n");
    const std::string text = refusal({file});
    EXPECT_NE(text.find(file), std::string::npos) << text;
    EXPECT_NE(text.find("It must be"), std::string::npos) << text;
}

INSTANTIATE_TEST_SUITE_P(All, DataReaderFormat, testing::ValuesIn(samplefiles::formats()), [](auto& information) {
    std::string name = information.param.suffix;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
});

TEST(DataReader, FilesThatAreNoneAreRefused)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("folder.vtu"));
    EXPECT_NE(refusal({folder.file("missing.vtu")}).find("does not exist"), std::string::npos);
    EXPECT_NE(refusal({folder.file("folder.vtu")}).find("is a folder"), std::string::npos);
    EXPECT_NE(refusal({folder.write("empty.vtu", "")}).find("is empty"), std::string::npos);
    EXPECT_NE(refusal({folder.write("letter.txt", "Dear reader")}).find("suffix \"txt\""), std::string::npos);
    EXPECT_NE(refusal({folder.write("plain", "Dear reader")}).find("vtu"), std::string::npos);
    EXPECT_NE(refusal({folder.write("no.cgns", "Dear reader")}).find("CGNS"), std::string::npos);
}

TEST(DataReader, VolumeCellsOfSeveralKindsStayOneZoneOfBricks)
{
    const TemporaryFolder folder;
    vtkNew<vtkXMLDataSetWriter> writer;
    writer->SetInputData(samplefiles::mixedVolume());
    writer->SetFileName(folder.file("mixed.vtu").c_str());
    writer->Write();
    const DataSet dataSet = readFiles({folder.file("mixed.vtu")});

    ASSERT_EQ(dataSet.zoneCount(), 1);
    EXPECT_EQ(dataSet.zone(1)->type(), ZoneType_FEBrick);
    EXPECT_EQ(dataSet.zone(1)->cellCount(), 4);
    const auto volumes = [](vtkDataSet* grid) {
        vtkNew<vtkCellSizeFilter> size;
        size->SetInputData(grid);
        size->Update();
        std::vector<double> result;
        for (vtkIdType i = 0; i < 4; ++i) {
            result.push_back(
                vtkDataSet::SafeDownCast(size->GetOutput())->GetCellData()->GetArray("Volume")->GetComponent(i, 0));
        }
        return result;
    };
    const std::vector<double> before = volumes(samplefiles::mixedVolume());
    const std::vector<double> after = volumes(zoneGrid(dataSet, 1, {1, 2, 3}));
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(std::abs(after[i]), std::abs(before[i]), 1e-9) << "cell " << i;
    }
    EXPECT_GT(after[1], 0.0) << "the wedge is turned inside out";
}

TEST(DataReader, PointsCurvesAndSurfacesOfOneBlockBecomeAZoneEach)
{
    const TemporaryFolder folder;
    vtkNew<vtkPolyData> data;
    vtkNew<vtkPoints> points;
    for (int i = 0; i < 6; ++i) {
        points->InsertNextPoint(i, i * i, 0);
    }
    data->SetPoints(points);
    vtkNew<vtkCellArray> verts, lines, polys;
    const vtkIdType vertex[] = {5}, line[] = {0, 1, 2}, triangle[] = {0, 1, 2}, pentagon[] = {0, 1, 2, 3, 4};
    verts->InsertNextCell(1, vertex);
    lines->InsertNextCell(3, line);
    polys->InsertNextCell(3, triangle);
    polys->InsertNextCell(5, pentagon);
    data->SetVerts(verts);
    data->SetLines(lines);
    data->SetPolys(polys);
    vtkNew<vtkIntArray> part;
    part->SetName("Part");
    for (int i = 0; i < 4; ++i) {
        part->InsertNextValue(10 + i);
    }
    data->GetCellData()->AddArray(part);
    vtkNew<vtkXMLDataSetWriter> writer;
    writer->SetInputData(data);
    writer->SetFileName(folder.file("kinds.vtp").c_str());
    writer->Write();
    const DataSet dataSet = readFiles({folder.file("kinds.vtp")});

    ASSERT_EQ(dataSet.zoneCount(), 3);
    EXPECT_EQ(dataSet.zone(1)->type(), ZoneType_Ordered);
    EXPECT_EQ(dataSet.zone(1)->name(), "kinds (points)");
    EXPECT_EQ(at(dataSet, "Y", 0, 1), 25);
    EXPECT_EQ(dataSet.zone(2)->type(), ZoneType_FELineSeg);
    EXPECT_EQ(dataSet.zone(2)->cellCount(), 2);
    EXPECT_EQ(at(dataSet, "Part", 1, 2), 11) << "both segments come from the one curve";
    EXPECT_EQ(dataSet.zone(3)->type(), ZoneType_FEPolygon);
    EXPECT_EQ(at(dataSet, "Part", 1, 3), 13);
    EXPECT_EQ(zoneGrid(dataSet, 3, {1, 2, 3})->GetCell(1)->GetNumberOfPoints(), 5);
}

TEST(DataReader, PolyhedraKeepTheirFaces)
{
    const TemporaryFolder folder;
    vtkNew<vtkUnstructuredGrid> grid;
    grid->SetPoints(samplefiles::mixedVolume()->GetPoints());
    const vtkIdType faces[] = {4, 0, 3, 2, 1, 4, 4, 5, 6, 7, 4, 0, 1, 5, 4,
                               4, 1, 2, 6, 5, 4, 2, 3, 7, 6, 4, 3, 0, 4, 7};
    grid->InsertNextCell(VTK_POLYHEDRON, 6, faces);
    const vtkIdType tetra[] = {2, 11, 6, 10};
    grid->InsertNextCell(VTK_TETRA, 4, tetra);
    vtkNew<vtkXMLDataSetWriter> writer;
    writer->SetInputData(grid);
    writer->SetFileName(folder.file("cells.vtu").c_str());
    writer->Write();
    const DataSet dataSet = readFiles({folder.file("cells.vtu")});

    ASSERT_EQ(dataSet.zoneCount(), 2);
    EXPECT_EQ(dataSet.zone(1)->type(), ZoneType_FETetra);
    EXPECT_EQ(dataSet.zone(2)->type(), ZoneType_FEPolyhedron);
    vtkCell* cell = zoneGrid(dataSet, 2, {1, 2, 3})->GetCell(0);
    EXPECT_EQ(cell->GetNumberOfFaces(), 6);
    EXPECT_EQ(cell->GetFace(3)->GetPointId(2), 6);
}

TEST(DataReader, BlocksAreZonesAndVariablesAreOfAll)
{
    const TemporaryFolder folder;
    vtkNew<vtkXMLMultiBlockDataWriter> writer;
    writer->SetInputData(samplefiles::blocks());
    writer->SetFileName(folder.file("all.vtm").c_str());
    writer->Write();
    const DataSet dataSet = readFiles({folder.file("all.vtm")});

    ASSERT_EQ(dataSet.zoneCount(), 2);
    EXPECT_EQ(dataSet.zone(1)->name(), "Inlet");
    EXPECT_EQ(dataSet.zone(2)->name(), "Wall");
    EXPECT_EQ(dataSet.zone(2)->type(), ZoneType_FEQuad);
    const long pressure = dataSet.variableNumber("Pressure");
    EXPECT_TRUE(dataSet.field(1, pressure)->isLoaded());
    EXPECT_FALSE(dataSet.field(2, pressure)->isAvailable());
    EXPECT_EQ(names(dataSet),
              (std::vector<std::string>{"X", "Y", "Z", "Pressure", "Velocity X", "Velocity Y", "Velocity Z", "Part"}));
}

TEST(DataReader, NamesStayDistinctAndTypesFit)
{
    const TemporaryFolder folder;
    const auto grid = samplefiles::structured();
    const auto add = [](vtkDataSetAttributes* attributes, auto&& array, const char* name, int components, long tuples) {
        array->SetName(name);
        array->SetNumberOfComponents(components);
        array->SetNumberOfTuples(tuples);
        array->Fill(7);
        attributes->AddArray(array);
    };
    add(grid->GetCellData(), vtkSmartPointer<vtkIntArray>::New(), "Pressure", 1, 6);
    add(grid->GetPointData(), vtkSmartPointer<vtkIntArray>::New(), "X", 1, 24);
    add(grid->GetPointData(), vtkSmartPointer<vtkIdTypeArray>::New(), "Id", 1, 24);
    add(grid->GetPointData(), vtkSmartPointer<vtkIntArray>::New(), "Stress", 6, 24);
    add(grid->GetPointData(), vtkSmartPointer<vtkIntArray>::New(), "Modes", 4, 24);
    vtkIdTypeArray::SafeDownCast(grid->GetPointData()->GetArray("Id"))->SetValue(3, 5000000000);
    vtkNew<vtkXMLDataSetWriter> writer;
    writer->SetInputData(grid);
    writer->SetFileName(folder.file("names.vts").c_str());
    writer->Write();
    const DataSet dataSet = readFiles({folder.file("names.vts")});

    EXPECT_EQ(names(dataSet),
              (std::vector<std::string>{
                  "X",         "Y",       "Z",         "Pressure",  "Velocity X", "Velocity Y", "Velocity Z",
                  "X (2)",     "Id",      "Stress XX", "Stress YY", "Stress ZZ",  "Stress XY",  "Stress YZ",
                  "Stress XZ", "Modes 1", "Modes 2",   "Modes 3",   "Modes 4",    "Part",       "Pressure (cell)"}));
    EXPECT_EQ(at(dataSet, "Id", 3), 5e9);
    EXPECT_EQ(dataSet.field(1, dataSet.variableNumber("Id"))->values->GetDataType(), VTK_DOUBLE);
    EXPECT_EQ(dataSet.field(1, dataSet.variableNumber("Pressure (cell)"))->location, ValueLocation_CellCentered);
}

TEST(DataReader, Plot3dFilesMayBeNamedInAnyOrder)
{
    const TemporaryFolder folder;
    const std::string grid = folder.file("grid.xyz"), solution = folder.file("solution.q");
    samplefiles::writePlot3d(grid, solution);
    for (const auto& files : {std::vector<std::string>{grid, solution}, std::vector<std::string>{solution, grid}}) {
        const DataSet dataSet = readFiles(files);
        ASSERT_EQ(dataSet.zoneCount(), 1);
        EXPECT_EQ(dataSet.zone(1)->dimensions(), (std::array<long, 3>{4, 3, 2}));
        EXPECT_EQ(at(dataSet, "X", 3), 3.0);
        EXPECT_EQ(at(dataSet, "Density", 8), 2.0);
        EXPECT_EQ(at(dataSet, "Momentum Y", 8), 4.0);
        EXPECT_EQ(at(dataSet, "StagnationEnergy", 8), 6.0);
    }
    EXPECT_EQ(names(readFiles({grid})), (std::vector<std::string>{"X", "Y", "Z"}));
    EXPECT_NE(refusal({solution}).find("Choose a grid"), std::string::npos);
    EXPECT_NE(refusal({grid, grid}).find("cannot be read as PLOT3D"), std::string::npos);
    EXPECT_NE(refusal({grid, solution, grid}).find("too many"), std::string::npos);

    const std::string whole = contents(solution);
    folder.write("solution.q", whole.substr(0, whole.size() / 2));
    EXPECT_NE(refusal({grid, solution}).find("solution.q"), std::string::npos);
    EXPECT_NE(refusal({folder.write("letter.bin", "Dear reader, this is a letter")}).find("letter.bin"),
              std::string::npos);
}

TEST(DataReader, Plot3dIsReadInEveryVariant)
{
    using Layout = samplefiles::Plot3dLayout;
    const std::vector<std::pair<const char*, Layout>> layouts{
        {"text", {.isText = true}},
        {"text of several grids, blanked", {.isText = true, .isMultiGrid = true, .hasBlanking = true}},
        {"text of two dimensions", {.isText = true, .isTwoDimensional = true}},
        {"big-endian", {.isBigEndian = true}},
        {"double", {.isDoublePrecision = true}},
        {"records", {.hasByteCounts = true}},
        {"blanked", {.hasBlanking = true}},
        {"several grids", {.isMultiGrid = true}},
        {"two dimensions", {.isTwoDimensional = true}},
        {"several flat grids in records", {.isMultiGrid = true, .isTwoDimensional = true, .hasByteCounts = true}},
        {"all",
         {.isMultiGrid = true,
          .hasByteCounts = true,
          .isDoublePrecision = true,
          .isBigEndian = true,
          .hasBlanking = true}},
    };
    const TemporaryFolder folder;
    const std::string grid = folder.file("grid.xyz"), solution = folder.file("solution.q");
    for (const auto& [name, layout] : layouts) {
        SCOPED_TRACE(name);
        samplefiles::writePlot3d(grid, solution, layout);
        const DataSet dataSet = readFiles({solution, grid});
        ASSERT_EQ(dataSet.zoneCount(), layout.isMultiGrid ? 2 : 1);
        EXPECT_EQ(dataSet.zone(1)->dimensions(), (std::array<long, 3>{4, 3, layout.isTwoDimensional ? 1 : 2}));
        EXPECT_EQ(at(dataSet, "X", 7), 3.0);
        EXPECT_EQ(at(dataSet, "Y", 7), 0.5);
        EXPECT_EQ(at(dataSet, "Z", layout.isTwoDimensional ? 7 : 12), layout.isTwoDimensional ? 0.0 : 2.0);
        EXPECT_EQ(at(dataSet, "Density", 8), 2.0);
        EXPECT_EQ(at(dataSet, "Momentum Y", 8), 4.0);
        EXPECT_EQ(at(dataSet, "StagnationEnergy", 8), layout.isTwoDimensional ? 5.0 : 6.0);
        EXPECT_EQ(dataSet.variableNumber("IBlank") > 0, layout.hasBlanking);
        if (layout.hasBlanking) {
            EXPECT_EQ(at(dataSet, "IBlank", 0), 0.0);
            EXPECT_EQ(at(dataSet, "IBlank", 1), 1.0);
        }
        if (layout.isMultiGrid) {
            EXPECT_EQ(at(dataSet, "StagnationEnergy", 1, 2), layout.isTwoDimensional ? 4.125 : 5.125);
        }
        const std::string whole = contents(grid);
        for (const double part : {0.35, 0.95}) { /* not where what is left is a whole file of a smaller layout */
            const auto size = static_cast<std::size_t>(part * static_cast<double>(whole.size()));
            std::ofstream(grid, std::ios::binary | std::ios::trunc) << whole.substr(0, size);
            EXPECT_NE(refusal({grid, solution}).find("grid.xyz"), std::string::npos) << "cut at " << part;
        }
    }
}

TEST(DataReader, AMultiBlockFileNeedsTheFilesThatItNames)
{
    const TemporaryFolder folder;
    vtkNew<vtkXMLMultiBlockDataWriter> writer;
    writer->SetInputData(samplefiles::blocks());
    writer->SetFileName(folder.file("all.vtm").c_str());
    writer->Write();
    std::filesystem::remove(folder.file("all/all_1.vtp"));
    const std::string text = refusal({folder.file("all.vtm")});
    EXPECT_NE(text.find("all.vtm"), std::string::npos) << text;
    EXPECT_NE(text.find("all_1.vtp"), std::string::npos) << text;
}

namespace {

/* Cuts one file of a case everywhere; what is left is whole at the end and at the places given only. */
void expectCutsRefused(const std::vector<std::string>& files, std::size_t cut,
                       const std::vector<std::string>& wholeUpTo)
{
    const std::string whole = contents(files[cut]);
    for (std::size_t size = 0; size + 1 < whole.size(); size += whole.size() > 500 ? 7 : 1) {
        bool isWhole = false;
        for (const std::string& next : wholeUpTo) {
            const std::size_t at = whole.find(next);
            isWhole = isWhole || size == at || size + 1 == at;
        }
        if (isWhole) {
            continue;
        }
        std::ofstream(files[cut], std::ios::binary | std::ios::trunc) << whole.substr(0, size);
        const std::string text = refusal({files[0]});
        ASSERT_NE(text.find(files[0]), std::string::npos) << files[cut] << " cut at " << size << ": " << text;
    }
    std::ofstream(files[cut], std::ios::binary | std::ios::trunc) << whole;
}

} // namespace

TEST(DataReader, AnEnSightCaseNeedsItsGeometryAndItsVariables)
{
    const TemporaryFolder folder;
    const std::vector<std::string> files = samplefiles::writeEnSight(folder.file(""));
    const DataSet dataSet = readFiles({files[0]});
    ASSERT_EQ(dataSet.zoneCount(), 1);
    EXPECT_EQ(dataSet.zone(1)->name(), "Square");
    EXPECT_EQ(dataSet.zone(1)->cellCount(), 2);
    EXPECT_EQ(at(dataSet, "Y", 2), 1.0);
    EXPECT_EQ(at(dataSet, "Temperature", 3), 40.0);

    for (const std::size_t part : {1u, 2u}) {
        const std::string whole = contents(files[part]);
        std::filesystem::remove(files[part]);
        const std::string missing = refusal({files[0]});
        EXPECT_NE(missing.find(files[0]), std::string::npos) << files[part] << ": " << missing;
        std::ofstream(files[part], std::ios::trunc) << whole;
        expectCutsRefused(files, part, {});
    }
    const std::string whole = contents(files[2]);
    std::ofstream(files[2], std::ios::trunc) << whole.substr(0, 60);
    EXPECT_NE(refusal({files[0]}).find("sample.temperature"), std::string::npos)
        << "the file that ends early is not named";
}

TEST(DataReader, AnEnSightFileOfATimeIsFoundByItsNumber)
{
    const TemporaryFolder folder;
    const std::string geometry = contents(samplefiles::writeEnSight(folder.file(""))[1]);
    const std::string file =
        folder.write("times.case", "FORMAT\ntype: ensight gold\n\nGEOMETRY\nmodel: 1 at**.geo\n\nTIME\ntime set: 1\n"
                                   "number of steps: 1\nfilename start number: 7\nfilename increment: 1\n"
                                   "time values: 0.0\n");
    folder.write("at07.geo", geometry);
    EXPECT_EQ(readFiles({file}).zone(1)->cellCount(), 2);
    folder.write("at07.geo", geometry.substr(0, 200));
    EXPECT_NE(refusal({file}).find("at07.geo"), std::string::npos);
}

TEST(DataReader, EnSight6AndBinaryFilesCutAnywhereAreRefused)
{
    const TemporaryFolder folder;
    const std::vector<std::string> six = samplefiles::writeEnSight6(folder.file(""));
    const DataSet dataSet = readFiles({six[0]});
    ASSERT_EQ(dataSet.zoneCount(), 2);
    EXPECT_EQ(at(dataSet, "Temperature", 3), 40.0);
    EXPECT_EQ(at(dataSet, "Temperature", 2, 2), 70.0);
    EXPECT_EQ(at(dataSet, "Load", 1), 2.0);
    expectCutsRefused(six, 1, {});
    expectCutsRefused(six, 2, {"part 2"});
    expectCutsRefused(six, 3, {});

    const std::vector<std::string> binary = samplefiles::writeBinaryEnSight(folder.file(""));
    const DataSet read = readFiles({binary[0]});
    ASSERT_EQ(read.zoneCount(), 1);
    EXPECT_EQ(read.zone(1)->cellCount(), 6);
    EXPECT_NEAR(at(read, "Pressure", 23), 1 + 2 * 3 + 3 * 1 + 4 * 2, 1e-5);
    expectCutsRefused(binary, 1, {});
    expectCutsRefused(binary, 2, {});
}

TEST(DataReader, ABinaryLegacyFileCutAnywhereIsRefused)
{
    const TemporaryFolder folder;
    for (const samplefiles::Format& format : samplefiles::formats()) {
        if (format.suffix != "structured.vtk" && format.suffix != "binary.vtk") {
            continue;
        }
        const std::string file = folder.file("sample." + format.suffix);
        format.write(file);
        const std::string whole = contents(file);
        for (std::size_t size = 0; size + 8 < whole.size(); size += 29) {
            std::ofstream(file, std::ios::binary | std::ios::trunc) << whole.substr(0, size);
            const std::string text = refusal({file});
            EXPECT_NE(text.find(file), std::string::npos) << format.suffix << " cut at " << size << ": " << text;
        }
    }
}

TEST(DataReader, SeveralFilesGiveOneDataSet)
{
    const TemporaryFolder folder;
    std::vector<std::string> files;
    for (const samplefiles::Format& format : samplefiles::formats()) {
        if (format.suffix == "vtu" || format.suffix == "vts") {
            files.push_back(folder.file("one." + format.suffix));
            format.write(files.back());
        }
    }
    const DataSet dataSet = readFiles(files);
    EXPECT_EQ(dataSet.zoneCount(), 2);
    EXPECT_EQ(dataSet.variableCount(), 8);
    EXPECT_EQ(dataSet.title, "one.vts");
}

TEST(DataReader, StopsWhenAsked)
{
    const TemporaryFolder folder;
    const std::string file = folder.file("sample.vtu");
    samplefiles::formats()[4].write(file);
    for (const int allowed : {0, 1, 2}) {
        DataSet dataSet(1);
        int calls = 0;
        EXPECT_THROW(DataReader::read({file}, dataSet, [&](double) { return calls++ < allowed; }), ActionCancelled);
        EXPECT_EQ(dataSet.zoneCount(), 0);
    }
}

TEST(DataReader, ProgressRisesFromZeroToOne)
{
    const TemporaryFolder folder;
    const std::string first = folder.file("first.vtu"), second = folder.file("second.vtu");
    samplefiles::formats()[4].write(first);
    samplefiles::formats()[4].write(second);
    std::vector<double> fractions;
    DataSet dataSet(1);
    DataReader::read({first, second}, dataSet, [&](double fraction) {
        fractions.push_back(fraction);
        return true;
    });
    EXPECT_EQ(fractions.front(), 0.0);
    EXPECT_EQ(fractions.back(), 1.0);
    EXPECT_TRUE(std::is_sorted(fractions.begin(), fractions.end()));
}

/* Public test data, where there is any. */
class DataReaderRealFile : public testing::Test
{
protected:
    std::string file(const std::string& name) const { return std::string(VX_SHARED_DATA) + "/" + name; }

    void SetUp() override
    {
        if (!std::filesystem::exists(VX_SHARED_DATA)) {
            GTEST_SKIP() << "there is no " << VX_SHARED_DATA;
        }
    }
};

TEST_F(DataReaderRealFile, BluntFin)
{
    for (const auto& files : {std::vector{file("bluntfinxyz.bin"), file("bluntfinq.bin")},
                              std::vector{file("bluntfinq.bin"), file("bluntfinxyz.bin")}}) {
        const DataSet dataSet = readFiles(files);
        ASSERT_EQ(dataSet.zoneCount(), 1);
        EXPECT_EQ(dataSet.zone(1)->pointCount(), 40960);
        EXPECT_TRUE(dataSet.zone(1)->isOrdered());
        for (const char* name : {"Density", "Momentum X", "Momentum Y", "Momentum Z", "StagnationEnergy"}) {
            EXPECT_NE(dataSet.variableNumber(name), 0) << name;
        }
    }
}

TEST_F(DataReaderRealFile, Cgns)
{
    const DataSet dataSet = readFiles({file("multi.cgns")});
    EXPECT_GT(dataSet.zoneCount(), 1);
    long points = 0;
    for (const auto& zone : dataSet.zones) {
        points += zone->pointCount();
        EXPECT_TRUE(zone->isOrdered());
        EXPECT_FALSE(zone->name().empty());
    }
    EXPECT_EQ(points, 58576);
    const TemporaryFolder folder;
    const std::string whole = contents(file("multi.cgns"));
    const std::string cut = folder.write("cut.cgns", whole.substr(0, whole.size() / 2));
    EXPECT_NE(refusal({cut}).find("cut.cgns"), std::string::npos);
}

TEST_F(DataReaderRealFile, Can)
{
    const DataSet dataSet = readFiles({file("can.vtu")});
    ASSERT_EQ(dataSet.zoneCount(), 1);
    EXPECT_EQ(dataSet.zone(1)->dimensions(), (std::array<long, 3>{6724, 4800, 8}));
    EXPECT_EQ(dataSet.zone(1)->type(), ZoneType_FEBrick);
}

TEST_F(DataReaderRealFile, SameNameAtPointsAndInCells)
{
    const DataSet dataSet = readFiles({file("SampleStructGrid.vtk")});
    EXPECT_EQ(dataSet.zone(1)->pointCount(), 24000);
    bool isFound = false;
    for (const Variable& variable : dataSet.variables) {
        isFound = isFound || dataSet.variableNumber(variable.name + " (cell)") > 0;
    }
    EXPECT_TRUE(isFound);
}
