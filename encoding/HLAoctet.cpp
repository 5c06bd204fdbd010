// HLAoctet: eight bits.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAoctet, Octet)
