// What the platform writes when one of the library's assertions fails.
#ifndef tests_gen_Assertion_h
#define tests_gen_Assertion_h

#include <string>

// For a death test. The file is told from a folder beside the root, the function without its class.
inline std::string failedAssertion(
      std::string const& condition, std::string const& function, std::string const& file)
{
#if defined(__APPLE__)
   return "Assertion failed: \\(" + condition + "\\), function " + function + ", file \\.\\./"
         + file + "\\.cpp, line [0-9]+\\.";
#else
   return ": \\.\\./" + file + "\\.cpp:[0-9]+: " + function + ": Assertion `" + condition
         + "' failed\\.";
#endif
}

#endif
