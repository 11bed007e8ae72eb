#include "api/VtxUtil.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Kernel.h"
#include "kernel/Layout.h"
#include "kernel/MouseModes.h"
#include "kernel/StyleStore.h"
#include "support/UserInput.h"
#include "toolbox/ArgList.h"
#include "view/WorkArea.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <array>
#include <random>

namespace vantrix::test {
namespace {

/* Works with the mouse in a work area, at random, as a user would. */
class MouseSession
{
public:
    MouseSession(kernel::Kernel& kernel, unsigned seed)
        : m_kernel(kernel)
        , m_area(kernel)
        , m_random(seed)
    {
        m_area.resize(700, 560);
        m_area.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_area));
    }

    void step()
    {
        m_area.repaint();
        switch (pick(8)) {
        case 0:
            insertText();
            break;
        case 1:
            m_area.beginInsert(pick(2) == 0 ? GeomType_Rectangle : GeomType_Line);
            drag(somewhere(), somewhere());
            break;
        case 2:
            QTest::keyClick(&m_area, pick(2) == 0 ? Qt::Key_Delete : Qt::Key_Escape);
            break;
        case 3:
            setEdges();
            break;
        case 4:
            m_kernel.mouseModes().set(pick(2) == 0 ? MouseMode_Rotate : MouseMode_Zoom);
            drag(somewhere(), somewhere());
            break;
        case 5:
            m_area.fitPlot();
            break;
        case 6:
            VtxUtilUndo();
            break;
        default:
            m_kernel.mouseModes().set(MouseMode_Selector);
            QTest::mouseClick(&m_area, Qt::LeftButton, {}, somewhere());
        }
    }

private:
    int pick(int count) { return std::uniform_int_distribution(0, count - 1)(m_random); }

    QPoint somewhere() { return {150 + pick(400), 120 + pick(320)}; }

    void drag(QPoint from, QPoint to)
    {
        QTest::mousePress(&m_area, Qt::LeftButton, {}, from);
        moveMouse(m_area, QPointF(from + to) / 2.0, Qt::LeftButton);
        moveMouse(m_area, QPointF(to), Qt::LeftButton);
        QTest::mouseRelease(&m_area, Qt::LeftButton, {}, to);
    }

    void insertText()
    {
        toolbox::ArgList list;
        list.appendString("Text", "Alpha");
        list.appendDouble("XPos", 20.0 + pick(60));
        list.appendDouble("YPos", 20.0 + pick(60));
        list.appendDouble("Height", 10.0);
        const kernel::ActionLock lock(m_kernel.lock());
        EXPECT_TRUE(VtxUtilTextSetX(list.handle())) << m_kernel.lastError();
    }

    void setEdges()
    {
        constexpr std::array paths{"ThreeDAxis/XDetail/AxisLine/Edge", "ThreeDAxis/YDetail/AxisLine/Edge",
                                   "ThreeDAxis/ZDetail/AxisLine/Edge"};
        for (const char* path : paths) {
            toolbox::ArgList list;
            list.appendArbParam("Entry", m_kernel.style().entry(path));
            list.appendArbParam("IValue", 3);
            const kernel::ActionLock lock(m_kernel.lock());
            EXPECT_EQ(VtxUtilStyleSetLowLevelX(list.handle()), SetValueReturnCode_Ok);
        }
    }

    kernel::Kernel& m_kernel;
    view::WorkArea m_area;
    std::mt19937 m_random;
};

} // namespace

TEST(RecordedMouse, WhatTheMouseDidReplayedEndsInTheSameState)
{
    const QTemporaryDir folder;
    const QByteArray macro = folder.filePath(QStringLiteral("mouse.vxmac")).toUtf8();
    kernel::Kernel& kernel = kernel::Kernel::instance();
    std::string all;
    for (unsigned seed = 1; seed <= 6; ++seed) {
        kernel.reset();
        ASSERT_TRUE(VtxUtilMacroRecordStart(macro.constData()));
        {
            const kernel::ActionLock lock(kernel.lock());
            ASSERT_TRUE(VtxUtilDataReadSample("mixed")) << kernel.lastError();
            ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_Cartesian3D)) << kernel.lastError();
        }
        {
            MouseSession session(kernel, seed);
            for (int i = 0; i < 60; ++i) {
                session.step();
            }
        }
        ASSERT_TRUE(VtxUtilMacroRecordStop());
        const std::string before = kernel.layout().text();
        QFile recorded(QString::fromUtf8(macro));
        ASSERT_TRUE(recorded.open(QIODevice::ReadOnly));
        all += recorded.readAll().toStdString();

        kernel.reset();
        ASSERT_TRUE(VtxUtilMacroRun(macro.constData())) << "seed " << seed << ": " << kernel.lastError();
        EXPECT_EQ(kernel.layout().text(), before) << "seed " << seed;
        EXPECT_EQ(kernel.lock().violationCount(), 0);
    }
    for (const char* happened : {"PickDelete", "PickText", "PickGeometry", "ThetaAngle", "Edge\" Value=0"}) {
        EXPECT_NE(all.find(happened), std::string::npos) << happened;
    }
    kernel.reset();
}

} // namespace vantrix::test
