#include "KernelFixture.h"

#include "kernel/FrontEnd.h"

namespace vantrix::kernel {

namespace {

using testing::HasSubstr;

class InterfaceTest : public KernelTest
{
protected:
    void SetUp() override
    {
        KernelTest::SetUp();
        m_list = VtxUtilArgListAlloc();
    }
    void TearDown() override
    {
        VtxUtilArgListDealloc(&m_list);
        EXPECT_EQ(m_list, nullptr);
        KernelTest::TearDown();
    }

    static std::string take(char* text)
    {
        std::string copy = text ? text : "(null)";
        VtxUtilStringDealloc(&text);
        EXPECT_EQ(text, nullptr);
        return copy;
    }

    static long find(const std::vector<const char*>& path)
    {
        std::vector<long> ids;
        ids.reserve(path.size());
        for (const char* name : path) {
            ids.push_back(VtxUtilStyleGetMacroID(name));
        }
        return VtxUtilStyleFindEntry(ids.data(), static_cast<int>(ids.size()));
    }

    VtxArgListHandle m_list = nullptr;
};

} // namespace

TEST_F(InterfaceTest, AValueIsWrittenAndReadThroughArgumentLists)
{
    const LockScope lock;
    VtxUtilArgListAppendArbParam(m_list, "Entry", find({"FrameLayout", "XYPos", "X"}));
    VtxUtilArgListAppendDouble(m_list, "DValue", 2.5);
    VtxUtilArgListAppendArbParam(m_list, "AssignOp", AssignOp_Default);
    ASSERT_EQ(VtxUtilStyleSetLowLevelX(m_list), SetValueReturnCode_Ok);

    double x = 0;
    VtxUtilArgListClear(m_list);
    VtxUtilArgListAppendArbParam(m_list, "Entry", find({"FrameLayout", "XYPos", "X"}));
    VtxUtilArgListAppendDoublePtr(m_list, "DValue", &x);
    ASSERT_EQ(VtxUtilStyleGetLowLevelX(m_list), GetValueReturnCode_Ok);
    EXPECT_EQ(x, 2.5);

    char* name = nullptr;
    VtxUtilArgListClear(m_list);
    VtxUtilArgListAppendArbParam(m_list, "Entry", find({"FrameName"}));
    VtxUtilArgListAppendStringPtr(m_list, "StrValue", &name);
    ASSERT_EQ(VtxUtilStyleGetLowLevelX(m_list), GetValueReturnCode_Ok);
    EXPECT_EQ(take(name), "");
}

TEST_F(InterfaceTest, AnEnumerationGoesByIValueWithDValueBesideIt)
{
    const LockScope lock;
    const long entry = find({"FrameLayout", "HeaderFont"});
    VtxUtilArgListAppendArbParam(m_list, "Entry", entry);
    VtxUtilArgListAppendArbParam(m_list, "IValue", Font_Times);
    VtxUtilArgListAppendDouble(m_list, "DValue", Font_Times);
    EXPECT_EQ(VtxUtilStyleSetLowLevelX(m_list), SetValueReturnCode_Ok);
    EXPECT_EQ(value("FrameLayout/HeaderFont"), StyleData(long{Font_Times}));
}

TEST_F(InterfaceTest, ASetOfObjectsIsWrittenAsOneChangeOrNotAtAll)
{
    show("lines");
    const LockScope lock;
    VtxSetHandle zones = VtxUtilSetAlloc();
    EXPECT_TRUE(VtxUtilSetAddMember(zones, 3));
    EXPECT_TRUE(VtxUtilSetAddMember(zones, 1));
    EXPECT_FALSE(VtxUtilSetAddMember(zones, 0));
    VtxUtilArgListAppendArbParam(m_list, "Entry", find({"ActiveFieldMaps"}));
    VtxUtilArgListAppendArbParam(m_list, "IValue", 0);
    VtxUtilArgListAppendSet(m_list, "ObjectSet", zones);
    notices.clear();
    ASSERT_EQ(VtxUtilStyleSetLowLevelX(m_list), SetValueReturnCode_Ok);
    EXPECT_EQ(notices.size(), 1U);
    EXPECT_EQ(value("ActiveFieldMaps", 1), StyleData(0L));
    EXPECT_EQ(value("ActiveFieldMaps", 2), StyleData(1L));
    EXPECT_EQ(value("ActiveFieldMaps", 3), StyleData(0L));

    VtxUtilSetAddMember(zones, 5);
    EXPECT_EQ(VtxUtilSetGetNextMember(zones, 3), 5);
    EXPECT_EQ(VtxUtilSetGetNextMember(zones, 5), 0);
    VtxUtilArgListAppendSet(m_list, "ObjectSet", zones);
    VtxUtilArgListAppendArbParam(m_list, "IValue", 1);
    EXPECT_EQ(VtxUtilStyleSetLowLevelX(m_list), SetValueReturnCode_BadOffset);
    EXPECT_EQ(value("ActiveFieldMaps", 1), StyleData(0L)) << "nothing is half done";
    VtxUtilSetDealloc(&zones);
}

TEST_F(InterfaceTest, WrongArgumentsAreRefusedWithAText)
{
    const LockScope lock;
    const long width = find({"FrameLayout", "Width"});
    long integer = 0;
    double real = 0;
    struct Case
    {
        std::function<void()> append;
        GetValueReturnCode_e expected;
        const char* text;
    };
    for (const Case& one : std::vector<Case>{
             {[&] { VtxUtilArgListAppendArbParamPtr(m_list, "IValue", &integer); }, GetValueReturnCode_WrongType,
              "\"FrameLayout\" / \"Width\""},
             {[&] { VtxUtilArgListAppendDouble(m_list, "DValue", 1); }, GetValueReturnCode_BadArgument, "DValue"},
             {[&] { VtxUtilArgListAppendArbParam(m_list, "Colour", 1); }, GetValueReturnCode_BadArgument, "Colour"},
             {[&] {}, GetValueReturnCode_BadArgument, "IValue"},
             {[&] {
                  VtxUtilArgListAppendDoublePtr(m_list, "DValue", &real);
                  VtxUtilArgListAppendArbParam(m_list, "Entry", 100000);
              },
              GetValueReturnCode_UnknownPath, "100000"}}) {
        VtxUtilArgListClear(m_list);
        VtxUtilArgListAppendArbParam(m_list, "Entry", width);
        one.append();
        EXPECT_EQ(VtxUtilStyleGetLowLevelX(m_list), one.expected);
        EXPECT_THAT(take(VtxUtilStyleGetLastErrorString()), HasSubstr(one.text));
        EXPECT_THAT(take(VtxUtilGetLastErrorString()), HasSubstr(one.text));
    }
    EXPECT_EQ(VtxUtilStyleGetLowLevelX(nullptr), GetValueReturnCode_BadArgument);
    EXPECT_EQ(VtxUtilStyleSetLowLevelX(nullptr), SetValueReturnCode_BadArgument);
}

TEST_F(InterfaceTest, AnUnknownPathNamesTheLongestKnownPart)
{
    EXPECT_EQ(find({"FrameLayout", "XYPos", "Width"}), -1);
    EXPECT_THAT(take(VtxUtilStyleGetLastErrorString()), HasSubstr("\"FrameLayout\" / \"XYPos\""));
    EXPECT_EQ(find({"Nonsense"}), -1);
    EXPECT_EQ(VtxUtilStyleFindEntry(nullptr, 3), -1);
    EXPECT_EQ(VtxUtilStyleGetChangeStamp(-1), 0UL);
}

TEST_F(InterfaceTest, WhatNeedsAScreenGoesToTheFrontEnd)
{
    class Recorder : public FrontEnd
    {
    public:
        bool showMessage(const std::string& text, MessageBox_e type) override
        {
            log += text + std::to_string(type);
            return false;
        }
        void showStatus(const std::string& text) override { log += text; }
        void setBusy(bool busy) override { log += busy ? "<" : ">"; }
        bool reportProgress(const std::string&, double) override { return true; }
        bool openHelp(const std::string& page) override { return page == "known.html"; }
        void fitPaperToWorkArea() override { log += "fit"; }
        std::string log;
    } recorder;
    EXPECT_TRUE(VtxUtilDialogMessageBox("nobody looks", MessageBox_Question));
    kernel().setFrontEnd(&recorder);
    EXPECT_FALSE(VtxUtilDialogMessageBox("sure?", MessageBox_Question));
    VtxUtilDialogErrMsg("bad");
    VtxUtilWaitBegin();
    VtxUtilWaitBegin();
    VtxUtilWaitEnd();
    VtxUtilStatusMessage("busy");
    VtxUtilWaitEnd();
    VtxUtilWaitEnd();
    VtxUtilWorkViewFitPaper();
    EXPECT_TRUE(VtxUtilHelpLaunch("known.html"));
    EXPECT_FALSE(VtxUtilHelpLaunch("unknown.html"));
    kernel().setFrontEnd(nullptr);
    EXPECT_EQ(recorder.log, "sure?3bad0<busy>fit");
}

} // namespace vantrix::kernel
