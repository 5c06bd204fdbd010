// HLAfloat64BE: an IEEE 754 number of 64 bits, most significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAfloat64BE, double)
