// HLAlogicalTimeFactoryFactory under the header name of its own; it is declared with the others.
#ifndef RTI_HLAlogicalTimeFactoryFactory_h
#define RTI_HLAlogicalTimeFactoryFactory_h

#include <RTI/LogicalTimeFactory.h>

#endif
