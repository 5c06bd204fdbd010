// The two families of standard times, for tests that hold for both.
#ifndef tests_time_Families_h
#define tests_time_Families_h

#include <gtest/gtest.h>
#include <RTI/time/HLAfloat64TimeFactory.h>
#include <RTI/time/HLAinteger64TimeFactory.h>

struct IntegerFamily {
   typedef long long Value;
   typedef rti1516e::HLAinteger64Time Time;
   typedef rti1516e::HLAinteger64Interval Interval;
   typedef rti1516e::HLAinteger64TimeFactory Factory;
   typedef rti1516e::HLAfloat64Time OtherTime;
   typedef rti1516e::HLAfloat64Interval OtherInterval;

   static std::wstring name()
   {
      return L"HLAinteger64Time";
   }
};

struct FloatFamily {
   typedef double Value;
   typedef rti1516e::HLAfloat64Time Time;
   typedef rti1516e::HLAfloat64Interval Interval;
   typedef rti1516e::HLAfloat64TimeFactory Factory;
   typedef rti1516e::HLAinteger64Time OtherTime;
   typedef rti1516e::HLAinteger64Interval OtherInterval;

   static std::wstring name()
   {
      return L"HLAfloat64Time";
   }
};

typedef testing::Types<IntegerFamily, FloatFamily> Families;

#endif
