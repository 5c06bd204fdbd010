// HLAinteger32LE: a signed integer of 32 bits, least significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAinteger32LE, Integer32)
