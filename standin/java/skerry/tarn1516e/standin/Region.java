// A region: a range in each of its dimensions. Changed ranges take effect when they are committed.
package skerry.tarn1516e.standin;

import java.util.HashMap;
import java.util.Map;
import java.util.Set;

final class Region {
   final int handle;
   final Member creator;

   /** By dimension. */
   final Map<Integer, Range> ranges = new HashMap<>();

   private final Map<Integer, Range> _committed = new HashMap<>();

   Region(int handle, Member creator, Set<Integer> dimensions) {
      this.handle = handle;
      this.creator = creator;
      Fom fom = creator.federation().fom();
      for (int dimension : dimensions) {
         ranges.put(dimension, new Range(0, fom.dimensions.get(dimension).upperBound));
      }
      commit();
   }

   void commit() {
      _committed.putAll(ranges);
   }

   /** Dimensions that only one of the two has do not count. */
   boolean overlaps(Region other) {
      for (Map.Entry<Integer, Range> range : _committed.entrySet()) {
         Range met = other._committed.get(range.getKey());
         if (met != null && !met.overlaps(range.getValue())) {
            return false;
         }
      }
      return true;
   }
}
