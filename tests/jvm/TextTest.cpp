// Texts of start-up: formatting and its bound, the two widths of character, the VM's statuses.
#include "jvm/Text.h"
#include "jvm/JVM.h"

#include <gtest/gtest.h>

using namespace tarn1516e;

namespace {

TEST(Text, IsBuiltAsPrintfBuildsIt)
{
   EXPECT_EQ("TARN1516_OPTION19", format("TARN1516_OPTION%d", 19));
   EXPECT_EQ("getCreatedJavaVMs: OK nVMcount = 0\n",
         format("getCreatedJavaVMs: %ls nVMcount = %d\n", L"OK", 0));
   EXPECT_EQ("", format("%s", ""));
   EXPECT_EQ(L"Unknown JVM error -7", wformat(L"Unknown JVM error %ld", -7L));
   EXPECT_EQ(L"\u0141\U0001F600", wformat(L"%ls", L"\u0141\U0001F600"));
   EXPECT_EQ(L"", wformat(L"%ls", L""));
}

TEST(Text, IsCutAt2047Characters)
{
   for (unsigned const length : {0u, 1u, 2045u, 2046u, 2047u, 2048u, 3000u, 10000u}) {
      std::string text;
      for (unsigned i = 0; i != length; ++i) {
         text += static_cast<char>('a' + i % 26);
      }
      std::string const cut = text.substr(0, 2047);
      EXPECT_EQ(cut, format("%s", text.c_str())) << length;
      EXPECT_EQ(("<" + text + ">").substr(0, 2047), format("<%s>", text.c_str())) << length;
      EXPECT_EQ(string2wstring(cut), wformat(L"%ls", string2wstring(text).c_str())) << length;
   }
}

TEST(Text, KeepsItsLengthInBothWidths)
{
   struct Row {
      std::wstring wide;
      std::string narrow;
      std::wstring back;
   };
   Row const rows[] = {
         {L"", "", L""},
         {L"libjvm", "libjvm", L"libjvm"},
         {L"\u00e9\u00ff", "\xe9\xff", L"\u00e9\u00ff"},
         {L"\u0141", "A", L"A"},
         {L"a\U0001F600b", std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
         {std::wstring(L"x\0y", 3), std::string("x\0y", 3), std::wstring(L"x\0y", 3)},
   };
   for (Row const& row : rows) {
      EXPECT_EQ(row.narrow, wstring2string(row.wide));
      EXPECT_EQ(row.back, string2wstring(row.narrow));
   }
   // A text of several bytes a character is not put together.
   EXPECT_EQ(L"\u00c3\u00a9", string2wstring("\xc3\xa9"));
}

TEST(Text, TellsEachStatusOfTheVm)
{
   struct Row {
      long status;
      wchar_t const* text;
   };
   Row const rows[] = {
         {0, L"OK"},
         {-1, L"Unknown error (-1)"},
         {-2, L"JVM Detached (-2)"},
         {-3, L"JNI Version Error (-3)"},
         {-4, L"Not enough JVM memory allocated (-4)"},
         {-5, L"VM already created (-5)"},
         {-6, L"Invalid JVM arguments (-6)"},
         {-7, L"Unknown JVM error -7"},
         {1, L"Unknown JVM error 1"},
         {-5000000000, L"Unknown JVM error -5000000000"},
   };
   for (Row const& row : rows) {
      EXPECT_EQ(row.text, jniResult(row.status));
   }
}

} // namespace
