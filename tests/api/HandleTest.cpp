// The nine handle classes: words, bytes and texts.
#include "api/HandleFriends.h"
#include "tests/api/Bytes.h"
#include "tests/api/Unexpected.h"

#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <sstream>

using namespace rti1516e;

namespace {

// The makers of each class, under one name.
template <class Handle>
Handle make(int value);
template <class Handle>
Handle make(VariableLengthData const& encodedValue);
template <class Handle>
long wordOf(Handle const& handle);

#define DEFINE_MAKERS(A)                                                                           \
   template <>                                                                                     \
   A make<A>(int value)                                                                            \
   {                                                                                               \
      return make##A(value);                                                                       \
   }                                                                                               \
                                                                                                   \
   template <>                                                                                     \
   A make<A>(VariableLengthData const& encodedValue)                                               \
   {                                                                                               \
      return make##A(encodedValue);                                                                \
   }                                                                                               \
                                                                                                   \
   template <>                                                                                     \
   long wordOf<A>(A const& handle)                                                                 \
   {                                                                                               \
      return reinterpret_cast<long>(A##Friend::getImplementation(handle));                         \
   }

RTI_FOR_EACH_HANDLE(DEFINE_MAKERS)

template <class Handle>
wchar_t const* const NAME = L"HandleKind";
template <>
wchar_t const* const NAME<FederateHandle> = L"FederateHandle";

struct WordRow {
   int value;
   long hash;
   wchar_t const* text;
   char const* bytes;
};

WordRow const WORDS[] = {
      {0, 0, L"<0>", "00 00 00 00"},
      {1, 37, L"<1>", "00 00 00 01"},
      {5, 185, L"<5>", "00 00 00 05"},
      {0x01020304, 625635220, L"<16909060>", "01 02 03 04"},
      {std::numeric_limits<int>::max(), 79456894939, L"<2147483647>", "7F FF FF FF"},
      {-1, -37, L"<-1>", "FF FF FF FF"},
      {std::numeric_limits<int>::min(), -79456894976, L"<-2147483648>", "80 00 00 00"},
};

template <class Handle>
class HandleTest : public testing::Test {
};

typedef testing::Types<FederateHandle, ObjectClassHandle, InteractionClassHandle,
      ObjectInstanceHandle, AttributeHandle, ParameterHandle, DimensionHandle, RegionHandle>
      Handles;
TYPED_TEST_SUITE(HandleTest, Handles, );

TYPED_TEST(HandleTest, hasWordBytesAndText)
{
   for (WordRow const& row : WORDS) {
      SCOPED_TRACE(row.value);
      TypeParam const handle = make<TypeParam>(row.value);
      EXPECT_EQ(row.value, wordOf(handle));
      EXPECT_EQ(row.value != 0, handle.isValid());
      EXPECT_EQ(row.hash, handle.hash());
      EXPECT_EQ(NAME<TypeParam> + std::wstring(row.text), handle.toString());
      std::wostringstream stream;
      stream << handle << L"!";
      EXPECT_EQ(handle.toString() + L"!", stream.str());

      EXPECT_EQ(4u, handle.encodedLength());
      EXPECT_EQ(row.bytes, hex(handle.encode()));
      char buffer[6] = {7, 7, 7, 7, 7, 7};
      EXPECT_EQ(4u, handle.encode(buffer + 1, 4));
      EXPECT_EQ("07 " + std::string(row.bytes) + " 07", hex(buffer, sizeof(buffer)));
   }
}

TYPED_TEST(HandleTest, fromBytesIsExtendedByZeros)
{
   for (WordRow const& row : WORDS) {
      SCOPED_TRACE(row.bytes);
      TypeParam const handle = make<TypeParam>(fromHex(std::string(row.bytes) + " 99"));
      EXPECT_EQ(static_cast<long>(static_cast<unsigned int>(row.value)), wordOf(handle));
      EXPECT_EQ(row.bytes, hex(handle.encode()));
      EXPECT_EQ(row.value >= 0, handle == make<TypeParam>(row.value));
   }
   EXPECT_EQ(NAME<TypeParam> + std::wstring(L"<4294967295>"),
         make<TypeParam>(fromHex("FF FF FF FF")).toString());
}

TYPED_TEST(HandleTest, isOrderedWithoutSign)
{
   // In ascending order.
   TypeParam const handles[] = {TypeParam(), make<TypeParam>(1), make<TypeParam>(2),
         make<TypeParam>(std::numeric_limits<int>::max()), make<TypeParam>(fromHex("FF FF FF FF")),
         make<TypeParam>(std::numeric_limits<int>::min()), make<TypeParam>(-1)};
   for (TypeParam const& left : handles) {
      for (TypeParam const& right : handles) {
         EXPECT_EQ(&left < &right, left < right) << left.toString() << right.toString();
         EXPECT_EQ(&left == &right, left == right);
         EXPECT_EQ(&left != &right, left != right);
      }
   }
   EXPECT_EQ(7u, std::set<TypeParam>(std::begin(handles), std::end(handles)).size());
}

TYPED_TEST(HandleTest, isCopiedAsOneWord)
{
   EXPECT_EQ(sizeof(void*), sizeof(TypeParam));
   TypeParam const handle = make<TypeParam>(7);
   TypeParam copy(handle);
   EXPECT_EQ(handle, copy);
   copy = make<TypeParam>(8);
   EXPECT_EQ(7, wordOf(handle));
   EXPECT_FALSE((copy = TypeParam()).isValid());
}

TYPED_TEST(HandleTest, throwsPointerForShortBuffer)
{
   char buffer[] = "...";
   auto const encode = [&] { make<TypeParam>(1).encode(buffer, 3); };
   EXPECT_EQ(L"Buffer needs to be at least 4 bytes!",
         (textOfUnexpected<CouldNotEncode*, CouldNotEncode>(encode)));
   EXPECT_STREQ("...", buffer);
}

TEST(HandleDeathTest, shortBufferEndsTheProcess)
{
   char buffer[7];
   EXPECT_DEATH(
         {
            try {
               makeFederateHandle(1).encode(buffer, 3);
            } catch (...) {
            }
         },
         "CouldNotEncode\\*");
   EXPECT_DEATH(
         {
            try {
               MessageRetractionHandle().encode(buffer, 7);
            } catch (...) {
            }
         },
         "CouldNotEncode\\*");
}

struct RetractionRow {
   char const* bytes;
   bool valid;
   long hash;
   wchar_t const* text;
};

RetractionRow const RETRACTIONS[] = {
      {"00 00 00 00 00 00 00 00", false, 0, L"<0>"},
      {"00 00 00 00 00 00 00 01 FF", false, 0, L"<0>"},
      {"00 00 00 05 00 00 00 00", true, 185, L"<5>"},
      {"01 02 03 04 00 00 00 03 0A 00 0B", true, 625635220, L"<16909060>"},
      {"80 00 00 00 00 00 00 01 07", true, -79456894976, L"<2147483648>"},
      {"FF FF FF FF 00 00 00 02 01 02", true, -37, L"<4294967295>"},
};

TEST(MessageRetractionHandleTest, hasNumberBytesAndText)
{
   for (RetractionRow const& row : RETRACTIONS) {
      SCOPED_TRACE(row.bytes);
      VariableLengthData const encoded = fromHex(row.bytes);
      std::string exact(static_cast<char const*>(encoded.data()), encoded.size());
      for (MessageRetractionHandle const& handle : {makeMessageRetractionHandle(encoded),
                 makeMessageRetractionHandle(fromHex(std::string(row.bytes) + " 99")),
                 MessageRetractionHandleFriend::makeHandle(&exact[0])}) {
         EXPECT_EQ(row.valid, handle.isValid());
         EXPECT_EQ(row.hash, handle.hash());
         EXPECT_EQ(L"MessageRetractionHandle" + std::wstring(row.text), handle.toString());
         std::wostringstream stream;
         stream << handle;
         EXPECT_EQ(handle.toString(), stream.str());
         EXPECT_EQ(encoded.size(), handle.encodedLength());
         EXPECT_EQ(row.bytes, hex(handle.encode()));
         char buffer[16];
         EXPECT_EQ(encoded.size(), handle.encode(buffer, encoded.size()));
         EXPECT_EQ(row.bytes, hex(buffer, encoded.size()));
      }
   }
   EXPECT_EQ("00 00 00 00 00 00 00 00", hex(MessageRetractionHandle().encode()));
}

TEST(MessageRetractionHandleTest, comparesNumbersWithSign)
{
   char const* const ascending[] = {"80 00 00 00 00 00 00 00", "FF FF FF FF 00 00 00 00",
         "00 00 00 00 00 00 00 00", "00 00 00 01 00 00 00 00"};
   for (char const* const& left : ascending) {
      for (char const* const& right : ascending) {
         MessageRetractionHandle const leftHandle = makeMessageRetractionHandle(fromHex(left));
         MessageRetractionHandle const rightHandle = makeMessageRetractionHandle(fromHex(right));
         EXPECT_EQ(&left < &right, leftHandle < rightHandle) << left << ", " << right;
         EXPECT_EQ(&left == &right, leftHandle == rightHandle);
         EXPECT_EQ(&left != &right, leftHandle != rightHandle);
      }
   }
   MessageRetractionHandle const bare =
         makeMessageRetractionHandle(fromHex("00 00 00 05 00 00 00 00"));
   MessageRetractionHandle const laden =
         makeMessageRetractionHandle(fromHex("00 00 00 05 00 00 00 01 07"));
   EXPECT_EQ(bare, laden);
   EXPECT_EQ(bare.hash(), laden.hash());
   EXPECT_NE(hex(bare.encode()), hex(laden.encode()));
}

TEST(MessageRetractionHandleTest, copiesShareNothing)
{
   MessageRetractionHandle const first =
         makeMessageRetractionHandle(fromHex("00 00 00 05 00 00 00 01 07"));
   MessageRetractionHandle assigned;
   {
      MessageRetractionHandle const copy(first);
      EXPECT_EQ(&assigned, &(assigned = copy));
   }
   EXPECT_EQ("00 00 00 05 00 00 00 01 07", hex(assigned.encode()));
   assigned = MessageRetractionHandle();
   EXPECT_EQ("00 00 00 05 00 00 00 01 07", hex(first.encode()));
}

TEST(MessageRetractionHandleTest, throwsPointerForShortBuffer)
{
   MessageRetractionHandle const handle =
         makeMessageRetractionHandle(fromHex("00 00 00 05 00 00 00 01 07"));
   char buffer[9];
   for (unsigned long size : {0ul, 4ul, 8ul}) {
      auto const encode = [&] { handle.encode(buffer, size); };
      EXPECT_EQ(L"Buffer needs to be atleast 4 bytes!",
            (textOfUnexpected<CouldNotEncode*, CouldNotEncode>(encode)));
   }
   EXPECT_EQ(9u, handle.encode(buffer, 9));
}

// The bytes of a handle with a payload of that many bytes.
std::string encodedWithPayload(unsigned int size)
{
   std::string bytes("\0\0\0\5\0\0\0\0", 8);
   bytes[6] = static_cast<char>(size >> 8);
   bytes[7] = static_cast<char>(size);
   return bytes + std::string(size, 'p');
}

TEST(MessageRetractionHandleTest, takesPayloadsWhoseSizeHasNoByteAbove127)
{
   for (unsigned int size : {1u, 100u, 127u, 256u, 383u, 512u}) {
      std::string bytes = encodedWithPayload(size);
      MessageRetractionHandle const handle = MessageRetractionHandleFriend::makeHandle(&bytes[0]);
      EXPECT_EQ(8 + size, handle.encodedLength());
      EXPECT_EQ(hex(bytes.data(), bytes.size()), hex(handle.encode()));
   }
}

TEST(MessageRetractionHandleDeathTest, losesPayloadsOfOtherSizes)
{
   for (unsigned int size : {128u, 200u, 248u, 255u, 384u, 504u, 511u}) {
      std::string bytes = encodedWithPayload(size);
      EXPECT_EQ(8 + size,
            makeMessageRetractionHandle(VariableLengthData(bytes.data(), bytes.size()))
                  .encodedLength());
      // Sanitizers refuse the block in words of their own.
      EXPECT_DEATH([&]() noexcept { MessageRetractionHandleFriend::makeHandle(&bytes[0]); }(),
            "bad_array_new_length|bad_alloc|allocation-size-too-big");
   }
}

} // namespace
