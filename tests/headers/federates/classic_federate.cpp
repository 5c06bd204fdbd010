// A federate in the manner of C++98: std::auto_ptr, exception lists on its overrides, default
// arguments left out, wide literals where names are wanted.
// compile: 98 11 14 -Wno-deprecated -Wno-deprecated-declarations
#include <cstring>
#include <iostream>
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/RTI1516.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>

using namespace rti1516e;

#ifndef __clang__
#pragma GCC diagnostic ignored "-Wcatch-value"
#endif

namespace {

class Listener : public NullFederateAmbassador {
public:
   Listener() throw(FederateInternalError) : granted(0), released(false) {}
   virtual ~Listener() throw() {}

   virtual void timeAdvanceGrant(LogicalTime const& theTime) throw(FederateInternalError)
   {
      granted = dynamic_cast<HLAinteger64Time const&>(theTime).getTime();
   }

   virtual void reflectAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues, VariableLengthData const& theTag,
         OrderType, TransportationType, LogicalTime const& theTime, OrderType,
         MessageRetractionHandle, SupplementalReflectInfo theInfo) throw(FederateInternalError)
   {
      std::wcout << theObject << L" at " << theTime << L'\n';
      AttributeHandleValueMap::const_iterator const first = theAttributeValues.begin();
      if (first == theAttributeValues.end() || theTag.size() != 0) {
         throw FederateInternalError(L"nothing to reflect");
      }
      HLAinteger32BE value;
      value.decode(first->second);
      released = theInfo.hasProducingFederate && theInfo.producingFederate.isValid() && value == 3;
   }

   virtual void confirmAttributeTransportationTypeChange(
         ObjectInstanceHandle, AttributeHandleSet, TransportationType) throw(FederateInternalError)
   {
   }

   Integer64 granted;
   bool released;
};

VariableLengthData encodedPair()
{
   HLAfixedRecord record;
   record.appendElement(HLAinteger32BE(1));
   record.appendElement(HLAunicodeString(L"one"));
   HLAinteger32BE const& number = dynamic_cast<HLAinteger32BE const&>(record.get(0));
   return number.get() == 1 ? record.encode() : VariableLengthData(NULL, 0);
}

void advance(RTIambassador& ambassador, Listener& listener)
{
   HLAinteger64Time time(5);
   time += HLAinteger64Interval(1);
   ambassador.enableTimeRegulation(HLAinteger64Interval(1));
   ambassador.timeAdvanceRequest(time);
   while (listener.granted < time) {
      ambassador.evokeMultipleCallbacks(0.1, 1.0);
   }
   HLAinteger64Interval lookahead;
   ambassador.queryLookahead(lookahead);
   bool const limited = ambassador.queryGALT(time) && ambassador.queryLITS(time);
   ambassador.queryLogicalTime(time);
   std::auto_ptr<LogicalTimeFactory> const factory(ambassador.getTimeFactory());
   std::wcout << limited << factory->getName() << time << L'\n';
}

void exchange(RTIambassador& ambassador)
{
   ObjectClassHandle const shape = ambassador.getObjectClassHandle(L"HLAobjectRoot.Shape");
   AttributeHandleSet attributes;
   attributes.insert(ambassador.getAttributeHandle(shape, L"size"));
   ambassador.publishObjectClassAttributes(shape, attributes);
   ambassador.subscribeObjectClassAttributes(shape, attributes);
   ambassador.subscribeObjectClassAttributes(shape, attributes, false, L"High");
   InteractionClassHandle const bang = ambassador.getInteractionClassHandle(L"Bang");
   ambassador.subscribeInteractionClass(bang);
   ambassador.subscribeInteractionClassWithRegions(bang, RegionHandleSet());

   ObjectInstanceHandle const object = ambassador.registerObjectInstance(shape, L"square");
   AttributeHandleValueMap values;
   values[*attributes.begin()] = encodedPair();
   MessageRetractionHandle const sent = ambassador.updateAttributeValues(
         object, values, VariableLengthData("tag", 3), HLAinteger64Time(7));
   ambassador.retract(sent);
   ambassador.requestAttributeValueUpdate(object, attributes, VariableLengthData());
   ambassador.requestAttributeValueUpdate(shape, attributes, VariableLengthData());

   AttributeHandleSetRegionHandleSetPairVector pairs;
   pairs.push_back(AttributeHandleSetRegionHandleSetPair(attributes, RegionHandleSet()));
   ambassador.subscribeObjectClassAttributesWithRegions(shape, pairs);
   AttributeHandleSet divested;
   ambassador.attributeOwnershipDivestitureIfWanted(object, attributes, divested);
   RegionHandle const region = ambassador.createRegion(DimensionHandleSet());
   ambassador.deleteRegion(region);
   VariableLengthData const encoded = object.encode();
   if (ambassador.decodeObjectInstanceHandle(encoded) != object) {
      throw RTIinternalError(L"another object");
   }
}

} // namespace

int run()
{
   try {
      RTIambassadorFactory factory;
      std::auto_ptr<RTIambassador> const ambassador(factory.createRTIambassador());
      Listener listener;
      ambassador->connect(listener, HLA_EVOKED);
      ambassador->connect(listener, HLA_IMMEDIATE, L"settings");
      try {
         ambassador->createFederationExecution(L"federation", L"module.xml");
      } catch (FederationExecutionAlreadyExists const&) {
         std::vector<std::wstring> const modules(2, L"module.xml");
         ambassador->createFederationExecution(L"federation", modules);
         ambassador->createFederationExecution(L"federation", modules, L"HLAinteger64Time");
         ambassador->createFederationExecutionWithMIM(L"federation", modules, L"mim.xml");
      }
      FederateHandle const self = ambassador->joinFederationExecution(L"type", L"federation");
      ambassador->joinFederationExecution(L"name", L"type", L"federation");
      ambassador->registerFederationSynchronizationPoint(L"start", VariableLengthData());
      ambassador->synchronizationPointAchieved(L"start");
      exchange(*ambassador);
      advance(*ambassador, listener);
      ambassador->resignFederationExecution(NO_ACTION);
      ambassador->destroyFederationExecution(L"federation");
      ambassador->disconnect();
      std::wcout << self << rtiName() << rtiVersion() << std::strlen(HLA_SPECIFICATION_NAME);
      return HLA_API_MAJOR_VERSION + HLA_API_MINOR_VERSION;
   } catch (NotConnected e) {
      std::wcerr << e.what();
   } catch (Exception& e) {
      std::wcerr << e.what();
   }
   return 1;
}
