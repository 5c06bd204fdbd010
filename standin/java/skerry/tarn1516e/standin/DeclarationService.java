// Publication and subscription.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.Collections;
import java.util.HashSet;
import java.util.Map;
import java.util.Set;

final class DeclarationService implements DeclarationManagement {
   private final Loopback _loopback;

   DeclarationService(Loopback loopback) {
      _loopback = loopback;
   }

   /** Who publishes a class publishes the privilege to delete with it. */
   @Override
   public void publishObjectClassAttributes(int objectClass, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.objectClass(member, objectClass, attributes);
      if (attributes.isEmpty()) {
         return;
      }
      Set<Integer> published = member.declarations().published.computeIfAbsent(
            objectClass, none -> new HashSet<>());
      published.addAll(attributes);
      published.add(member.federation().fom().privilegeToDelete());
      member.federation().update();
   }

   @Override
   public void unpublishObjectClass(int objectClass) throws RTIexception {
      Member member = _loopback.workingMember();
      unpublish(member, Checks.objectClass(member, objectClass).attributes.keySet(), objectClass);
   }

   @Override
   public void unpublishObjectClassAttributes(int objectClass, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.objectClass(member, objectClass, attributes);
      unpublish(member, attributes, objectClass);
   }

   /** The member loses what it owns of these attributes. */
   private void unpublish(Member member, Set<Integer> attributes, int objectClass)
         throws OwnershipAcquisitionPending {
      Set<Integer> published = member.declarations().published.get(objectClass);
      if (published == null) {
         return;
      }
      Set<Integer> ended = new HashSet<>(attributes);
      ended.retainAll(published);
      if (Collections.singleton(member.federation().fom().privilegeToDelete())
                  .equals(Advisories.minus(published, ended))) {
         ended.addAll(published);
      }
      for (ObjectInstance instance : member.federation().instances.values()) {
         if (instance.objectClass == objectClass
               && !Collections.disjoint(instance.acquiredBy(member), ended)) {
            throw new OwnershipAcquisitionPending("the federate is acquiring such an attribute");
         }
      }
      published.removeAll(ended);
      if (published.isEmpty()) {
         member.declarations().published.remove(objectClass);
      }
      for (ObjectInstance instance : member.federation().instances.values()) {
         Set<Integer> lost = instance.ownedBy(member);
         lost.retainAll(ended);
         if (instance.objectClass == objectClass && !lost.isEmpty()) {
            OwnershipService.release(instance, lost, member);
         }
      }
      member.federation().update();
   }

   @Override
   public void publishInteractionClass(int interaction) throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.interaction(member, interaction);
      member.declarations().publishedInteractions.add(interaction);
      member.federation().update();
   }

   @Override
   public void unpublishInteractionClass(int interaction) throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.interaction(member, interaction);
      member.declarations().publishedInteractions.remove(interaction);
      member.federation().update();
   }

   @Override
   public void subscribeObjectClassAttributes(
         int objectClass, Set<Integer> attributes, boolean isActive, String updateRate)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.objectClass(member, objectClass, attributes);
      Checks.updateRate(member, updateRate);
      for (int attribute : attributes) {
         Interest interest = member.declarations().makeInterest(objectClass, attribute);
         interest.isWhole = true;
         interest.isActive = isActive;
         interest.updateRate = updateRate;
      }
      member.federation().update();
   }

   @Override
   public void unsubscribeObjectClass(int objectClass) throws RTIexception {
      Member member = _loopback.workingMember();
      unsubscribe(member, objectClass, Checks.objectClass(member, objectClass).attributes.keySet());
   }

   @Override
   public void unsubscribeObjectClassAttributes(int objectClass, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.objectClass(member, objectClass, attributes);
      unsubscribe(member, objectClass, attributes);
   }

   private static void unsubscribe(Member member, int objectClass, Set<Integer> attributes) {
      Map<Integer, Interest> interests = member.declarations().subscribed.get(objectClass);
      if (interests != null) {
         interests.forEach((attribute, interest) -> {
            interest.isWhole &= !attributes.contains(attribute);
         });
         member.declarations().dropEmptyInterests();
      }
      member.federation().update();
   }

   @Override
   public void subscribeInteractionClass(int interaction, boolean isActive) throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.interaction(member, interaction);
      Interest interest = member.declarations().subscribedInteractions.computeIfAbsent(
            interaction, none -> new Interest());
      interest.isWhole = true;
      interest.isActive = isActive;
      member.federation().update();
   }

   @Override
   public void unsubscribeInteractionClass(int interaction) throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.interaction(member, interaction);
      Interest interest = member.declarations().subscribedInteractions.get(interaction);
      if (interest != null) {
         interest.isWhole = false;
         member.declarations().dropEmptyInterests();
      }
      member.federation().update();
   }
}
