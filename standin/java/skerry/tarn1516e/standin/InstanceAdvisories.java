// Tells members which attributes of the instances that they know come into scope or leave it, and
// owners which of theirs are wanted. Compares what holds with what was last told.
package skerry.tarn1516e.standin;

import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;

final class InstanceAdvisories {
   private final Federation _federation;

   InstanceAdvisories(Federation federation) {
      _federation = federation;
   }

   void update(ObjectInstance instance) {
      for (Member member : _federation.members()) {
         updateScope(instance, member);
         updateRelevance(instance, member);
      }
   }

   /** The member's subscriptions have changed: its scope, and what owners are told. */
   void subscribed(ObjectInstance instance, Member subscriber) {
      updateScope(instance, subscriber);
      if (!instance.isKnownTo(subscriber)) {
         return;
      }
      for (Member member : _federation.members()) {
         updateRelevance(instance, member);
      }
   }

   void updateScope(ObjectInstance instance, Member member) {
      if (!member.isAdvised(Member.Advisory.ATTRIBUTE_SCOPE) || instance.isDeleted
            || !instance.isKnownTo(member)) {
         return;
      }
      Set<Integer> now = instance.inScope(member);
      Set<Integer> told = instance.toldInScope.getOrDefault(member, new TreeSet<>());
      Set<Integer> left = minus(told, now);
      Set<Integer> come = minus(now, told);
      instance.toldInScope.put(member, now);
      if (!left.isEmpty()) {
         member.callbacks().attributesOutOfScope(instance.handle, left);
      }
      if (!come.isEmpty()) {
         member.callbacks().attributesInScope(instance.handle, come);
      }
   }

   void updateRelevance(ObjectInstance instance, Member member) {
      if (!member.isAdvised(Member.Advisory.ATTRIBUTE_RELEVANCE) || instance.isDeleted) {
         return;
      }
      Map<Integer, String> now = wanted(instance, member);
      Map<Integer, String> told = instance.toldWanted.getOrDefault(member, new TreeMap<>());
      instance.toldWanted.put(member, now);
      Set<Integer> ended = minus(told.keySet(), now.keySet());
      ended.retainAll(instance.ownedBy(member));
      if (!ended.isEmpty()) {
         member.callbacks().turnUpdatesOffForObjectInstance(instance.handle, ended);
      }
      Map<String, Set<Integer>> begun = new TreeMap<>();
      now.forEach((attribute, rate) -> {
         if (!rate.equals(told.get(attribute))) {
            begun.computeIfAbsent(rate, none -> new TreeSet<>()).add(attribute);
         }
      });
      begun.forEach((rate, attributes) -> {
         if (rate.isEmpty()) {
            member.callbacks().turnUpdatesOnForObjectInstance(instance.handle, attributes);
         } else {
            member.callbacks().turnUpdatesOnForObjectInstance(instance.handle, attributes, rate);
         }
      });
   }

   /** The owner's attributes that meet an active subscription, each with the designator of the
       greatest rate; none if somebody wants all updates. */
   private Map<Integer, String> wanted(ObjectInstance instance, Member owner) {
      Map<Integer, String> wanted = new TreeMap<>();
      instance.knownAs.forEach((other, knownAs) ->
            other.declarations().interests(knownAs).forEach((attribute, interest) -> {
               if (other != owner && instance.isOwned(attribute, owner)) {
                  interest.meeting(instance.attributes.get(attribute).regions).stream()
                        .filter(each -> each.isActive)
                        .forEach(each -> wanted.merge(attribute, each.updateRate, this::greater));
               }
            }));
      return wanted;
   }

   private String greater(String a, String b) {
      if (a.isEmpty() || b.isEmpty()) {
         return "";
      }
      Map<String, Double> rates = _federation.fom().updateRates;
      return rates.get(a) >= rates.get(b) ? a : b;
   }

   static Set<Integer> minus(Set<Integer> all, Set<Integer> without) {
      Set<Integer> left = new TreeSet<>(all);
      left.removeAll(without);
      return left;
   }
}
