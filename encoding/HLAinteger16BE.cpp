// HLAinteger16BE: a signed integer of 16 bits, most significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAinteger16BE, Integer16)
