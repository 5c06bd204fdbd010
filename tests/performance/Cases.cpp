#include "tests/performance/Cases.h"

#include "tests/performance/Frames.h"
#include "tests/performance/QuickVm.h"
#include <RTI/time/HLAfloat64Time.h>

#include <cstdlib>

using namespace rti1516e;

namespace performance {

namespace {

class Federate : public NullFederateAmbassador {
public:
   using NullFederateAmbassador::discoverObjectInstance;
   using NullFederateAmbassador::reflectAttributeValues;

   void reflectAttributeValues(ObjectInstanceHandle, AttributeHandleValueMap const& values,
         VariableLengthData const&, OrderType, TransportationType, SupplementalReflectInfo) override
   {
      reached = static_cast<long>(values.size());
   }

   void attributesInScope(ObjectInstanceHandle, AttributeHandleSet const& attributes) override
   {
      reached = static_cast<long>(attributes.size());
   }

   void discoverObjectInstance(
         ObjectInstanceHandle, ObjectClassHandle, std::wstring const& name) override
   {
      reached = static_cast<long>(name.size());
   }

   void timeAdvanceGrant(LogicalTime const& time) override
   {
      reached = static_cast<long>(time.encodedLength());
   }

   void federationSaved() override
   {
      reached = 0;
   }

   long reached = -1;
};

// The handle by which the arrays of callbacks begin, out of the array of connect.
int connectedHandle()
{
   int handle = 0;
   for (char const byte : quickvm::lastBody().substr(0, 4)) {
      handle = handle << 8 | static_cast<unsigned char>(byte);
   }
   return handle;
}

class Table {
public:
   Table() : _ambassador(RTIambassadorFactory().createRTIambassador())
   {
      _ambassador->connect(_federate, HLA_IMMEDIATE, L"");
      _handle = connectedHandle();
      _ambassador->joinFederationExecution(L"ship", L"harbour", std::vector<std::wstring>());
      addServices();
      addTimedServices();
      addCallbacks();
   }

   std::vector<Case> rows;

private:
   // `length` is that of the array.
   void addService(std::string const& name, long allocations, long length,
         std::function<void(RTIambassador&)> const& call)
   {
      RTIambassador& ambassador = *_ambassador;
      rows.push_back({name, [=, &ambassador] { call(ambassador); }, allocations,
            [] { return static_cast<long>(quickvm::lastBody().size()); }, length});
   }

   void addUpdate(int count, std::size_t size)
   {
      AttributeHandleValueMap const values = makeValues(count, size);
      std::string const name = "update-" + std::to_string(count) + "x" + std::to_string(size);
      long const length = 4 + 4 + count * (8 + static_cast<long>(size)) + 4;
      addService(name, 0, length, [=](RTIambassador& ambassador) {
         static VariableLengthData const noTag;
         ambassador.updateAttributeValues(_object, values, noTag);
      });
   }

   void addServices()
   {
      addUpdate(1, 8);
      addUpdate(10, 64);
      addUpdate(100, 8);
      addUpdate(1000, 8);
      std::wstring const name = L"Position";
      addService("getAttributeHandle", 0, 4 + 4 + 4 * 8, [=](RTIambassador& ambassador) {
         ambassador.getAttributeHandle(ObjectClassHandle(), name);
      });
      addService("evokeCallback", 0, 8,
            [](RTIambassador& ambassador) { ambassador.evokeCallback(0.5); });
      AttributeHandleSet attributes;
      for (auto const& entry : makeValues(5, 1)) {
         attributes.insert(entry.first);
      }
      addService("publishObjectClassAttributes", 0, 4 + 4 + 5 * 4, [=](RTIambassador& ambassador) {
         ambassador.publishObjectClassAttributes(ObjectClassHandle(), attributes);
      });
   }

   void addTimedServices()
   {
      AttributeHandleValueMap const values = makeValues(1, 8);
      addService("timed-update-1x8", 0, 4 + 4 + 16 + 4 + 8, [=](RTIambassador& ambassador) {
         static VariableLengthData const noTag;
         static HLAfloat64Time const time(1.5);
         ambassador.updateAttributeValues(_object, values, noTag, time);
      });
   }

   void addCallback(std::string const& name, std::string const& native, std::string const& frame,
         long allocations, long reached)
   {
      quickvm::Native const function = quickvm::findNative(native + "_Native");
      jbyteArray const array = quickvm::makeArray(frame);
      rows.push_back({name, [=] { function(quickvm::environment(), nullptr, array); }, allocations,
            [this] { return _federate.reached; }, reached});
   }

   void addReflection(int count, long allocations)
   {
      addCallback("reflect-" + std::to_string(count),
            "reflectAttributeValues_OIH_AHVM_BX_OT_TTH_FASRI", makeReflection(_handle, count, 8),
            allocations, count);
   }

   // No two reflections in turn have an attribute in common.
   void addChangingReflection(int count, long allocations)
   {
      quickvm::Native const function =
            quickvm::findNative("reflectAttributeValues_OIH_AHVM_BX_OT_TTH_FASRI_Native");
      jbyteArray const odd = quickvm::makeArray(makeReflection(_handle, count, 8));
      jbyteArray const even = quickvm::makeArray(makeReflection(_handle, count, 8, 1 + count));
      rows.push_back({"reflect-" + std::to_string(count) + "-changing",
            [=] {
               static bool isOdd;
               isOdd = !isOdd;
               function(quickvm::environment(), nullptr, isOdd ? odd : even);
            },
            allocations, [this] { return _federate.reached; }, count});
   }

   void addCallbacks()
   {
      using namespace contract;
      addReflection(0, 0);
      addReflection(1, 0);
      addReflection(10, 0);
      addReflection(100, 0);
      // So much is not kept: the map, and for each attribute a node and a record with the bytes.
      addReflection(1000, 1 + 2 * 1000);
      addChangingReflection(10, 0);
      addCallback("attributesInScope-3", "attributesInScope_OIH_AHS",
            frame(_handle, integer(1) + counted({integer(1), integer(2), integer(3)})), 3, 3);
      // A string of more characters than it holds in itself.
      addCallback("discoverObjectInstance", "discoverObjectInstance_OIH_OCH_S",
            frame(_handle, integer(1) + integer(2) + text(L"Fortuna")), 1, 7);
      addCallback("timeAdvanceGrant", "timeAdvanceGrant_LT", makeGrant(_handle, 1.5), 0, 8);
      addCallback("federationSaved", "federationSaved", frame(_handle, Wire()), 0, 0);
   }

   AttributeHandleValueMap makeValues(int count, std::size_t size) const
   {
      std::string const value(size, 'v');
      AttributeHandleValueMap values;
      for (int i = 1; i <= count; ++i) {
         Wire const encoded = contract::integer(i);
         VariableLengthData const handle(encoded.bytes.data(), encoded.bytes.size());
         values[_ambassador->decodeAttributeHandle(handle)].setData(value.data(), value.size());
      }
      return values;
   }

   typedef contract::Wire Wire;

   Federate _federate;
   std::auto_ptr<RTIambassador> _ambassador;
   ObjectInstanceHandle _object;
   int _handle;
};

} // namespace

std::vector<Case> const& cases()
{
   static Table* const table = new Table; // stays
   return table->rows;
}

} // namespace performance
