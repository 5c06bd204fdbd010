// The exception classes, each from the one list in the header.
#include <RTI/Exception.h>

namespace rti1516e {

Exception::Exception() {}

Exception::Exception(Exception const&) {}

Exception& Exception::operator=(Exception const&)
{
   return *this;
}

Exception::~Exception() {}

#define DEFINE_EXCEPTION(A)                                                                        \
   A::A(std::wstring const& message) RTI_NOEXCEPT : _message(message) {}                           \
   A::A(A const&) = default;                                                                       \
   A& A::operator=(A const&) = default;                                                            \
   A::~A() {}                                                                                      \
   std::wstring A::what() const RTI_NOEXCEPT                                                       \
   {                                                                                               \
      return _message;                                                                             \
   }

RTI_FOR_EACH_EXCEPTION(DEFINE_EXCEPTION)

} // namespace rti1516e
