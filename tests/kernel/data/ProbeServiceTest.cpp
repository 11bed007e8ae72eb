#include "ProbeFixture.h"

#include "kernel/SilentFrontEnd.h"

using namespace vantrix::kernel;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

int receivedCount = 0;
bool wasSuccessful = false;
bool wasNearest = false;
long receivedClientData = 0;

void receiveProbe(char success, char nearest, long clientData)
{
    ++receivedCount;
    wasSuccessful = success == 1;
    wasNearest = nearest == 1;
    receivedClientData = clientData;
}

/* Keeps what the status line shows. */
class StatusFrontEnd : public SilentFrontEnd
{
public:
    StatusFrontEnd() { Kernel::instance().setFrontEnd(this); }
    ~StatusFrontEnd() override { Kernel::instance().setFrontEnd(nullptr); }
    void showStatus(const std::string& text) override { status = text; }

    std::string status;
};

} // namespace

TEST_F(ProbeTest, TheStatusLineTellsOfProbesWhileTheMouseProbes)
{
    const StatusFrontEnd frontEnd;
    show("fe2d");
    const LockScope lock;
    ASSERT_TRUE(VtxUtilProbeInstallCallbackX(
        Arguments().with("CallbackFunction", reinterpret_cast<long>(&receiveProbe)).with("StatusLineText", "Click")));
    EXPECT_EQ(frontEnd.status, "Click");
    ASSERT_TRUE(VtxUtilMouseSetMode(MouseMode_Selector));
    EXPECT_EQ(frontEnd.status, "");
    kernel().frontEnd().showStatus("something else");
    ASSERT_TRUE(VtxUtilMouseSetMode(MouseMode_Zoom));
    EXPECT_EQ(frontEnd.status, "something else");
}

TEST_F(ProbeTest, TheReceiverIsToldAndAProbeIsDoneAgain)
{
    receivedCount = 0;
    show("fe2d");
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilProbeInstallCallbackX(Arguments()
                                                     .with("CallbackFunction", reinterpret_cast<long>(&receiveProbe))
                                                     .with("StatusLineText", "Click")
                                                     .with("ClientData", 42L)));
    }
    EXPECT_TRUE(VtxUtilProbeIsCallbackInstalled());
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Probe);
    std::mt19937 random(1);
    const Position at = placeIn(*grid(1), 20, random);
    ASSERT_TRUE(probeAt(at, false, true));
    EXPECT_EQ(receivedClientData, 42);
    EXPECT_TRUE(wasSuccessful);
    EXPECT_TRUE(wasNearest);
    ASSERT_TRUE(probeAt(at));
    EXPECT_FALSE(wasNearest);
    const double before = VtxUtilProbeFieldGetValue(3);
    VtxProbeInfoHandle info = VtxUtilProbeInfoGet();
    ASSERT_NE(info, nullptr);

    EXPECT_FALSE(probeAt({1e6, 1e6, 0.0}));
    EXPECT_FALSE(wasSuccessful);
    EXPECT_EQ(VtxUtilProbeFieldGetValue(3), before) << "what was found before is kept";
    EXPECT_EQ(receivedCount, 3);
    {
        const LockScope lock;
        EXPECT_TRUE(VtxUtilProbePerform(info, nullptr)) << "without telling anybody";
        EXPECT_EQ(receivedCount, 3);
        EXPECT_TRUE(VtxUtilProbePerform(info, &receiveProbe));
        EXPECT_EQ(receivedCount, 4);
    }
    EXPECT_EQ(VtxUtilProbeFieldGetValue(3), before);
    {
        const LockScope lock;
        DataSet changed = *document().activeDataSet();
        Zone zone = *changed.zones[0];
        auto doubled = vtkSmartPointer<vtkDataArray>::Take(zone.fields[2].values->NewInstance());
        doubled->DeepCopy(zone.fields[2].values);
        for (vtkIdType i = 0; i < doubled->GetNumberOfTuples(); ++i) {
            doubled->SetComponent(i, 0, 2.0 * doubled->GetComponent(i, 0));
        }
        zone.fields[2].values = doubled;
        changed.zones[0] = std::make_shared<const Zone>(std::move(zone));
        document().replaceDataSet(std::move(changed), {StateChange_VarsAltered});
        EXPECT_TRUE(VtxUtilProbePerform(info, nullptr));
    }
    EXPECT_NEAR(VtxUtilProbeFieldGetValue(3), 2.0 * before, 1e-5 * std::abs(before));
    VtxUtilProbeInfoDealloc(&info);
    EXPECT_EQ(info, nullptr);
    const LockScope lock;
    EXPECT_TRUE(VtxUtilProbeInstallCallbackX(Arguments().with("CallbackFunction", 0L)));
    EXPECT_FALSE(VtxUtilProbeIsCallbackInstalled());
}

TEST_F(ProbeTest, AProbedZoneIsFollowedToAnotherNumberAndMissedWhenItIsGone)
{
    show("fe2d");
    const auto found = [] {
        VtxProbeInfoHandle info = VtxUtilProbeInfoGet();
        return std::shared_ptr<VtxProbeInfo>(info, [](VtxProbeInfoHandle taken) { VtxUtilProbeInfoDealloc(&taken); });
    };
    ASSERT_TRUE(probeIndex(5, 1, 1, 1));
    const auto first = found();
    ASSERT_TRUE(probeIndex(7, 1, 1, 2));
    const double value = VtxUtilProbeFieldGetValue(3);
    const auto second = found();
    const LockScope lock;
    VtxSetHandle zones = VtxUtilSetAlloc();
    VtxUtilSetAddMember(zones, 1);
    ASSERT_TRUE(VtxUtilDataSetDeleteZone(zones)) << lastError();
    VtxUtilSetDealloc(&zones);

    EXPECT_FALSE(VtxUtilProbePerform(first.get(), nullptr));
    EXPECT_THAT(lastError(), HasSubstr("no longer in the data"));
    ASSERT_TRUE(VtxUtilProbePerform(second.get(), nullptr)) << lastError();
    EXPECT_EQ(VtxUtilProbeFieldGetZone(), 1);
    EXPECT_EQ(VtxUtilProbeFieldGetValue(3), value);

    VtxUtilProbeInfoRestore(first.get());
    EXPECT_EQ(VtxUtilProbeFieldGetPoint(), 5) << "as it was found";
    VtxUtilProbeInfoRestore(nullptr);
    EXPECT_EQ(VtxUtilProbeFieldGetZone(), 0);
}

TEST_F(ProbeTest, VariablesAreLoadedOnDemand)
{
    show("fe2d");
    const double stored = document().activeDataSet()->field(1, 3)->values->GetComponent(0, 0);
    {
        const LockScope lock;
        DataSet changed = *document().activeDataSet();
        Zone zone = *changed.zones[0];
        zone.fields[2].loader = [values = zone.fields[2].values] { return values; };
        zone.fields[2].values = nullptr;
        changed.zones[0] = std::make_shared<const Zone>(std::move(zone));
        document().replaceDataSet(std::move(changed), {StateChange_DataAvailability});
    }
    ASSERT_TRUE(probeIndex(1, 1, 1, 1));
    EXPECT_FALSE(VtxUtilProbeFieldIsVarValid(3));
    EXPECT_FALSE(VtxUtilDataValueIsLoaded(1, 3));
    notices.clear();
    {
        const LockScope lock;
        VtxSetHandle variables = VtxUtilSetAlloc();
        VtxUtilSetAddMember(variables, 3);
        EXPECT_FALSE(VtxUtilDataValueLoad(99, variables));
        EXPECT_TRUE(VtxUtilDataValueLoad(1, variables)) << lastError();
        EXPECT_TRUE(VtxUtilDataValueLoad(1, variables)) << "once more changes nothing";
        VtxUtilSetDealloc(&variables);
    }
    EXPECT_THAT(kinds(), ElementsAre(StateChange_DataAvailability));
    ASSERT_TRUE(probeIndex(1, 1, 1, 1));
    EXPECT_EQ(VtxUtilProbeFieldGetValue(3), stored);
}

TEST_F(ProbeTest, WhatCannotBeProbedIsRefusedAndTheLastResultStays)
{
    EXPECT_FALSE(probeAt({0.0, 0.0, 0.0}));
    EXPECT_THAT(lastError(), HasSubstr("2D or 3D"));
    {
        const LockScope lock;
        EXPECT_FALSE(
            VtxUtilProbeInstallCallbackX(Arguments().with("CallbackFunction", reinterpret_cast<long>(&receiveProbe))));
        EXPECT_FALSE(VtxUtilProbePerform(nullptr, nullptr));
    }
    EXPECT_FALSE(VtxUtilProbeIsCallbackInstalled());
    show("flow3d");
    ASSERT_TRUE(probeIndex(2, 2, 2, 1));
    const long point = VtxUtilProbeFieldGetPoint();
    const auto [iMax, jMax, kMax] = document().activeDataSet()->zone(1)->dimensions();
    const struct
    {
        long i, j, k, zone;
        std::string error;
    } cases[] = {{0, 1, 1, 1, "I is 0; it must be from 1 to " + std::to_string(iMax)},
                 {1, jMax + 1, 1, 1, "J is "},
                 {1, 1, -1, 1, "K is -1"},
                 {1, 1, 1, 9, "Zone is 9"}};
    for (const auto& bad : cases) {
        EXPECT_FALSE(probeIndex(bad.i, bad.j, bad.k, bad.zone));
        EXPECT_THAT(lastError(), HasSubstr(bad.error));
        EXPECT_EQ(VtxUtilProbeFieldGetPoint(), point);
    }
    EXPECT_FALSE(probeLine('X', 1, 0.0));
    EXPECT_THAT(lastError(), HasSubstr("XY or polar"));
    const LockScope lock;
    EXPECT_FALSE(VtxUtilProbeAtFieldIndexX(Arguments().with("Zone", 1L)));
    EXPECT_THAT(lastError(), HasSubstr("\"I\""));
}
