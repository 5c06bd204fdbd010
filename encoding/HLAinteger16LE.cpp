// HLAinteger16LE: a signed integer of 16 bits, least significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAinteger16LE, Integer16)
