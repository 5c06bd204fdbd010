// The plain records: which constructor sets what.
#include "api/HandleFriends.h"

#include <gtest/gtest.h>
#include <RTI/RangeBounds.h>
#include <RTI/Typedefs.h>

using namespace rti1516e;

namespace {

FederateHandle const FEDERATE = makeFederateHandle(9);
RegionHandleSet const REGIONS = {makeRegionHandle(3), makeRegionHandle(4)};

template <class Info>
void expectInfo(Info const& info, bool hasFederate, bool hasRegions)
{
   EXPECT_EQ(hasFederate, info.hasProducingFederate);
   EXPECT_EQ(hasRegions, info.hasSentRegions);
   EXPECT_EQ(hasFederate ? FEDERATE : FederateHandle(), info.producingFederate);
   EXPECT_EQ(hasRegions ? REGIONS : RegionHandleSet(), info.sentRegions);
}

template <class Info>
void expectEachInfo()
{
   expectInfo(Info(), false, false);
   expectInfo(Info(FEDERATE), true, false);
   expectInfo(Info(REGIONS), false, true);
   Info const both(FEDERATE, REGIONS);
   Info copy(both);
   copy.sentRegions.clear();
   expectInfo(both, true, true);
   EXPECT_TRUE(Info(RegionHandleSet()).hasSentRegions);
}

TEST(RecordsTest, flagsTellWhatWasGiven)
{
   expectEachInfo<SupplementalReflectInfo>();
   expectEachInfo<SupplementalReceiveInfo>();
}

TEST(RecordsTest, hasWhatTheConstructorGot)
{
   EXPECT_FALSE(SupplementalRemoveInfo().hasProducingFederate);
   EXPECT_FALSE(SupplementalRemoveInfo().producingFederate.isValid());
   EXPECT_TRUE(SupplementalRemoveInfo(FEDERATE).hasProducingFederate);
   EXPECT_EQ(FEDERATE, SupplementalRemoveInfo(FEDERATE).producingFederate);

   FederateRestoreStatus const restore(
         makeFederateHandle(1), makeFederateHandle(2), FEDERATE_RESTORING);
   EXPECT_EQ(makeFederateHandle(1), restore.preRestoreHandle);
   EXPECT_EQ(makeFederateHandle(2), restore.postRestoreHandle);
   EXPECT_EQ(FEDERATE_RESTORING, restore.status);

   FederationExecutionInformation const federation(L"Harbour", L"HLAfloat64Time");
   EXPECT_EQ(L"Harbour", federation.federationExecutionName);
   EXPECT_EQ(L"HLAfloat64Time", federation.logicalTimeImplementationName);
}

TEST(RecordsTest, rangeBoundsAreNotOrdered)
{
   RangeBounds bounds(5, 0x100000000);
   EXPECT_EQ(5u, bounds.getLowerBound());
   EXPECT_EQ(0x100000000u, bounds.getUpperBound());
   RangeBounds const copy(bounds);
   bounds.setLowerBound(0xFFFFFFFFFFFFFFFF);
   bounds.setUpperBound(0);
   EXPECT_EQ(0xFFFFFFFFFFFFFFFFu, bounds.getLowerBound());
   EXPECT_EQ(0u, bounds.getUpperBound());
   EXPECT_EQ(5u, copy.getLowerBound());
   EXPECT_EQ(0x100000000u, copy.getUpperBound());
}

} // namespace
