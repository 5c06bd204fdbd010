// HLAinteger16LE: a signed integer of 16 bits, least significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAinteger16LE, Integer16)
