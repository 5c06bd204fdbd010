// Tells members of the object instances that they have subscribed to.
package skerry.tarn1516e.standin;

import java.util.Map;

final class Discovery {
   private final Federation _federation;

   Discovery(Federation federation) {
      _federation = federation;
   }

   void discoverAll() {
      for (ObjectInstance instance : _federation.instances.values()) {
         discover(instance);
      }
   }

   void discover(ObjectInstance instance) {
      for (Member member : _federation.members()) {
         if (!instance.isDeleted && !instance.knownAs.containsKey(member)) {
            discover(instance, member);
         }
      }
   }

   private void discover(ObjectInstance instance, Member member) {
      Fom fom = _federation.fom();
      Fom.ObjectClass known =
            member.declarations().discoveredAs(fom.objectClasses.get(instance.objectClass));
      if (known == null || !isInScope(instance, member, known)) {
         return;
      }
      instance.knownAs.put(member, known.handle);
      if (fom.isSwitchedOn("conveyProducingFederate", false)) {
         member.callbacks().discoverObjectInstance(
               instance.handle, known.handle, instance.name, instance.producer);
      } else {
         member.callbacks().discoverObjectInstance(instance.handle, known.handle, instance.name);
      }
   }

   private static boolean isInScope(
         ObjectInstance instance, Member member, Fom.ObjectClass known) {
      Map<Integer, Interest> interests = member.declarations().subscribed.get(known.handle);
      return interests.entrySet().stream().anyMatch(
            each -> instance.reaches(each.getKey(), member, each.getValue()));
   }
}
