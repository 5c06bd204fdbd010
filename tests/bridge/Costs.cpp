#include "tests/bridge/Costs.h"

#include "tests/bridge/Federate.h"
#include "tests/bridge/Wire.h"
#include "tests/support/BareVm.h"
#include <RTI/NullFederateAmbassador.h>
#include <RTI/time/HLAfloat64Time.h>

using namespace rti1516e;

namespace net {

namespace {

typedef void (*Native)(JNIEnv*, jobject, jbyteArray);

class Table {
public:
   Table() : _rti(newAmbassador())
   {
      java::reset();
      _rti->connect(_federate, HLA_IMMEDIATE);
      _handle = connectedHandle();
      _rti->joinFederationExecution(L"ship", L"harbour"); // with float time
      java::takeCalls();
      bare::state().keepsCalls = false;
      addServices();
      addCallbacks();
   }

   std::vector<Cost> rows;

private:
   void addUpdate(int count, std::size_t size)
   {
      AttributeHandleValueMap values;
      for (int i = 1; i <= count; ++i) {
         std::string const value(size, 'v');
         VariableLengthData const handle(integer(i).bytes.data(), 4);
         values[_rti->decodeAttributeHandle(handle)].setData(value.data(), size);
      }
      std::string const name = "update-" + std::to_string(count) + "x" + std::to_string(size);
      rows.push_back({name, [=] { _rti->updateAttributeValues(_object, values, _noTag); }, 0});
      rows.push_back({"timed-" + name,
            [=] { _rti->updateAttributeValues(_object, values, _noTag, _time); }, 0});
   }

   void addServices()
   {
      addUpdate(1, 8);
      addUpdate(10, 64);
      addUpdate(100, 8);
      addUpdate(1500, 8);
      std::wstring const name = L"Position";
      rows.push_back({"getAttributeHandle",
            [=] { _rti->getAttributeHandle(ObjectClassHandle(), name); }, 0});
      rows.push_back({"evokeCallback", [=] { _rti->evokeCallback(0.5); }, 0});
   }

   // Brings the fields and the others in turn.
   void addCallback(std::string const& name, std::string const& native, Wire const& fields,
         Wire const& others, long allocations)
   {
      Native const function =
            reinterpret_cast<Native>(bare::state().natives.at(native + "_Native([B)V"));
      std::string const first = frame(_handle, fields.bytes);
      std::string const second = frame(_handle, others.bytes);
      rows.push_back({name,
            [=] {
               static bool isFirst;
               isFirst = !isFirst;
               std::string const& bytes = isFirst ? first : second;
               jbyteArray const array =
                     bare::arrayOver(const_cast<char*>(bytes.data()), bytes.size());
               function(bare::environment(), nullptr, array);
            },
            allocations});
   }

   // Attributes from `first` on.
   static Wire reflection(int first, int count)
   {
      std::vector<Wire> values;
      for (int attribute = first; attribute < first + count; ++attribute) {
         values.push_back(integer(attribute) + block("8 bytes."));
      }
      return integer(1) + counted(values) + block("tag!") + integer(0) + integer(1) + integer(1)
            + integer(0) + integer(2);
   }

   void addCallbacks()
   {
      std::string const native = "reflectAttributeValues_OIH_AHVM_BX_OT_TTH_FASRI";
      for (int const count : {0, 1, 10, 100, 1000}) {
         // So many that they are not kept: the map, and for each attribute a node and a record.
         addCallback("reflect-" + std::to_string(count), native, reflection(1, count),
               reflection(1, count), count == 1000 ? 1 + 2 * count : 0);
      }
      addCallback("reflect-10-changing", native, reflection(1, 10), reflection(11, 10), 0);
      addCallback("timeAdvanceGrant", "timeAdvanceGrant_LT", wire(1.5), wire(2.5), 0);
      Wire const nothing{"", 0};
      addCallback("federationSaved", "federationSaved", nothing, nothing, 0);
   }

   NullFederateAmbassador _federate;
   std::unique_ptr<RTIambassador> const _rti;
   ObjectInstanceHandle const _object;
   VariableLengthData const _noTag;
   HLAfloat64Time const _time{1.5};
   int _handle;
};

} // namespace

std::vector<Cost> const& costs()
{
   static Table* const table = new Table; // stays
   return table->rows;
}

} // namespace net
