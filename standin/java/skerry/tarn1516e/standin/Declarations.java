// What one member publishes and subscribes, and the advisories that it was last given on that.
package skerry.tarn1516e.standin;

import java.io.Serializable;
import java.util.ArrayList;
import java.util.Collections;
import java.util.HashMap;
import java.util.HashSet;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;

final class Declarations implements Serializable {
   private static final long serialVersionUID = 1L;

   /** Attributes by class. */
   final HashMap<Integer, Set<Integer>> published = new HashMap<>();
   final HashSet<Integer> publishedInteractions = new HashSet<>();

   /** By class, then by attribute. No interest in it is empty. */
   final HashMap<Integer, Map<Integer, Interest>> subscribed = new HashMap<>();
   final HashMap<Integer, Interest> subscribedInteractions = new HashMap<>();

   /** What differs from the object model, by interaction class. */
   final HashMap<Integer, Integer> interactionOrders = new HashMap<>();
   final HashMap<Integer, Integer> interactionTransportations = new HashMap<>();

   /** The classes for which the member was told to register, or to send. */
   final HashSet<Integer> toRegister = new HashSet<>();
   final HashSet<Integer> toSend = new HashSet<>();

   void publish(int objectClass, Set<Integer> attributes) {
      published.computeIfAbsent(objectClass, none -> new HashSet<>()).addAll(attributes);
   }

   boolean publishes(int objectClass, int attribute) {
      return published.containsKey(objectClass)
            && published.get(objectClass).contains(attribute);
   }

   /** By attribute; empty if the member has not subscribed to the class. */
   Map<Integer, Interest> interests(int objectClass) {
      return subscribed.getOrDefault(objectClass, Collections.emptyMap());
   }

   int order(Fom.InteractionClass interaction) {
      return interactionOrders.getOrDefault(interaction.handle, interaction.order);
   }

   int transportation(Fom.InteractionClass interaction) {
      return interactionTransportations.getOrDefault(
            interaction.handle, interaction.transportation);
   }

   /** Made if there is none yet. */
   Interest makeInterest(int objectClass, int attribute) {
      return subscribed.computeIfAbsent(objectClass, none -> new TreeMap<>())
            .computeIfAbsent(attribute, none -> new Interest());
   }

   Interest makeInterest(int interaction) {
      return subscribedInteractions.computeIfAbsent(interaction, none -> new Interest());
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

   /** The object classes with a subscription over the region. */
   List<Integer> subscribedOver(Region region) {
      List<Integer> found = new ArrayList<>();
      subscribed.forEach((objectClass, interests) -> {
         if (interests.values().stream().anyMatch(each -> each.uses(region))) {
            found.add(objectClass);
         }
      });
      return found;
   }

   boolean usesRegion(Region region) {
      return !subscribedOver(region).isEmpty()
            || subscribedInteractions.values().stream().anyMatch(each -> each.uses(region));
   }
}
