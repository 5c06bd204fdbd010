// HLAboolean: a truth value in four bytes.
#include "encoding/BasicDataElement.h"

RTI_DEFINE_SCALAR(HLAboolean, bool)
