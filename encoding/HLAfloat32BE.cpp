// HLAfloat32BE: an IEEE 754 number of 32 bits, most significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAfloat32BE, float)
