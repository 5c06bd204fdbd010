// What the federates of the harbour tell each other, and how it is encoded.
#ifndef harbour_Values_h
#define harbour_Values_h

#include <RTI/VariableLengthData.h>

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
rti1516e::VariableLengthData encodePosition(double x, double y);
rti1516e::VariableLengthData encodeCargo(std::vector<std::wstring> const& cargo);
rti1516e::VariableLengthData encodeStrength(int strength);

std::wstring decodeText(rti1516e::VariableLengthData const& data);
void decodePosition(rti1516e::VariableLengthData const& data, double& x, double& y);
std::vector<std::wstring> decodeCargo(rti1516e::VariableLengthData const& data);
int decodeStrength(rti1516e::VariableLengthData const& data);

#endif
