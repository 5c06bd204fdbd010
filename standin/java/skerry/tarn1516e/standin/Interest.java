// The subscriptions of one member to one attribute of a class or to an interaction class: one over
// the whole space, and one over each region. Each has an activity and a rate of its own.
package skerry.tarn1516e.standin;

import java.io.Serializable;
import java.util.ArrayList;
import java.util.Collection;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Set;

final class Interest implements Serializable {
   private static final long serialVersionUID = 1L;

   static final class Subscription implements Serializable {
      private static final long serialVersionUID = 1L;

      final boolean isActive;

      /** A designator; empty for all updates. */
      final String updateRate;

      Subscription(boolean isActive, String updateRate) {
         this.isActive = isActive;
         this.updateRate = updateRate;
      }

      @Override
      public boolean equals(Object other) {
         return other instanceof Subscription && isActive == ((Subscription) other).isActive
               && updateRate.equals(((Subscription) other).updateRate);
      }

      @Override
      public int hashCode() {
         return updateRate.hashCode();
      }
   }

   /** Null if there is none. */
   private Subscription _whole;
   private final LinkedHashMap<Region, Subscription> _overRegions = new LinkedHashMap<>();

   void subscribe(Subscription over) {
      _whole = over;
   }

   void subscribe(Subscription over, Collection<Region> regions) {
      regions.forEach(region -> _overRegions.put(region, over));
   }

   void unsubscribe() {
      _whole = null;
   }

   void unsubscribe(Collection<Region> regions) {
      _overRegions.keySet().removeAll(regions);
   }

   boolean isEmpty() {
      return _whole == null && _overRegions.isEmpty();
   }

   boolean isActive() {
      return all().stream().anyMatch(each -> each.isActive);
   }

   boolean uses(Region region) {
      return _overRegions.containsKey(region);
   }

   List<Subscription> all() {
      List<Subscription> all = new ArrayList<>(_overRegions.values());
      if (_whole != null) {
         all.add(_whole);
      }
      return all;
   }

   /** Whether one meets what is sent over these regions, or over the whole space if there are
       none. */
   boolean meets(Set<Region> sentOver) {
      if (_whole != null || sentOver.isEmpty()) {
         return !isEmpty();
      }
      return _overRegions.keySet().stream().anyMatch(region -> region.overlapsAny(sentOver));
   }

   List<Subscription> meeting(Set<Region> sentOver) {
      if (sentOver.isEmpty()) {
         return all();
      }
      List<Subscription> meeting = new ArrayList<>();
      if (_whole != null) {
         meeting.add(_whole);
      }
      _overRegions.forEach((region, subscription) -> {
         if (region.overlapsAny(sentOver)) {
            meeting.add(subscription);
         }
      });
      return meeting;
   }
}
