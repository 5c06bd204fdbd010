// The part of a dimension from a lower bound up to, not including, an upper bound.
package skerry.tarn1516e.standin;

import java.io.Serializable;

public final class Range implements Serializable {
   private static final long serialVersionUID = 1L;

   final long lower;
   final long upper;

   Range(long lower, long upper) {
      this.lower = lower;
      this.upper = upper;
   }

   boolean overlaps(Range other) {
      return lower < other.upper && other.lower < upper;
   }
}
