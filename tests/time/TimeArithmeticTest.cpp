// Where integer and float times differ: their constants, wrapping, and sums lost to rounding.
#include "tests/api/Bytes.h"
#include "tests/time/Families.h"

#include <cmath>
#include <limits>

using namespace rti1516e;

namespace {

long long const LAST = std::numeric_limits<long long>::max();
long long const FIRST = std::numeric_limits<long long>::min();

TEST(IntegerTimeTest, hasItsConstants)
{
   HLAinteger64Time time(7);
   EXPECT_FALSE(time.isInitial() || time.isFinal());
   time.setFinal();
   EXPECT_EQ(LAST, time.getTime());
   EXPECT_TRUE(time.isFinal() && !time.isInitial());
   EXPECT_FALSE(HLAinteger64Time(LAST - 1).isFinal());
   EXPECT_TRUE(HLAinteger64Time(LAST - 1) < time);
   time.setInitial();
   EXPECT_EQ(0, time.getTime());
   EXPECT_TRUE(time.isInitial() && !time.isFinal());

   HLAinteger64Interval interval(-1);
   EXPECT_FALSE(interval.isZero() || interval.isEpsilon());
   interval.setEpsilon();
   EXPECT_EQ(1, interval.getInterval());
   EXPECT_TRUE(interval.isEpsilon() && !interval.isZero());
   interval.setZero();
   EXPECT_EQ(0, interval.getInterval());
   EXPECT_TRUE(interval.isZero() && !interval.isEpsilon());
}

TEST(IntegerTimeTest, wrapsAround)
{
   struct {
      long long left, right, sum, difference;
   } const rows[] = {
         {LAST, 1, FIRST, LAST - 1},
         {FIRST, 1, FIRST + 1, LAST},
         {LAST, LAST, -2, 0},
         {-1, FIRST, LAST, LAST},
         {0, FIRST, FIRST, FIRST},
   };
   for (auto const& row : rows) {
      SCOPED_TRACE(testing::Message() << row.left << ", " << row.right);
      HLAinteger64Interval const right(row.right);
      EXPECT_EQ(HLAinteger64Time(row.sum), HLAinteger64Time(row.left) += right);
      EXPECT_EQ(HLAinteger64Time(row.difference), HLAinteger64Time(row.left) -= right);
      EXPECT_EQ(HLAinteger64Interval(row.sum), HLAinteger64Interval(row.left) += right);
      EXPECT_EQ(HLAinteger64Interval(row.difference), HLAinteger64Interval(row.left) -= right);
      HLAinteger64Interval difference;
      difference.setToDifference(HLAinteger64Time(row.left), HLAinteger64Time(row.right));
      EXPECT_EQ(row.difference, difference.getInterval());
   }
}

TEST(FloatTimeTest, hasItsConstants)
{
   HLAfloat64Time time(7.0);
   EXPECT_FALSE(time.isInitial() || time.isFinal());
   time.setFinal();
   EXPECT_EQ("7F EF FF FF FF FF FF FF", hex(time.encode()));
   EXPECT_TRUE(time.isFinal() && !time.isInitial());
   time.setInitial();
   EXPECT_EQ("00 00 00 00 00 00 00 00", hex(time.encode()));
   EXPECT_TRUE(time.isInitial() && !time.isFinal());

   HLAfloat64Interval interval(1.0);
   EXPECT_FALSE(interval.isZero() || interval.isEpsilon());
   interval.setEpsilon();
   EXPECT_EQ("00 10 00 00 00 00 00 00", hex(interval.encode()));
   EXPECT_TRUE(interval.isEpsilon() && !interval.isZero());
   interval.setInterval(2.2250738585072014e-308);
   EXPECT_TRUE(interval.isEpsilon());
   interval.setZero();
   EXPECT_EQ("00 00 00 00 00 00 00 00", hex(interval.encode()));
   EXPECT_TRUE(interval.isZero() && !interval.isEpsilon());
   EXPECT_TRUE(HLAfloat64Interval(-0.0).isZero());
}

TEST(FloatTimeTest, movesWhenASumIsLostToRounding)
{
   double const last = std::numeric_limits<double>::max();
   double const infinity = std::numeric_limits<double>::infinity();
   struct {
      double time, interval;
      char const* sum;
      char const* difference;
   } const rows[] = {
         {0.5, 0.25, "3F E8 00 00 00 00 00 00", "3F D0 00 00 00 00 00 00"},
         {1e300, 1e-300, "7E 37 E4 3C 88 00 75 9D", "7E 37 E4 3C 88 00 75 9B"},
         {1e300, -1e-300, "7E 37 E4 3C 88 00 75 9D", "7E 37 E4 3C 88 00 75 9B"},
         {-1.0, 1e-300, "BF F0 00 00 00 00 00 01", "BF EF FF FF FF FF FF FF"},
         {1.0, 0.0, "3F F0 00 00 00 00 00 00", "3F F0 00 00 00 00 00 00"},
         {1.0, -0.0, "3F F0 00 00 00 00 00 00", "3F F0 00 00 00 00 00 00"},
         {-0.0, 0.0, "00 00 00 00 00 00 00 00", "80 00 00 00 00 00 00 00"},
         {last, 1.0, "7F F0 00 00 00 00 00 00", "7F EF FF FF FF FF FF FE"},
         {infinity, 1.0, "7F F0 00 00 00 00 00 01", "7F EF FF FF FF FF FF FF"},
   };
   for (auto const& row : rows) {
      SCOPED_TRACE(testing::Message() << row.time << ", " << row.interval);
      HLAfloat64Interval const interval(row.interval);
      EXPECT_EQ(row.sum, hex((HLAfloat64Time(row.time) += interval).encode()));
      EXPECT_EQ(row.difference, hex((HLAfloat64Time(row.time) -= interval).encode()));
   }
   EXPECT_FALSE((HLAfloat64Time(last) += HLAfloat64Interval(1.0)).isFinal());
   EXPECT_TRUE(
         std::isnan(HLAfloat64Time(HLAfloat64Time(infinity) -= HLAfloat64Interval(infinity))));
}

TEST(FloatTimeTest, intervalsStayWhenASumIsLost)
{
   HLAfloat64Interval const small(1e-300);
   EXPECT_EQ("7E 37 E4 3C 88 00 75 9C", hex((HLAfloat64Interval(1e300) += small).encode()));
   EXPECT_EQ("7E 37 E4 3C 88 00 75 9C", hex((HLAfloat64Interval(1e300) -= small).encode()));
   HLAfloat64Interval difference;
   difference.setToDifference(HLAfloat64Time(1e300), HLAfloat64Time(1e-300));
   EXPECT_EQ(1e300, difference.getInterval());
}

TEST(FloatTimeTest, notANumberEqualsNothingAndKeepsItsBits)
{
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

} // namespace
