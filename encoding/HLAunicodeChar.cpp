// HLAunicodeChar: a UTF-16 unit, most significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAunicodeChar, wchar_t)
