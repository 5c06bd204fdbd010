// HLAoctetPairBE: two bytes, first and then second.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAoctetPairBE, OctetPair)
