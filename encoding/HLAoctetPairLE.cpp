// HLAoctetPairLE: two bytes, second and then first.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAoctetPairLE, OctetPair)
