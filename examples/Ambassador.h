// An ambassador that leaves in good order on every way out, an exception's too: it resigns,
// disconnects, and only then is destroyed.
#ifndef examples_Ambassador_h
#define examples_Ambassador_h

#include <RTI/RTI1516.h>

#include <atomic>
#include <memory>
#include <string>

// An ambassador that is destroyed while its federate is a member lets callbacks meet freed memory.
// Make this the last member of the class that takes the callbacks: then it is the first to be
// destroyed, and until then callbacks find the federate whole.
class Ambassador {
public:
   Ambassador()
   {
      rti1516e::RTIambassadorFactory factory;
      _rti.reset(factory.createRTIambassador().release());
   }

   ~Ambassador()
   {
      if (_hasLeft) {
         return;
      }
      try {
         _rti->resignFederationExecution(rti1516e::CANCEL_THEN_DELETE_THEN_DIVEST);
      } catch (rti1516e::Exception const&) {
         // It was no member.
      }
      try {
         _rti->disconnect();
      } catch (rti1516e::Exception const&) {
         // It was not connected.
      }
   }

   Ambassador(Ambassador const&) = delete;
   Ambassador& operator=(Ambassador const&) = delete;

   // Each use is a service called.
   rti1516e::RTIambassador* operator->()
   {
      ++_calls;
      return _rti.get();
   }

   // Tells whether the federate was the last one, so that the federation execution is no more.
   bool leave(std::wstring const& federation)
   {
      Ambassador& self = *this;
      self->resignFederationExecution(rti1516e::CANCEL_THEN_DELETE_THEN_DIVEST);
      bool isLast = true;
      try {
         self->destroyFederationExecution(federation);
      } catch (rti1516e::FederatesCurrentlyJoined const&) {
         isLast = false;
      }
      self->disconnect();
      _hasLeft = true;
      return isLast;
   }

   int calls() const
   {
      return _calls;
   }

private:
   std::unique_ptr<rti1516e::RTIambassador> _rti;
   std::atomic<int> _calls{0}; // callbacks call services too
   bool _hasLeft = false;
};

#endif
