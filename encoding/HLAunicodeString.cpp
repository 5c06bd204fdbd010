// HLAunicodeString: UTF-16 units behind their number.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAunicodeString, std::wstring)
