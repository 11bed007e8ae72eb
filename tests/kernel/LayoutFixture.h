#pragma once

#include "KernelFixture.h"
#include "kernel/Layout.h"
#include "kernel/SilentFrontEnd.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace vantrix::kernel {

/* Keeps the last text of the status line. */
class StatusFrontEnd : public SilentFrontEnd
{
public:
    void showStatus(const std::string& text) override { status = text; }
    std::string status;
};

class LayoutTest : public KernelTest
{
protected:
    void SetUp() override
    {
        KernelTest::SetUp();
        m_folder = std::filesystem::temp_directory_path() / ("vx_layout_test_" + std::to_string(getpid()));
        std::filesystem::create_directories(m_folder);
        kernel().setFrontEnd(&m_frontEnd);
    }
    void TearDown() override
    {
        kernel().setFrontEnd(nullptr);
        std::filesystem::remove_all(m_folder);
        KernelTest::TearDown();
    }

    std::string path(const char* name) const { return (m_folder / name).string(); }

    static std::string content(const std::string& file)
    {
        std::ifstream stream(file);
        std::ostringstream text;
        text << stream.rdbuf();
        return text.str();
    }

    bool open(const std::string& text)
    {
        std::ofstream(path("in.vxlay")) << text;
        return VtxUtilLayoutOpen(path("in.vxlay").c_str());
    }

    static std::string text() { return kernel().layout().text(); }

    static void openSample(const char* name)
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilDataReadSample(name)) << kernel().lastError();
    }

    /* Two pages, three frames, two of which share a changed data set. */
    static void makeDocument()
    {
        openSample("flow3d");
        const LockScope lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(3, 4, 1, 0, 0, 0, 1, 2, 0, FieldDataType_Double));
        const auto data = document().activeDataSet();
        ASSERT_TRUE(VtxUtilFrameCreate(0.5, 0.25, 3, 2.125));
        document().attachDataSet(*document().activeFrame(), data);
        PlotDefaults::apply(*document().activeFrame());
        ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_Cartesian2D));
        style().set(style().entry("FrameName"), -1, -1, std::string("a \"name\"\n"));
        ASSERT_TRUE(VtxUtilPageCreate());
        ASSERT_TRUE(VtxUtilDataReadSample("lines"));
        ASSERT_TRUE(VtxUtilPageActivate(1));
    }

    std::filesystem::path m_folder;
    StatusFrontEnd m_frontEnd;
};

} // namespace vantrix::kernel
