// Elements in a row.
#include "encoding/ElementSequence.h"

#include "encoding/BasicValue.h"
#include "encoding/Encoder.h"

#include <algorithm>

namespace rti1516e {

namespace {

// So many elements of a record fit what it takes for the first one.
std::size_t const AT_FIRST = 16;

// Into so many runs an array is split, one element after another, before that is too dear.
std::size_t const MOST_SPLIT = 64;

// Lets a vector take so many more without a failure. It grows by doubling, and to a number at
// least.
template <class Vector>
void makeRoom(Vector& vector, std::size_t more, std::size_t atLeast)
{
   std::size_t const needed = vector.size() + more;
   if (needed > vector.capacity()) {
      vector.reserve(std::max({needed, 2 * vector.capacity(), atLeast}));
   }
}

// In front of a scalar, whose boundary is a power of two.
std::size_t paddingBefore(std::size_t index, unsigned int boundary)
{
   return (0 - index) & (boundary - 1);
}

// One scalar by its kind, from its record to its bytes and back: a switch, and in line with its
// only caller, since a call for each field of a record is felt.

template <class Coding>
BasicValue<Coding>& valueIn(ScalarCell* record)
{
   return *reinterpret_cast<BasicValue<Coding>*>(record);
}

#define STORE_SCALAR(Name, Value, Order, Bytes)                                                    \
   case KIND_OF_##Name:                                                                            \
      Encoder::Name##Coding::encode(valueIn<Encoder::Name##Coding>(record).get(), out);            \
      break;

#define LOAD_SCALAR(Name, Value, Order, Bytes)                                                     \
   case KIND_OF_##Name:                                                                            \
      Encoder::Name##Coding::decode(in, Bytes, valueIn<Encoder::Name##Coding>(record).decoded());  \
      break;

void storeScalar(ScalarKind kind, ScalarCell* record, char* out)
{
   switch (kind) {
      ENCODER_FOR_EACH_SCALAR(STORE_SCALAR)
   }
}

void loadScalar(ScalarKind kind, ScalarCell* record, char const* in)
{
   switch (kind) {
      ENCODER_FOR_EACH_SCALAR(LOAD_SCALAR)
   }
}

#undef STORE_SCALAR
#undef LOAD_SCALAR

} // namespace

ElementSequence::ElementSequence(ElementSequence const& rhs) : ElementSequence()
{
   _elements.reserve(rhs.size());
   _runs.reserve(rhs._runs.size());
   _stretches.reserve(rhs._stretches.size());
   std::size_t scalars = 0;
   for (Run const& run : rhs._runs) {
      scalars += run.codec != nullptr ? run.count : 0;
   }
   if (scalars != 0) {
      _memory.reserve(scalars);
   }
   for (Run const& run : rhs._runs) {
      if (run.codec != nullptr) {
         appendScalars(*run.codec, run.records, 1, run.count);
      } else {
         for (std::size_t i = 0; i < run.count; ++i) {
            append(rhs[run.first + i], 1);
         }
      }
   }
}

ElementSequence::~ElementSequence()
{
   for (Run const& run : _runs) {
      releaseFrom(run.first, run);
   }
}

void ElementSequence::append(DataElement const& prototype, std::size_t count)
{
   if (ScalarCodec const* const codec = scalarCodecOf(prototype)) {
      appendScalars(*codec, codec->recordOf(prototype), 0, count);
      return;
   }
   makeRoomFor(count);
   for (std::size_t i = 0; i < count; ++i) {
      makeRoomFor(1);
      appendElement(prototype.clone().release(), true);
   }
}

void ElementSequence::appendPointer(DataElement* element)
{
   makeRoomFor(1);
   appendElement(element, false);
}

void ElementSequence::makeRoomFor(std::size_t elements)
{
   makeRoom(_elements, elements, elements == 1 ? AT_FIRST : elements);
   makeRoom(_runs, 1, elements == 1 ? AT_FIRST : 1); // an array has one, a record many
   makeRoom(_stretches, 1, 1);
}

// There is room for it.
void ElementSequence::appendElement(DataElement* element, bool owned)
{
   _runs.emplace_back(size(), owned);
   joinLastRun();
   _elements.push_back(element);
}

void ElementSequence::appendScalars(
      ScalarCodec const& codec, ScalarCell const* sources, std::size_t step, std::size_t count)
{
   while (count != 0) {
      makeRoomFor(count);
      ScalarMemory::Place const place = _memory.take(count, count == 1 ? AT_FIRST : count);
      std::size_t const first = size();
      _runs.emplace_back(&codec, place.records, first, place.count);
      joinLastRun();
      _elements.resize(first + place.count);
      codec.clone(sources, step, place.count, place.records, place.objects, &_elements[first]);
      sources += step * place.count;
      count -= place.count;
   }
}

// Makes the last run a part of the one before, if it may be.
void ElementSequence::joinLastRun()
{
   Run const last = _runs.back();
   if (_runs.size() == 1 || !_runs.end()[-2].isFollowedBy(last)) {
      addToStretches(_runs.size() - 1);
      return;
   }
   _runs.pop_back();
   _runs.back().count += last.count;
   if (last.codec != nullptr) {
      _stretches.back().bytes += last.bytes();
   }
}

void ElementSequence::addToStretches(std::size_t index)
{
   Run& run = _runs[index];
   run.offset = 0;
   if (index == 0 || run.codec == nullptr || _runs[index - 1].codec == nullptr) {
      _stretches.push_back({index, index, 0, 0});
   }
   Stretch& stretch = _stretches.back();
   stretch.last = index + 1;
   if (run.codec != nullptr) {
      run.offset = stretch.bytes + paddingBefore(stretch.bytes, run.codec->bytes);
      stretch.bytes = run.offset + run.bytes();
      stretch.mask |= run.codec->bytes - 1;
   }
}

// There is room for all stretches.
void ElementSequence::layOut()
{
   _stretches.clear();
   for (std::size_t i = 0; i < _runs.size(); ++i) {
      addToStretches(i);
   }
}

void ElementSequence::set(std::size_t index, DataElement const& element)
{
   Runs::iterator const run = runAt(index);
   ScalarCodec const* const codec = scalarCodecOf(element);
   if (codec == nullptr || run->codec != codec) {
      makeRoomToSplit();
      replace(index, element.clone().release(), true);
      return;
   }
   // In its place, where another one of the class is.
   ScalarCell* const record = run->records + (index - run->first);
   ScalarCell* const object = reinterpret_cast<ScalarCell*>(_elements[index]);
   codec->clone(codec->recordOf(element), 0, 1, record, object, &_elements[index]);
}

void ElementSequence::setPointer(std::size_t index, DataElement* element)
{
   makeRoomToSplit();
   replace(index, element, false);
}

void ElementSequence::makeRoomToSplit()
{
   makeRoom(_runs, 2, 2);
   makeRoom(_stretches, 2, 2);
}

// There is room for two more runs.
void ElementSequence::replace(std::size_t index, DataElement* element, bool owned)
{
   Run const now(index, owned);
   Runs::iterator run = runAt(index);
   DataElement* const old = run->owned ? _elements[index] : nullptr;
   _elements[index] = element;
   if (run->count > 1 && run->codec != nullptr && _runs.size() > MOST_SPLIT) {
      // Its scalars stay where they are and are asked like all others.
      *run = run->loose();
      _hasLooseScalars = true;
      joinNeighbours(run);
      layOut();
      run = runAt(index);
   }
   if (!run->isLike(now)) {
      run = isolate(run, index - run->first);
      *run = now;
      joinNeighbours(run);
      layOut();
   }
   delete old;
}

ElementSequence::Runs::iterator ElementSequence::runAt(std::size_t index)
{
   return std::upper_bound(_runs.begin(), _runs.end(), index,
                [](std::size_t wanted, Run const& run) { return wanted < run.first; })
         - 1;
}

ElementSequence::Runs::iterator ElementSequence::isolate(Runs::iterator run, std::size_t index)
{
   if (index != 0) {
      run = _runs.insert(run, run->part(0, index)) + 1;
      *run = run->part(index, run->count - index);
   }
   if (run->count != 1) {
      run = _runs.insert(run, run->part(0, 1));
      run[1] = run[1].part(1, run[1].count - 1);
   }
   return run;
}

void ElementSequence::joinNeighbours(Runs::iterator run)
{
   if (run + 1 != _runs.end() && run[1].isLike(*run)) {
      run->count += run[1].count;
      _runs.erase(run + 1);
   }
   if (run != _runs.begin() && run[-1].isLike(*run)) {
      run[-1].count += run->count;
      _runs.erase(run);
   }
}

void ElementSequence::truncate(std::size_t size)
{
   if (size >= _elements.size()) {
      return;
   }
   while (!_runs.empty() && _runs.back().first >= size) {
      releaseFrom(_runs.back().first, _runs.back());
      _runs.pop_back();
   }
   if (!_runs.empty()) {
      releaseFrom(size, _runs.back());
      _runs.back().count = size - _runs.back().first;
   }
   _elements.resize(size);
   layOut();
   ScalarCell const* used = nullptr;
   for (Run const& run : _runs) {
      used = run.codec != nullptr ? run.records + run.count : used;
   }
   if (!_hasLooseScalars) {
      _memory.giveBackBehind(used);
   }
}

// Deletes what the run owns from the element at the index on.
void ElementSequence::releaseFrom(std::size_t index, Run const& run)
{
   for (; run.owned && index < run.first + run.count; ++index) {
      delete _elements[index];
   }
}

unsigned int ElementSequence::boundary(unsigned int least) const
{
   unsigned int largest = least;
   for (Stretch const& stretch : _stretches) {
      Run const& run = _runs[stretch.first];
      largest = std::max(largest, stretch.mask + 1);
      for (std::size_t i = 0; run.codec == nullptr && i < run.count; ++i) {
         largest = std::max(largest, _elements[run.first + i]->getOctetBoundary());
      }
   }
   return largest;
}

std::size_t ElementSequence::encodedLength(std::size_t start) const
{
   std::size_t length = start;
   for (Run const& run : _runs) {
      if (run.codec != nullptr) {
         length += paddingBefore(length, run.codec->bytes) + run.bytes();
         continue;
      }
      for (std::size_t i = 0; i < run.count; ++i) {
         DataElement const& element = *_elements[run.first + i];
         length += Encoder::paddingSizeInBytes(length, element.getOctetBoundary());
         length += element.getEncodedLength();
      }
   }
   return length;
}

void ElementSequence::encodeInto(std::vector<Octet>& buffer) const
{
   for (Stretch const& stretch : _stretches) {
      Run const& run = _runs[stretch.first];
      if (run.codec != nullptr) {
         encodeScalars(stretch, buffer);
      } else {
         for (std::size_t i = 0; i < run.count; ++i) {
            _elements[run.first + i]->encodeInto(buffer);
         }
      }
   }
}

void ElementSequence::encodeScalars(Stretch const& stretch, std::vector<Octet>& buffer) const
{
   Run const* const first = _runs.data() + stretch.first;
   Run const* const last = _runs.data() + stretch.last;
   if (stretch.fits(buffer.size())) {
      Encoder::insertBytes(buffer, stretch.bytes);
      char* const out = buffer.data() + buffer.size() - stretch.bytes;
      for (Run const* run = first; run != last; ++run) {
         if (run->count == 1) {
            storeScalar(run->codec->kind, run->records, out + run->offset);
         } else {
            run->codec->storeAll(run->records, run->count, out + run->offset);
         }
      }
      return;
   }
   for (Run const* run = first; run != last; ++run) {
      std::size_t const padding = paddingBefore(buffer.size(), run->codec->bytes);
      Encoder::insertBytes(buffer, padding + run->bytes());
      char* const out = buffer.data() + buffer.size() - run->bytes();
      run->codec->storeAll(run->records, run->count, out);
   }
}

std::size_t ElementSequence::decodeFrom(std::vector<Octet> const& buffer, std::size_t index)
{
   for (Stretch const& stretch : _stretches) {
      Run const& run = _runs[stretch.first];
      if (run.codec != nullptr) {
         index = decodeScalars(stretch, buffer, index);
      } else {
         for (std::size_t i = 0; i < run.count; ++i) {
            DataElement& element = *_elements[run.first + i];
            index += Encoder::paddingSizeInBytes(index, element.getOctetBoundary());
            index = element.decodeFrom(buffer, index);
         }
      }
   }
   return index;
}

std::size_t ElementSequence::decodeScalars(
      Stretch const& stretch, std::vector<Octet> const& buffer, std::size_t index) const
{
   Run const* const first = _runs.data() + stretch.first;
   Run const* const last = _runs.data() + stretch.last;
   if (stretch.fits(index) && index <= buffer.size() && buffer.size() - index >= stretch.bytes) {
      char const* const in = buffer.data() + index;
      for (Run const* run = first; run != last; ++run) {
         if (run->count == 1) {
            loadScalar(run->codec->kind, run->records, in + run->offset);
         } else {
            run->codec->loadAll(run->records, run->count, in + run->offset);
         }
      }
      return index + stretch.bytes;
   }
   // Something is misplaced or missing. What is there is decoded.
   for (Run const* run = first; run != last; ++run) {
      index += paddingBefore(index, run->codec->bytes);
      std::size_t const left = index < buffer.size() ? buffer.size() - index : 0;
      std::size_t const count = std::min(run->count, left / run->codec->bytes);
      if (count != 0) {
         run->codec->loadAll(run->records, count, &buffer[index]);
      }
      if (count < run->count) {
         Encoder::fail(L"Index is out of bounds");
      }
      index += run->bytes();
   }
   return index;
}

} // namespace rti1516e
