// HLAASCIIstring: characters of 8 bits behind their number.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAASCIIstring, std::string)
