// HLAoctetPairLE: two bytes, second and then first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_BASIC_DATA_ELEMENT(HLAoctetPairLE, OctetPair)
