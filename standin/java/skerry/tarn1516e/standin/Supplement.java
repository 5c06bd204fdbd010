// What comes with a message beside its content: who sent it, and over which regions.
package skerry.tarn1516e.standin;

import java.util.Set;

final class Supplement {
   /** A federate handle, or 0 for none. */
   final int producer;

   /** Null for none. */
   final Set<Integer> regions;

   Supplement(int producer, Set<Integer> regions) {
      this.producer = producer;
      this.regions = regions;
   }
}
