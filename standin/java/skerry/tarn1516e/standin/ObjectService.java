// Names, instances, updates, interactions and transportation.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.Collection;
import java.util.Collections;
import java.util.Map;
import java.util.Set;
import java.util.TreeSet;

final class ObjectService implements ObjectManagement {
   private final Loopback _loopback;

   ObjectService(Loopback loopback) {
      _loopback = loopback;
   }

   @Override
   public void reserveObjectInstanceName(String name) throws RTIexception {
      Member member = _loopback.workingMember();
      if (reserve(member, Collections.singleton(name))) {
         member.callbacks().objectInstanceNameReservationSucceeded(name);
      } else {
         member.callbacks().objectInstanceNameReservationFailed(name);
      }
   }

   @Override
   public void reserveMultipleObjectInstanceName(Set<String> names) throws RTIexception {
      Member member = _loopback.workingMember();
      if (names.isEmpty()) {
         throw new NameSetWasEmpty("there is no name to reserve");
      }
      if (reserve(member, names)) {
         member.callbacks().multipleObjectInstanceNameReservationSucceeded(names);
      } else {
         member.callbacks().multipleObjectInstanceNameReservationFailed(names);
      }
   }

   /** All the names or none. */
   private static boolean reserve(Member member, Collection<String> names) throws IllegalName {
      for (String name : names) {
         if (name.isEmpty() || name.startsWith("HLA")) {
            throw new IllegalName("no federate may reserve the name \"" + name + "\"");
         }
      }
      Set<String> taken = member.federation().takenNames;
      if (!Collections.disjoint(taken, names)) {
         return false;
      }
      taken.addAll(names);
      member.reservedNames.addAll(names);
      return true;
   }

   @Override
   public void releaseObjectInstanceName(String name) throws RTIexception {
      release(Collections.singleton(name));
   }

   @Override
   public void releaseMultipleObjectInstanceName(Set<String> names) throws RTIexception {
      release(names);
   }

   private void release(Collection<String> names) throws RTIexception {
      Member member = _loopback.workingMember();
      if (!member.reservedNames.containsAll(names)) {
         throw new ObjectInstanceNameNotReserved("the federate has not reserved " + names);
      }
      member.reservedNames.removeAll(names);
      member.federation().takenNames.removeAll(names);
   }

   @Override
   public int registerObjectInstance(int objectClass) throws RTIexception {
      return register(_loopback.workingMember(), objectClass, null).handle;
   }

   @Override
   public int registerObjectInstance(int objectClass, String name) throws RTIexception {
      return register(_loopback.workingMember(), objectClass, name).handle;
   }

   private static ObjectInstance register(Member member, int objectClass, String name)
         throws RTIexception {
      ObjectInstance made = make(member, objectClass, name);
      member.federation().changed(made);
      return made;
   }

   /** Makes an instance that nobody has been told of yet. Without a name it gets one that nobody
       can reserve. */
   static ObjectInstance make(Member member, int objectClass, String name) throws RTIexception {
      Fom.ObjectClass found = Checks.objectClass(member, objectClass);
      if (!member.declarations().published.containsKey(objectClass)) {
         throw new ObjectClassNotPublished("the federate does not publish " + found.name);
      }
      Federation federation = member.federation();
      if (name != null && !member.reservedNames.remove(name)) {
         if (federation.instanceNamed(name) != null) {
            throw new ObjectInstanceNameInUse("an instance has the name " + name);
         }
         throw new ObjectInstanceNameNotReserved("the federate has not reserved " + name);
      }
      int handle = federation.nextInstanceHandle();
      ObjectInstance made = new ObjectInstance(
            handle, name != null ? name : "HLAinstance" + handle, found, member);
      federation.add(made);
      member.counts().registered++;
      return made;
   }

   @Override
   public void updateAttributeValues(int object, Map<Integer, byte[]> values, byte[] tag)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, values.keySet());
      new Traffic(member, null).update(instance, values, tag);
   }

   @Override
   public byte[] updateAttributeValues(
         int object, Map<Integer, byte[]> values, byte[] tag, byte[] time) throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, values.keySet());
      Traffic traffic = new Traffic(member, Traffic.checkTime(member, time));
      traffic.update(instance, values, tag);
      return traffic.retractionHandle();
   }

   @Override
   public void sendInteraction(int interaction, Map<Integer, byte[]> values, byte[] tag)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.InteractionClass sent = checkSent(member, interaction, values);
      new Traffic(member, null).interact(sent, values, Collections.emptySet(), tag);
   }

   @Override
   public byte[] sendInteraction(
         int interaction, Map<Integer, byte[]> values, byte[] tag, byte[] time)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.InteractionClass sent = checkSent(member, interaction, values);
      Traffic traffic = new Traffic(member, Traffic.checkTime(member, time));
      traffic.interact(sent, values, Collections.emptySet(), tag);
      return traffic.retractionHandle();
   }

   static Fom.InteractionClass checkSent(
         Member member, int interaction, Map<Integer, byte[]> values) throws RTIexception {
      Fom.InteractionClass sent = Checks.publishedInteraction(member, interaction);
      if (!sent.parameters.keySet().containsAll(values.keySet())) {
         throw new InteractionParameterNotDefined(
               "the interaction class " + sent.name + " lacks a parameter that was sent");
      }
      return sent;
   }

   @Override
   public void deleteObjectInstance(int object, byte[] tag) throws RTIexception {
      Member member = _loopback.workingMember();
      delete(member, checkDeletable(member, object), tag, null);
   }

   @Override
   public byte[] deleteObjectInstance(int object, byte[] tag, byte[] time) throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = checkDeletable(member, object);
      return delete(member, instance, tag, Traffic.checkTime(member, time));
   }

   private static ObjectInstance checkDeletable(Member member, int object) throws RTIexception {
      ObjectInstance instance = Checks.instance(member, object);
      if (!instance.isOwned(member.federation().fom().privilegeToDelete(), member)) {
         throw new DeletePrivilegeNotHeld("the federate may not delete " + instance.name);
      }
      return instance;
   }

   /** A null time: none. */
   static byte[] delete(Member member, ObjectInstance instance, byte[] tag, LogicalTime time) {
      Traffic traffic = new Traffic(member, time);
      traffic.remove(instance, tag);
      return traffic.retractionHandle();
   }

   @Override
   public void localDeleteObjectInstance(int object) throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.instance(member, object);
      if (!instance.ownedBy(member).isEmpty()) {
         throw new FederateOwnsAttributes("the federate owns attributes of " + instance.name);
      }
      if (!instance.acquiredBy(member).isEmpty()) {
         throw new OwnershipAcquisitionPending("the federate is acquiring attributes");
      }
      instance.forgetBy(member);
      member.federation().forgetIfGone(instance);
   }

   @Override
   public void requestAttributeValueUpdate_OIH_AHS_BX(
         int object, Set<Integer> attributes, byte[] tag) throws RTIexception {
      Member member = _loopback.workingMember();
      requestUpdate(member, Checks.instance(member, object, attributes), attributes, tag);
   }

   @Override
   public void requestAttributeValueUpdate_OCH_AHS_BX(
         int objectClass, Set<Integer> attributes, byte[] tag) throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.ObjectClass wanted = Checks.objectClass(member, objectClass, attributes);
      Federation federation = member.federation();
      for (ObjectInstance instance : federation.instancesOf(wanted)) {
         requestUpdate(member, instance, attributes, tag);
      }
   }

   /** The RTI answers at once for its own instances. Each other owner is asked for what it owns. */
   static void requestUpdate(
         Member member, ObjectInstance instance, Set<Integer> attributes, byte[] tag) {
      for (Member owner : member.federation().members()) {
         Set<Integer> asked = new TreeSet<>(attributes);
         asked.retainAll(instance.ownedBy(owner));
         if (owner != member && !asked.isEmpty()) {
            owner.callbacks().provideAttributeValueUpdate(instance.handle, asked, tag);
         }
      }
      if (instance.producer == 0) {
         member.federation().mom().provide(instance, attributes);
      }
   }

   @Override
   public void requestAttributeTransportationTypeChange(
         int object, Set<Integer> attributes, int transportation) throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.transportation(member, transportation);
      ObjectInstance instance = Checks.ownInstance(member, object, attributes);
      for (int attribute : attributes) {
         instance.attributes.get(attribute).transportation = transportation;
      }
      member.callbacks().confirmAttributeTransportationTypeChange(
            object, attributes, transportation);
   }

   @Override
   public void queryAttributeTransportationType(int object, int attribute) throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance =
            Checks.instance(member, object, Collections.singleton(attribute));
      member.callbacks().reportAttributeTransportationType(
            object, attribute, instance.attributes.get(attribute).transportation);
   }

   @Override
   public void requestInteractionTransportationTypeChange(int interaction, int transportation)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.transportation(member, transportation);
      Checks.publishedInteraction(member, interaction);
      member.declarations().interactionTransportations.put(interaction, transportation);
      member.callbacks().confirmInteractionTransportationTypeChange(interaction, transportation);
   }

   /** Of a federate that is not there, the object model's own. */
   @Override
   public void queryInteractionTransportationType(int federate, int interaction)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.InteractionClass found = Checks.interaction(member, interaction);
      Member asked = member.federation().member(federate);
      member.callbacks().reportInteractionTransportationType(federate, interaction,
            asked == null ? found.transportation : asked.declarations().transportation(found));
   }
}
