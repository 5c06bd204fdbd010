// The handle classes: bytes and text of the words, and the retraction handle with its record.
#include "api/HandleFriends.h"

#include <cstring>
#include <memory>
#include <ostream>
#include <sstream>

namespace rti1516e {

namespace {

void storeInteger(unsigned long value, char* bytes)
{
   for (int i = 0; i != 4; ++i) {
      bytes[i] = static_cast<char>(value >> (24 - 8 * i));
   }
}

unsigned int loadInteger(void const* bytes)
{
   unsigned char const* const octets = static_cast<unsigned char const*>(bytes);
   unsigned int value = 0;
   for (int i = 0; i != 4; ++i) {
      value = value << 8 | octets[i];
   }
   return value;
}

VariableLengthData encodeWord(unsigned long word)
{
   char bytes[4];
   storeInteger(word, bytes);
   return VariableLengthData(bytes, 4);
}

unsigned long encodeWord(unsigned long word, void* buffer, unsigned long bufferSize)
{
   if (bufferSize < 4) {
      throw new CouldNotEncode(L"Buffer needs to be at least 4 bytes!");
   }
   storeInteger(word, static_cast<char*>(buffer));
   return 4;
}

// What a handle prints in front of its value.
template <class Handle>
wchar_t const* printedName()
{
   return L"HandleKind";
}

template <>
wchar_t const* printedName<FederateHandle>()
{
   return L"FederateHandle";
}

template <class Integer>
std::wstring print(wchar_t const* name, Integer value)
{
   std::wstringstream stream;
   stream << name << L"<" << value << L">";
   return stream.str();
}

} // namespace

#define DEFINE_HANDLE(A)                                                                           \
   A::A(VariableLengthData const& encodedValue)                                                    \
         : _value(reinterpret_cast<A##Implementation*>(                                            \
               static_cast<unsigned long>(loadInteger(encodedValue.data()))))                      \
   {                                                                                               \
   }                                                                                               \
                                                                                                   \
   VariableLengthData A::encode() const                                                            \
   {                                                                                               \
      return encodeWord(word());                                                                   \
   }                                                                                               \
                                                                                                   \
   unsigned long A::encode(void* buffer, unsigned long bufferSize)                                 \
         const RTI_THROW((CouldNotEncode))                                                         \
   {                                                                                               \
      return encodeWord(word(), buffer, bufferSize);                                               \
   }                                                                                               \
                                                                                                   \
   std::wstring A::toString() const                                                                \
   {                                                                                               \
      return print(printedName<A>(), static_cast<long>(word()));                                   \
   }                                                                                               \
                                                                                                   \
   std::wostream& operator<<(std::wostream& stream, A const& handle)                               \
   {                                                                                               \
      return stream << handle.toString();                                                          \
   }

RTI_FOR_EACH_HANDLE(DEFINE_HANDLE)

MessageRetractionHandleImplementation* MessageRetractionHandleImplementation::none()
{
   // Never deleted: static objects of a federate may use it while the process ends.
   static MessageRetractionHandleImplementation* const none =
         new MessageRetractionHandleImplementation;
   return none;
}

MessageRetractionHandleImplementation* MessageRetractionHandleImplementation::make(
      int id, void const* payload, unsigned long payloadSize)
{
   if (id == 0 && payloadSize == 0) {
      return none();
   }
   std::unique_ptr<MessageRetractionHandleImplementation> record(
         new MessageRetractionHandleImplementation);
   record->id = id;
   record->payload.setData(payload, payloadSize);
   return record.release();
}

void MessageRetractionHandleImplementation::destroy()
{
   if (this != none()) {
      delete this;
   }
}

namespace {

// The record of another handle.
MessageRetractionHandleImplementation* copyOf(MessageRetractionHandleImplementation const& record)
{
   return MessageRetractionHandleImplementation::make(
         record.id, record.payload.data(), record.payload.size());
}

} // namespace

MessageRetractionHandle::MessageRetractionHandle()
      : _implementation(MessageRetractionHandleImplementation::none())
{
}

MessageRetractionHandle::MessageRetractionHandle(MessageRetractionHandle const& rhs)
      : _implementation(copyOf(*rhs._implementation))
{
}

MessageRetractionHandle::MessageRetractionHandle(
      MessageRetractionHandleImplementation* implementation)
      : _implementation(implementation)
{
}

MessageRetractionHandle::MessageRetractionHandle(VariableLengthData const& encodedValue)
      : _implementation(nullptr)
{
   char const* const bytes = static_cast<char const*>(encodedValue.data());
   _implementation = MessageRetractionHandleImplementation::make(
         static_cast<int>(loadInteger(bytes)), bytes + 8, loadInteger(bytes + 4));
}

MessageRetractionHandle::~MessageRetractionHandle()
{
   _implementation->destroy();
}

MessageRetractionHandle& MessageRetractionHandle::operator=(MessageRetractionHandle const& rhs)
{
   _implementation->destroy();
   _implementation = MessageRetractionHandleImplementation::none(); // if there is no memory
   _implementation = copyOf(*rhs._implementation);
   return *this;
}

bool MessageRetractionHandle::isValid() const
{
   return _implementation->id != 0;
}

bool MessageRetractionHandle::operator==(MessageRetractionHandle const& rhs) const
{
   return _implementation->id == rhs._implementation->id;
}

bool MessageRetractionHandle::operator!=(MessageRetractionHandle const& rhs) const
{
   return !(*this == rhs);
}

bool MessageRetractionHandle::operator<(MessageRetractionHandle const& rhs) const
{
   return _implementation->id < rhs._implementation->id;
}

long MessageRetractionHandle::hash() const
{
   return static_cast<long>(_implementation->id) * 37;
}

VariableLengthData MessageRetractionHandle::encode() const
{
   unsigned long const length = encodedLength();
   std::unique_ptr<char[]> bytes(new char[length]);
   encode(bytes.get(), length);
   VariableLengthData data;
   data.takeDataPointer(bytes.get(), length);
   static_cast<void>(bytes.release()); // the block's
   return data;
}

unsigned long MessageRetractionHandle::encode(void* buffer, unsigned long bufferSize) const
      RTI_THROW((CouldNotEncode))
{
   if (bufferSize < encodedLength()) {
      throw new CouldNotEncode(L"Buffer needs to be atleast 4 bytes!");
   }
   VariableLengthData const& payload = _implementation->payload;
   char* const bytes = static_cast<char*>(buffer);
   storeInteger(static_cast<unsigned long>(_implementation->id), bytes);
   storeInteger(payload.size(), bytes + 4);
   if (payload.size() != 0) {
      std::memcpy(bytes + 8, payload.data(), payload.size());
   }
   return encodedLength();
}

unsigned long MessageRetractionHandle::encodedLength() const
{
   return 8 + _implementation->payload.size();
}

std::wstring MessageRetractionHandle::toString() const
{
   return print(L"MessageRetractionHandle", static_cast<unsigned int>(_implementation->id));
}

MessageRetractionHandleImplementation const* MessageRetractionHandle::getImplementation() const
{
   return _implementation;
}

MessageRetractionHandleImplementation* MessageRetractionHandle::getImplementation()
{
   return _implementation;
}

std::wostream& operator<<(std::wostream& stream, MessageRetractionHandle const& handle)
{
   return stream << handle.toString();
}

MessageRetractionHandle MessageRetractionHandleFriend::makeHandle(
      VariableLengthData const& encodedValue)
{
   return MessageRetractionHandle(encodedValue);
}

MessageRetractionHandle MessageRetractionHandleFriend::makeHandle(char* encodedValue)
{
   signed char const* const size = reinterpret_cast<signed char const*>(encodedValue) + 4;
   long const payloadSize = static_cast<unsigned char>(size[0]) * 0x1000000L | size[1] * 0x10000L
         | size[2] * 0x100L | size[3];
   if (payloadSize < 0) {
      throw std::bad_alloc();
   }
   return MessageRetractionHandle(
         MessageRetractionHandleImplementation::make(static_cast<int>(loadInteger(encodedValue)),
               encodedValue + 8, static_cast<unsigned long>(payloadSize)));
}

MessageRetractionHandle makeMessageRetractionHandle(VariableLengthData const& encodedValue)
{
   return MessageRetractionHandleFriend::makeHandle(encodedValue);
}

} // namespace rti1516e
