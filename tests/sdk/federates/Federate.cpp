// One federate for every language version from C++98 on, built with hidden visibility. It joins,
// sends itself an interaction, and catches what the library throws, in the program and in a plugin.
// Ends with 0 and one line if everything was as expected.
#include "Plugin.h"

#include <iostream>
#include <memory>
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/NullFederateAmbassador.h>
#include <RTI/RTI1516.h>
#include <RTI/time/HLAinteger64Time.h>

using namespace rti1516e;

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
   Callbacks() : joined(0) {}

   virtual void reportFederationExecutions(FederationExecutionInformationVector const& executions)
   {
      joined = executions.size();
   }

   FederationExecutionInformationVector::size_type joined;
};

// Each operation lets the library throw E.
struct NeverConnected {
   typedef NotConnected E;
   static void run(RTIambassador& rti, Callbacks&)
   {
      rti.listFederationExecutions();
   }
};

struct ConnectedTwice {
   typedef AlreadyConnected E;
   // The callbacks go to the latest ambassador even if the connection fails.
   static void run(RTIambassador& rti, Callbacks& callbacks)
   {
      rti.connect(callbacks, HLA_EVOKED);
   }
};

struct JoinedToNothing {
   typedef FederationExecutionDoesNotExist E;
   static void run(RTIambassador& rti, Callbacks&)
   {
      rti.joinFederationExecution(L"type", L"no such federation");
   }
};

struct CreatedTwice {
   typedef FederationExecutionAlreadyExists E;
   static void run(RTIambassador& rti, Callbacks&)
   {
      rti.createFederationExecution(L"Language", L"empty.xml");
   }
};

struct NoSuchModule {
   typedef CouldNotOpenFDD E;
   static void run(RTIambassador& rti, Callbacks&)
   {
      rti.createFederationExecution(L"Other", L"no-such-module.xml");
   }
};

struct NoSuchName {
   typedef NameNotFound E;
   static void run(RTIambassador& rti, Callbacks&)
   {
      rti.getObjectClassHandle(L"NoSuchClass");
   }
};

struct ShortInteger {
   typedef EncoderException E;
   static void run(RTIambassador&, Callbacks&)
   {
      HLAinteger32BE().decode(VariableLengthData("ab", 2));
   }
};

struct NoSuchOrder {
   typedef InvalidOrderName E;
   static void run(RTIambassador& rti, Callbacks&)
   {
      rti.getOrderType(L"NoSuchOrder");
   }
};

template <class Operation>
bool caughtByType(RTIambassador& rti, Callbacks& callbacks)
{
   try {
      Operation::run(rti, callbacks);
   } catch (typename Operation::E const& e) {
      return !e.what().empty();
   } catch (...) {
   }
   return false;
}

template <class Operation>
bool caughtByBase(RTIambassador& rti, Callbacks& callbacks)
{
   try {
      Operation::run(rti, callbacks);
   } catch (Exception& e) {
      return dynamic_cast<typename Operation::E*>(&e) != 0;
   } catch (...) {
   }
   return false;
}

template <class Operation>
void catches(char const* name, RTIambassador& rti, Callbacks& callbacks)
{
   expect(caughtByType<Operation>(rti, callbacks), name);
   expect(caughtByBase<Operation>(rti, callbacks), name);
}

// In a function that has rti and callbacks.
#define CATCHES(operation) catches<operation>(#operation, rti, callbacks)

// What the plugin throws itself, or lets pass from the library.
void catchFromPlugin(RTIambassador& rti)
{
   bool caught = false;
   try {
      pluginThrows();
   } catch (FederateInternalError const& e) {
      caught = e.what() == L"by the plugin";
   }
   expect(caught, "thrown by the plugin");
   caught = false;
   try {
      pluginCalls(rti);
   } catch (FederateNotExecutionMember const&) {
      caught = true;
   }
   expect(caught, "passed through the plugin");
   expect(pluginCatches(rti), "caught in the plugin");
}

void takePart(RTIambassador& rti, Callbacks& callbacks)
{
   CATCHES(ShortInteger);
   CATCHES(NeverConnected);
   rti.connect(callbacks, HLA_EVOKED);
   CATCHES(ConnectedTwice);
   CATCHES(JoinedToNothing);
   CATCHES(NoSuchModule);
   catchFromPlugin(rti);
   rti.createFederationExecution(L"Language", L"empty.xml", L"HLAinteger64Time");
   CATCHES(CreatedTwice);
   FederateHandle const handle = rti.joinFederationExecution(L"Trier", L"Language");
   expect(handle.isValid(), "handle");
   CATCHES(NoSuchName);
   CATCHES(NoSuchOrder);
   rti.listFederationExecutions();
   rti.evokeMultipleCallbacks(0.0, 1.0);
   expect(callbacks.joined == 1, "callback");
   HLAinteger64Time time(-1);
   rti.queryLogicalTime(time);
   expect(time.getTime() == 0, "time");
   rti.resignFederationExecution(NO_ACTION);
   rti.destroyFederationExecution(L"Language");
   rti.disconnect();
}

} // namespace

int main()
{
   try {
#if __cplusplus >= 201103L
      std::unique_ptr<RTIambassador> rti(RTIambassadorFactory().createRTIambassador().release());
#else
      std::auto_ptr<RTIambassador> rti(RTIambassadorFactory().createRTIambassador());
#endif
      Callbacks callbacks;
      takePart(*rti, callbacks);
   } catch (Exception const& e) {
      std::wcout << L"FAULT: " << e.what() << std::endl;
      return 1;
   }
   std::cout << "language version " << __cplusplus << ", " << faults << " faults" << std::endl;
   return faults == 0 ? 0 : 1;
}
