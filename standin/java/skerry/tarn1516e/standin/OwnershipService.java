// Attributes of instances that change hands.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.Collections;
import java.util.Set;

final class OwnershipService implements OwnershipManagement {
   private final Loopback _loopback;

   OwnershipService(Loopback loopback) {
      _loopback = loopback;
   }

   @Override
   public void unconditionalAttributeOwnershipDivestiture(int object, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, attributes);
      Ownership.release(instance, attributes, member.federation());
      member.federation().changed(instance);
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
      for (int attribute : attributes) {
         instance.attributes.get(attribute).isOffered = true;
         instance.attributes.get(attribute).offerTag = tag;
      }
      Ownership.confirm(instance, Ownership.wanted(instance, attributes), member);
      Ownership.askAllToAssume(instance, member.federation());
   }

   @Override
   public void confirmDivestiture(int object, Set<Integer> attributes, byte[] tag)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, attributes);
      checkOffered(instance, attributes);
      Set<Integer> unwanted =
            Ownership.which(instance, attributes, state -> state.acquirers.isEmpty());
      if (!unwanted.isEmpty()) {
         unwanted.forEach(each -> instance.attributes.get(each).isToBeConfirmed = false);
         throw new NoAcquisitionPending("nobody is acquiring one of the attributes");
      }
      Ownership.passToAcquirers(instance, attributes, tag);
      member.federation().changed(instance);
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
      acquire(member, instance, attributes, new ObjectInstance.Request(tag, false));
   }

   private static void acquire(Member member, ObjectInstance instance, Set<Integer> attributes,
         ObjectInstance.Request request) {
      attributes.forEach(
            attribute -> instance.attributes.get(attribute).acquirers.put(member, request));
      Set<Integer> passed = Ownership.passToAcquirers(instance,
            Ownership.which(instance, attributes, state -> state.owner == null),
            Ownership.NO_TAG);
      Ownership.askOwners(instance, InstanceAdvisories.minus(attributes, passed), member);
      member.federation().changed(instance);
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
      Set<Integer> unavailable = Ownership.which(
            instance, attributes, state -> state.owner != null && !state.isOffered);
      acquire(member, instance, InstanceAdvisories.minus(attributes, unavailable),
            new ObjectInstance.Request(Ownership.NO_TAG, true));
      if (!unavailable.isEmpty()) {
         member.callbacks().attributeOwnershipUnavailable(object, unavailable);
      }
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
      Set<Integer> passed = Ownership.passToAcquirers(instance, attributes, Ownership.NO_TAG);
      member.federation().changed(instance);
      return SupportService.array(passed);
   }

   @Override
   public void cancelNegotiatedAttributeOwnershipDivestiture(int object, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, attributes);
      checkOffered(instance, attributes);
      attributes.forEach(attribute -> instance.attributes.get(attribute).endOffer());
      Ownership.refuse(instance, attributes);
   }

   /** What was asked for only if available is not there to be cancelled. */
   @Override
   public void cancelAttributeOwnershipAcquisition(int object, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.instance(member, object, attributes);
      for (int attribute : attributes) {
         if (instance.isOwned(attribute, member)) {
            throw new AttributeAlreadyOwned("the federate owns the attribute " + attribute);
         }
         ObjectInstance.Request asked = instance.attributes.get(attribute).acquirers.get(member);
         if (asked == null || asked.isIfAvailable) {
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
      } else if (owner == member.federation().mom().rti()) {
         member.callbacks().attributeIsOwnedByRTI(object, attribute);
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
