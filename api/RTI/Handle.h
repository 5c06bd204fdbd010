// The handles by which federates and the RTI name federates, classes, instances and messages.
#ifndef RTI_Handle_h
#define RTI_Handle_h

#include <RTI/SpecificConfig.h>

#include <iosfwd>
#include <RTI/Exception.h>
#include <RTI/VariableLengthData.h>
#include <string>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Declares the handle class A. A handle is one machine word: the integer that the RTI gave to the
/// thing it names, 0 for none. It is copied as such, holds nothing and frees nothing; the pointer
/// that it is kept as is never followed.
///
/// Encoded form, 4 bytes: the word's low 32 bits, most significant byte first.
#define RTI_HANDLE(A)                                                                              \
   class A##Implementation;                                                                        \
                                                                                                   \
   class RTI_EXPORT A {                                                                            \
   public:                                                                                         \
      /** Names nothing. */                                                                        \
      A() : _value(0) {}                                                                           \
                                                                                                   \
      /** True if the handle names something. */                                                   \
      bool isValid() const                                                                         \
      {                                                                                            \
         return _value != 0;                                                                       \
      }                                                                                            \
                                                                                                   \
      /** Compares the whole words. */                                                             \
      bool operator==(A const& rhs) const                                                          \
      {                                                                                            \
         return _value == rhs._value;                                                              \
      }                                                                                            \
                                                                                                   \
      /** The opposite. */                                                                         \
      bool operator!=(A const& rhs) const                                                          \
      {                                                                                            \
         return _value != rhs._value;                                                              \
      }                                                                                            \
                                                                                                   \
      /** Orders the words as unsigned numbers. */                                                 \
      bool operator<(A const& rhs) const                                                           \
      {                                                                                            \
         return word() < rhs.word();                                                               \
      }                                                                                            \
                                                                                                   \
      /** The word times 37. */                                                                    \
      long hash() const                                                                            \
      {                                                                                            \
         return static_cast<long>(word() * 37);                                                    \
      }                                                                                            \
                                                                                                   \
      /** The encoded form; the result owns its bytes. */                                          \
      VariableLengthData encode() const;                                                           \
                                                                                                   \
      /** Writes the encoded form into the caller's buffer and returns its length in bytes. A      \
          buffer of less than 4 bytes ends the process through std::unexpected: what is thrown is  \
          a pointer to a CouldNotEncode, which the list does not allow. */                         \
      unsigned long encode(void* buffer, unsigned long bufferSize) const                           \
            RTI_THROW((CouldNotEncode));                                                           \
                                                                                                   \
      /** 4, the length of the encoded form in bytes. */                                           \
      unsigned long encodedLength() const                                                          \
      {                                                                                            \
         return 4;                                                                                 \
      }                                                                                            \
                                                                                                   \
      /** The word as a signed decimal number in angle brackets. In front of it FederateHandle has \
          its own name, every other class the word HandleKind. */                                  \
      std::wstring toString() const;                                                               \
                                                                                                   \
   private:                                                                                        \
      friend class A##Friend;                                                                      \
                                                                                                   \
      explicit A(A##Implementation* value) : _value(value) {}                                      \
                                                                                                   \
      /* Takes the first 4 bytes, without a look at the size, and extends them by zeros. */        \
      explicit A(VariableLengthData const& encodedValue);                                          \
                                                                                                   \
      A##Implementation const* getImplementation() const                                           \
      {                                                                                            \
         return _value;                                                                            \
      }                                                                                            \
                                                                                                   \
      A##Implementation* getImplementation()                                                       \
      {                                                                                            \
         return _value;                                                                            \
      }                                                                                            \
                                                                                                   \
      unsigned long word() const                                                                   \
      {                                                                                            \
         return reinterpret_cast<unsigned long>(_value);                                           \
      }                                                                                            \
                                                                                                   \
      A##Implementation* _value;                                                                   \
   };                                                                                              \
                                                                                                   \
   /** Writes the handle's toString(). */                                                          \
   RTI_EXPORT std::wostream& operator<<(std::wostream& stream, A const& handle);

/// Every handle class of one word, each with what it names.
#define RTI_FOR_EACH_HANDLE(X)                                                                     \
   X(FederateHandle)         /**< a joined federate */                                             \
   X(ObjectClassHandle)      /**< an object class */                                               \
   X(InteractionClassHandle) /**< an interaction class */                                          \
   X(ObjectInstanceHandle)   /**< an object instance */                                            \
   X(AttributeHandle)        /**< an attribute of an object class */                               \
   X(ParameterHandle)        /**< a parameter of an interaction class */                           \
   X(DimensionHandle)        /**< a dimension */                                                   \
   X(RegionHandle)           /**< a region */

RTI_FOR_EACH_HANDLE(RTI_HANDLE)

#undef RTI_HANDLE

class MessageRetractionHandleImplementation;

/// Names a message that may still be retracted: a number, and further bytes of the RTI's own that
/// go with it. Each handle owns its number and bytes; a copy shares nothing with its source.
///
/// Encoded form, 8 + n bytes, both integers with the most significant byte first:
///
///     offset  size  content
///     0       4     the number, 0 for no message
///     4       4     n
///     8       n     the further bytes
class RTI_EXPORT MessageRetractionHandle {
public:
   /// Names nothing: number 0, no further bytes.
   MessageRetractionHandle();

   /// Copies the number and the bytes.
   MessageRetractionHandle(MessageRetractionHandle const& rhs);
   ~MessageRetractionHandle();

   /// Frees the own number and bytes, then copies the other's: a handle must not be assigned to
   /// itself.
   MessageRetractionHandle& operator=(MessageRetractionHandle const& rhs);

   /// True if the number is not 0.
   bool isValid() const;

   /// Compares the numbers alone; the further bytes play no part.
   bool operator==(MessageRetractionHandle const& rhs) const;
   bool operator!=(MessageRetractionHandle const& rhs) const;

   /// Orders by the numbers, as signed 32-bit integers.
   bool operator<(MessageRetractionHandle const& rhs) const;

   /// The number times 37.
   long hash() const;

   /// The encoded form; the result owns its bytes.
   VariableLengthData encode() const;

   /// Writes the encoded form into the caller's buffer and returns its length in bytes. A buffer
   /// shorter than encodedLength() ends the process through std::unexpected: what is thrown is a
   /// pointer to a CouldNotEncode, which the list does not allow.
   unsigned long encode(void* buffer, unsigned long bufferSize) const RTI_THROW((CouldNotEncode));

   /// 8 and the number of further bytes.
   unsigned long encodedLength() const;

   /// The class's name and in angle brackets the number, as an unsigned 32-bit integer.
   std::wstring toString() const;

private:
   friend class MessageRetractionHandleFriend;

   // Takes the implementation over.
   explicit MessageRetractionHandle(MessageRetractionHandleImplementation* implementation);

   // Reads the encoded form, without a look at the size of the block.
   explicit MessageRetractionHandle(VariableLengthData const& encodedValue);

   MessageRetractionHandleImplementation const* getImplementation() const;
   MessageRetractionHandleImplementation* getImplementation();

   MessageRetractionHandleImplementation* _implementation;
};

/// Writes the handle's toString().
RTI_EXPORT std::wostream& operator<<(std::wostream& stream, MessageRetractionHandle const& handle);

} // namespace rti1516e

RTI_END_INTERFACE

#endif
