// HLAfloat64LE: an IEEE 754 number of 64 bits, least significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAfloat64LE, double)
