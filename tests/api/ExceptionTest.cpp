// The exception classes: alike, unrelated, each caught as itself and as Exception.
#include <gtest/gtest.h>
#include <RTI/Exception.h>
#include <set>
#include <type_traits>
#include <typeindex>
#include <vector>

using namespace rti1516e;

namespace {

// Throws an A by value and tells what a handler for anything but A or its base gets to see.
template <class A>
std::wstring messageInBase(std::wstring const& message)
{
   try {
      throw A(message);
   } catch (Exception const& exception) {
      return typeid(exception) == typeid(A) ? exception.what() : L"another class";
   }
}

template <class A>
std::wstring messageInOwnClass(A exception)
{
   A const before(exception);
   exception = A(L"replaced");
   try {
      throw before;
   } catch (A const& caught) {
      return caught.what();
   }
}

struct ExceptionRow {
   std::type_index type;
   std::wstring text;
   std::wstring inBase;
   std::wstring inOwnClass;
};

#define EXCEPTION_ROW(A)                                                                           \
   {typeid(A), L"of " #A, messageInBase<A>(L"of " #A), messageInOwnClass(A(L"of " #A))},

TEST(ExceptionTest, keepsItsMessageAndIsCaughtByClassAndByBase)
{
   std::vector<ExceptionRow> const rows = {RTI_FOR_EACH_EXCEPTION(EXCEPTION_ROW)};
   std::set<std::type_index> types;
   for (ExceptionRow const& row : rows) {
      types.insert(row.type);
      EXPECT_EQ(row.text, row.inBase);
      EXPECT_EQ(row.text, row.inOwnClass);
   }
   EXPECT_EQ(122u, types.size());
}

TEST(ExceptionTest, addsNothingToTheMessage)
{
   EXPECT_EQ(L"", RTIinternalError(L"").what());
}

TEST(ExceptionTest, hasNoHierarchy)
{
   EXPECT_FALSE((std::is_base_of<EncoderException, CouldNotEncode>::value));
   EXPECT_FALSE((std::is_base_of<InternalError, RTIinternalError>::value));
   EXPECT_FALSE((std::is_base_of<RTIinternalError, FederateInternalError>::value));
   EXPECT_TRUE(std::is_abstract<Exception>::value);
   EXPECT_FALSE(std::is_default_constructible<RTIinternalError>::value);
}

} // namespace
