#include "kernel/DataReader.h"
#include "ReadFiles.h"
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

using namespace readfiles;
using namespace vantrix::kernel;

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
