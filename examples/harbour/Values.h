// What the federates of the harbour tell each other, and how it is encoded.
#ifndef harbour_Values_h
#define harbour_Values_h

#include "../Ambassador.h"

#include <string>
#include <vector>

// The federation execution, and the synchronization points at which its federates wait for each
// other: before the first ship sails, and when the lookout has seen everything.
extern std::wstring const federation;
extern std::wstring const start;
extern std::wstring const seen;

// The attributes of object class Ship.
struct Ship {
   std::wstring name;
   double x = 0; // metres east of the harbour's mouth
   double y = 0; // metres north of it
   std::vector<std::wstring> cargo;
};

// The parameters of interaction class Signal.
struct Signal {
   std::wstring text;
   int strength = 0; // 0 to 100
};

bool operator==(Ship const& left, Ship const& right);
bool operator==(Signal const& left, Signal const& right);

// Tags are texts of ASCII letters.
rti1516e::VariableLengthData tagOf(std::wstring const& text);
std::wstring textOf(rti1516e::VariableLengthData const& tag);

// Name and text are an HLAunicodeString, the position is an HLAfixedRecord of two HLAfloat64BE, the
// cargo an HLAvariableArray of HLAunicodeString, the strength an HLAinteger32BE. What can't be
// decoded throws EncoderException.
rti1516e::VariableLengthData encodeText(std::wstring const& text);
rti1516e::VariableLengthData encodeStrength(int strength);

std::wstring decodeText(rti1516e::VariableLengthData const& data);
int decodeStrength(rti1516e::VariableLengthData const& data);

// Object class Ship, as one federate knows it.
struct ShipClass {
   // Asks for the handles.
   void find(Ambassador& rti);

   rti1516e::AttributeHandleSet attributes() const;
   rti1516e::AttributeHandleValueMap encode(Ship const& ship) const;

   // The values may be of any of the attributes; of the others the last value stays.
   void decode(rti1516e::AttributeHandleValueMap const& values, Ship& ship) const;

   rti1516e::ObjectClassHandle handle;
   rti1516e::AttributeHandle name, position, cargo;
};

#endif
