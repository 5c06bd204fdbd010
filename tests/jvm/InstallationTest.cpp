// Where the library looks for its installation and the VM in it.
#include "jvm/Installation.h"
#include "jvm/JVM.h"
#include "jvm/Platform.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

using namespace tarn1516e;

namespace {

TEST(Installation, DirectoryOfAPathEndsInItsLastSlash)
{
   struct Row {
      char const* path;
      char const* directory;
   };
   Row const rows[] = {
         {"/opt/t/lib/x/librti1516e.so", "/opt/t/lib/x/"},
         {"/opt/t/lib/x/", "/opt/t/lib/x/"},
         {"./librti1516e.so", "./"},
         {"/librti1516e.so", "/"},
         {"librti1516e.so", "librti1516e.so"},
         {"", ""},
   };
   for (Row const& row : rows) {
      EXPECT_EQ(row.directory, getDirName(row.path));
   }
}

TEST(Installation, IsADirectoryWithTheMarker)
{
   Scratch const scratch;
   scratch.write("home/versioninfo.txt", "");
   scratch.write("other/readme.txt", "");
   std::string const path = scratch.path() + "/";
   EXPECT_TRUE(isTarnHome(path + "home/"));
   EXPECT_FALSE(isTarnHome(path + "home"));
   EXPECT_FALSE(isTarnHome(path + "other/"));
   EXPECT_FALSE(isTarnHome(path + "nowhere/"));
   EXPECT_TRUE(fileExists(path + "other"));
   EXPECT_FALSE(fileExists(path + "nowhere"));
   EXPECT_FALSE(fileExists(""));

   CurrentDirectory const current(path + "home");
   EXPECT_TRUE(isTarnHome(""));
}

// The program that this test is part of lies in no installation, so that the variable counts.
TEST(Installation, IsNamedByTheEnvironmentIfTheLibraryLiesInNone)
{
   Scratch const scratch;
   scratch.write("home/versioninfo.txt", "");
   scratch.write("other/readme.txt", "");
   struct Row {
      char const* below;
      char const* home;
   };
   Row const rows[] = {
         {"/home", "/home/"},
         {"/home/", "/home//"},
         {"/other", nullptr},
         {"/nowhere", nullptr},
   };
   for (Row const& row : rows) {
      setenv("TARN1516E_HOME", (scratch.path() + row.below).c_str(), 1);
      EXPECT_EQ(row.home != nullptr ? scratch.path() + row.home : "", findTarnHome()) << row.below;
   }
   unsetenv("TARN1516E_HOME");
   EXPECT_EQ("", findTarnHome());
}

TEST(Installation, HoldsAVmInOnePlace)
{
   Scratch const scratch;
   scratch.write(vmBelowHome, "");
   scratch.write("other/lib/server/libjvm.so", "");
   std::string const home = scratch.path() + "/";
   EXPECT_EQ(home + vmBelowHome, findJvm(home));
   EXPECT_EQ("", findJvm(home + "other/"));
   CurrentDirectory const current(home);
   EXPECT_EQ(vmBelowHome, findJvm(""));
}

TEST(Installation, CurrentDirectoryIsToldUpTo511Characters)
{
   Scratch const scratch;
   {
      CurrentDirectory const current(scratch.path());
      EXPECT_EQ(scratch.path(), get_current_path());
   }
   std::string const step = std::string(200, 'd') + "/";
   std::string const inner = scratch.place(step + step);
   {
      CurrentDirectory const current(inner);
      EXPECT_EQ(inner.substr(0, inner.size() - 1), get_current_path());
   }
   CurrentDirectory const current(scratch.place(step + step + step));
   EXPECT_EQ("<error retrieving current directory>", get_current_path());
}

} // namespace
