// The options of a new VM: from the class path, the environment and the file, in their order.
#include "jvm/JVM.h"
#include "tests/support/Scratch.h"

#include <cstring>
#include <gtest/gtest.h>
#include <vector>

using namespace tarn1516e;

namespace {

typedef std::vector<std::string> Texts;

char marker; // what an extraInfo points to that nobody has touched

class Options : public testing::Test {
protected:
   Options() : _current(_scratch.path())
   {
      for (char const* const variable : {"CLASSPATH", "TARN_ENABLEBUNDLING", "TARN_SINGLETHREAD",
                 "TARN_VERBOSEJNI", "TARN1516E_HOME", "TARN1516E_TRACE_LOAD"}) {
         unsetenv(variable);
      }
      for (int i = 0; i <= 25; ++i) {
         unsetenv(("TARN1516_OPTION" + std::to_string(i)).c_str());
      }
   }

   // The texts that loadOptions gives.
   Texts load(std::string const& home, int maxOptions = 50)
   {
      JavaVMOption options[64];
      for (JavaVMOption& option : options) {
         option.extraInfo = &marker;
      }
      int count = 0;
      loadOptions(options, count, maxOptions, home);
      Texts texts;
      for (int i = 0; i < count; ++i) {
         texts.push_back(options[i].optionString);
         bool const isDefault = texts.back() == "-Xss1024k" && i == count - 1;
         EXPECT_EQ(isDefault ? nullptr : &marker, options[i].extraInfo) << texts.back();
         delete[] options[i].optionString;
      }
      return texts;
   }

   Scratch _scratch;
   CurrentDirectory _current;
};

struct OptionsRow {
   char const* name;
   Texts environment; // "NAME=value"
   char const* file;  // content of tarn.vmoptions; null for no file
   Texts texts;       // behind the five that are always there
};

OptionsRow const ROWS[] = {
      {"nothing", {}, nullptr, {"-Xss1024k"}},
      {"first and last variable", {"TARN1516_OPTION1=-Da=1", "TARN1516_OPTION19=-Db=2"}, nullptr,
            {"-Da=1", "-Db=2", "-Xss1024k"}},
      {"by number, with gaps",
            {"TARN1516_OPTION10=ten", "TARN1516_OPTION9=nine", "TARN1516_OPTION2=two"}, nullptr,
            {"two", "nine", "ten", "-Xss1024k"}},
      {"no such number", {"TARN1516_OPTION20=-Da", "TARN1516_OPTION0=-Db"}, nullptr, {"-Xss1024k"}},
      {"an empty variable", {"TARN1516_OPTION3="}, nullptr, {"", "-Xss1024k"}},
      {"a variable as it stands", {"TARN1516_OPTION3=# -Da b "}, nullptr,
            {"# -Da b ", "-Xss1024k"}},
      {"a variable's stack size", {"TARN1516_OPTION7=-Xss2m"}, nullptr, {"-Xss2m"}},
      {"the file's stack size", {}, "-Da\n-Xss512k\n-Db\n", {"-Da", "-Xss512k", "-Db"}},
      {"anything that begins so", {}, "-Xssfoo\n", {"-Xssfoo"}},
      {"nearly so", {"TARN1516_OPTION7= -Xss2m"}, "-xss1m\n-Xs\n",
            {" -Xss2m", "-xss1m", "-Xs", "-Xss1024k"}},
      {"variables before the file", {"TARN1516_OPTION19=variable"}, "file\n",
            {"variable", "file", "-Xss1024k"}},
      {"comments", {}, "#-Xmx1g\n-Da\n#\n #-Xmx1g\n-Db#c\n",
            {"-Da", " #-Xmx1g", "-Db#c", "-Xss1024k"}},
      {"blanks", {}, "\n  \n\t-Da \n\n\n", {"  ", "\t-Da ", "-Xss1024k"}},
      {"carriage returns", {}, "-Da\r\n\r\n-Xss3m\r\n", {"-Da\r", "\r", "-Xss3m\r"}},
      {"no last line feed", {}, "-Da\n-Db", {"-Da", "-Db", "-Xss1024k"}},
      {"a comment without line feed", {}, "-Da\n#-Db", {"-Da", "-Xss1024k"}},
      {"an empty file", {}, "", {"-Xss1024k"}},
};

TEST_F(Options, FollowTheFiveThatAreAlwaysThere)
{
   for (OptionsRow const& row : ROWS) {
      for (std::string const& setting : row.environment) {
         std::string::size_type const equals = setting.find('=');
         setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
      }
      if (row.file != nullptr) {
         _scratch.write("tarn.vmoptions", row.file);
      }
      Texts expected = {"-Djava.class.path=", "-DTarn.libraryName=rti1516", "", "", ""};
      expected.insert(expected.end(), row.texts.begin(), row.texts.end());
      EXPECT_EQ(expected, load("")) << row.name;
      for (std::string const& setting : row.environment) {
         unsetenv(setting.substr(0, setting.find('=')).c_str());
      }
      std::remove("tarn.vmoptions");
   }
}

// Any value switches an option on.
TEST_F(Options, AreSwitchedByThePresenceOfAVariable)
{
   struct Row {
      char const* variable;
      Texts::size_type place;
      char const* text;
   };
   Row const rows[] = {
         {"TARN_ENABLEBUNDLING", 2, "-DenableBundling=true"},
         {"TARN_SINGLETHREAD", 3, "-Dsinglethread=true"},
         {"TARN_VERBOSEJNI", 4, "-verbose:jni"},
   };
   for (Row const& row : rows) {
      for (char const* const value : {"", "false", "1"}) {
         Texts expected = {
               "-Djava.class.path=", "-DTarn.libraryName=rti1516", "", "", "", "-Xss1024k"};
         expected[row.place] = row.text;
         setenv(row.variable, value, 1);
         EXPECT_EQ(expected, load("")) << row.variable << "=" << value;
         unsetenv(row.variable);
      }
   }
}

TEST_F(Options, BeginWithTheClassPath)
{
   _scratch.write("home/lib/tarn1516e.jar", "");
   std::string const home = _scratch.path() + "/home/";
   std::string const jar = home + "lib/tarn1516e.jar";
   struct Row {
      char const* classPath;
      std::string home;
      std::string option;
   };
   Row const rows[] = {
         {nullptr, home, "-Djava.class.path=:" + jar},
         {"", home, "-Djava.class.path=:" + jar},
         {"a.jar:b", home, "-Djava.class.path=a.jar:b:" + jar},
         {"a.jar:b", home + "lib/", "-Djava.class.path=a.jar:b"},
         {nullptr, home + "lib/", "-Djava.class.path="},
         {"a.jar", "", "-Djava.class.path=a.jar"},
   };
   for (Row const& row : rows) {
      if (row.classPath != nullptr) {
         setenv("CLASSPATH", row.classPath, 1);
      }
      EXPECT_EQ(row.option, load(row.home).front());
      unsetenv("CLASSPATH");
   }
   // Without a home the jar is looked for below the current directory.
   _scratch.write("lib/tarn1516e.jar", "");
   EXPECT_EQ("-Djava.class.path=:lib/tarn1516e.jar", load("").front());
}

std::string lines(int count)
{
   std::string text;
   for (int i = 1; i <= count; ++i) {
      text += "-Dline=" + std::to_string(i) + "\n";
   }
   return text;
}

TEST_F(Options, OfTheFileEndAtTheBound)
{
   struct Row {
      int lines;
      int maxOptions;
      Texts::size_type count;
      char const* last;
   };
   Row const rows[] = {
         {44, 50, 50, "-Dline=44"},
         {45, 50, 51, "-Dline=45"},
         {46, 50, 51, "-Dline=45"},
         {60, 50, 51, "-Dline=45"},
         {60, 5, 6, ""},
         {60, 7, 8, "-Dline=2"},
   };
   for (Row const& row : rows) {
      _scratch.write("tarn.vmoptions", lines(row.lines));
      Texts const texts = load("", row.maxOptions);
      ASSERT_EQ(row.count, texts.size()) << row.lines;
      EXPECT_EQ(row.last, texts[row.count - 2]) << row.lines;
      EXPECT_EQ("-Xss1024k", texts.back()) << row.lines;
   }
   // The variables are not bounded; the file then has less room.
   for (int i = 1; i <= 19; ++i) {
      setenv(("TARN1516_OPTION" + std::to_string(i)).c_str(), "-Dvariable", 1);
   }
   EXPECT_EQ("-Dline=26", load("")[49]);
   EXPECT_EQ(51u, load("").size());
   EXPECT_EQ(25u, load("", 3).size());
   // A stack size that stands behind the bound is not seen.
   _scratch.write("tarn.vmoptions", lines(26) + "-Xss9m\n");
   EXPECT_EQ("-Xss1024k", load("").back());
}

TEST(HasOption, LooksAtTheBeginningOfEachText)
{
   char first[] = "-Da=-Xss1m";
   char second[] = "-Xs";
   char third[] = "-Xss2m";
   JavaVMOption options[] = {{first, nullptr}, {second, nullptr}, {third, nullptr}};
   struct Row {
      int count;
      char const* prefix;
      bool found;
   };
   Row const rows[] = {{0, "", false}, {1, "", true}, {2, "-Xss", false}, {3, "-Xss", true},
         {3, "-Xss2mm", false}, {3, "-Da=-Xss1m", true}};
   for (Row row : rows) {
      EXPECT_EQ(row.found, hasOption(row.count, options, row.prefix)) << row.prefix;
   }
}

} // namespace
