// HLAbyte: eight bits.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAbyte, char)
