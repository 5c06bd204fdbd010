// HLAASCIIchar: one character of 8 bits.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAASCIIchar, char)
