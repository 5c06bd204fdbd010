// HLAoctetPairBE: two bytes, first and then second.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAoctetPairBE, OctetPair)
