// HLAfloat64LE: an IEEE 754 number of 64 bits, least significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAfloat64LE, double)
