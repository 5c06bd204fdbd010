// The order of the virtual operations, which federates compiled earlier rely on.
#include <cstring>
#include <gtest/gtest.h>
#include <numeric>
#include <RTI/time/HLAfloat64TimeFactory.h>
#include <RTI/time/HLAinteger64TimeFactory.h>
#include <vector>

using namespace rti1516e;

namespace {

// The number of an operation's entry in the table of virtual operations. A pointer to a virtual
// member holds the entry's offset in its first word; on some processors the lowest bit is set.
template <class Member>
long entryOf(Member member)
{
   long word;
   std::memcpy(&word, &member, sizeof(word));
   return (word & ~1L) / static_cast<long>(sizeof(void*));
}

// One entry after the other. The destructor, before the first, has two.
void expectEntries(std::vector<long> const& entries)
{
   std::vector<long> expected(entries.size());
   std::iota(expected.begin(), expected.end(), 2);
   EXPECT_EQ(expected, entries);
}

// An overloaded operation of the class C.
#define ENTRY(Result, C, name, arguments) entryOf<Result(C::*) arguments>(&C::name)

// The assignments and comparisons, as Base declares them and C inherits or overrides them.
template <class C, class Base>
void appendOperators(std::vector<long>& entries)
{
   for (long const entry : {ENTRY(Base&, C, operator=, (Base const&)), entryOf(&C::operator+=),
              entryOf(&C::operator-=), entryOf(&C::operator>), entryOf(&C::operator<),
              ENTRY(bool, C, operator==, (Base const&) const), entryOf(&C::operator>=),
              entryOf(&C::operator<=)}) {
      entries.push_back(entry);
   }
}

template <class C>
void appendCoding(std::vector<long>& entries)
{
   for (long const entry : {ENTRY(VariableLengthData, C, encode, () const),
              ENTRY(size_t, C, encode, (void*, size_t) const), entryOf(&C::encodedLength),
              ENTRY(void, C, decode, (VariableLengthData const&)),
              ENTRY(void, C, decode, (void*, size_t)), entryOf(&C::toString),
              entryOf(&C::implementationName)}) {
      entries.push_back(entry);
   }
}

template <class C>
std::vector<long> timeEntries()
{
   std::vector<long> entries = {entryOf(&C::setInitial), entryOf(&C::isInitial),
         entryOf(&C::setFinal), entryOf(&C::isFinal)};
   appendOperators<C, LogicalTime>(entries);
   appendCoding<C>(entries);
   return entries;
}

template <class C>
std::vector<long> intervalEntries()
{
   std::vector<long> entries = {entryOf(&C::setZero), entryOf(&C::isZero), entryOf(&C::setEpsilon),
         entryOf(&C::isEpsilon)};
   appendOperators<C, LogicalTimeInterval>(entries);
   entries.push_back(entryOf(&C::setToDifference));
   appendCoding<C>(entries);
   return entries;
}

template <class C>
std::vector<long> factoryEntries()
{
   typedef std::auto_ptr<LogicalTime> Time;
   typedef std::auto_ptr<LogicalTimeInterval> Interval;
   return {entryOf(&C::makeInitial), entryOf(&C::makeFinal), entryOf(&C::makeZero),
         entryOf(&C::makeEpsilon), ENTRY(Time, C, decodeLogicalTime, (VariableLengthData const&)),
         ENTRY(Time, C, decodeLogicalTime, (void*, size_t)),
         ENTRY(Interval, C, decodeLogicalTimeInterval, (VariableLengthData const&)),
         ENTRY(Interval, C, decodeLogicalTimeInterval, (void*, size_t)), entryOf(&C::getName)};
}

template <class Time, class Interval, class Factory>
void expectFamilyEntries()
{
   std::vector<long> entries = timeEntries<Time>();
   entries.push_back(entryOf(&Time::getTime));
   entries.push_back(entryOf(&Time::setTime));
   entries.push_back(ENTRY(Time&, Time, operator=, (Time const&)));
   expectEntries(entries);

   entries = intervalEntries<Interval>();
   entries.push_back(entryOf(&Interval::getInterval));
   entries.push_back(entryOf(&Interval::setInterval));
   entries.push_back(ENTRY(Interval&, Interval, operator=, (Interval const&)));
   expectEntries(entries);

   entries = factoryEntries<Factory>();
   entries.push_back(entryOf(&Factory::makeLogicalTime));
   entries.push_back(entryOf(&Factory::makeLogicalTimeInterval));
   expectEntries(entries);
}

TEST(VirtualOrderTest, isTheStandards)
{
   expectEntries(timeEntries<LogicalTime>());
   expectEntries(intervalEntries<LogicalTimeInterval>());
   expectEntries(factoryEntries<LogicalTimeFactory>());
   expectFamilyEntries<HLAinteger64Time, HLAinteger64Interval, HLAinteger64TimeFactory>();
   expectFamilyEntries<HLAfloat64Time, HLAfloat64Interval, HLAfloat64TimeFactory>();
}

} // namespace
