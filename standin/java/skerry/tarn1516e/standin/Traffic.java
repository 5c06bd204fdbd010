// Sends updates, interactions and removals from one member to the others that are to get them.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.InvalidLogicalTime;
import java.nio.ByteBuffer;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.Objects;
import java.util.Set;
import java.util.TreeMap;

final class Traffic {
   /** Attributes travel in one message if they are alike in these. */
   private static final class Passage {
      final int order;
      final int transportation;
      final HashSet<Region> regions;

      Passage(ObjectInstance.Attribute attribute) {
         order = attribute.order;
         transportation = attribute.transportation;
         regions = new HashSet<>(attribute.regions);
      }

      @Override
      public boolean equals(Object other) {
         return other instanceof Passage && order == ((Passage) other).order
               && transportation == ((Passage) other).transportation
               && regions.equals(((Passage) other).regions);
      }

      @Override
      public int hashCode() {
         return Objects.hash(order, transportation, regions);
      }
   }

   private final Member _sender;
   private final Federation _federation;
   private final LogicalTime _time;
   private int _retraction;

   /** A null time: none. */
   Traffic(Member sender, LogicalTime time) {
      _sender = sender;
      _federation = sender.federation();
      _time = time;
   }

   /** The time of a message of the member, who may send it only at its time plus its lookahead or
       later if it regulates. */
   static LogicalTime checkTime(Member sender, byte[] encoded) throws InvalidLogicalTime {
      LogicalTime time = sender.federation().decodeTime(encoded);
      if (time.isNegative()) {
         throw new InvalidLogicalTime("the time " + time + " is before the initial time");
      }
      if (sender.time().isRegulating && sender.time().sendBound().excludes(time)) {
         throw new InvalidLogicalTime("the time " + time + " is too early to send at");
      }
      return time;
   }

   /** The handle by which what was sent can be retracted; null if it can't. */
   byte[] retractionHandle() {
      return _retraction == 0 ? null : ByteBuffer.allocate(8).putInt(_retraction).array();
   }

   void update(ObjectInstance instance, Map<Integer, byte[]> values, byte[] tag) {
      _federation.discovery().discover(instance);
      Map<Passage, Map<Integer, byte[]>> passages = new LinkedHashMap<>();
      values.forEach((attribute, value) -> {
         Passage passage = new Passage(instance.attributes.get(attribute));
         passages.computeIfAbsent(passage, none -> new TreeMap<>()).put(attribute, value);
      });
      passages.forEach((passage, together) -> {
         _sender.counts().updated(instance, passage.transportation);
         send(new Update(envelope(passage.order, tag), instance, passage.transportation,
               passage.regions, received(instance, together)));
      });
   }

   private LinkedHashMap<Member, Map<Integer, byte[]>> received(
         ObjectInstance instance, Map<Integer, byte[]> values) {
      LinkedHashMap<Member, Map<Integer, byte[]>> received = new LinkedHashMap<>();
      for (Member member : _federation.members()) {
         if (member != _sender && instance.isKnownTo(member)) {
            Map<Integer, byte[]> reaching = new TreeMap<>(values);
            reaching.keySet().retainAll(instance.inScope(member));
            if (!reaching.isEmpty()) {
               received.put(member, reaching);
            }
         }
      }
      return received;
   }

   void interact(Fom.InteractionClass interaction, Map<Integer, byte[]> values,
         Set<Region> regions, byte[] tag) {
      LinkedHashMap<Member, Integer> received = new LinkedHashMap<>();
      for (Member member : _federation.members()) {
         Fom.InteractionClass as = member.declarations().receivedAs(interaction);
         if (member != _sender && as != null
               && member.declarations().subscribedInteractions.get(as.handle).meets(regions)) {
            received.put(member, as.handle);
         }
      }
      MomRequests.take(_sender, interaction, values);
      int transportation = _sender.declarations().transportation(interaction);
      _sender.counts().sent(interaction.handle, transportation);
      send(new Interaction(envelope(_sender.declarations().order(interaction), tag), values,
            transportation, regions, received));
   }

   void remove(ObjectInstance instance, byte[] tag) {
      int order = instance.attributes.get(_federation.fom().privilegeToDelete()).order;
      _sender.counts().deleted++;
      send(new Removal(envelope(order, tag), instance));
      _federation.forgetIfGone(instance);
   }

   /** Only a regulating member's messages with a time are sent in timestamp order. */
   private Message.Envelope envelope(int order, byte[] tag) {
      if (order != Fom.TIMESTAMP || _time == null || !_sender.time().isRegulating) {
         return new Message.Envelope(_sender, tag, _time, Fom.RECEIVE, 0);
      }
      if (_retraction == 0) {
         _retraction = _federation.nextRetraction();
      }
      return new Message.Envelope(_sender, tag, _time, Fom.TIMESTAMP, _retraction);
   }

   private void send(Message message) {
      if (message.retraction != 0) {
         _sender.time().sent.computeIfAbsent(_retraction, none -> new ArrayList<>())
               .add(message);
      }
      message.receivers().forEach(receiver -> receiver.time().receive(message));
      _federation.clock().update();
   }
}
