// Strings and opaque data of 1 KiB and 1 MiB of characters' bytes. The floor of narrow strings and
// opaque data is memcpy, that of wide strings a loop of shifts.
#include "bench/encoding/ByHand.h"

#include <cstring>
#include <memory>
#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAopaqueData.h>

using namespace rti1516e;

namespace {

template <class Element>
void addElement(std::string const& name, std::shared_ptr<Element> const& element, Bytes& bytes)
{
   element->encodeInto(bytes);
   measureEncode(name + "/subject", 1, [=](Bytes& buffer) { element->encodeInto(buffer); });
   measureDecode(name + "/subject", 1, bytes,
         [=](Bytes const& buffer) { benchmark::DoNotOptimize(element->decodeFrom(buffer, 0)); });
}

void addNarrowFloor(
      std::string const& name, std::shared_ptr<std::string> const& text, Bytes const& bytes)
{
   measureEncode(name + "/floor", 1, [=](Bytes& buffer) {
      addByHand<Encoder::BigEndian>(buffer, static_cast<int>(text->size()));
      buffer.insert(buffer.end(), text->begin(), text->end());
   });
   measureDecode(name + "/floor", 1, bytes, [=](Bytes const& buffer) {
      std::size_t index = 0;
      int count;
      takeByHand<Encoder::BigEndian>(buffer, index, count);
      std::size_t const size = static_cast<std::size_t>(count);
      text->resize(size);
      std::memcpy(&(*text)[0], takeRoom(buffer, index, 1, size), size);
   });
#ifdef BENCH_MSGPACK
   measureOther(
         name, 1,
         [=](msgpack_packer& packer) {
            msgpack_pack_bin(&packer, text->size());
            msgpack_pack_bin_body(&packer, text->data(), text->size());
         },
         [=](msgpack_object const& object) {
            text->assign(object.via.bin.ptr, object.via.bin.size);
         });
#endif
}

void addWideFloor(
      std::string const& name, std::shared_ptr<std::wstring> const& text, Bytes const& bytes)
{
   measureEncode(name + "/floor", 1, [=](Bytes& buffer) {
      char* out = addRoom(buffer, 4, 4 + 2 * text->size());
      Encoder::encodeHLAinteger32BE(static_cast<int>(text->size()), out);
      out += 4;
      wchar_t const* const characters = text->data();
      std::size_t const count = text->size();
      for (std::size_t i = 0; i < count; ++i) {
         Encoder::encodeHLAunicodeChar(characters[i], out + 2 * i);
      }
   });
   measureDecode(name + "/floor", 1, bytes, [=](Bytes const& buffer) {
      std::size_t index = 0;
      int count;
      takeByHand<Encoder::BigEndian>(buffer, index, count);
      text->resize(static_cast<std::size_t>(count));
      char const* const in = takeRoom(buffer, index, 1, 2 * text->size());
      for (std::size_t i = 0; i < text->size(); ++i) {
         (*text)[i] = Encoder::decodeHLAunicodeChar(in + 2 * i, 2);
      }
   });
}

} // namespace

void addBlocks()
{
   std::size_t const sizes[] = {1 << 10, 1 << 20};
   char const* const names[] = {"1KiB", "1MiB"};
   for (int i = 0; i < 2; ++i) {
      std::string const suffix = std::string("-") + names[i];
      std::shared_ptr<std::string> const narrow = std::make_shared<std::string>(sizes[i], 'x');
      std::shared_ptr<std::wstring> const wide = std::make_shared<std::wstring>(sizes[i] / 2, L'x');
      Bytes bytes;
      addElement("HLAopaqueData" + suffix,
            std::make_shared<HLAopaqueData>(narrow->data(), narrow->size()), bytes);
      addNarrowFloor("HLAopaqueData" + suffix, narrow, bytes);
      addElement("HLAASCIIstring" + suffix, std::make_shared<HLAASCIIstring>(*narrow), bytes = {});
      addNarrowFloor("HLAASCIIstring" + suffix, narrow, bytes);
      addElement(
            "HLAunicodeString" + suffix, std::make_shared<HLAunicodeString>(*wide), bytes = {});
      addWideFloor("HLAunicodeString" + suffix, wide, bytes);
   }
}
