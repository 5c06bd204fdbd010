#include "tests/bridge/Rows.h"

#include <RTI/NullFederateAmbassador.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace net {

namespace {

struct List {
   List()
   {
      std::ifstream file(NET_JAVA_LIST);
      std::vector<ServiceCall> const calls = serviceCalls();
      for (std::string line; std::getline(file, line);) {
         std::istringstream words(line);
         std::string kind;
         words >> kind;
         if (kind == "service") {
            ServiceRow row;
            words >> row.name >> row.signature >> row.result;
            for (std::string rung; words >> rung;) {
               row.ladder.push_back(rung);
            }
            row.call = calls.at(services.size());
            services.push_back(row);
         } else if (kind == "callback") {
            natives.emplace_back();
            words >> natives.back();
         }
      }
      if (services.size() != 142 || natives.size() != 60) {
         throw std::logic_error("no list of services and natives in " NET_JAVA_LIST);
      }
   }

   std::vector<ServiceRow> services;
   std::vector<std::string> natives;
};

List const& list()
{
   static List const one;
   return one;
}

} // namespace

rti1516e::FederateAmbassador& Fields::federateAmbassador(int position)
{
   static rti1516e::NullFederateAmbassador ignorant;
   _wires[position] = Wire{"", 0};
   return ignorant;
}

Wire Fields::body() const
{
   Wire all{"", 0};
   for (auto const& field : _wires) {
      all += field.second;
   }
   return all;
}

std::vector<ServiceRow> const& serviceRows()
{
   return list().services;
}

std::vector<std::string> const& natives()
{
   return list().natives;
}

} // namespace net
