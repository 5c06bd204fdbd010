// A range of a dimension.
#ifndef RTI_RangeBounds_h
#define RTI_RangeBounds_h

#include <RTI/SpecificConfig.h>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// The part of a dimension from the lower bound up to, and without, the upper bound. Nothing here
/// tests that the one lies below the other.
class RTI_EXPORT RangeBounds {
public:
   /// Both bounds are whatever was in memory: set them before use.
   RangeBounds();

   /// Those bounds.
   RangeBounds(unsigned long lowerBound, unsigned long upperBound);

   /// Reads and sets one bound; the other one stays.
   unsigned long getLowerBound() const;
   unsigned long getUpperBound() const;
   void setLowerBound(unsigned long lowerBound);
   void setUpperBound(unsigned long upperBound);

private:
   unsigned long _lowerBound;
   unsigned long _upperBound;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
