// The nine handle classes: words, bytes, texts and order.
#include "api/HandleFriends.h"
#include "tests/api/Bytes.h"
#include "tests/api/Unexpected.h"

#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <sstream>

using namespace rti1516e;

namespace {

// The two makers of each class, and what the class is called.
template <class Handle>
struct Maker;

#define DEFINE_MAKER(A)                                                                            \
   template <>                                                                                     \
   struct Maker<A> {                                                                               \
      template <class Value>                                                                       \
      static A make(Value const& value)                                                            \
      {                                                                                            \
         return make##A(value);                                                                    \
      }                                                                                            \
   };

RTI_FOR_EACH_HANDLE(DEFINE_MAKER)

template <class Handle>
class HandleTest : public testing::Test, protected Maker<Handle> {
};

typedef testing::Types<FederateHandle, ObjectClassHandle, InteractionClassHandle,
      ObjectInstanceHandle, AttributeHandle, ParameterHandle, DimensionHandle, RegionHandle>
      Handles;
TYPED_TEST_SUITE(HandleTest, Handles, );

// What all forms of a handle must be.
template <class Handle>
void expectForms(
      Handle const& handle, long hash, std::wstring const& text, std::string const& bytes)
{
   SCOPED_TRACE(bytes);
   EXPECT_EQ(hash != 0, handle.isValid());
   EXPECT_EQ(hash, handle.hash());
   EXPECT_EQ(text, handle.toString());
   std::wostringstream stream;
   stream << handle << L"!";
   EXPECT_EQ(text + L"!", stream.str());
   EXPECT_EQ(bytes, hex(handle.encode()));
   std::size_t const size = handle.encodedLength();
   std::string buffer(size + 2, '\7');
   EXPECT_EQ(size, handle.encode(&buffer[1], size));
   EXPECT_EQ("07 " + bytes + " 07", hex(buffer.data(), buffer.size()));
   Handle const copy(handle);
   Handle assigned;
   EXPECT_EQ(&assigned, &(assigned = copy));
   EXPECT_EQ(handle, assigned);
}

TYPED_TEST(HandleTest, hasWordBytesAndText)
{
   std::wstring const name =
         std::is_same<TypeParam, FederateHandle>::value ? L"FederateHandle" : L"HandleKind";
   struct {
      int value;
      long hash;
      wchar_t const* text;
      char const* bytes;
      wchar_t const* textOfBytes;
   } const rows[] = {
         {0, 0, L"<0>", "00 00 00 00", L"<0>"},
         {1, 37, L"<1>", "00 00 00 01", L"<1>"},
         {0x01020304, 625635220, L"<16909060>", "01 02 03 04", L"<16909060>"},
         {std::numeric_limits<int>::max(), 79456894939, L"<2147483647>", "7F FF FF FF",
               L"<2147483647>"},
         {-1, -37, L"<-1>", "FF FF FF FF", L"<4294967295>"},
         {std::numeric_limits<int>::min(), -79456894976, L"<-2147483648>", "80 00 00 00",
               L"<2147483648>"},
   };
   for (auto const& row : rows) {
      expectForms(this->make(row.value), row.hash, name + row.text, row.bytes);
      // From bytes it is extended by zeros, and is another one if the value is negative.
      TypeParam const decoded = this->make(fromHex(std::string(row.bytes) + " 99"));
      expectForms(decoded, 37 * static_cast<long>(static_cast<unsigned int>(row.value)),
            name + row.textOfBytes, row.bytes);
      EXPECT_EQ(row.value >= 0, decoded == this->make(row.value));
   }
   EXPECT_EQ(sizeof(void*), sizeof(TypeParam));
}

// Handles in ascending order: all comparisons of each with each.
template <class Handle>
void expectAscending(std::vector<Handle> const& handles)
{
   for (Handle const& left : handles) {
      for (Handle const& right : handles) {
         EXPECT_EQ(&left < &right, left < right) << left.toString() << right.toString();
         EXPECT_EQ(&left == &right, left == right);
         EXPECT_EQ(&left != &right, left != right);
      }
   }
   EXPECT_EQ(handles.size(), std::set<Handle>(handles.begin(), handles.end()).size());
}

TYPED_TEST(HandleTest, isOrderedWithoutSign)
{
   expectAscending(std::vector<TypeParam>{TypeParam(), this->make(1), this->make(2),
         this->make(std::numeric_limits<int>::max()), this->make(fromHex("FF FF FF FF")),
         this->make(std::numeric_limits<int>::min()), this->make(-1)});
}

TYPED_TEST(HandleTest, throwsPointerForShortBuffer)
{
   char buffer[] = "...";
   TypeParam const handle = this->make(1);
   auto const encode = [&] { handle.encode(buffer, 3); };
   EXPECT_EQ(L"Buffer needs to be at least 4 bytes!",
         (textOfUnexpected<CouldNotEncode*, CouldNotEncode>(encode)));
   EXPECT_STREQ("...", buffer);
}

TEST(HandleDeathTest, shortBufferEndsTheProcess)
{
   char buffer[7];
   EXPECT_DEATH([&]() noexcept { makeFederateHandle(1).encode(buffer, 3); }(), "CouldNotEncode\\*");
   EXPECT_DEATH(
         [&]() noexcept { MessageRetractionHandle().encode(buffer, 7); }(), "CouldNotEncode\\*");
}

TEST(MessageRetractionHandleTest, hasNumberBytesAndText)
{
   struct {
      char const* bytes;
      long hash;
      wchar_t const* text;
   } const rows[] = {
         {"00 00 00 00 00 00 00 00", 0, L"<0>"},
         {"00 00 00 00 00 00 00 01 FF", 0, L"<0>"},
         {"00 00 00 05 00 00 00 00", 185, L"<5>"},
         {"01 02 03 04 00 00 00 03 0A 00 0B", 625635220, L"<16909060>"},
         {"80 00 00 00 00 00 00 01 07", -79456894976, L"<2147483648>"},
         {"FF FF FF FF 00 00 00 02 01 02", -37, L"<4294967295>"},
   };
   for (auto const& row : rows) {
      VariableLengthData const encoded = fromHex(row.bytes);
      std::string exact(static_cast<char const*>(encoded.data()), encoded.size());
      for (MessageRetractionHandle const& handle : {makeMessageRetractionHandle(encoded),
                 makeMessageRetractionHandle(fromHex(std::string(row.bytes) + " 99")),
                 MessageRetractionHandleFriend::makeHandle(&exact[0])}) {
         expectForms(
               handle, row.hash, L"MessageRetractionHandle" + std::wstring(row.text), row.bytes);
      }
   }
   EXPECT_EQ("00 00 00 00 00 00 00 00", hex(MessageRetractionHandle().encode()));
}

TEST(MessageRetractionHandleTest, comparesNumbersWithSign)
{
   std::vector<MessageRetractionHandle> ascending;
   for (char const* const number : {"80 00 00 00", "FF FF FF FF", "00 00 00 00", "00 00 00 05"}) {
      ascending.push_back(
            makeMessageRetractionHandle(fromHex(number + std::string(" 00 00 00 00"))));
   }
   expectAscending(ascending);
   MessageRetractionHandle const laden =
         makeMessageRetractionHandle(fromHex("00 00 00 05 00 00 00 01 07"));
   EXPECT_EQ(ascending.back(), laden) << "the payload plays no part";
   MessageRetractionHandle copy(laden);
   copy = MessageRetractionHandle();
   EXPECT_EQ("00 00 00 05 00 00 00 01 07", hex(laden.encode())) << "copies share nothing";
   char buffer[9];
   for (unsigned long size : {0ul, 4ul, 8ul}) {
      auto const encode = [&] { laden.encode(buffer, size); };
      EXPECT_EQ(L"Buffer needs to be atleast 4 bytes!",
            (textOfUnexpected<CouldNotEncode*, CouldNotEncode>(encode)));
   }
}

// A form of unknown length: the bytes of the size count as signed, and a size that is misread so is
// one that no allocator gives. Sanitizers refuse the block in words of their own.
TEST(MessageRetractionHandleDeathTest, losesPayloadsWhoseSizeHasAByteAbove127)
{
   for (unsigned int size :
         {1u, 100u, 127u, 128u, 200u, 248u, 255u, 256u, 383u, 384u, 504u, 511u, 512u}) {
      std::string bytes("\0\0\0\5\0\0", 6);
      bytes += {static_cast<char>(size >> 8), static_cast<char>(size)};
      bytes += std::string(size, 'p');
      EXPECT_EQ(hex(bytes.data(), bytes.size()),
            hex(makeMessageRetractionHandle(VariableLengthData(bytes.data(), bytes.size()))
                        .encode()));
      auto const make = [&] { return MessageRetractionHandleFriend::makeHandle(&bytes[0]); };
      if ((size & 0x80) == 0) {
         EXPECT_EQ(hex(bytes.data(), bytes.size()), hex(make().encode()));
      } else {
         EXPECT_DEATH([&]() noexcept { make(); }(),
               "bad_array_new_length|bad_alloc|allocation-size-too-big")
               << size;
      }
   }
}

} // namespace
