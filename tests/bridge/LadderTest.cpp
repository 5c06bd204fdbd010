// What Java throws in a service, and what the federate catches.
#include "tests/bridge/Rows.h"
#include <RTI/Exception.h>
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>

#include <algorithm>
#include <gtest/gtest.h>
#include <typeinfo>

using namespace rti1516e;
using namespace net;

namespace {

std::string const package = "hla/rti1516e/exceptions/";

std::map<std::string, std::type_info const*> const types{
#define TYPE_OF(A) {#A, &typeid(A)},
      RTI_FOR_EACH_EXCEPTION(TYPE_OF)
#undef TYPE_OF
};

// Calls a service while Java throws. The class of what came out, by the name of its rung, and its
// message; or that nothing came. A type X has a message, x none.
std::wstring caught(ServiceRow const& row, std::string const& javaClass,
      std::wstring const& message, char type = 'X')
{
   java::reset();
   java::answer(row.name, {type, message, javaClass, {}});
   Fields fields(0);
   HLAfloat64Time time;
   HLAfloat64Interval interval;
   int const held = java::heldReferences();
   std::wstring told = L"nothing";
   try {
      row.call(ambassador(), fields, time, interval);
   } catch (Exception const& e) {
      std::string name = "another class";
      for (auto const& known : types) {
         name = typeid(e) == *known.second ? known.first : name;
      }
      told = std::wstring(name.begin(), name.end()) + L": " + e.what();
   }
   EXPECT_EQ(held, java::heldReferences());
   return told;
}

std::wstring wide(std::string const& text)
{
   return std::wstring(text.begin(), text.end());
}

} // namespace

TEST(Ladders, haveEveryRung)
{
   ambassador();
   std::wstring const message = L"no \xE9 \xD83D\xDE00 \x141";
   int climbed = 0;
   for (ServiceRow const& row : serviceRows()) {
      for (std::string const& rung : row.ladder) {
         SCOPED_TRACE(row.name + ", rung " + rung);
         EXPECT_EQ(wide(rung + ": ") + message, caught(row, package + rung, message));
         ++climbed;
      }
   }
   EXPECT_EQ(934, climbed);
}

TEST(Ladders, tellTheClassWithoutAMessage)
{
   ambassador();
   for (ServiceRow const& row : serviceRows()) {
      if (!row.ladder.empty()) {
         SCOPED_TRACE(row.name);
         std::string const& rung = row.ladder[0];
         EXPECT_EQ(wide(rung + ": hla.rti1516e.exceptions." + rung),
               caught(row, package + rung, L"", 'x'));
         EXPECT_EQ(wide(rung + ": "), caught(row, package + rung, L""));
      }
   }
}

// Other exceptions of the interface count as well: no ladder is longer than its row. The one
// service without a ladder tells even what its public list names as another class.
TEST(Ladders, tellOfWhatNoRungNames)
{
   ambassador();
   std::size_t at = 0;
   for (ServiceRow const& row : serviceRows()) {
      std::vector<std::string> strangers{"java/lang/IllegalStateException"};
      auto stranger = types.begin();
      std::advance(stranger, static_cast<std::ptrdiff_t>(at++ % 12));
      for (; std::distance(stranger, types.end()) > 12; std::advance(stranger, 12)) {
         if (!std::count(row.ladder.begin(), row.ladder.end(), stranger->first)) {
            strangers.push_back(package + stranger->first);
         }
      }
      if (row.ladder.empty()) {
         strangers.push_back(package + "NotConnected");
      }
      for (std::string const& name : strangers) {
         SCOPED_TRACE(row.name + ", " + name);
         std::string dotted = name;
         std::replace(dotted.begin(), dotted.end(), '/', '.');
         testing::internal::CaptureStderr();
         std::wstring const told = caught(row, name, L"why");
         std::string const errors = testing::internal::GetCapturedStderr();
         EXPECT_EQ(L"RTIinternalError: " + wide(dotted) + L": why", told);
         EXPECT_EQ(0U, errors.find("Unhandled exception\n" + dotted + ": why\n")) << errors;
      }
   }
}
