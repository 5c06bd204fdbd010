// HLAinteger64BE: a signed integer of 64 bits, most significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAinteger64BE, Integer64)
