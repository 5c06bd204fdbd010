// What depends on compiler, language version and platform, for all public headers.
#ifndef RTI_SpecificConfig_h
#define RTI_SpecificConfig_h

// Marks what the shared libraries export; everything else in them is hidden.
#define RTI_EXPORT __attribute__((visibility("default")))
#define RTI_EXPORT_FEDTIME __attribute__((visibility("default")))

// RTI_THROW((A, B)): the exception list of an operation. Up to C++14 the language enforces it: an
// exception of a class outside the list ends the process through std::unexpected. From C++17 on
// the language has no such lists and the macro yields nothing; the library enforces its own lists
// for every caller, since it is compiled with them. Inner parentheses hold the list together. A
// definition from outside, as by -DRTI_THROW(list)=, stands.
//
// RTI_NOEXCEPT: an operation that lets no exception out.
#ifndef RTI_THROW
#if __cplusplus >= 201703L
#define RTI_THROW(list)
#else
#define RTI_THROW(list) throw list
#endif
#endif

#if __cplusplus >= 201103L
#define RTI_NOEXCEPT noexcept
#else
#define RTI_NOEXCEPT throw()
#endif

// Owning pointers of the interface are std::auto_ptr in every language version. libc++ hides that
// class from C++17 on unless asked before its first header is read.
#if __cplusplus >= 201703L && !defined(_LIBCPP_ENABLE_CXX17_REMOVED_AUTO_PTR)
#define _LIBCPP_ENABLE_CXX17_REMOVED_AUTO_PTR
#endif

// Public headers stand between these two. Exception lists, std::auto_ptr and the type long long
// belong to the standard interface, though some language versions deprecate or lack them; their
// use here is no fault of the federate that includes the headers.
#define RTI_PRAGMA(text) _Pragma(#text)
#define RTI_BEGIN_INTERFACE                                                                        \
   RTI_PRAGMA(GCC diagnostic push)                                                                 \
   RTI_PRAGMA(GCC diagnostic ignored "-Wdeprecated")                                               \
   RTI_PRAGMA(GCC diagnostic ignored "-Wdeprecated-declarations")                                  \
   RTI_PRAGMA(GCC diagnostic ignored "-Wlong-long")
#define RTI_END_INTERFACE RTI_PRAGMA(GCC diagnostic pop)

#endif
