// One federate for every language version from C++98 on, built with hidden visibility: what
// federates write in the older and in the newer ways. It joins, sends an interaction, and
// catches what the library throws, in the program and in a plugin (PLUGIN is defined for that).
// Ends with one line that tells the number of faults.
#include "AllHeaders.h"

#include <iostream>
#include <limits>
#include <memory>

using namespace rti1516e;

#define EXPORTED __attribute__((visibility("default")))

// Throws an exception of the interface that is the plugin's own; and lets one of the library's
// through that it has caught, or not, by its class and by its base.
EXPORTED void pluginThrows();
EXPORTED void pluginCalls(RTIambassador& rti);

#ifdef PLUGIN

void pluginThrows()
{
   throw FederateInternalError(L"by the plugin");
}

void pluginCalls(RTIambassador& rti)
{
   try {
      rti.resignFederationExecution(NO_ACTION);
   } catch (Exception const& e) {
      if (dynamic_cast<FederateNotExecutionMember const*>(&e) == NULL) {
         return;
      }
   }
   try {
      rti.resignFederationExecution(NO_ACTION);
   } catch (FederateNotExecutionMember const&) {
      throw;
   } catch (...) {
   }
}

#else

#if __cplusplus >= 201703L
#define LIST(list)
#else
#define LIST(list) throw list
#endif
#if __cplusplus >= 201103L
#define OVERRIDE override
#else
#define OVERRIDE
#endif

// ---- Classes of a federate's own, declared only: overrides that repeat the lists of their bases

class Between : public RTIambassador { // remains abstract
public:
   void connect(FederateAmbassador&, CallbackModel, std::wstring const&)
         LIST((ConnectionFailed, InvalidLocalSettingsDesignator, UnsupportedCallbackModel,
               AlreadyConnected, CallNotAllowedFromWithinCallback, RTIinternalError)) OVERRIDE;
   std::auto_ptr<LogicalTimeFactory> getTimeFactory() const
         LIST((FederateNotExecutionMember, NotConnected, RTIinternalError)) OVERRIDE;
};

class Interval : public LogicalTimeInterval {
public:
   LogicalTimeInterval& operator=(LogicalTimeInterval const&)
         LIST((InvalidLogicalTimeInterval)) OVERRIDE;
   LogicalTimeInterval& operator+=(LogicalTimeInterval const&)
         LIST((IllegalTimeArithmetic, InvalidLogicalTimeInterval)) OVERRIDE;
   void setToDifference(LogicalTime const&, LogicalTime const&)
         LIST((IllegalTimeArithmetic, InvalidLogicalTime)) OVERRIDE;
   size_t encode(void*, size_t) const LIST((CouldNotEncode)) OVERRIDE;
};

class Time : public LogicalTime {
public:
   LogicalTime& operator=(LogicalTime const&) LIST((InvalidLogicalTime)) OVERRIDE;
   bool operator<(LogicalTime const&) const LIST((InvalidLogicalTime)) OVERRIDE;
   void decode(VariableLengthData const&) LIST((InternalError, CouldNotDecode)) OVERRIDE;
   void decode(void*, size_t) LIST((InternalError, CouldNotDecode)) OVERRIDE;
};

class Later : public HLAinteger64Time {};

class Factory : public LogicalTimeFactory {
public:
   std::auto_ptr<LogicalTime> makeInitial() LIST((InternalError)) OVERRIDE;
   std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(VariableLengthData const&)
         LIST((InternalError, CouldNotDecode)) OVERRIDE;
};

class Element : public DataElement {
public:
   std::auto_ptr<DataElement> clone() const OVERRIDE;
   void encodeInto(std::vector<Octet>&) const LIST((EncoderException)) OVERRIDE;
   size_t decodeFrom(std::vector<Octet> const&, size_t) LIST((EncoderException)) OVERRIDE;
};

namespace {

int faults = 0;

void expect(bool holds, char const* what)
{
   if (!holds) {
      std::cout << "FAULT: " << what << std::endl;
      ++faults;
   }
}

class Callbacks : public NullFederateAmbassador {
public:
   Callbacks() : federations(0), received(0) {}
   virtual ~Callbacks() RTI_NOEXCEPT {}

   void reportFederationExecutions(FederationExecutionInformationVector const& executions)
         LIST((FederateInternalError)) OVERRIDE
   {
      federations = executions.size();
   }

   void receiveInteraction(InteractionClassHandle, ParameterHandleValueMap const& values,
         VariableLengthData const& tag, OrderType, TransportationType, SupplementalReceiveInfo info)
         LIST((FederateInternalError)) OVERRIDE
   {
      if (tag.size() != 3 || info.hasSentRegions) {
         throw FederateInternalError(L"another message");
      }
      HLAinteger32BE value;
      value.decode(values.begin()->second);
      received = value;
   }

   std::size_t federations;
   int received;
};

template <class E, class Operation>
void expectThrown(char const* what, Operation operation, RTIambassador& rti)
{
   int caught = 0;
   try {
      operation(rti);
   } catch (E const& e) {
      caught += !e.what().empty();
   } catch (...) {
   }
   try {
      operation(rti);
   } catch (Exception& e) {
      caught += dynamic_cast<E*>(&e) != NULL;
   } catch (...) {
   }
   expect(caught == 2, what);
}

void list(RTIambassador& rti)
{
   rti.listFederationExecutions();
}

void createAgain(RTIambassador& rti)
{
   rti.createFederationExecution(L"Language", std::vector<std::wstring>());
}

void decodeTooLittle(RTIambassador&)
{
   HLAinteger32BE().decode(VariableLengthData("ab", 2));
}

void callPlugin(RTIambassador&)
{
   pluginThrows();
}

void exchange(RTIambassador& rti, Callbacks& callbacks)
{
   InteractionClassHandle const message = rti.getInteractionClassHandle(L"Signal");
   ParameterHandle const text = rti.getParameterHandle(message, L"Text");
   rti.publishInteractionClass(message);
   rti.subscribeInteractionClass(message);
#if __cplusplus >= 201103L
   VariableLengthData const value = HLAinteger32BE(42).encode();
   rti.sendInteraction(message, {{text, value}}, {"tag", 3});
   AttributeHandleSet const attributes = {AttributeHandle(), {}};
   expect(attributes.size() == 1 && VariableLengthData{}.size() == 0, "braces");
   double const atMost = std::numeric_limits<double>::infinity();
   rti.evokeMultipleCallbacks(0.0, atMost);
#else
   ParameterHandleValueMap values;
   values[text] = HLAinteger32BE(42).encode();
   rti.sendInteraction(message, values, VariableLengthData("tag", 3));
   expect(VariableLengthData(NULL, 0).size() == 0, "no data");
   rti.evokeMultipleCallbacks(0.0, 1.0);
#endif
   expect(callbacks.received == 0, "a federate hears nothing of its own");
}

void takePart(RTIambassador& rti, Callbacks& callbacks, wchar_t const* model)
{
   expectThrown<EncoderException>("of an element", decodeTooLittle, rti);
   expectThrown<NotConnected>("of a service", list, rti);
   expectThrown<FederateInternalError>("of a plugin", callPlugin, rti);
   rti.connect(callbacks, HLA_EVOKED);
   expectThrown<FederateNotExecutionMember>("through a plugin", pluginCalls, rti);
#if __cplusplus >= 201103L
   std::vector<std::wstring> const models{model};
   rti.createFederationExecution(L"Language", models, HLAinteger64TimeName);
#else
   std::vector<std::wstring> const models(1, model);
   rti.createFederationExecution(L"Language", models, L"HLAinteger64Time");
#endif
   expectThrown<FederationExecutionAlreadyExists>("of another service", createAgain, rti);
   FederateHandle const handle = rti.joinFederationExecution(L"Trier", L"Language");
   expect(handle.isValid() && rti.decodeFederateHandle(handle.encode()) == handle, "handle");
   exchange(rti, callbacks);
   rti.listFederationExecutions();
   rti.evokeMultipleCallbacks(0.0, 1.0);
   expect(callbacks.federations == 1, "callback");
   HLAinteger64Time time(-1);
   rti.queryLogicalTime(time);
   expect((time += HLAinteger64Interval(1)) == HLAinteger64Time(1), "time");
   expect(Later() == Later(), "a federate's time over a standard one");
   std::auto_ptr<LogicalTimeFactory> const factory(rti.getTimeFactory());
   expect(factory->getName() == HLAinteger64TimeName, "factory");
   rti.resignFederationExecution(NO_ACTION);
   rti.destroyFederationExecution(L"Language");
   rti.disconnect();
}

} // namespace

int main(int, char** arguments)
{
   std::string const model(arguments[1]);
   try {
#if __cplusplus >= 201103L
      std::unique_ptr<RTIambassador> rti = RTIambassadorFactory().createRTIambassador();
#else
      std::auto_ptr<RTIambassador> rti(RTIambassadorFactory().createRTIambassador());
#endif
      Callbacks callbacks;
      takePart(*rti, callbacks, std::wstring(model.begin(), model.end()).c_str());
   } catch (Exception const& e) {
      std::wcout << L"FAULT: " << e.what() << std::endl;
      return 1;
   }
   expect(std::string(HLA_SPECIFICATION_NAME) == "1516" && HLA_API_MAJOR_VERSION == 2, "API");
   std::cout << "language version " << __cplusplus << ", " << faults << " faults" << std::endl;
}

#endif
