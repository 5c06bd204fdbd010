// HLAinteger64LE: a signed integer of 64 bits, least significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAinteger64LE, Integer64)
