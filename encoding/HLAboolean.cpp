// HLAboolean: a truth value in four bytes.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAboolean, bool)
