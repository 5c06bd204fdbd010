// HLAunicodeString: UTF-16 units behind their number.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAunicodeString, std::wstring)
