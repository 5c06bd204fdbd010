// HLAinteger32BE: a signed integer of 32 bits, most significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAinteger32BE, Integer32)
