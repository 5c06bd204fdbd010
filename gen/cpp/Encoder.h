// Arguments on their way to Java: one wrapper per argument, which tells its size and writes itself;
// and what comes back as the result of a Java method.
//
// Wire form, by the code that stands for the type in Java names (n: a count, 4 bytes; every integer
// 4 bytes, most significant first; handles 4 bytes):
//
//    Z, CM, OT, TTH, RA, SG, FA   an integer
//    D                            8 bytes, the IEEE 754 bits, high half first
//    S, URL                       n, then n characters of 2 bytes; declares 4 n for them, so that
//                                 the array ends in as many unused bytes as characters were sent
//    URLX, set of S               n, then n times S
//    BX                           n, then n bytes
//    AHS and its like             n, then n handles, ascending
//    AHVM, PHVM                   n, then n times handle and BX, ascending
//    ASRSPL                       n, then n times AHS and RHS
//    RB                           lower and upper bound, 8 bytes each
//    LT, LTI                      the bytes of the value's encode(), with no length
//    MRH                          the handle's id, then BX
#ifndef gen_Encoder_h
#define gen_Encoder_h

#include "api/HandleFriends.h"
#include "api/VariableLengthDataImplementation.h"
#include "gen/cpp/ByteWrapper.h"
#include "gen/cpp/MapWalk.h"
#include <RTI/Enums.h>
#include <RTI/Handle.h>
#include <RTI/LogicalTime.h>
#include <RTI/LogicalTimeInterval.h>
#include <RTI/RangeBounds.h>
#include <RTI/time/HLAfloat64Interval.h>
#include <RTI/time/HLAfloat64Time.h>
#include <RTI/time/HLAinteger64Interval.h>
#include <RTI/time/HLAinteger64Time.h>
#include <RTI/Typedefs.h>
#include <RTI/VariableLengthData.h>

#include <cstdint>
#include <jni.h>
#include <memory>
#include <set>
#include <string>
#include <typeinfo>
#include <vector>

namespace tarn1516e {

// Wire codes of the enumerations. A value without a code fails an assertion.
int encodeOrderType(rti1516e::OrderType const& type);
int encodeTransportationType(rti1516e::TransportationType const& type);
int encodeResignAction(rti1516e::ResignAction action);
int encodeServiceGroup(rti1516e::ServiceGroup const& group);

class noncopyable {
protected:
   noncopyable() {}

private:
   noncopyable(noncopyable const&) = delete;
   noncopyable& operator=(noncopyable const&) = delete;
};

template <class T>
class CppWrapper;

template <>
class CppWrapper<int> : noncopyable {
public:
   CppWrapper(JNIEnv*, int value) : _value(value) {}

   unsigned long getEncodedSize() const
   {
      return 4;
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putInt(_value);
   }

private:
   int _value;
};

template <>
class CppWrapper<bool> : noncopyable {
public:
   CppWrapper(JNIEnv*, bool value) : _value(value) {}

   unsigned long getEncodedSize() const
   {
      return 4;
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putInt(_value);
   }

private:
   bool _value;
};

// An enumeration, translated to its wire code while it is written.
template <class Enumeration, int (*encodeEnumeration)(Enumeration const&)>
class EnumerationWrapper : noncopyable {
public:
   unsigned long getEncodedSize() const
   {
      return 4;
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putInt(encodeEnumeration(_value));
   }

protected:
   explicit EnumerationWrapper(Enumeration value) : _value(value) {}

private:
   Enumeration _value;
};

template <>
class CppWrapper<rti1516e::OrderType>
      : public EnumerationWrapper<rti1516e::OrderType, encodeOrderType> {
public:
   CppWrapper(JNIEnv*, rti1516e::OrderType value) : EnumerationWrapper(value) {}
};

template <>
class CppWrapper<rti1516e::TransportationType>
      : public EnumerationWrapper<rti1516e::TransportationType, encodeTransportationType> {
public:
   CppWrapper(JNIEnv*, rti1516e::TransportationType value) : EnumerationWrapper(value) {}
};

template <>
class CppWrapper<rti1516e::ServiceGroup>
      : public EnumerationWrapper<rti1516e::ServiceGroup, encodeServiceGroup> {
public:
   CppWrapper(JNIEnv*, rti1516e::ServiceGroup value) : EnumerationWrapper(value) {}
};

// Translated at once, so that a wrong value fails before the array exists.
template <>
class CppWrapper<rti1516e::ResignAction> : public CppWrapper<int> {
public:
   CppWrapper(JNIEnv* env, rti1516e::ResignAction value)
         : CppWrapper<int>(env, encodeResignAction(value))
   {
   }
};

template <>
class CppWrapper<double> : noncopyable {
public:
   CppWrapper(JNIEnv*, double value) : _value(value) {}

   unsigned long getEncodedSize() const
   {
      return 8;
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      std::uint64_t bits;
      std::memcpy(&bits, &_value, sizeof bits);
      buffer.putLong(bits);
   }

private:
   double _value;
};

template <>
class CppWrapper<std::wstring const&> : noncopyable {
public:
   CppWrapper(JNIEnv*, std::wstring const& value) : _value(value) {}

   unsigned long getEncodedSize() const
   {
      return 4 + 4 * _value.size();
   }

   // Bits above the low 16 of a character are dropped.
   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putInt(static_cast<int>(_value.size()));
      char* bytes = buffer.reserve(2 * _value.size());
      for (wchar_t const character : _value) {
         *bytes++ = static_cast<char>(character >> 8);
         *bytes++ = static_cast<char>(character);
      }
   }

private:
   std::wstring const& _value;
};

// A vector or a set of strings.
template <class Strings>
class StringsWrapper : noncopyable {
public:
   StringsWrapper(JNIEnv* env, Strings const& value) : _env(env), _value(value) {}

   unsigned long getEncodedSize() const
   {
      unsigned long size = 4;
      for (std::wstring const& string : _value) {
         size += CppWrapper<std::wstring const&>(_env, string).getEncodedSize();
      }
      return size;
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putInt(static_cast<int>(_value.size()));
      for (std::wstring const& string : _value) {
         CppWrapper<std::wstring const&>(_env, string).encode(buffer);
      }
   }

private:
   JNIEnv* _env;
   Strings const& _value;
};

template <>
class CppWrapper<std::vector<std::wstring> const&>
      : public StringsWrapper<std::vector<std::wstring>> {
   using StringsWrapper::StringsWrapper;
};

template <>
class CppWrapper<std::set<std::wstring> const&> : public StringsWrapper<std::set<std::wstring>> {
   using StringsWrapper::StringsWrapper;
};

inline unsigned long sizeOf(rti1516e::VariableLengthData const& data)
{
   return rti1516e::VariableLengthDataFriend::getImplementation(data).size;
}

inline void putBytes(rti1516e::ByteWrapper& buffer, rti1516e::VariableLengthData const& data)
{
   rti1516e::VariableLengthDataImplementation const& record =
         rti1516e::VariableLengthDataFriend::getImplementation(data);
   buffer.putInt(static_cast<int>(record.size));
   buffer.put(record.data, record.size);
}

template <>
class CppWrapper<rti1516e::VariableLengthData const&> : noncopyable {
public:
   CppWrapper(JNIEnv*, rti1516e::VariableLengthData const& value) : _value(value) {}

   unsigned long getEncodedSize() const
   {
      return 4 + sizeOf(_value);
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      putBytes(buffer, _value);
   }

private:
   rti1516e::VariableLengthData const& _value;
};

template <class T>
class HandleWrapperMixin : noncopyable {
public:
   unsigned long getEncodedSize() const
   {
      return 4;
   }

protected:
   explicit HandleWrapperMixin(T const& handle) : _handle(handle) {}

   T _handle;
};

// Any other type is one of the eight handles that are an integer.
template <class T>
class CppWrapper : public HandleWrapperMixin<T> {
public:
   CppWrapper(JNIEnv*, T const& handle) : HandleWrapperMixin<T>(handle) {}

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putInt(handleValue(this->_handle));
   }
};

template <class Handle>
class CppWrapper<std::set<Handle> const&> : noncopyable {
public:
   CppWrapper(JNIEnv*, std::set<Handle> const& value) : _value(value) {}

   unsigned long getEncodedSize() const
   {
      return 4 + 4 * _value.size();
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putInt(static_cast<int>(_value.size()));
      for (Handle const& handle : _value) {
         buffer.putInt(handleValue(handle));
      }
   }

private:
   std::set<Handle> const& _value;
};

// The way through a tree costs more than the writing of what is found, so it is gone once: while
// the sizes are summed, what is to be written is noted, as much as there is room for.
template <class Handle>
class CppWrapper<std::map<Handle, rti1516e::VariableLengthData> const&> : noncopyable {
public:
   typedef std::map<Handle, rti1516e::VariableLengthData> Values;

   CppWrapper(JNIEnv*, Values const& value)
         : _value(value),
           _size(4),
           _noted(value.size() < room ? static_cast<int>(value.size()) : room),
           _rest(value.begin())
   {
      for (int i = 0; i != _noted; ++i) {
         _notes[i] = noteOf(*_rest);
         _size += 8 + _notes[i].record->size;
         step(_rest);
      }
      if (_noted == room) {
         addRest();
      }
   }

   unsigned long getEncodedSize() const
   {
      return _size;
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putInt(static_cast<int>(_value.size()));
      char* at = buffer.reserve(_size - 4);
      for (int i = 0; i != _noted; ++i) {
         at = put(at, _notes[i]);
      }
      if (_noted == room) {
         putRest(at);
      }
   }

private:
   typedef typename Values::const_iterator Place;

   struct Note {
      std::uint64_t handle;
      rti1516e::VariableLengthDataImplementation const* record;
   };

   static int const room = 1024;

   static Note noteOf(typename Values::value_type const& entry)
   {
      return {static_cast<unsigned>(handleValue(entry.first)),
            &rti1516e::VariableLengthDataFriend::getImplementation(entry.second)};
   }

   void __attribute__((noinline)) addRest()
   {
      for (Place entry = _rest; entry != _value.end(); step(entry)) {
         _size += 8 + sizeOf(entry->second);
      }
   }

   void __attribute__((noinline)) putRest(char* at) const
   {
      for (Place entry = _rest; entry != _value.end(); step(entry)) {
         at = put(at, noteOf(*entry));
      }
   }

   // Gives the place behind.
   static char* put(char* at, Note const& note)
   {
      unsigned long const size = note.record->size;
      rti1516e::storeLong(at, note.handle << 32 | static_cast<std::uint32_t>(size));
      rti1516e::copyBytes(at + 8, note.record->data, size);
      return at + 8 + size;
   }

   Values const& _value;
   unsigned long _size;
   int _noted;
   Place _rest; // the first that is not noted
   Note _notes[room];
};

template <>
class CppWrapper<rti1516e::AttributeHandleSetRegionHandleSetPairVector const&> : noncopyable {
public:
   typedef rti1516e::AttributeHandleSetRegionHandleSetPairVector Pairs;

   CppWrapper(JNIEnv* env, Pairs const& value) : _env(env), _value(value) {}

   unsigned long getEncodedSize() const
   {
      unsigned long size = 4;
      for (Pairs::value_type const& pair : _value) {
         size += Attributes(_env, pair.first).getEncodedSize()
               + Regions(_env, pair.second).getEncodedSize();
      }
      return size;
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putInt(static_cast<int>(_value.size()));
      for (Pairs::value_type const& pair : _value) {
         Attributes(_env, pair.first).encode(buffer);
         Regions(_env, pair.second).encode(buffer);
      }
   }

private:
   typedef CppWrapper<rti1516e::AttributeHandleSet const&> Attributes;
   typedef CppWrapper<rti1516e::RegionHandleSet const&> Regions;

   JNIEnv* _env;
   Pairs const& _value;
};

template <>
class CppWrapper<rti1516e::RangeBounds const&> : noncopyable {
public:
   CppWrapper(JNIEnv*, rti1516e::RangeBounds const& value) : _value(value) {}

   unsigned long getEncodedSize() const
   {
      return 16;
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      buffer.putLong(_value.getLowerBound());
      buffer.putLong(_value.getUpperBound());
   }

private:
   rti1516e::RangeBounds const& _value;
};

// A time or an interval: the bytes of its encode(), made at once, so that a failure of the value's
// leaves before the array exists. Values of the standard classes themselves, of none derived from
// them, are known to be a number of 8 bytes.
template <class Value, class Integer, class Float>
class TimeWrapper : noncopyable {
public:
   TimeWrapper(JNIEnv*, Value const& value)
         : _isNumber(takeNumber(value)),
           _encoded(_isNumber ? rti1516e::VariableLengthData() : value.encode())
   {
   }

   unsigned long getEncodedSize() const
   {
      return _isNumber ? 8 : sizeOf(_encoded);
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      if (_isNumber) {
         buffer.putLong(_number);
      } else {
         buffer.put(_encoded.data(), _encoded.size());
      }
   }

private:
   bool takeNumber(Value const& value)
   {
      std::type_info const& type = typeid(value);
      if (type == typeid(Float)) {
         double const number = static_cast<Float const&>(value);
         std::memcpy(&_number, &number, sizeof _number);
         return true;
      }
      if (type == typeid(Integer)) {
         long long const number = static_cast<Integer const&>(value);
         _number = static_cast<std::uint64_t>(number);
         return true;
      }
      return false;
   }

   std::uint64_t _number;
   bool const _isNumber;
   rti1516e::VariableLengthData const _encoded;
};

template <>
class CppWrapper<rti1516e::LogicalTime const&>
      : public TimeWrapper<rti1516e::LogicalTime, rti1516e::HLAinteger64Time,
              rti1516e::HLAfloat64Time> {
   using TimeWrapper::TimeWrapper;
};

template <>
class CppWrapper<rti1516e::LogicalTimeInterval const&>
      : public TimeWrapper<rti1516e::LogicalTimeInterval, rti1516e::HLAinteger64Interval,
              rti1516e::HLAfloat64Interval> {
   using TimeWrapper::TimeWrapper;
};

template <>
class CppWrapper<rti1516e::MessageRetractionHandle> : noncopyable {
public:
   CppWrapper(JNIEnv*, rti1516e::MessageRetractionHandle const& handle) : _handle(handle) {}

   unsigned long getEncodedSize() const
   {
      return _handle.encodedLength();
   }

   void encode(rti1516e::ByteWrapper& buffer) const
   {
      unsigned long const length = _handle.encodedLength();
      _handle.encode(buffer.reserve(length), length);
   }

private:
   rti1516e::MessageRetractionHandle const& _handle;
};

// ---- Results of Java methods -----------------------------------------------------------------
// Each releases the local reference of an object that it is given.

bool returnBoolean(JNIEnv*, int value);
unsigned long returnLong(JNIEnv*, long value); // the same 64 bits
double returnDouble(JNIEnv*, double value);
std::wstring returnString(JNIEnv* env, jstring text);

#define TARN_RETURN_HANDLE(H) rti1516e::H return ##H(JNIEnv*, int value);
RTI_FOR_EACH_HANDLE(TARN_RETURN_HANDLE)
#undef TARN_RETURN_HANDLE

rti1516e::OrderType returnOrderType(JNIEnv*, int code);
rti1516e::TransportationType returnTransportationType(JNIEnv*, int code);

// Whatever the code, the enumeration holds it.
rti1516e::ResignAction returnResignAction(JNIEnv*, int code);

rti1516e::RangeBounds returnRangeBounds(JNIEnv* env, jlongArray bounds);
std::unique_ptr<rti1516e::AttributeHandleSet> returnAttributeHandleSet(
      JNIEnv* env, jintArray handles);
rti1516e::DimensionHandleSet returnDimensionHandleSet(JNIEnv* env, jintArray handles);

// A null array is the default, invalid handle.
rti1516e::MessageRetractionHandle returnMessageRetractionReturn(JNIEnv* env, jbyteArray handle);

} // namespace tarn1516e

#endif
