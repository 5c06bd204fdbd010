// HLAinteger32LE: a signed integer of 32 bits, least significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAinteger32LE, Integer32)
