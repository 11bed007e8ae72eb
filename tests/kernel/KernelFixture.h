#pragma once

#include "api/VtxUtil.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/MouseModes.h"
#include "kernel/PlotDefaults.h"
#include "kernel/SampleData.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"
#include "kernel/StyleVocabulary.h"
#include "kernel/UndoStack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace vantrix::kernel {

/* Holds the application lock for as long as it lives. */
class LockScope
{
public:
    LockScope() { VtxUtilLockStart(true); }
    ~LockScope() { VtxUtilLockFinish(); }
    LockScope(const LockScope&) = delete;
    LockScope& operator=(const LockScope&) = delete;
};

/* Each test begins with one page, one empty frame and no history, and keeps what is notified meanwhile. */
class KernelTest : public testing::Test
{
protected:
    struct Notice
    {
        int kind;
        long entry;
        long object;
    };

    void SetUp() override
    {
        kernel().reset();
        kernel().mouseModes().set(MouseMode_Selector);
        m_violations = VtxUtilLockGetViolationCount();
        VtxUtilStateChangeAddListener(&KernelTest::keep, this);
    }

    void TearDown() override
    {
        VtxUtilStateChangeRemoveListener(&KernelTest::keep, this);
        EXPECT_EQ(VtxUtilLockGetViolationCount(), m_violations);
    }

    static Kernel& kernel() { return Kernel::instance(); }
    static StyleStore& style() { return kernel().style(); }
    static Document& document() { return kernel().document(); }

    /* Gives the active frame a built-in data set and a plot of it, in one step. */
    static void show(const std::string& sample)
    {
        const LockScope lock;
        DataSet data = document().newDataSet();
        SampleData::make(sample, data);
        document().attachDataSet(*document().activeFrame(), std::make_shared<const DataSet>(std::move(data)));
        PlotDefaults::apply(*document().activeFrame());
    }

    static StyleData value(const char* path, long offset1 = -1)
    {
        StyleData found;
        EXPECT_EQ(style().get(style().entry(path), offset1, -1, found), GetValueReturnCode_Ok)
            << path << style().lastError();
        return found;
    }

    static SetValueReturnCode_e set(const char* path, const StyleData& to, long offset1 = -1)
    {
        const LockScope lock;
        return style().set(style().entry(path), offset1, -1, to);
    }

    std::vector<int> kinds() const
    {
        std::vector<int> found;
        for (const Notice& notice : notices) {
            found.push_back(notice.kind);
        }
        return found;
    }

    std::vector<Notice> notices;

private:
    static void keep(VtxStateChangeHandle change, void* test)
    {
        static_cast<KernelTest*>(test)->notices.push_back({VtxUtilStateChangeGetKind(change),
                                                           VtxUtilStateChangeGetStyleEntry(change),
                                                           VtxUtilStateChangeGetObject(change)});
    }
    long m_violations = 0;
};

} // namespace vantrix::kernel
