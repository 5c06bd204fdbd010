// What one member publishes and subscribes, and the advisories that it was last given on that.
package skerry.tarn1516e.standin;

import java.util.Collection;
import java.util.HashMap;
import java.util.HashSet;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;

final class Declarations {
   /** Attributes by class. */
   final Map<Integer, Set<Integer>> published = new HashMap<>();
   final Set<Integer> publishedInteractions = new HashSet<>();

   /** By class, then by attribute. No interest in it is empty. */
   final Map<Integer, Map<Integer, Interest>> subscribed = new HashMap<>();
   final Map<Integer, Interest> subscribedInteractions = new HashMap<>();

   /** What differs from the object model, by interaction class. */
   final Map<Integer, Integer> interactionOrders = new HashMap<>();
   final Map<Integer, Integer> interactionTransportations = new HashMap<>();

   /** The classes for which the member was told to register, or to send. */
   final Set<Integer> toRegister = new HashSet<>();
   final Set<Integer> toSend = new HashSet<>();

   boolean publishes(int objectClass, int attribute) {
      return published.containsKey(objectClass)
            && published.get(objectClass).contains(attribute);
   }

   int order(Fom.InteractionClass interaction) {
      return interactionOrders.getOrDefault(interaction.handle, interaction.order);
   }

   int transportation(Fom.InteractionClass interaction) {
      return interactionTransportations.getOrDefault(
            interaction.handle, interaction.transportation);
   }

   /** The interest, made if there is none yet. */
   Interest makeInterest(int objectClass, int attribute) {
      return subscribed.computeIfAbsent(objectClass, none -> new TreeMap<>())
            .computeIfAbsent(attribute, none -> new Interest());
   }

   void dropEmptyInterests() {
      subscribed.values().forEach(interests -> interests.values().removeIf(Interest::isEmpty));
      subscribed.values().removeIf(Map::isEmpty);
      subscribedInteractions.values().removeIf(Interest::isEmpty);
   }

   /** The interest that what is sent to the interaction class meets: that of the nearest class, at
       or above it, with one. */
   Fom.InteractionClass receivedAs(Fom.InteractionClass sent) {
      for (Fom.InteractionClass at = sent; at != null; at = at.parent) {
         if (subscribedInteractions.containsKey(at.handle)) {
            return at;
         }
      }
      return null;
   }

   /** The class as which an instance of the class is discovered. */
   Fom.ObjectClass discoveredAs(Fom.ObjectClass registered) {
      for (Fom.ObjectClass at = registered; at != null; at = at.parent) {
         if (subscribed.containsKey(at.handle)) {
            return at;
         }
      }
      return null;
   }

   boolean usesRegion(Region region) {
      for (Map<Integer, Interest> interests : subscribed.values()) {
         if (anyUses(interests.values(), region)) {
            return true;
         }
      }
      return anyUses(subscribedInteractions.values(), region);
   }

   private static boolean anyUses(Collection<Interest> interests, Region region) {
      return interests.stream().anyMatch(interest -> interest.regions.contains(region));
   }
}
