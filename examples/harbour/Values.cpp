#include "Values.h"

#include <RTI/encoding/BasicDataElements.h>
#include <RTI/encoding/HLAfixedRecord.h>
#include <RTI/encoding/HLAvariableArray.h>

using namespace rti1516e;

namespace {

VariableLengthData encodePosition(double x, double y)
{
   HLAfixedRecord position;
   position.appendElement(HLAfloat64BE(x));
   position.appendElement(HLAfloat64BE(y));
   return position.encode();
}

VariableLengthData encodeCargo(std::vector<std::wstring> const& cargo)
{
   HLAunicodeString const prototype;
   HLAvariableArray array(prototype);
   for (std::wstring const& item : cargo) {
      array.addElement(HLAunicodeString(item));
   }
   return array.encode();
}

void decodePosition(VariableLengthData const& data, double& x, double& y)
{
   HLAfloat64BE east(&x); // decoding writes through to the caller's variables
   HLAfloat64BE north(&y);
   HLAfixedRecord position;
   position.appendElementPointer(&east);
   position.appendElementPointer(&north);
   position.decode(data);
}

std::vector<std::wstring> decodeCargo(VariableLengthData const& data)
{
   HLAunicodeString const prototype;
   HLAvariableArray array(prototype);
   array.decode(data);
   std::vector<std::wstring> cargo;
   for (unsigned long i = 0; i < array.size(); ++i) {
      cargo.push_back(dynamic_cast<HLAunicodeString const&>(array[i]));
   }
   return cargo;
}

} // namespace

std::wstring const federation = L"Harbour";
std::wstring const start = L"ReadyToSail";
std::wstring const seen = L"SeenByLookout";

bool operator==(Ship const& left, Ship const& right)
{
   return left.name == right.name && left.x == right.x && left.y == right.y
         && left.cargo == right.cargo;
}

bool operator==(Signal const& left, Signal const& right)
{
   return left.text == right.text && left.strength == right.strength;
}

VariableLengthData tagOf(std::wstring const& text)
{
   std::string const narrow(text.begin(), text.end());
   return VariableLengthData(narrow.data(), narrow.size());
}

std::wstring textOf(VariableLengthData const& tag)
{
   char const* const bytes = static_cast<char const*>(tag.data());
   return std::wstring(bytes, bytes + tag.size());
}

VariableLengthData encodeText(std::wstring const& text)
{
   return HLAunicodeString(text).encode();
}

VariableLengthData encodeStrength(int strength)
{
   return HLAinteger32BE(strength).encode();
}

std::wstring decodeText(VariableLengthData const& data)
{
   HLAunicodeString text;
   text.decode(data);
   return text;
}

int decodeStrength(VariableLengthData const& data)
{
   HLAinteger32BE strength;
   strength.decode(data);
   return strength;
}

void ShipClass::find(Ambassador& rti)
{
   handle = rti->getObjectClassHandle(L"Ship");
   name = rti->getAttributeHandle(handle, L"Name");
   position = rti->getAttributeHandle(handle, L"Position");
   cargo = rti->getAttributeHandle(handle, L"Cargo");
}

AttributeHandleSet ShipClass::attributes() const
{
   AttributeHandleSet all;
   all.insert(name);
   all.insert(position);
   all.insert(cargo);
   return all;
}

AttributeHandleValueMap ShipClass::encode(Ship const& ship) const
{
   AttributeHandleValueMap values;
   values[name] = encodeText(ship.name);
   values[position] = encodePosition(ship.x, ship.y);
   values[cargo] = encodeCargo(ship.cargo);
   return values;
}

void ShipClass::decode(AttributeHandleValueMap const& values, Ship& ship) const
{
   for (AttributeHandleValueMap::value_type const& value : values) {
      if (value.first == name) {
         ship.name = decodeText(value.second);
      } else if (value.first == position) {
         decodePosition(value.second, ship.x, ship.y);
      } else if (value.first == cargo) {
         ship.cargo = decodeCargo(value.second);
      }
   }
}
