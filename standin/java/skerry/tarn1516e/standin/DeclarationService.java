// Publication and subscription.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.Collections;
import java.util.HashSet;
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
      member.declarations().publish(objectClass, attributes);
      member.declarations().publish(objectClass,
            Collections.singleton(member.federation().fom().privilegeToDelete()));
      member.federation().published(member, Checks.objectClass(member, objectClass));
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
         throws OwnershipAcquisitionPending, ObjectClassNotDefined {
      Federation federation = member.federation();
      Set<Integer> published = member.declarations().published.get(objectClass);
      if (published == null) {
         return;
      }
      Set<Integer> ended = new HashSet<>(attributes);
      ended.retainAll(published);
      if (Collections.singleton(federation.fom().privilegeToDelete())
                  .equals(InstanceAdvisories.minus(published, ended))) {
         ended.addAll(published);
      }
      Fom.ObjectClass found = Checks.objectClass(member, objectClass);
      for (ObjectInstance instance : federation.instancesOf(found)) {
         if (instance.isKnownAs(member, objectClass)
               && !Collections.disjoint(instance.acquiredBy(member), ended)) {
            throw new OwnershipAcquisitionPending("the federate is acquiring such an attribute");
         }
      }
      published.removeAll(ended);
      if (published.isEmpty()) {
         member.declarations().published.remove(objectClass);
      }
      for (ObjectInstance instance : federation.instancesOf(found)) {
         Set<Integer> lost = instance.ownedBy(member);
         lost.retainAll(ended);
         if (instance.isKnownAs(member, objectClass) && !lost.isEmpty()) {
            Ownership.release(instance, lost, federation);
            federation.changed(instance);
         }
      }
      federation.advisories().updateRegistration(member, objectClass);
   }

   @Override
   public void publishInteractionClass(int interaction) throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.interaction(member, interaction);
      member.declarations().publishedInteractions.add(interaction);
      member.federation().advisories().updateSending(member, interaction);
   }

   @Override
   public void unpublishInteractionClass(int interaction) throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.interaction(member, interaction);
      member.declarations().publishedInteractions.remove(interaction);
      member.federation().advisories().updateSending(member, interaction);
   }

   @Override
   public void subscribeObjectClassAttributes(
         int objectClass, Set<Integer> attributes, boolean isActive, String updateRate)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.ObjectClass found = Checks.objectClass(member, objectClass, attributes);
      Checks.updateRate(member, updateRate);
      for (int attribute : attributes) {
         member.declarations().makeInterest(objectClass, attribute)
               .subscribe(new Interest.Subscription(isActive, updateRate));
      }
      member.federation().subscribed(member, found);
   }

   @Override
   public void unsubscribeObjectClass(int objectClass) throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.ObjectClass found = Checks.objectClass(member, objectClass);
      unsubscribe(member, found, found.attributes.keySet());
   }

   @Override
   public void unsubscribeObjectClassAttributes(int objectClass, Set<Integer> attributes)
         throws RTIexception {
      Member member = _loopback.workingMember();
      unsubscribe(
            member, Checks.objectClass(member, objectClass, attributes), attributes);
   }

   private static void unsubscribe(
         Member member, Fom.ObjectClass objectClass, Set<Integer> attributes) {
      member.declarations().interests(objectClass.handle).forEach((attribute, interest) -> {
         if (attributes.contains(attribute)) {
            interest.unsubscribe();
         }
      });
      member.declarations().dropEmptyInterests();
      member.federation().subscribed(member, objectClass);
   }

   @Override
   public void subscribeInteractionClass(int interaction, boolean isActive) throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.InteractionClass found = Checks.interaction(member, interaction);
      Checks.mayGetReports(member, found);
      member.declarations().makeInterest(interaction)
            .subscribe(new Interest.Subscription(isActive, ""));
      member.federation().advisories().subscribed(found);
   }

   @Override
   public void unsubscribeInteractionClass(int interaction) throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.InteractionClass found = Checks.interaction(member, interaction);
      member.declarations().makeInterest(interaction).unsubscribe();
      member.declarations().dropEmptyInterests();
      member.federation().advisories().subscribed(found);
   }
}
