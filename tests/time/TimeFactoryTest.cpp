// The factories of the standard times, and the look-ups that find them by name.
#include "tests/api/Bytes.h"
#include "tests/api/Unexpected.h"
#include "tests/time/Families.h"

#include <RTI/time/HLAlogicalTimeFactoryFactory.h>

using namespace rti1516e;

namespace {

template <class Family>
class TimeFactoryTest : public testing::Test {
};

TYPED_TEST_SUITE(TimeFactoryTest, Families, );

TYPED_TEST(TimeFactoryTest, makesItsTimesAndIntervals)
{
   typename TypeParam::Factory concrete;
   LogicalTimeFactory& factory = concrete;
   EXPECT_EQ(TypeParam::name(), factory.getName());
   EXPECT_TRUE(factory.makeInitial()->isInitial());
   EXPECT_TRUE(factory.makeFinal()->isFinal());
   EXPECT_TRUE(factory.makeZero()->isZero());
   EXPECT_EQ(typename TypeParam::Interval(1), *factory.makeEpsilon());
   EXPECT_EQ(TypeParam::name(), factory.makeFinal()->implementationName());
   EXPECT_EQ(TypeParam::name(), factory.makeZero()->implementationName());
   EXPECT_EQ(-7, concrete.makeLogicalTime(-7)->getTime());
   EXPECT_EQ(-7, concrete.makeLogicalTimeInterval(-7)->getInterval());
}

TYPED_TEST(TimeFactoryTest, decodesWhatTimesEncode)
{
   typename TypeParam::Factory factory;
   typename TypeParam::Time const time(12345);
   typename TypeParam::Interval const interval(-678);
   char buffer[9];
   EXPECT_EQ(time, *factory.decodeLogicalTime(time.encode()));
   time.encode(buffer, sizeof(buffer));
   EXPECT_EQ(time, *factory.decodeLogicalTime(buffer, sizeof(buffer)));
   EXPECT_EQ(interval, *factory.decodeLogicalTimeInterval(interval.encode()));
   interval.encode(buffer, sizeof(buffer));
   EXPECT_EQ(interval, *factory.decodeLogicalTimeInterval(buffer, sizeof(buffer)));
}

TYPED_TEST(TimeFactoryTest, refusesShortBuffersAsTimesDo)
{
   typename TypeParam::Factory factory;
   char buffer[7] = {};
   VariableLengthData const data(buffer, 7);
   auto const expectRefused = [](auto decode) {
      EXPECT_EQ(L"Buffer too small!", (textOfUnexpected<CouldNotDecode*, CouldNotDecode>(decode)));
   };
   expectRefused([&] { factory.decodeLogicalTime(data); });
   expectRefused([&] { factory.decodeLogicalTime(buffer, 7); });
   expectRefused([&] { factory.decodeLogicalTimeInterval(data); });
   expectRefused([&] { factory.decodeLogicalTimeInterval(buffer, 7); });
}

TEST(TimeFactoryEpsilonTest, isTheIntervalsEpsilonForIntegersOnly)
{
   EXPECT_TRUE(HLAinteger64TimeFactory().makeEpsilon()->isEpsilon());
   EXPECT_FALSE(HLAfloat64TimeFactory().makeEpsilon()->isEpsilon());
}

TEST(TimeFactoryFactoryTest, knowsTheStandardTimesByName)
{
   struct {
      wchar_t const* asked;
      wchar_t const* found; // empty: none
   } const rows[] = {
         {L"HLAinteger64Time", L"HLAinteger64Time"},
         {L"HLAfloat64Time", L"HLAfloat64Time"},
         {L"", L"HLAfloat64Time"},
         {L"hlainteger64time", L""},
         {L"hlafloat64time", L""},
         {L"HLAinteger64Time ", L""},
         {L"HLAinteger64TimeFactory", L""},
   };
   for (auto makeLogicalTimeFactory : {&HLAlogicalTimeFactoryFactory::makeLogicalTimeFactory,
              &LogicalTimeFactoryFactory::makeLogicalTimeFactory}) {
      for (auto const& row : rows) {
         std::unique_ptr<LogicalTimeFactory> const factory(
               makeLogicalTimeFactory(row.asked).release());
         EXPECT_EQ(row.found, factory ? factory->getName() : L"") << row.asked;
      }
   }
   EXPECT_EQ(L"HLAinteger64Time", HLAinteger64TimeName);
   EXPECT_EQ(L"HLAfloat64Time", HLAfloat64TimeName);
}

} // namespace
