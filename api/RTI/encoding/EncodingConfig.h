// The types that the encoding helpers hold and write.
#ifndef RTI_EncodingConfig_h
#define RTI_EncodingConfig_h

#include <RTI/SpecificConfig.h>
#include <utility>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// One byte of encoded data, also the value of HLAoctet, HLAbyte and HLAASCIIchar.
typedef char Octet;

/// Two bytes, first and second; the value of HLAoctetPairBE and HLAoctetPairLE.
typedef std::pair<Octet, Octet> OctetPair;

/// Signed integers of 8, 16, 32 and 64 bits. Integer64 is long long also where long has 64 bits.
typedef char Integer8;
typedef short Integer16;
typedef int Integer32;
typedef long long Integer64;

} // namespace rti1516e

RTI_END_INTERFACE

#endif
