// The library's own way into the handles: from the RTI's integers and encoded forms, and back.
#ifndef api_HandleFriends_h
#define api_HandleFriends_h

#include <RTI/Handle.h>

namespace rti1516e {

// The two makers differ for integers below 0: the one from an int extends the sign into the word,
// the one from the encoded form extends by zeros. The implementation that getImplementation gives
// is the word itself, not an address.
#define DECLARE_HANDLE_FRIEND(A)                                                                   \
   class A##Friend {                                                                               \
   public:                                                                                         \
      static A makeHandle(A##Implementation* implementation)                                       \
      {                                                                                            \
         return A(implementation);                                                                 \
      }                                                                                            \
                                                                                                   \
      static A makeHandle(VariableLengthData const& encodedValue)                                  \
      {                                                                                            \
         return A(encodedValue);                                                                   \
      }                                                                                            \
                                                                                                   \
      static A##Implementation const* getImplementation(A const& handle)                           \
      {                                                                                            \
         return handle.getImplementation();                                                        \
      }                                                                                            \
   };                                                                                              \
                                                                                                   \
   inline A make##A(int value)                                                                     \
   {                                                                                               \
      return A##Friend::makeHandle(                                                                \
            reinterpret_cast<A##Implementation*>(static_cast<long>(value)));                       \
   }                                                                                               \
                                                                                                   \
   inline A make##A(VariableLengthData const& encodedValue)                                        \
   {                                                                                               \
      return A##Friend::makeHandle(encodedValue);                                                  \
   }                                                                                               \
                                                                                                   \
   /* The integer that Java knows the handle by. */                                                \
   inline int handleValue(A const& handle)                                                         \
   {                                                                                               \
      return static_cast<int>(reinterpret_cast<long>(A##Friend::getImplementation(handle)));       \
   }

RTI_FOR_EACH_HANDLE(DECLARE_HANDLE_FRIEND)

#undef DECLARE_HANDLE_FRIEND

class MessageRetractionHandleImplementation {
public:
   // The record of all handles that name nothing. Never written to.
   static MessageRetractionHandleImplementation* none();

   MessageRetractionHandleImplementation() : id(0) {}
   MessageRetractionHandleImplementation(int inId, VariableLengthData inPayload)
         : id(inId),
           payload(inPayload)
   {
   }

   // A record with a copy of the payload, for one handle alone; none() if there is nothing to hold.
   static MessageRetractionHandleImplementation* make(
         int id, void const* payload, unsigned long payloadSize);

   // Frees the record unless it is none().
   void destroy();

   int id;
   VariableLengthData payload;
};

class MessageRetractionHandleFriend {
public:
   static MessageRetractionHandle makeHandle(VariableLengthData const& encodedValue);

   // Takes an encoded form of unknown length. Of the four bytes of its size field the last three
   // count as signed, so that a payload of 128 to 255 bytes, for one, is taken for one that no
   // memory holds: std::bad_alloc.
   static MessageRetractionHandle makeHandle(char* encodedValue);
};

MessageRetractionHandle makeMessageRetractionHandle(VariableLengthData const& encodedValue);

} // namespace rti1516e

#endif
