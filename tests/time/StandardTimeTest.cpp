// What holds for integer and float times alike: bytes, texts, comparisons, refusals.
#include "tests/api/Bytes.h"
#include "tests/api/Unexpected.h"
#include "tests/time/Families.h"

#include <limits>
#include <sstream>

using namespace rti1516e;

namespace {

template <class Value>
struct ValueRow {
   Value value;
   char const* bytes;
   wchar_t const* text; // behind the class's name
};

ValueRow<long long> const INTEGERS[] = {
      {0, "00 00 00 00 00 00 00 00", L"<0>"},
      {1, "00 00 00 00 00 00 00 01", L"<1>"},
      {-1, "FF FF FF FF FF FF FF FF", L"<-1>"},
      {-3, "FF FF FF FF FF FF FF FD", L"<-3>"},
      {0x0102030405060708, "01 02 03 04 05 06 07 08", L"<72623859790382856>"},
      {std::numeric_limits<long long>::max(), "7F FF FF FF FF FF FF FF", L"<9223372036854775807>"},
      {std::numeric_limits<long long>::min(), "80 00 00 00 00 00 00 00", L"<-9223372036854775808>"},
};

ValueRow<double> const FLOATS[] = {
      {0.0, "00 00 00 00 00 00 00 00", L"<0>"},
      {-0.0, "80 00 00 00 00 00 00 00", L"<-0>"},
      {1.0, "3F F0 00 00 00 00 00 00", L"<1>"},
      {1.5, "3F F8 00 00 00 00 00 00", L"<1.5>"},
      {-1.23456789, "BF F3 C0 CA 42 83 DE 1B", L"<-1.23457>"},
      {2.2250738585072014e-308, "00 10 00 00 00 00 00 00", L"<2.22507e-308>"},
      {1.7976931348623157e+308, "7F EF FF FF FF FF FF FF", L"<1.79769e+308>"},
      {std::numeric_limits<double>::infinity(), "7F F0 00 00 00 00 00 00", L"<inf>"},
};

ValueRow<long long> const (&rowsOf(IntegerFamily))[7]
{
   return INTEGERS;
}

ValueRow<double> const (&rowsOf(FloatFamily))[8]
{
   return FLOATS;
}

template <class Family>
class StandardTimeTest : public testing::Test {
};

TYPED_TEST_SUITE(StandardTimeTest, Families, );

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

   Class decoded;
   decoded.decode(fromHex(row.bytes));
   EXPECT_EQ(row.bytes, hex(decoded.encode()));
   decoded = Class(42);
   decoded.decode(buffer + 1, 9); // the ninth byte is ignored
   EXPECT_EQ(row.bytes, hex(decoded.encode()));
   decoded = Class(42);
   decoded.decode(fromHex(std::string(row.bytes) + " 63"));
   EXPECT_EQ(row.bytes, hex(decoded.encode()));

   EXPECT_EQ(name + row.text, object.toString());
   std::wostringstream stream;
   stream << L"!" << object;
   EXPECT_EQ(L"!" + object.toString(), stream.str());
}

TYPED_TEST(StandardTimeTest, hasBytesAndText)
{
   std::wstring const intervalName =
         TypeParam::name().replace(TypeParam::name().size() - 4, 4, L"Interval");
   for (auto const& row : rowsOf(TypeParam())) {
      expectBytesAndText(typename TypeParam::Time(row.value), row, TypeParam::name());
      expectBytesAndText(typename TypeParam::Interval(row.value), row, intervalName);
   }
   EXPECT_EQ(TypeParam::name(), typename TypeParam::Time().implementationName());
   EXPECT_EQ(TypeParam::name(), typename TypeParam::Interval().implementationName());
}

TYPED_TEST(StandardTimeTest, isCopiedByValue)
{
   typename TypeParam::Time first(5);
   LogicalTime const& base = first;
   typename TypeParam::Time const copies[] = {first, typename TypeParam::Time(base)};
   typename TypeParam::Time assigned;
   EXPECT_EQ(&assigned, &(assigned = base));
   typename TypeParam::Time set;
   set.setTime(5);
   first = *&first;
   EXPECT_EQ(5, first.getTime());
   first = typename TypeParam::Time(6);
   EXPECT_EQ(5, copies[0].getTime());
   EXPECT_EQ(5, copies[1].getTime());
   EXPECT_EQ(5, assigned.getTime());
   EXPECT_EQ(5, set.getTime());
   EXPECT_EQ(6, first.getTime());

   typename TypeParam::Interval interval(3);
   LogicalTimeInterval const& intervalBase = interval;
   typename TypeParam::Interval const intervalCopy(intervalBase);
   typename TypeParam::Interval assignedInterval;
   EXPECT_EQ(&assignedInterval, &(assignedInterval = intervalBase));
   interval.setInterval(4);
   EXPECT_EQ(3, intervalCopy.getInterval());
   EXPECT_EQ(3, assignedInterval.getInterval());
   EXPECT_EQ(4, interval.getInterval());
}

template <class Class, class Base>
void expectOrder()
{
   int const ascending[] = {-2, -1, 0, 1, 2};
   for (int const& left : ascending) {
      for (int const& right : ascending) {
         SCOPED_TRACE(testing::Message() << left << ", " << right);
         Class const object(left);
         Class const other(right);
         Base const& value = other;
         EXPECT_EQ(&left < &right, object < value);
         EXPECT_EQ(&left > &right, object > value);
         EXPECT_EQ(&left <= &right, object <= value);
         EXPECT_EQ(&left >= &right, object >= value);
         EXPECT_EQ(&left == &right, object == value);
         EXPECT_EQ(&left == &right, object == other);
      }
   }
}

TYPED_TEST(StandardTimeTest, isOrderedByValue)
{
   expectOrder<typename TypeParam::Time, LogicalTime>();
   expectOrder<typename TypeParam::Interval, LogicalTimeInterval>();
}

TYPED_TEST(StandardTimeTest, addsAndSubtracts)
{
   typename TypeParam::Time time(5);
   typename TypeParam::Interval interval(3);
   LogicalTimeInterval const& base = interval;
   EXPECT_EQ(&time, &(time += base));
   EXPECT_EQ(8, time.getTime());
   EXPECT_EQ(&time, &(time -= typename TypeParam::Interval(10)));
   EXPECT_EQ(-2, time.getTime());
   EXPECT_EQ(&interval, &(interval += typename TypeParam::Interval(4)));
   EXPECT_EQ(7, interval.getInterval());
   EXPECT_EQ(&interval, &(interval -= base));
   EXPECT_EQ(0, interval.getInterval());
   interval.setToDifference(typename TypeParam::Time(3), typename TypeParam::Time(5));
   EXPECT_EQ(-2, interval.getInterval());
}

TYPED_TEST(StandardTimeTest, constructorsLetBadCastOut)
{
   typename TypeParam::OtherTime const time;
   typename TypeParam::OtherInterval const interval;
   EXPECT_THROW(typename TypeParam::Time{static_cast<LogicalTime const&>(time)}, std::bad_cast);
   EXPECT_THROW(typename TypeParam::Interval{static_cast<LogicalTimeInterval const&>(interval)},
         std::bad_cast);
}

// What an operation with an argument of another class throws, seen through a list with Allowed.
template <class Allowed, class Operation>
void expectBadCast(Operation operation)
{
   EXPECT_EQ(L"bad cast", (textOfUnexpected<std::bad_cast const&, Allowed>(operation)));
}

// The operations that times and intervals have in common.
template <class Allowed, class Class, class Base, class Interval>
void expectRefusals(Class& object, Base const& other, Interval const& otherInterval)
{
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
}

TYPED_TEST(StandardTimeTest, refusesOtherClasses)
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
   EXPECT_EQ(5, time.getTime());
   EXPECT_EQ(3, interval.getInterval());
}

template <class Class>
void expectShortBuffersRefused()
{
   Class object(5);
   char buffer[] = "1234567";
   VariableLengthData const data(buffer, 7);
   wchar_t const* const text = L"Buffer too small!";
   EXPECT_EQ(text,
         (textOfUnexpected<CouldNotDecode*, CouldNotEncode>([&] { object.encode(buffer, 7); })));
   EXPECT_EQ(text,
         (textOfUnexpected<CouldNotDecode*, CouldNotDecode>([&] { object.decode(buffer, 7); })));
   EXPECT_EQ(
         text, (textOfUnexpected<CouldNotDecode*, InternalError>([&] { object.decode(data); })));
   EXPECT_STREQ("1234567", buffer);
   EXPECT_EQ(Class(5), object);
}

TYPED_TEST(StandardTimeTest, throwsPointerForShortBuffer)
{
   expectShortBuffersRefused<typename TypeParam::Time>();
   expectShortBuffersRefused<typename TypeParam::Interval>();
}

template <class Operation>
void callCatchingAll(Operation operation)
{
   try {
      operation();
   } catch (...) {
   }
}

TYPED_TEST(StandardTimeTest, withoutHandlerTheProcessEnds)
{
   typename TypeParam::Time time;
   typename TypeParam::OtherTime const other;
   char buffer[7] = {};
   EXPECT_DEATH(callCatchingAll([&] { time.decode(buffer, 7); }), "CouldNotDecode\\*");
   EXPECT_DEATH(callCatchingAll([&] { time.encode(buffer, 7); }), "CouldNotDecode\\*");
   EXPECT_DEATH(
         callCatchingAll([&] { time = static_cast<LogicalTime const&>(other); }), "std::bad_cast");
}

} // namespace
