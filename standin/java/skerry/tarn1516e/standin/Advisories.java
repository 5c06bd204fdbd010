// Tells members, as far as they have the advisories switched on, whether others are interested in
// what they publish. Compares what holds with what was last told.
package skerry.tarn1516e.standin;

import java.util.Map;
import java.util.Set;
import java.util.TreeSet;

final class Advisories {
   private final Federation _federation;

   Advisories(Federation federation) {
      _federation = federation;
   }

   void update() {
      for (Member member : _federation.members()) {
         if (member.isAdvised(Member.Advisory.OBJECT_CLASS_RELEVANCE)) {
            updateRegistration(member);
         }
         if (member.isAdvised(Member.Advisory.INTERACTION_RELEVANCE)) {
            updateSending(member);
         }
         member.instanceAdvisories().update();
      }
   }

   private void updateRegistration(Member member) {
      Declarations declarations = member.declarations();
      Set<Integer> wanted = new TreeSet<>();
      for (int published : declarations.published.keySet()) {
         if (isWanted(member, published)) {
            wanted.add(published);
         }
      }
      for (int objectClass : minus(declarations.toRegister, wanted)) {
         if (declarations.published.containsKey(objectClass)) {
            member.callbacks().stopRegistrationForObjectClass(objectClass);
         }
      }
      for (int objectClass : minus(wanted, declarations.toRegister)) {
         member.callbacks().startRegistrationForObjectClass(objectClass);
      }
      declarations.toRegister.clear();
      declarations.toRegister.addAll(wanted);
   }

   private void updateSending(Member member) {
      Declarations declarations = member.declarations();
      Set<Integer> wanted = new TreeSet<>();
      for (int published : declarations.publishedInteractions) {
         if (isInteractionWanted(member, published)) {
            wanted.add(published);
         }
      }
      for (int interaction : minus(declarations.toSend, wanted)) {
         if (declarations.publishedInteractions.contains(interaction)) {
            member.callbacks().turnInteractionsOff(interaction);
         }
      }
      for (int interaction : minus(wanted, declarations.toSend)) {
         member.callbacks().turnInteractionsOn(interaction);
      }
      declarations.toSend.clear();
      declarations.toSend.addAll(wanted);
   }

   /** Whether somebody else has actively subscribed to a published attribute, of the class or of
       one above it. */
   private boolean isWanted(Member publisher, int published) {
      Set<Integer> attributes = publisher.declarations().published.get(published);
      for (Member member : _federation.members()) {
         if (member == publisher) {
            continue;
         }
         for (Fom.ObjectClass at = _federation.fom().objectClasses.get(published); at != null;
               at = at.parent) {
            Map<Integer, Interest> interests = member.declarations().subscribed.get(at.handle);
            if (interests != null
                  && interests.entrySet().stream().anyMatch(
                        each -> each.getValue().isActive && attributes.contains(each.getKey()))) {
               return true;
            }
         }
      }
      return false;
   }

   private boolean isInteractionWanted(Member publisher, int published) {
      for (Member member : _federation.members()) {
         if (member == publisher) {
            continue;
         }
         for (Fom.InteractionClass at = _federation.fom().interactionClasses.get(published);
               at != null; at = at.parent) {
            Interest interest = member.declarations().subscribedInteractions.get(at.handle);
            if (interest != null && interest.isActive) {
               return true;
            }
         }
      }
      return false;
   }

   static Set<Integer> minus(Set<Integer> all, Set<Integer> without) {
      Set<Integer> left = new TreeSet<>(all);
      left.removeAll(without);
      return left;
   }
}
