// HLAfloat32LE: an IEEE 754 number of 32 bits, least significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAfloat32LE, float)
