// An opaque block of bytes: tags, attribute and parameter values, encoded handles and times.
#ifndef RTI_VariableLengthData_h
#define RTI_VariableLengthData_h

#include <RTI/SpecificConfig.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class VariableLengthDataImplementation;

/// A block of bytes with one of three owners: the object itself, with a copy of the bytes; the
/// caller, whose bytes the object only points at; or the object again, with bytes taken over.
///
/// A copy of an object always owns a fresh copy of the bytes, whatever the source did. Every
/// operation that replaces the bytes frees the old ones before it looks at its arguments: an object
/// must not be assigned to itself, nor given its own data().
///
/// Sizes are in bytes. No operation throws but std::bad_alloc. Objects are not guarded: two threads
/// may use two objects freely.
class RTI_EXPORT VariableLengthData {
public:
   /// No bytes: data() is null and size() 0.
   VariableLengthData();

   /// Owns a copy of inSize bytes from inData. With a size of 0 data() is not null all the same.
   VariableLengthData(void const* inData, unsigned long inSize);

   /// Owns a copy of the other's bytes.
   VariableLengthData(VariableLengthData const& rhs);

   /// Frees the bytes if the object owns them.
   ~VariableLengthData();

   /// Frees the old bytes, then owns a copy of the other's.
   VariableLengthData& operator=(VariableLengthData const& rhs);

   /// The bytes; valid until the next operation that is not const.
   void const* data() const;

   /// Number of bytes.
   unsigned long size() const;

   /// Frees the old bytes, then owns a copy of inSize bytes from inData.
   void setData(void const* inData, unsigned long inSize);

   /// Frees the old bytes, then points at the caller's, which must outlive the object's use of
   /// them.
   void setDataPointer(void* inData, unsigned long inSize);

   /// Frees the old bytes, then owns the caller's: frees them by func, or without one as an array
   /// of char.
   void takeDataPointer(void* inData, unsigned long inSize, void (*func)(void*) = 0);

private:
   friend class VariableLengthDataFriend;

   VariableLengthDataImplementation* _implementation;
};

/// Orders two blocks byte by byte as signed characters, so that 0xFF sorts before 0x01; a block
/// sorts before a longer one that begins with it.
RTI_EXPORT bool operator<(VariableLengthData const& lhs, VariableLengthData const& rhs);

} // namespace rti1516e

RTI_END_INTERFACE

#endif
