// Tells members which attributes of the instances that they know come into scope or leave it, and
// owners which of theirs are wanted. Compares what holds with what was last told.
package skerry.tarn1516e.standin;

import java.util.HashMap;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;

final class InstanceAdvisories {
   private final Federation _federation;
   private final Member _member;

   /** What was last told, by instance; of wanted attributes also with which rate. */
   private final Map<Integer, Set<Integer>> _inScope = new HashMap<>();
   private final Map<Integer, Map<Integer, String>> _wanted = new HashMap<>();

   InstanceAdvisories(Member member) {
      _federation = member.federation();
      _member = member;
   }

   void update() {
      _inScope.keySet().retainAll(_federation.instances.keySet());
      _wanted.keySet().retainAll(_federation.instances.keySet());
      for (ObjectInstance instance : _federation.instances.values()) {
         if (_member.isAdvised(Member.Advisory.ATTRIBUTE_SCOPE)) {
            updateScope(instance);
         }
         if (_member.isAdvised(Member.Advisory.ATTRIBUTE_RELEVANCE)) {
            updateRelevance(instance);
         }
      }
   }

   private void updateScope(ObjectInstance instance) {
      boolean isKnown = !instance.isDeleted && instance.knownAs.containsKey(_member);
      Set<Integer> now = isKnown ? instance.inScope(_member) : new TreeSet<>();
      Set<Integer> told = _inScope.getOrDefault(instance.handle, new TreeSet<>());
      Set<Integer> left = Advisories.minus(told, now);
      Set<Integer> come = Advisories.minus(now, told);
      _inScope.put(instance.handle, now);
      if (isKnown && !left.isEmpty()) {
         _member.callbacks().attributesOutOfScope(instance.handle, left);
      }
      if (!come.isEmpty()) {
         _member.callbacks().attributesInScope(instance.handle, come);
      }
   }

   private void updateRelevance(ObjectInstance instance) {
      Map<Integer, String> now = wanted(instance);
      Map<Integer, String> told = _wanted.getOrDefault(instance.handle, new TreeMap<>());
      _wanted.put(instance.handle, now);
      Set<Integer> ended = Advisories.minus(told.keySet(), now.keySet());
      ended.retainAll(instance.ownedBy(_member));
      if (!ended.isEmpty()) {
         _member.callbacks().turnUpdatesOffForObjectInstance(instance.handle, ended);
      }
      Map<String, Set<Integer>> begun = new TreeMap<>();
      now.forEach((attribute, rate) -> {
         if (!rate.equals(told.get(attribute))) {
            begun.computeIfAbsent(rate, none -> new TreeSet<>()).add(attribute);
         }
      });
      begun.forEach((rate, attributes) -> {
         if (rate.isEmpty()) {
            _member.callbacks().turnUpdatesOnForObjectInstance(instance.handle, attributes);
         } else {
            _member.callbacks().turnUpdatesOnForObjectInstance(
                  instance.handle, attributes, rate);
         }
      });
   }

   /** The member's attributes that are in scope of an active subscription, each with the designator
       of the greatest rate; none if somebody wants all updates. */
   private Map<Integer, String> wanted(ObjectInstance instance) {
      Map<Integer, String> wanted = new TreeMap<>();
      for (Member other : _federation.members()) {
         if (other == _member || !instance.knownAs.containsKey(other)) {
            continue;
         }
         Map<Integer, Interest> interests =
               other.declarations().subscribed.get(instance.knownAs.get(other));
         for (int attribute : instance.inScope(other)) {
            if (interests.get(attribute).isActive && instance.isOwned(attribute, _member)) {
               wanted.merge(attribute, interests.get(attribute).updateRate, this::greater);
            }
         }
      }
      return wanted;
   }

   private String greater(String a, String b) {
      if (a.isEmpty() || b.isEmpty()) {
         return "";
      }
      Map<String, Double> rates = _federation.fom().updateRates;
      return rates.get(a) >= rates.get(b) ? a : b;
   }
}
