// HLAbyte: eight bits.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAbyte, char)
