// The one exception of the encoding helpers.
#ifndef RTI_EncodingExceptions_h
#define RTI_EncodingExceptions_h

/// rti1516e::EncoderException is declared with the other exceptions.
#include <RTI/Exception.h>

#endif
