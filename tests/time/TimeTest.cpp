// Integer and float times: values, bytes and texts, order, arithmetic and its ends, factories, and
// what is refused.
#include "tests/api/Bytes.h"
#include "tests/api/Unexpected.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <RTI/time/HLAfloat64TimeFactory.h>
#include <RTI/time/HLAinteger64TimeFactory.h>
#include <RTI/time/HLAlogicalTimeFactoryFactory.h>
#include <sstream>

using namespace rti1516e;

namespace {

long long const LAST = std::numeric_limits<long long>::max();
long long const FIRST = std::numeric_limits<long long>::min();
double const GREATEST = std::numeric_limits<double>::max();
double const INFINITE = std::numeric_limits<double>::infinity();

template <class V>
struct ValueRow {
   V value;
   char const* bytes;
   wchar_t const* text; // behind the class's name
};

// What an interval adds to a time, to an interval, and takes away; in bytes.
template <class V>
struct SumRow {
   V left, right;
   char const* time;
   char const* timeBack;
   char const* interval;
   char const* intervalBack;
};

struct IntegerFamily {
   typedef long long Value;
   typedef HLAinteger64Time Time;
   typedef HLAinteger64Interval Interval;
   typedef HLAinteger64TimeFactory Factory;
   typedef HLAfloat64Time OtherTime;
   typedef HLAfloat64Interval OtherInterval;

   static std::wstring name()
   {
      return L"HLAinteger64Time";
   }

   static std::vector<ValueRow<Value>> values()
   {
      return {
            {0, "00 00 00 00 00 00 00 00", L"<0>"},
            {1, "00 00 00 00 00 00 00 01", L"<1>"},
            {-3, "FF FF FF FF FF FF FF FD", L"<-3>"},
            {0x0102030405060708, "01 02 03 04 05 06 07 08", L"<72623859790382856>"},
            {LAST, "7F FF FF FF FF FF FF FF", L"<9223372036854775807>"},
            {FIRST, "80 00 00 00 00 00 00 00", L"<-9223372036854775808>"},
      };
   }

   // Sums wrap around.
   static std::vector<SumRow<Value>> sums()
   {
      char const* const last = "7F FF FF FF FF FF FF FF";
      char const* const first = "80 00 00 00 00 00 00 00";
      char const* const zero = "00 00 00 00 00 00 00 00";
      char const* const two = "FF FF FF FF FF FF FF FE";
      char const* const below = "7F FF FF FF FF FF FF FE";
      char const* const above = "80 00 00 00 00 00 00 01";
      return {
            {LAST, 1, first, below, first, below},
            {FIRST, 1, above, last, above, last},
            {LAST, LAST, two, zero, two, zero},
            {-1, FIRST, last, last, last, last},
            {0, FIRST, first, first, first, first},
      };
   }
};

struct FloatFamily {
   typedef double Value;
   typedef HLAfloat64Time Time;
   typedef HLAfloat64Interval Interval;
   typedef HLAfloat64TimeFactory Factory;
   typedef HLAinteger64Time OtherTime;
   typedef HLAinteger64Interval OtherInterval;

   static std::wstring name()
   {
      return L"HLAfloat64Time";
   }

   static std::vector<ValueRow<Value>> values()
   {
      return {
            {0.0, "00 00 00 00 00 00 00 00", L"<0>"},
            {-0.0, "80 00 00 00 00 00 00 00", L"<-0>"},
            {1.5, "3F F8 00 00 00 00 00 00", L"<1.5>"},
            {-1.23456789, "BF F3 C0 CA 42 83 DE 1B", L"<-1.23457>"},
            {2.2250738585072014e-308, "00 10 00 00 00 00 00 00", L"<2.22507e-308>"},
            {GREATEST, "7F EF FF FF FF FF FF FF", L"<1.79769e+308>"},
            {INFINITE, "7F F0 00 00 00 00 00 00", L"<inf>"},
      };
   }

   // A time moves by one step at least; an interval stays when a sum is lost to rounding.
   static std::vector<SumRow<Value>> sums()
   {
      char const* const one = "3F F0 00 00 00 00 00 00";
      char const* const large = "7E 37 E4 3C 88 00 75 9C";
      char const* const larger = "7E 37 E4 3C 88 00 75 9D";
      char const* const smaller = "7E 37 E4 3C 88 00 75 9B";
      char const* const greatest = "7F EF FF FF FF FF FF FF";
      char const* const infinite = "7F F0 00 00 00 00 00 00";
      char const* const zero = "00 00 00 00 00 00 00 00";
      return {
            {0.5, 0.25, "3F E8 00 00 00 00 00 00", "3F D0 00 00 00 00 00 00",
                  "3F E8 00 00 00 00 00 00", "3F D0 00 00 00 00 00 00"},
            {1e300, 1e-300, larger, smaller, large, large},
            {1e300, -1e-300, larger, smaller, large, large},
            {-1.0, 1e-300, "BF F0 00 00 00 00 00 01", "BF EF FF FF FF FF FF FF",
                  "BF F0 00 00 00 00 00 00", "BF F0 00 00 00 00 00 00"},
            {1.0, 0.0, one, one, one, one},
            {1.0, -0.0, one, one, one, one},
            {-0.0, 0.0, zero, "80 00 00 00 00 00 00 00", zero, "80 00 00 00 00 00 00 00"},
            {GREATEST, 1.0, infinite, "7F EF FF FF FF FF FF FE", greatest, greatest},
            {INFINITE, 1.0, "7F F0 00 00 00 00 00 01", greatest, infinite, infinite},
      };
   }
};

template <class Family>
class TimeTest : public testing::Test {
};

typedef testing::Types<IntegerFamily, FloatFamily> Families;
TYPED_TEST_SUITE(TimeTest, Families, );

// A time or an interval of the value, both ways between value and bytes.
template <class Class, class Row>
void expectBytesAndText(Class const& object, Row const& row, std::wstring const& name)
{
   SCOPED_TRACE(row.bytes);
   EXPECT_EQ(row.value, static_cast<decltype(row.value)>(object));
   EXPECT_EQ(row.bytes, hex(object.encode()));
   EXPECT_EQ(8u, object.encodedLength());
   char buffer[10] = {7, 7, 7, 7, 7, 7, 7, 7, 7, 7};
   EXPECT_EQ(8u, object.encode(buffer + 1, 8));
   EXPECT_EQ("07 " + std::string(row.bytes) + " 07", hex(buffer, sizeof(buffer)));
   Class decoded(42);
   decoded.decode(buffer + 1, 9); // the ninth byte is ignored
   EXPECT_EQ(row.bytes, hex(decoded.encode()));
   Class again(42);
   again.decode(fromHex(std::string(row.bytes) + " 63"));
   EXPECT_EQ(row.bytes, hex(again.encode()));
   EXPECT_EQ(name + row.text, object.toString());
   std::wostringstream stream;
   stream << L"!" << object;
   EXPECT_EQ(L"!" + object.toString(), stream.str());
}

TYPED_TEST(TimeTest, hasBytesAndText)
{
   std::wstring const name = TypeParam::name();
   std::wstring const intervalName = name.substr(0, name.size() - 4) + L"Interval";
   for (auto const& row : TypeParam::values()) {
      expectBytesAndText(typename TypeParam::Time(row.value), row, name);
      expectBytesAndText(typename TypeParam::Interval(row.value), row, intervalName);
   }
   EXPECT_EQ(name, typename TypeParam::Time().implementationName());
   EXPECT_EQ(name, typename TypeParam::Interval().implementationName());
}

// Value, copies and order, by way of the class and of its base.
template <class Class, class Base>
void expectValueAndOrder()
{
   int const ascending[] = {-2, -1, 0, 1, 2};
   for (int const& left : ascending) {
      Class original(left);
      Class const object(static_cast<Base const&>(original));
      Class const copy(original);
      Class assigned;
      EXPECT_EQ(&assigned, &(assigned = static_cast<Base const&>(original)));
      Class byClass;
      EXPECT_EQ(&byClass, &(byClass = original));
      original = Class(7);
      for (int const& right : ascending) {
         SCOPED_TRACE(testing::Message() << left << ", " << right);
         Class const other(right);
         Base const& value = other;
         EXPECT_EQ(&left < &right, object < value);
         EXPECT_EQ(&left > &right, copy > value);
         EXPECT_EQ(&left <= &right, assigned <= value);
         EXPECT_EQ(&left >= &right, byClass >= value);
         EXPECT_EQ(&left == &right, object == value);
         EXPECT_EQ(&left == &right, object == other);
      }
   }
}

TYPED_TEST(TimeTest, isOrderedByValue)
{
   expectValueAndOrder<typename TypeParam::Time, LogicalTime>();
   expectValueAndOrder<typename TypeParam::Interval, LogicalTimeInterval>();
   typename TypeParam::Time time;
   time.setTime(5);
   EXPECT_EQ(5, time.getTime());
   typename TypeParam::Interval interval;
   interval.setInterval(6);
   EXPECT_EQ(6, interval.getInterval());
}

TYPED_TEST(TimeTest, addsAndSubtracts)
{
   typedef typename TypeParam::Time Time;
   typedef typename TypeParam::Interval Interval;
   for (auto const& row : TypeParam::sums()) {
      SCOPED_TRACE(testing::Message() << row.left << ", " << row.right);
      Interval const right(row.right);
      LogicalTimeInterval const& base = right;
      EXPECT_EQ(row.time, hex((Time(row.left) += right).encode()));
      EXPECT_EQ(row.timeBack, hex((Time(row.left) -= base).encode()));
      EXPECT_EQ(row.interval, hex((Interval(row.left) += base).encode()));
      EXPECT_EQ(row.intervalBack, hex((Interval(row.left) -= right).encode()));
      Interval difference;
      difference.setToDifference(Time(row.left), Time(row.right));
      EXPECT_EQ(row.intervalBack, hex(difference.encode()));
   }
   Time time(5);
   Interval interval(3);
   EXPECT_EQ(&time, &(time += interval));
   EXPECT_EQ(&time, &(time -= interval));
   EXPECT_EQ(&interval, &(interval += interval));
   EXPECT_EQ(6, interval.getInterval());
}

TYPED_TEST(TimeTest, knowsItsEnds)
{
   typedef typename TypeParam::Value Value;
   typename TypeParam::Time time(7);
   EXPECT_FALSE(time.isInitial() || time.isFinal());
   time.setFinal();
   EXPECT_EQ(std::numeric_limits<Value>::max(), time.getTime());
   EXPECT_TRUE(time.isFinal() && !time.isInitial());
   time -= typename TypeParam::Interval(1);
   EXPECT_FALSE(time.isFinal());
   time.setInitial();
   EXPECT_EQ(typename TypeParam::Time(0), time);
   EXPECT_TRUE(time.isInitial() && !time.isFinal());
   typename TypeParam::Interval interval(-1);
   EXPECT_FALSE(interval.isZero() || interval.isEpsilon());
   interval.setEpsilon();
   bool const isInteger = std::is_integral<Value>::value;
   EXPECT_EQ(isInteger ? 1 : std::numeric_limits<Value>::min(), interval.getInterval());
   EXPECT_TRUE(interval.isEpsilon() && !interval.isZero());
   interval.setZero();
   EXPECT_EQ(typename TypeParam::Interval(0), interval);
   EXPECT_TRUE(interval.isZero() && !interval.isEpsilon());
}

TEST(FloatTimeTest, knowsWhatIsNoNumber)
{
   EXPECT_TRUE(HLAfloat64Interval(-0.0).isZero());
   EXPECT_FALSE((HLAfloat64Time(GREATEST) += HLAfloat64Interval(1.0)).isFinal());
   EXPECT_TRUE(
         std::isnan(HLAfloat64Time(HLAfloat64Time(INFINITE) -= HLAfloat64Interval(INFINITE))));
   for (char const* bytes : {"7F F8 00 00 00 00 00 01", "7F F0 00 00 00 00 00 01"}) {
      HLAfloat64Time time;
      time.decode(fromHex(bytes));
      EXPECT_EQ(bytes, hex(time.encode()));
      EXPECT_FALSE(time == time || time <= time || time >= time || time.isInitial());
      EXPECT_FALSE(time.isFinal());
      HLAfloat64Interval interval;
      interval.decode(fromHex(bytes));
      EXPECT_EQ(bytes, hex(interval.encode()));
      EXPECT_FALSE(interval == interval || interval.isZero() || interval.isEpsilon());
      EXPECT_TRUE(std::isnan(HLAfloat64Time(time += HLAfloat64Interval(1.0))));
      EXPECT_TRUE(std::isnan(HLAfloat64Time(HLAfloat64Time(1.0) -= interval)));
   }
}

// What an operation throws, seen through a list with Allowed.
template <class Allowed, class Operation>
void expectBadCast(Operation operation)
{
   EXPECT_EQ(L"bad cast", (textOfUnexpected<std::bad_cast const&, Allowed>(operation)));
}

template <class Allowed, class Operation>
void expectTooSmall(Operation operation)
{
   EXPECT_EQ(L"Buffer too small!", (textOfUnexpected<CouldNotDecode*, Allowed>(operation)));
}

// The operations that times and intervals have in common.
template <class Allowed, class Class, class Base, class Interval>
void expectRefusals(Class& object, Base const& other, Interval const& otherInterval)
{
   Class const before(object);
   EXPECT_THROW(Class{other}, std::bad_cast) << "without a list";
   expectBadCast<Allowed>([&] { object = other; });
   expectBadCast<Allowed>([&] { (void)(object < other); });
   expectBadCast<Allowed>([&] { (void)(object > other); });
   expectBadCast<Allowed>([&] { (void)(object <= other); });
   expectBadCast<Allowed>([&] { (void)(object >= other); });
   expectBadCast<Allowed>([&] { (void)(object == other); });
   expectBadCast<IllegalTimeArithmetic>([&] { object += otherInterval; });
   expectBadCast<InvalidLogicalTimeInterval>([&] { object += otherInterval; });
   expectBadCast<IllegalTimeArithmetic>([&] { object -= otherInterval; });
   expectBadCast<InvalidLogicalTimeInterval>([&] { object -= otherInterval; });
   char buffer[] = "1234567";
   VariableLengthData const data(buffer, 7);
   expectTooSmall<CouldNotEncode>([&] { object.encode(buffer, 7); });
   expectTooSmall<CouldNotDecode>([&] { object.decode(buffer, 7); });
   expectTooSmall<InternalError>([&] { object.decode(data); });
   EXPECT_STREQ("1234567", buffer);
   EXPECT_EQ(before, object);
}

TYPED_TEST(TimeTest, refusesOtherClassesAndShortBuffers)
{
   typename TypeParam::OtherTime const otherTime(7);
   typename TypeParam::OtherInterval const otherInterval(7);
   LogicalTime const& otherBase = otherTime;
   LogicalTimeInterval const& otherIntervalBase = otherInterval;
   typename TypeParam::Time time(5);
   typename TypeParam::Interval interval(3);
   expectRefusals<InvalidLogicalTime>(time, otherBase, otherIntervalBase);
   expectRefusals<InvalidLogicalTimeInterval>(interval, otherIntervalBase, otherIntervalBase);
   expectBadCast<InvalidLogicalTime>([&] { interval.setToDifference(otherTime, time); });
   expectBadCast<IllegalTimeArithmetic>([&] { interval.setToDifference(time, otherTime); });
   EXPECT_EQ(3, interval.getInterval());
   // Without a handler the process ends.
   EXPECT_DEATH(
         [&]() noexcept { time.decode(const_cast<char*>("1234567"), 7); }(), "CouldNotDecode\\*");
   EXPECT_DEATH([&]() noexcept { time = otherBase; }(), "std::bad_cast");
}

TYPED_TEST(TimeTest, comesFromItsFactory)
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
   typename TypeParam::Time const time(12345);
   typename TypeParam::Interval const interval(-678);
   EXPECT_EQ(time, *concrete.makeLogicalTime(12345));
   EXPECT_EQ(interval, *concrete.makeLogicalTimeInterval(-678));
   char buffer[9];
   EXPECT_EQ(time, *factory.decodeLogicalTime(time.encode()));
   time.encode(buffer, sizeof(buffer));
   EXPECT_EQ(time, *factory.decodeLogicalTime(buffer, sizeof(buffer)));
   EXPECT_EQ(interval, *factory.decodeLogicalTimeInterval(interval.encode()));
   interval.encode(buffer, sizeof(buffer));
   EXPECT_EQ(interval, *factory.decodeLogicalTimeInterval(buffer, sizeof(buffer)));
   VariableLengthData const data(buffer, 7);
   expectTooSmall<CouldNotDecode>([&] { factory.decodeLogicalTime(data); });
   expectTooSmall<CouldNotDecode>([&] { factory.decodeLogicalTime(buffer, 7); });
   expectTooSmall<CouldNotDecode>([&] { factory.decodeLogicalTimeInterval(data); });
   expectTooSmall<CouldNotDecode>([&] { factory.decodeLogicalTimeInterval(buffer, 7); });
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
         {L"HLAfloat64Time ", L""},
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
