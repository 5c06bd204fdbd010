// A region: a range in each of its dimensions. Changed ranges take effect when they are committed.
package skerry.tarn1516e.standin;

import java.io.Serializable;
import java.util.Collection;
import java.util.HashMap;
import java.util.HashSet;
import java.util.Map;
import java.util.Set;

final class Region implements Serializable {
   private static final long serialVersionUID = 1L;

   final int handle;
   final Member creator;

   /** By dimension. */
   final HashMap<Integer, Range> ranges = new HashMap<>();

   /** The instances whose updates go, or once went, over the region. */
   transient HashSet<ObjectInstance> associated = new HashSet<>();

   private final HashMap<Integer, Range> _committed = new HashMap<>();

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

   boolean overlapsAny(Collection<Region> others) {
      return others.stream().anyMatch(this::overlaps);
   }

   /** Dimensions that only one of the two has do not count. */
   private boolean overlaps(Region other) {
      for (Map.Entry<Integer, Range> range : _committed.entrySet()) {
         Range met = other._committed.get(range.getKey());
         if (met != null && !met.overlaps(range.getValue())) {
            return false;
         }
      }
      return true;
   }
}
