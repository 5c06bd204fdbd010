// Who owns an attribute of an instance, and who is told when that may change: the rules behind the
// services of ownership.
package skerry.tarn1516e.standin;

import java.util.LinkedHashMap;
import java.util.Map;
import java.util.Set;
import java.util.TreeSet;
import java.util.function.BiPredicate;
import java.util.function.Predicate;

final class Ownership {
   static final byte[] NO_TAG = {};

   private Ownership() {}

   /** The attributes whose state is so. */
   static Set<Integer> which(ObjectInstance instance, Set<Integer> attributes,
         Predicate<ObjectInstance.Attribute> is) {
      Set<Integer> found = new TreeSet<>(attributes);
      found.removeIf(attribute -> !is.test(instance.attributes.get(attribute)));
      return found;
   }

   static Set<Integer> wanted(ObjectInstance instance, Set<Integer> attributes) {
      return which(instance, attributes, state -> !state.acquirers.isEmpty());
   }

   /** The owner gives up the attributes: to those who wait for them, or else to nobody, and then
       others are asked whether they want them. */
   static void release(ObjectInstance instance, Set<Integer> attributes, Federation federation) {
      Set<Integer> passed = passToAcquirers(instance, attributes, NO_TAG);
      for (int attribute : InstanceAdvisories.minus(attributes, passed)) {
         ObjectInstance.Attribute state = instance.attributes.get(attribute);
         Member before = state.owner;
         state.pass(null);
         state.askedToAssume.add(before);
      }
      askAllToAssume(instance, federation);
   }

   static void askAllToAssume(ObjectInstance instance, Federation federation) {
      federation.members().forEach(member -> askToAssume(instance, member));
   }

   /** Asks the member, if it knows the instance, to take what it publishes and what is offered or
       unowned. Each such chance is told once. */
   static void askToAssume(ObjectInstance instance, Member member) {
      if (instance.isDeleted || !instance.isKnownTo(member)) {
         return;
      }
      Map<byte[], Set<Integer>> offered = new LinkedHashMap<>();
      instance.attributes.forEach((attribute, state) -> {
         boolean isFree = state.owner == null || state.isOffered && !state.isToBeConfirmed;
         if (isFree && state.owner != member && !state.acquirers.containsKey(member)
               && member.declarations().publishes(instance.knownAs.get(member), attribute)
               && state.askedToAssume.add(member)) {
            byte[] tag = state.owner == null ? NO_TAG : state.offerTag;
            offered.computeIfAbsent(tag, none -> new TreeSet<>()).add(attribute);
         }
      });
      offered.forEach((tag, attributes) -> member.callbacks()
            .requestAttributeOwnershipAssumption(instance.handle, attributes, tag));
   }

   /** Each attribute that is wanted goes to the first who asked for it, and that one is told; the
       others go on waiting, now for the new owner. Answers what was passed. */
   static Set<Integer> passToAcquirers(
         ObjectInstance instance, Set<Integer> attributes, byte[] tag) {
      Set<Integer> passed = wanted(instance, attributes);
      Map<Member, Set<Integer>> byOwner = new LinkedHashMap<>();
      for (int attribute : passed) {
         ObjectInstance.Attribute state = instance.attributes.get(attribute);
         Member next = state.acquirers.keySet().iterator().next();
         state.pass(next);
         byOwner.computeIfAbsent(next, none -> new TreeSet<>()).add(attribute);
      }
      byOwner.forEach((owner, secured) -> owner.callbacks()
            .attributeOwnershipAcquisitionNotification(instance.handle, secured, tag));
      refuse(instance, passed);
      return passed;
   }

   /** The attributes stay where they are: who wanted them only if available is told no, and their
       owners are told of the others who want them. */
   static void refuse(ObjectInstance instance, Set<Integer> attributes) {
      byAcquirer(instance, attributes, (state, request) -> request.isIfAvailable)
            .forEach((acquirer, refused) -> {
               refused.forEach(each -> instance.attributes.get(each).acquirers.remove(acquirer));
               acquirer.callbacks().attributeOwnershipUnavailable(instance.handle, refused);
            });
      byAcquirer(instance, attributes, (state, request) -> true)
            .forEach((acquirer, asked) -> askOwners(instance, asked, acquirer));
   }

   private static Map<Member, Set<Integer>> byAcquirer(ObjectInstance instance,
         Set<Integer> attributes,
         BiPredicate<ObjectInstance.Attribute, ObjectInstance.Request> is) {
      Map<Member, Set<Integer>> grouped = new LinkedHashMap<>();
      for (int attribute : attributes) {
         ObjectInstance.Attribute state = instance.attributes.get(attribute);
         state.acquirers.forEach((acquirer, request) -> {
            if (is.test(state, request)) {
               grouped.computeIfAbsent(acquirer, none -> new TreeSet<>()).add(attribute);
            }
         });
      }
      return grouped;
   }

   /** Asks each owner once: to confirm for what it offers, and to release the rest. */
   static void askOwners(ObjectInstance instance, Set<Integer> attributes, Member acquirer) {
      Map<Member, Set<Integer>> byOwner = new LinkedHashMap<>();
      for (int attribute : attributes) {
         Member owner = instance.attributes.get(attribute).owner;
         if (owner != null) {
            byOwner.computeIfAbsent(owner, none -> new TreeSet<>()).add(attribute);
         }
      }
      byOwner.forEach((owner, owned) -> {
         Set<Integer> kept = which(instance, owned, state -> !state.isOffered);
         confirm(instance, InstanceAdvisories.minus(owned, kept), owner);
         if (!kept.isEmpty()) {
            byte[] tag = instance.attributes.get(kept.iterator().next()).acquirers
                  .get(acquirer).tag;
            owner.callbacks().requestAttributeOwnershipRelease(instance.handle, kept, tag);
         }
      });
   }

   /** Asks the owner to confirm that what it offers goes, once an offer. */
   static void confirm(ObjectInstance instance, Set<Integer> offered, Member owner) {
      Set<Integer> asked = which(instance, offered, state -> !state.isToBeConfirmed);
      asked.forEach(attribute -> instance.attributes.get(attribute).isToBeConfirmed = true);
      if (!asked.isEmpty()) {
         owner.callbacks().requestDivestitureConfirmation(instance.handle, asked);
      }
   }
}
