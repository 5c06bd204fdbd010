// The worked examples of the wire format: writes the service's body in hexadecimal digits, and
// reads the callback's frame, given in the same form, and tells what it holds.
#include "api/HandleFriends.h"
#include "gen/cpp/CallbackFrame.h"
#include "gen/cpp/Decoder.h"
#include "gen/cpp/Encoder.h"

#include <cstdio>
#include <iostream>
#include <string>

using namespace rti1516e;
using namespace tarn1516e;

namespace {

std::string textOf(VariableLengthData const& data)
{
   return std::string(static_cast<char const*>(data.data()), data.size());
}

void writeBody()
{
   AttributeHandleValueMap values;
   values[makeAttributeHandle(7)] = VariableLengthData("\xca\xfe", 2);
   VariableLengthData const tag("go", 2);
   CppWrapper<ObjectInstanceHandle> object(nullptr, makeObjectInstanceHandle(258));
   CppWrapper<AttributeHandleValueMap const&> wrappedValues(nullptr, values);
   CppWrapper<VariableLengthData const&> wrappedTag(nullptr, tag);

   std::string body(
         object.getEncodedSize() + wrappedValues.getEncodedSize() + wrappedTag.getEncodedSize(), 0);
   ByteWrapper buffer(&body[0]);
   object.encode(buffer);
   wrappedValues.encode(buffer);
   wrappedTag.encode(buffer);
   for (char const byte : body) {
      std::printf("%02X", static_cast<unsigned char>(byte));
   }
   std::printf("\n");
}

void readFrame(std::string const& digits)
{
   std::string frame;
   for (std::string::size_type i = 0; i + 1 < digits.size(); i += 2) {
      frame += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
   }
   ByteWrapper buffer(&frame[0]);
   bool const begins = buffer.getInt() == PRE_MAGIC;
   int const ambassador = buffer.getInt();
   JavaObjectInstanceHandle object(nullptr, buffer);
   JavaAttributeHandleValueMap values(nullptr, buffer);
   JavaByteArray tag(nullptr, buffer);
   JavaOrderType order(nullptr, buffer);
   JavaTransportationTypeHandle transportation(nullptr, buffer);
   JavaSupplementalReflectInfo info(nullptr, buffer);
   bool const ends =
         buffer.getInt() == POST_MAGIC && buffer.getPtr() == buffer.array() + frame.size();

   AttributeHandleValueMap const& map = values;
   SupplementalReflectInfo const& supplement = info;
   std::wcout << L"frame " << (begins && ends) << L", ambassador " << ambassador << L", object "
              << (static_cast<ObjectInstanceHandle const&>(object) == makeObjectInstanceHandle(258))
              << L", value "
              << (map.size() == 1 && map.begin()->first == makeAttributeHandle(7)
                       && textOf(map.begin()->second) == "\xca\xfe")
              << L", tag " << (textOf(tag) == "go") << L", order "
              << (static_cast<OrderType const&>(order) == RECEIVE) << L", transportation "
              << (static_cast<TransportationType const&>(transportation) == RELIABLE)
              << L", federate "
              << (supplement.hasProducingFederate
                       && supplement.producingFederate == makeFederateHandle(3)
                       && supplement.sentRegions.empty())
              << std::endl;
}

} // namespace

int main(int, char** argv)
{
   writeBody();
   readFrame(argv[1]);
}
