// A subscription to one attribute of a class or to an interaction class: over the whole space, over
// regions, or both.
package skerry.tarn1516e.standin;

import java.util.HashSet;
import java.util.Set;

final class Interest {
   boolean isWhole;
   boolean isActive;
   String updateRate = "";
   final Set<Region> regions = new HashSet<>();

   boolean isEmpty() {
      return !isWhole && regions.isEmpty();
   }

   /** Whether it meets what is sent over these regions, or over the whole space if there are
       none. */
   boolean meets(Set<Region> sentOver) {
      if (isWhole || sentOver.isEmpty()) {
         return true;
      }
      for (Region region : regions) {
         for (Region sent : sentOver) {
            if (region.overlaps(sent)) {
               return true;
            }
         }
      }
      return false;
   }
}
