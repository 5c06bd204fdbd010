// A registered object instance with its attributes, who knows it as what, and what was told of it.
package skerry.tarn1516e.standin;

import java.io.Serializable;
import java.util.HashMap;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;

final class ObjectInstance implements Serializable {
   private static final long serialVersionUID = 1L;

   /** What an acquirer of an attribute asked for. */
   static final class Request implements Serializable {
      private static final long serialVersionUID = 1L;

      final byte[] tag;
      final boolean isIfAvailable;

      Request(byte[] tag, boolean isIfAvailable) {
         this.tag = tag;
         this.isIfAvailable = isIfAvailable;
      }
   }

   static final class Attribute implements Serializable {
      private static final long serialVersionUID = 1L;

      /** Null while nobody owns it. */
      Member owner;
      int order;
      int transportation;

      /** Where its updates go; the whole space if empty. */
      final HashSet<Region> regions = new HashSet<>();

      /** Whether the owner offers it, and has been asked to confirm that it goes. */
      boolean isOffered;
      boolean isToBeConfirmed;
      byte[] offerTag = {};

      /** Who wants it, in the order of asking. */
      final LinkedHashMap<Member, Request> acquirers = new LinkedHashMap<>();

      /** Who has been asked to take it since it was offered or left alone. */
      final HashSet<Member> askedToAssume = new HashSet<>();

      private final int _declaredOrder;
      private final int _declaredTransportation;

      Attribute(Fom.Attribute declared, Member owner) {
         _declaredOrder = declared.order;
         _declaredTransportation = declared.transportation;
         pass(owner);
      }

      /** A new owner begins with what the object model says. */
      void pass(Member to) {
         owner = to;
         acquirers.remove(to);
         regions.clear();
         order = _declaredOrder;
         transportation = _declaredTransportation;
         endOffer();
      }

      void endOffer() {
         isOffered = false;
         isToBeConfirmed = false;
         offerTag = new byte[0];
         askedToAssume.clear();
      }
   }

   final int handle;
   final String name;
   final int objectClass;

   /** A federate handle; 0 for the RTI itself. */
   final int producer;
   final TreeMap<Integer, Attribute> attributes = new TreeMap<>();

   /** Deleted instances last until the last member that knows them has been told. */
   boolean isDeleted;

   /** The class as which each member knows it. */
   final HashMap<Member, Integer> knownAs = new HashMap<>();

   /** What each member was last told to be in its scope, and which of its attributes to be wanted
       with which rate. */
   final HashMap<Member, Set<Integer>> toldInScope = new HashMap<>();
   final HashMap<Member, Map<Integer, String>> toldWanted = new HashMap<>();

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

   boolean isKnownTo(Member member) {
      return knownAs.containsKey(member);
   }

   boolean isKnownAs(Member member, int knownClass) {
      return knownAs.getOrDefault(member, 0) == knownClass;
   }

   void forgetBy(Member member) {
      knownAs.remove(member);
      toldInScope.remove(member);
      toldWanted.remove(member);
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

   boolean uses(Region region) {
      return attributes.values().stream().anyMatch(each -> each.regions.contains(region));
   }

   /** What the member, who knows the instance, gets of its attributes: subscribed there, owned by
       somebody else, and with regions that meet. */
   Set<Integer> inScope(Member member) {
      Set<Integer> found = new TreeSet<>();
      member.declarations().interests(knownAs.get(member)).forEach((attribute, interest) -> {
         if (reaches(attribute, member, interest)) {
            found.add(attribute);
         }
      });
      return found;
   }

   boolean reaches(int attribute, Member member, Interest interest) {
      Attribute state = attributes.get(attribute);
      return state != null && state.owner != null && state.owner != member
            && interest.meets(state.regions);
   }
}
