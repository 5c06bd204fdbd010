// Tells members of the object instances that they have subscribed to.
package skerry.tarn1516e.standin;

final class Discovery {
   private static final byte[] NO_TAG = {};

   private final Federation _federation;

   Discovery(Federation federation) {
      _federation = federation;
   }

   void discover(ObjectInstance instance) {
      _federation.members().forEach(member -> discover(instance, member));
   }

   void discover(ObjectInstance instance, Member member) {
      if (instance.isDeleted || instance.isKnownTo(member)) {
         return;
      }
      Fom.ObjectClass known = member.declarations().discoveredAs(
            _federation.fom().objectClasses.get(instance.objectClass));
      if (known == null || !isInScope(instance, member, known)) {
         return;
      }
      instance.knownAs.put(member, known.handle);
      member.counts().discovered++;
      if (instance.producer != 0 && member.isToldProducer) {
         member.callbacks().discoverObjectInstance(
               instance.handle, known.handle, instance.name, instance.producer);
      } else {
         member.callbacks().discoverObjectInstance(instance.handle, known.handle, instance.name);
      }
      Ownership.askToAssume(instance, member);
      if (_federation.isAutoProviding) {
         ObjectService.requestUpdate(member, instance, instance.inScope(member), NO_TAG);
      }
   }

   private static boolean isInScope(
         ObjectInstance instance, Member member, Fom.ObjectClass known) {
      return member.declarations().interests(known.handle).entrySet().stream().anyMatch(
            each -> instance.reaches(each.getKey(), member, each.getValue()));
   }
}
