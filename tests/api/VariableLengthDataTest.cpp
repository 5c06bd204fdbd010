// Blocks of bytes: who owns them, and in what order they sort.
#include "tests/api/Bytes.h"

#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <vector>

using namespace rti1516e;

namespace {

TEST(VariableLengthDataTest, emptyBlocksDifferInTheirPointer)
{
   VariableLengthData const fresh;
   EXPECT_EQ(nullptr, fresh.data());
   EXPECT_EQ(0u, fresh.size());
   EXPECT_NE(nullptr, VariableLengthData(nullptr, 0).data());
   EXPECT_NE(nullptr, VariableLengthData(fresh).data());
   VariableLengthData taken;
   taken.takeDataPointer(new char[1]{'e'}, 1); // without a function: an array of char
   EXPECT_EQ("65", hex(taken));
}

std::vector<void*> freed;

void freeNoting(void* bytes)
{
   freed.push_back(bytes);
   delete[] static_cast<char*>(bytes);
}

// A block and what it must hold, with the memory that is not its own, or that it is to free.
struct Modelled {
   VariableLengthData data;
   std::string bytes;
   char* external = nullptr; // the caller's
   char* taken = nullptr;

   void expectHolds() const
   {
      EXPECT_EQ(hex(bytes.data(), bytes.size()), hex(data));
      if (external != nullptr || taken != nullptr) {
         EXPECT_EQ(external != nullptr ? external : taken, data.data());
      }
   }

   // What is taken is freed once, by the next replacement or at the end.
   void expectReplaced(std::string const& now)
   {
      std::vector<void*> const expected(taken != nullptr ? 1 : 0, taken);
      EXPECT_EQ(expected, freed);
      freed.clear();
      bytes = now;
      external = nullptr;
      taken = nullptr;
   }
};

TEST(VariableLengthDataTest, ownsAndFreesThroughAllOperations)
{
   std::mt19937 random(1);
   char memory[300] = {};
   std::unique_ptr<Modelled> blocks[3];
   for (int step = 0; step < 20000 && !HasFailure(); ++step) {
      std::unique_ptr<Modelled>& slot = blocks[random() % 3];
      Modelled const* const other = blocks[random() % 3].get();
      if (slot == nullptr) {
         slot.reset(new Modelled);
      }
      std::string bytes(random() % 3 == 0 ? random() % 300 : random() % 9, 'b');
      bytes += static_cast<char>(random());
      switch (random() % 7) {
      case 0:
         slot->data.setData(bytes.data(), bytes.size());
         slot->expectReplaced(bytes);
         break;
      case 1: {
         std::size_t const size = random() % sizeof memory;
         slot->data.setDataPointer(memory, size);
         slot->expectReplaced(std::string(memory, size));
         slot->external = memory;
         break;
      }
      case 2: {
         char* const made = new char[bytes.size()];
         bytes.copy(made, bytes.size());
         slot->data.takeDataPointer(made, bytes.size(), freeNoting);
         slot->expectReplaced(bytes);
         slot->taken = made;
         break;
      }
      case 3:
         if (other != nullptr && other != slot.get()) {
            EXPECT_EQ(&slot->data, &(slot->data = other->data));
            slot->expectReplaced(other->bytes);
            EXPECT_TRUE(slot->bytes.empty() || other->data.data() != slot->data.data());
         }
         break;
      case 4: {
         Modelled const copy = {VariableLengthData(slot->data), slot->bytes, nullptr, nullptr};
         copy.expectHolds();
         EXPECT_NE(nullptr, copy.data.data());
         break;
      }
      case 5:
         memory[random() % 2] = static_cast<char>(random()); // shows where it is held by pointer
         for (auto const& block : blocks) {
            if (block != nullptr && block->external != nullptr) {
               block->bytes.assign(memory, block->bytes.size());
            }
         }
         break;
      default: {
         Modelled last = {VariableLengthData(), "", nullptr, slot->taken};
         slot.reset();
         last.expectReplaced("");
      }
      }
      for (auto const& block : blocks) {
         if (block != nullptr) {
            block->expectHolds();
         }
      }
   }
}

TEST(VariableLengthDataTest, sortsBySignedBytes)
{
   char const* const ascending[] = {"", "80", "80 00", "FF", "00", "00 FF", "00 00", "01", "7F"};
   for (char const* const& left : ascending) {
      for (char const* const& right : ascending) {
         EXPECT_EQ(&left < &right, fromHex(left) < fromHex(right)) << left << ", " << right;
      }
   }
   EXPECT_FALSE(VariableLengthData() < VariableLengthData(nullptr, 0));
}

} // namespace
