// Attributes of a class or an instance, and the regions that go with all of them.
package skerry.tarn1516e.standin;

import java.util.Set;

public final class AttributeRegions {
   final Set<Integer> attributes;
   final Set<Integer> regions;

   AttributeRegions(Set<Integer> attributes, Set<Integer> regions) {
      this.attributes = attributes;
      this.regions = regions;
   }
}
