// The elements of arrays and fixed records, encoded one after the other.
#ifndef encoding_ElementSequence_h
#define encoding_ElementSequence_h

#include "encoding/Composite.h"
#include "encoding/ScalarMemory.h"

namespace rti1516e {

// Indices are not checked.
class ElementSequence {
public:
   ElementSequence() : _hasLooseScalars(false) {}

   // Clones all elements, also those that rhs does not own.
   ElementSequence(ElementSequence const& rhs);

   ElementSequence& operator=(ElementSequence const&) = delete;
   ~ElementSequence();

   std::size_t size() const
   {
      return _elements.size();
   }

   DataElement& operator[](std::size_t index) const
   {
      return *_elements[index];
   }

   // Appends a number of clones, or the caller's element.
   void append(DataElement const& prototype, std::size_t count);
   void appendPointer(DataElement* element);

   // Puts a clone, or the caller's element, where another one was, and releases that.
   void set(std::size_t index, DataElement const& element);
   void setPointer(std::size_t index, DataElement* element);

   // Releases the elements from size on.
   void truncate(std::size_t size);

   // The largest boundary among the elements, and at least the one given. Takes no longer for more
   // scalars.
   unsigned int boundary(unsigned int least) const;

   // Each element pads to its own boundary.
   void encodeInto(std::vector<Octet>& buffer) const;

   // Where the last element ends if the first may begin at start.
   std::size_t encodedLength(std::size_t start) const;

   // Returns the index behind the last element.
   std::size_t decodeFrom(std::vector<Octet> const& buffer, std::size_t index);

private:
   // Elements in a row that are treated alike. Scalars that the sequence has cloned when they were
   // appended lie in its memory, their records in a row. All others are asked each time, and not
   // before: the caller may make an element later than its place, and another one where it was.
   struct Run {
      // Of scalars in the memory.
      Run(ScalarCodec const* inCodec, ScalarCell* inRecords, std::size_t inFirst,
            std::size_t inCount)
            : codec(inCodec),
              records(inRecords),
              first(inFirst),
              count(inCount),
              offset(0),
              owned(false)
      {
      }

      // Of one other element.
      Run(std::size_t inFirst, bool isOwned) : Run(nullptr, nullptr, inFirst, 1)
      {
         owned = isOwned;
      }

      // Whether both may be one.
      bool isLike(Run const& other) const
      {
         return codec == nullptr && other.codec == nullptr && owned == other.owned;
      }

      // Whether one that has just been appended may be a part of it.
      bool isFollowedBy(Run const& next) const
      {
         bool const inARow = next.codec != nullptr && records + count == next.records;
         return isLike(next) || (inARow && codec == next.codec);
      }

      // The same elements as others, which are asked.
      Run loose() const
      {
         Run result(first, false);
         result.count = count;
         return result;
      }

      Run part(std::size_t begin, std::size_t number) const
      {
         Run result = *this;
         result.records += codec != nullptr ? begin : 0;
         result.first += begin;
         result.count = number;
         return result;
      }

      // Of scalars: they leave no gaps between them.
      std::size_t bytes() const
      {
         return count * codec->bytes;
      }

      ScalarCodec const* codec; // of scalars in the memory, else null
      ScalarCell* records;      // of scalars
      std::size_t first;        // index of the first element
      std::size_t count;        // 1 or more
      std::size_t offset;       // of scalars: of their first byte in their stretch
      bool owned;               // of others: whether they are clones on the heap
   };
   typedef std::vector<Run> Runs;

   // Runs of scalars, one behind the other, or one run of others. The offsets of scalars hold
   // wherever their stretch begins at a multiple of its largest boundary.
   struct Stretch {
      bool fits(std::size_t index) const
      {
         return (index & mask) == 0;
      }

      std::size_t first; // indices of runs
      std::size_t last;  // behind the last one
      std::size_t bytes; // of scalars
      unsigned int mask; // the largest boundary of scalars, less one; 0 of others
   };

   void makeRoomFor(std::size_t elements);
   void makeRoomToSplit();
   void appendScalars(
         ScalarCodec const& codec, ScalarCell const* sources, std::size_t step, std::size_t count);
   void appendElement(DataElement* element, bool owned);
   void joinLastRun();
   void replace(std::size_t index, DataElement* element, bool owned);
   void releaseFrom(std::size_t index, Run const& run);

   void addToStretches(std::size_t run);

   // The run that has the element at the index.
   Runs::iterator runAt(std::size_t index);

   // Splits the run so that the element at the index inside it is a run of its own.
   Runs::iterator isolate(Runs::iterator run, std::size_t index);
   void joinNeighbours(Runs::iterator run);
   void layOut();

   void encodeScalars(Stretch const& stretch, std::vector<Octet>& buffer) const;
   std::size_t decodeScalars(
         Stretch const& stretch, std::vector<Octet> const& buffer, std::size_t index) const;

   std::vector<DataElement*> _elements;
   Runs _runs;
   std::vector<Stretch> _stretches;
   ScalarMemory _memory;
   bool _hasLooseScalars; // some in the memory are in no run of scalars
};

} // namespace rti1516e

// Defines the members of the element X that are those of its sequence, without a count in front.
// clang-format off
#define RTI_DEFINE_SEQUENCE_MEMBERS(X)                                                             \
   void X::encodeInto(std::vector<Octet>& buffer) const RTI_THROW((EncoderException))              \
   {                                                                                               \
      padTo(*this, buffer);                                                                        \
      _implementation->encodeInto(buffer);                                                         \
   }                                                                                               \
   std::size_t X::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)                  \
      RTI_THROW((EncoderException))                                                                \
   { return _implementation->decodeFrom(buffer, index); }                                          \
   std::size_t X::getEncodedLength() const RTI_THROW((EncoderException))                           \
   { return _implementation->encodedLength(0); }                                                   \
   unsigned int X::getOctetBoundary() const { return _implementation->boundary(1); }

// Defines how the elements of the array X are replaced. The index is looked at first.
#define RTI_DEFINE_ARRAY_SETTERS(X)                                                                \
   void X::set(std::size_t index, DataElement const& inData) RTI_THROW((EncoderException))         \
   {                                                                                               \
      checkIndex(index, size());                                                                   \
      checkPrototype(hasPrototypeSameTypeAs(inData));                                              \
      _implementation->set(index, inData);                                                         \
   }                                                                                               \
   void X::setElementPointer(std::size_t index, DataElement* inData) RTI_THROW((EncoderException)) \
   {                                                                                               \
      checkIndex(index, size());                                                                   \
      checkPrototype(hasPrototypeSameTypeAs(*inData));                                             \
      _implementation->setPointer(index, inData);                                                  \
   }
// clang-format on

#endif
