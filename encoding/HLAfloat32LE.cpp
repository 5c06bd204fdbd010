// HLAfloat32LE: an IEEE 754 number of 32 bits, least significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAfloat32LE, float)
