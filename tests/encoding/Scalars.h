// Values of every scalar and string class with their encoded bytes.
#ifndef tests_encoding_Scalars_h
#define tests_encoding_Scalars_h

#include <limits>
#include <RTI/encoding/BasicDataElements.h>
#include <string>
#include <utility>

// X(class, value type, value, its bytes). Each class once with a value whose bytes all differ, and
// where the value has a sign, with a negative one.
#define FOR_EACH_GOLDEN_VALUE(X)                                                                   \
   X(HLAASCIIchar, char, 'A', "41")                                                                \
   X(HLAbyte, char, '\x7F', "7F")                                                                  \
   X(HLAoctet, char, '\xFE', "FE")                                                                 \
   X(HLAboolean, bool, true, "00 00 00 01")                                                        \
   X(HLAboolean, bool, false, "00 00 00 00")                                                       \
   X(HLAunicodeChar, wchar_t, L'\x20AC', "20 AC")                                                  \
   X(HLAinteger16BE, short, 0x0102, "01 02")                                                       \
   X(HLAinteger16LE, short, 0x0102, "02 01")                                                       \
   X(HLAinteger16BE, short, -2, "FF FE")                                                           \
   X(HLAinteger16LE, short, -2, "FE FF")                                                           \
   X(HLAinteger32BE, int, 0x01020304, "01 02 03 04")                                               \
   X(HLAinteger32LE, int, 0x01020304, "04 03 02 01")                                               \
   X(HLAinteger32BE, int, -2, "FF FF FF FE")                                                       \
   X(HLAinteger32LE, int, -2, "FE FF FF FF")                                                       \
   X(HLAinteger64BE, Integer64, 0x0102030405060708, "01 02 03 04 05 06 07 08")                     \
   X(HLAinteger64LE, Integer64, 0x0102030405060708, "08 07 06 05 04 03 02 01")                     \
   X(HLAinteger64BE, Integer64, -2, "FF FF FF FF FF FF FF FE")                                     \
   X(HLAinteger64LE, Integer64, -2, "FE FF FF FF FF FF FF FF")                                     \
   X(HLAfloat32BE, float, 1.1F, "3F 8C CC CD")                                                     \
   X(HLAfloat32LE, float, -1.1F, "CD CC 8C BF")                                                    \
   X(HLAfloat64BE, double, 1.1, "3F F1 99 99 99 99 99 9A")                                         \
   X(HLAfloat64LE, double, -1.1, "9A 99 99 99 99 99 F1 BF")                                        \
   X(HLAfloat64BE, double, std::numeric_limits<double>::infinity(), "7F F0 00 00 00 00 00 00")     \
   X(HLAoctetPairBE, OctetPair, OctetPair('\x41', '\xFE'), "41 FE")                                \
   X(HLAoctetPairLE, OctetPair, OctetPair('\x41', '\xFE'), "FE 41")                                \
   X(HLAASCIIstring, std::string, std::string("AB"), "00 00 00 02 41 42")                          \
   X(HLAASCIIstring, std::string, std::string("\0\xFF", 2), "00 00 00 02 00 FF")                   \
   X(HLAASCIIstring, std::string, std::string(), "00 00 00 00")                                    \
   X(HLAunicodeString, std::wstring, std::wstring(L"AB"), "00 00 00 02 00 41 00 42")               \
   X(HLAunicodeString, std::wstring, std::wstring(L"\x20AC"), "00 00 00 01 20 AC")                 \
   X(HLAunicodeString, std::wstring, std::wstring(), "00 00 00 00")

#endif
