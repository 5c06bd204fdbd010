// Tells members, as far as they have the advisories switched on, whether others are interested in
// the classes that they publish. Compares what holds with what was last told.
package skerry.tarn1516e.standin;

import java.util.ArrayList;
import java.util.Set;
import java.util.TreeSet;

final class Advisories {
   private final Federation _federation;

   Advisories(Federation federation) {
      _federation = federation;
   }

   /** All that the member publishes. */
   void update(Member member) {
      Declarations declarations = member.declarations();
      new ArrayList<>(declarations.published.keySet())
            .forEach(each -> updateRegistration(member, each));
      new ArrayList<>(declarations.publishedInteractions)
            .forEach(each -> updateSending(member, each));
   }

   /** Somebody's subscription to the class has changed. */
   void subscribed(Fom.ObjectClass to) {
      for (Member member : _federation.members()) {
         for (int published : new TreeSet<>(member.declarations().published.keySet())) {
            if (_federation.fom().objectClasses.get(published).isOrDescendsFrom(to)) {
               updateRegistration(member, published);
            }
         }
      }
   }

   void subscribed(Fom.InteractionClass to) {
      for (Member member : _federation.members()) {
         for (int published : new TreeSet<>(member.declarations().publishedInteractions)) {
            if (_federation.fom().interactionClasses.get(published).isOrDescendsFrom(to)) {
               updateSending(member, published);
            }
         }
      }
   }

   void updateRegistration(Member member, int objectClass) {
      Declarations declarations = member.declarations();
      if (!declarations.published.containsKey(objectClass)) {
         declarations.toRegister.remove(objectClass);
      } else if (member.isAdvised(Member.Advisory.OBJECT_CLASS_RELEVANCE)) {
         if (isWanted(member, objectClass)) {
            if (declarations.toRegister.add(objectClass)) {
               member.callbacks().startRegistrationForObjectClass(objectClass);
            }
         } else if (declarations.toRegister.remove(objectClass)) {
            member.callbacks().stopRegistrationForObjectClass(objectClass);
         }
      }
   }

   void updateSending(Member member, int interaction) {
      Declarations declarations = member.declarations();
      if (!declarations.publishedInteractions.contains(interaction)) {
         declarations.toSend.remove(interaction);
      } else if (member.isAdvised(Member.Advisory.INTERACTION_RELEVANCE)) {
         if (isInteractionWanted(member, interaction)) {
            if (declarations.toSend.add(interaction)) {
               member.callbacks().turnInteractionsOn(interaction);
            }
         } else if (declarations.toSend.remove(interaction)) {
            member.callbacks().turnInteractionsOff(interaction);
         }
      }
   }

   /** Whether somebody else has actively subscribed to a published attribute, of the class or of
       one above it. */
   private boolean isWanted(Member publisher, int published) {
      Set<Integer> attributes = publisher.declarations().published.get(published);
      for (Member member : _federation.members()) {
         for (Fom.ObjectClass at = _federation.fom().objectClasses.get(published);
               member != publisher && at != null; at = at.parent) {
            if (member.declarations().interests(at.handle).entrySet().stream().anyMatch(
                      each -> each.getValue().isActive() && attributes.contains(each.getKey()))) {
               return true;
            }
         }
      }
      return false;
   }

   private boolean isInteractionWanted(Member publisher, int published) {
      for (Member member : _federation.members()) {
         for (Fom.InteractionClass at = _federation.fom().interactionClasses.get(published);
               member != publisher && at != null; at = at.parent) {
            Interest interest = member.declarations().subscribedInteractions.get(at.handle);
            if (interest != null && interest.isActive()) {
               return true;
            }
         }
      }
      return false;
   }
}
