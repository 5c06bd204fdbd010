// The standard float time with a text for people: hours, shown as a clock shows them. Name and
// bytes are those of HLAfloat64Time, so that every RTI knows it.
#ifndef tides_ClockTime_h
#define tides_ClockTime_h

#include <RTI/time/HLAfloat64Time.h>

#include <string>

class ClockTime : public rti1516e::HLAfloat64Time {
public:
   ClockTime() {}
   explicit ClockTime(double hours) : HLAfloat64Time(hours) {}

   // The base's, which a class that declares none would hide behind its own.
   using HLAfloat64Time::operator=;

   std::wstring toString() const override; // as "06:30"
};

#endif
