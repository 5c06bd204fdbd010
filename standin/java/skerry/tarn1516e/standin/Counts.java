// How much one member has sent and received, as the management object model tells it.
package skerry.tarn1516e.standin;

import java.io.Serializable;
import java.util.HashMap;
import java.util.HashSet;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;

final class Counts implements Serializable {
   private static final long serialVersionUID = 1L;

   int registered;
   int discovered;
   int deleted;
   int removed;

   /** By transportation, then by class. */
   final TreeMap<Integer, Map<Integer, Integer>> updatesSent = new TreeMap<>();
   final TreeMap<Integer, Map<Integer, Integer>> reflectionsReceived = new TreeMap<>();
   final TreeMap<Integer, Map<Integer, Integer>> interactionsSent = new TreeMap<>();
   final TreeMap<Integer, Map<Integer, Integer>> interactionsReceived = new TreeMap<>();

   /** The instances updated or reflected so far, by class. */
   final HashMap<Integer, Set<Integer>> updated = new HashMap<>();
   final HashMap<Integer, Set<Integer>> reflected = new HashMap<>();

   void updated(ObjectInstance instance, int transportation) {
      add(updatesSent, transportation, instance.objectClass);
      updated.computeIfAbsent(instance.objectClass, none -> new HashSet<>()).add(instance.handle);
   }

   void reflected(ObjectInstance instance, int transportation) {
      add(reflectionsReceived, transportation, instance.objectClass);
      reflected.computeIfAbsent(instance.objectClass, none -> new HashSet<>())
            .add(instance.handle);
   }

   void sent(int interaction, int transportation) {
      add(interactionsSent, transportation, interaction);
   }

   void received(int interaction, int transportation) {
      add(interactionsReceived, transportation, interaction);
   }

   private static void add(
         Map<Integer, Map<Integer, Integer>> to, int transportation, int counted) {
      to.computeIfAbsent(transportation, none -> new TreeMap<>()).merge(counted, 1, Integer::sum);
   }

   static int total(Map<Integer, Map<Integer, Integer>> counts) {
      return counts.values().stream().flatMap(each -> each.values().stream())
            .mapToInt(Integer::intValue).sum();
   }

   static int size(Map<Integer, Set<Integer>> instances) {
      return instances.values().stream().mapToInt(Set::size).sum();
   }
}
