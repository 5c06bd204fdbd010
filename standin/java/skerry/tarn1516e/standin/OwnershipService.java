// Attributes of instances that change hands.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.Collections;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.Set;
import java.util.TreeSet;
import java.util.function.BiConsumer;

final class OwnershipService implements OwnershipManagement {
   private static final byte[] NO_TAG = {};

   private final Loopback _loopback;

   OwnershipService(Loopback loopback) {
      _loopback = loopback;
   }

   @Override
   public void unconditionalAttributeOwnershipDivestiture(int object, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      release(Checks.ownInstance(member, object, attributes), attributes, member);
      member.federation().update();
   }

   /** The member gives up the attributes: to those who wait for them, or else to nobody, and then
       others are asked whether they want them. */
   static void release(ObjectInstance instance, Set<Integer> attributes, Member member) {
      Set<Integer> passed = passToAcquirers(instance, attributes, NO_TAG);
      Set<Integer> free = Advisories.minus(attributes, passed);
      free.forEach(attribute -> instance.attributes.get(attribute).pass(null));
      offer(instance, free, member, NO_TAG);
   }

   @Override
   public void negotiatedAttributeOwnershipDivestiture(
         int object, Set<Integer> attributes, byte[] tag) throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, attributes);
      for (int attribute : attributes) {
         if (instance.attributes.get(attribute).isOffered) {
            throw new AttributeAlreadyBeingDivested("attribute " + attribute + " is offered");
         }
      }
      Set<Integer> wanted = wanted(instance, attributes);
      attributes.forEach(attribute -> instance.attributes.get(attribute).isOffered = true);
      if (!wanted.isEmpty()) {
         member.callbacks().requestDivestitureConfirmation(object, wanted);
      }
      offer(instance, Advisories.minus(attributes, wanted), member, tag);
   }

   /** Asks all who know the instance and publish some of the attributes. */
   private static void offer(
         ObjectInstance instance, Set<Integer> attributes, Member owner, byte[] tag) {
      for (Member member : owner.federation().members()) {
         Set<Integer> offered = new TreeSet<>(attributes);
         offered.removeIf(attribute -> !instance.knownAs.containsKey(member)
               || !member.declarations().publishes(instance.knownAs.get(member), attribute));
         if (member != owner && !offered.isEmpty()) {
            member.callbacks().requestAttributeOwnershipAssumption(instance.handle, offered, tag);
         }
      }
   }

   private static Set<Integer> wanted(ObjectInstance instance, Set<Integer> attributes) {
      Set<Integer> wanted = new TreeSet<>(attributes);
      wanted.removeIf(attribute -> instance.attributes.get(attribute).acquirers.isEmpty());
      return wanted;
   }

   /** Each attribute that is wanted goes to the first who asked for it, and that one is told; the
       others go on waiting, now for the new owner. Answers what was passed. */
   private static Set<Integer> passToAcquirers(
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
      byOwner.values().forEach(secured -> askRelease(instance, secured));
      return passed;
   }

   /** Tells owners of those who wait for their attributes. */
   private static void askRelease(ObjectInstance instance, Set<Integer> attributes) {
      for (int attribute : attributes) {
         ObjectInstance.Attribute state = instance.attributes.get(attribute);
         state.acquirers.forEach((acquirer, tag) -> state.owner.callbacks()
               .requestAttributeOwnershipRelease(
                     instance.handle, Collections.singleton(attribute), tag));
      }
   }

   @Override
   public void confirmDivestiture(int object, Set<Integer> attributes, byte[] tag)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, attributes);
      checkOffered(instance, attributes);
      if (wanted(instance, attributes).size() < attributes.size()) {
         throw new NoAcquisitionPending("nobody is acquiring one of the attributes");
      }
      passToAcquirers(instance, attributes, tag);
      member.federation().update();
   }

   private static void checkOffered(ObjectInstance instance, Set<Integer> attributes)
         throws AttributeDivestitureWasNotRequested {
      for (int attribute : attributes) {
         if (!instance.attributes.get(attribute).isOffered) {
            throw new AttributeDivestitureWasNotRequested(
                  "attribute " + attribute + " is not offered");
         }
      }
   }

   @Override
   public void attributeOwnershipAcquisition(int object, Set<Integer> attributes, byte[] tag)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = checkAcquirable(member, object, attributes);
      attributes.forEach(
            attribute -> instance.attributes.get(attribute).acquirers.put(member, tag));
      passToAcquirers(instance, ownedBy(null, instance, attributes), NO_TAG);
      askOwners(instance, attributes, member, (owner, asked) ->
            owner.callbacks().requestAttributeOwnershipRelease(object, asked, tag));
      member.federation().update();
   }

   /** What is free goes to the member; what is offered may; what is kept is unavailable. */
   @Override
   public void attributeOwnershipAcquisitionIfAvailable(int object, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = checkAcquirable(member, object, attributes);
      for (int attribute : attributes) {
         if (instance.attributes.get(attribute).acquirers.containsKey(member)) {
            throw new AttributeAlreadyBeingAcquired("attribute " + attribute + " is asked for");
         }
      }
      Set<Integer> unavailable = new TreeSet<>();
      for (int attribute : attributes) {
         ObjectInstance.Attribute state = instance.attributes.get(attribute);
         if (state.owner == null || state.isOffered) {
            state.acquirers.put(member, NO_TAG);
         } else {
            unavailable.add(attribute);
         }
      }
      Set<Integer> available = Advisories.minus(attributes, unavailable);
      passToAcquirers(instance, ownedBy(null, instance, available), NO_TAG);
      askOwners(instance, available, member, (owner, kept) -> {});
      if (!unavailable.isEmpty()) {
         member.callbacks().attributeOwnershipUnavailable(object, unavailable);
      }
      member.federation().update();
   }

   private static ObjectInstance checkAcquirable(
         Member member, int object, Set<Integer> attributes) throws RTIexception {
      ObjectInstance instance = Checks.instance(member, object, attributes);
      int knownAs = instance.knownAs.get(member);
      if (!member.declarations().published.containsKey(knownAs)) {
         throw new ObjectClassNotPublished("the federate does not publish the class");
      }
      for (int attribute : attributes) {
         if (!member.declarations().publishes(knownAs, attribute)) {
            throw new AttributeNotPublished(
                  "the federate does not publish the attribute " + attribute);
         }
         if (instance.isOwned(attribute, member)) {
            throw new FederateOwnsAttributes("the federate owns the attribute " + attribute);
         }
      }
      return instance;
   }

   private static Set<Integer> ownedBy(
         Member owner, ObjectInstance instance, Set<Integer> attributes) {
      Set<Integer> owned = new TreeSet<>(attributes);
      owned.retainAll(instance.ownedBy(owner));
      return owned;
   }

   /** Asks each owner to confirm for what it offers, and otherwise for the rest. */
   private static void askOwners(ObjectInstance instance, Set<Integer> attributes,
         Member acquirer, BiConsumer<Member, Set<Integer>> askForKept) {
      for (Member owner : acquirer.federation().members()) {
         Set<Integer> kept = ownedBy(owner, instance, attributes);
         Set<Integer> offered = new TreeSet<>(kept);
         offered.removeIf(attribute -> !instance.attributes.get(attribute).isOffered);
         kept.removeAll(offered);
         if (owner != acquirer && !offered.isEmpty()) {
            owner.callbacks().requestDivestitureConfirmation(instance.handle, offered);
         }
         if (owner != acquirer && !kept.isEmpty()) {
            askForKept.accept(owner, kept);
         }
      }
   }

   /** Those who asked go on waiting, until they cancel or the owner changes its mind. */
   @Override
   public void attributeOwnershipReleaseDenied(int object, Set<Integer> attributes)
         throws RTIexception {
      Checks.ownInstance(_loopback.workingMember(), object, attributes);
   }

   @Override
   public int[] attributeOwnershipDivestitureIfWanted(int object, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, attributes);
      Set<Integer> passed = passToAcquirers(instance, attributes, NO_TAG);
      member.federation().update();
      return SupportService.array(passed);
   }

   @Override
   public void cancelNegotiatedAttributeOwnershipDivestiture(int object, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, attributes);
      checkOffered(instance, attributes);
      attributes.forEach(attribute -> instance.attributes.get(attribute).isOffered = false);
      askRelease(instance, attributes);
   }

   @Override
   public void cancelAttributeOwnershipAcquisition(int object, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.instance(member, object, attributes);
      for (int attribute : attributes) {
         if (instance.isOwned(attribute, member)) {
            throw new AttributeAlreadyOwned("the federate owns the attribute " + attribute);
         }
         if (!instance.attributes.get(attribute).acquirers.containsKey(member)) {
            throw new AttributeAcquisitionWasNotRequested(
                  "the federate has not asked for the attribute " + attribute);
         }
      }
      attributes.forEach(attribute -> instance.attributes.get(attribute).acquirers.remove(member));
      member.callbacks().confirmAttributeOwnershipAcquisitionCancellation(object, attributes);
   }

   @Override
   public void queryAttributeOwnership(int object, int attribute) throws RTIexception {
      Member member = _loopback.workingMember();
      Member owner = Checks.instance(member, object, Collections.singleton(attribute))
                           .attributes.get(attribute).owner;
      if (owner == null) {
         member.callbacks().attributeIsNotOwned(object, attribute);
      } else {
         member.callbacks().informAttributeOwnership(object, attribute, owner.handle());
      }
   }

   @Override
   public boolean isAttributeOwnedByFederate(int object, int attribute) throws RTIexception {
      Member member = _loopback.workingMember();
      return Checks.instance(member, object, Collections.singleton(attribute))
            .isOwned(attribute, member);
   }
}
