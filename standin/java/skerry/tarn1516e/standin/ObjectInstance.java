// A registered object instance with its attributes, and who knows it as what.
package skerry.tarn1516e.standin;

import java.util.HashMap;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;

final class ObjectInstance {
   static final class Attribute {
      /** Null while nobody owns it. */
      Member owner;
      int order;
      int transportation;

      /** Where its updates go; the whole space if empty. */
      final Set<Region> regions = new HashSet<>();

      /** Whether the owner offers it, and waits for somebody to take it. */
      boolean isOffered;

      /** Who wants it, in the order of asking, with their tags. A null tag: only if it is free. */
      final Map<Member, byte[]> acquirers = new LinkedHashMap<>();

      private final Fom.Attribute _declared;

      Attribute(Fom.Attribute declared, Member owner) {
         _declared = declared;
         pass(owner);
      }

      /** A new owner begins with what the object model says. */
      void pass(Member to) {
         owner = to;
         isOffered = false;
         acquirers.remove(to);
         regions.clear();
         order = _declared.order;
         transportation = _declared.transportation;
      }
   }

   final int handle;
   final String name;
   final int objectClass;
   final int producer;
   final Map<Integer, Attribute> attributes = new TreeMap<>();

   /** Deleted instances last until the last member that knows them has been told. */
   boolean isDeleted;

   /** The class as which each member knows it. */
   final Map<Member, Integer> knownAs = new HashMap<>();

   /** The producer owns what it publishes and, always, the privilege to delete. */
   ObjectInstance(int handle, String name, Fom.ObjectClass objectClass, Member producer) {
      this.handle = handle;
      this.name = name;
      this.objectClass = objectClass.handle;
      this.producer = producer.handle();
      for (Fom.Attribute declared : objectClass.attributes.values()) {
         boolean isOwned = declared.name.equals(Fom.PRIVILEGE_TO_DELETE)
               || producer.declarations().publishes(objectClass.handle, declared.handle);
         attributes.put(declared.handle, new Attribute(declared, isOwned ? producer : null));
      }
      knownAs.put(producer, objectClass.handle);
   }

   boolean isOwned(int attribute, Member member) {
      Attribute found = attributes.get(attribute);
      return found != null && found.owner == member;
   }

   Set<Integer> ownedBy(Member member) {
      Set<Integer> owned = new TreeSet<>();
      attributes.forEach((attribute, state) -> {
         if (state.owner == member) {
            owned.add(attribute);
         }
      });
      return owned;
   }

   Set<Integer> acquiredBy(Member member) {
      Set<Integer> wanted = new TreeSet<>();
      attributes.forEach((attribute, state) -> {
         if (state.acquirers.containsKey(member)) {
            wanted.add(attribute);
         }
      });
      return wanted;
   }

   /** What the member, who knows the instance, gets of its attributes: subscribed there, owned by
       somebody else, and with regions that meet. */
   Set<Integer> inScope(Member member) {
      Set<Integer> found = new TreeSet<>();
      Map<Integer, Interest> interests =
            member.declarations().subscribed.get(knownAs.get(member));
      if (interests != null) {
         interests.forEach((attribute, interest) -> {
            if (reaches(attribute, member, interest)) {
               found.add(attribute);
            }
         });
      }
      return found;
   }

   boolean reaches(int attribute, Member member, Interest interest) {
      Attribute state = attributes.get(attribute);
      return state != null && state.owner != null && state.owner != member
            && interest.meets(state.regions);
   }
}
