// HLAunicodeChar: a UTF-16 unit, most significant byte first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAunicodeChar, wchar_t)
