// Sends reflections, interactions and removals from one member to the others that are to get them.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.InvalidLogicalTime;
import java.nio.ByteBuffer;
import java.util.ArrayList;
import java.util.Collection;
import java.util.Collections;
import java.util.LinkedHashMap;
import java.util.LinkedHashSet;
import java.util.Map;
import java.util.Objects;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;

final class Traffic {
   /** Attributes travel in one message if they are alike in these. */
   private static final class Passage {
      final int order;
      final int transportation;
      final Set<Region> regions;

      Passage(ObjectInstance.Attribute attribute) {
         order = attribute.order;
         transportation = attribute.transportation;
         regions = attribute.regions;
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
      passages.forEach((passage, together) -> update(instance, passage, together, tag));
   }

   private void update(ObjectInstance instance, Passage passage, Map<Integer, byte[]> values,
         byte[] tag) {
      Map<Member, Map<Integer, byte[]>> received = new LinkedHashMap<>();
      for (Member member : _federation.members()) {
         if (member != _sender && instance.isKnownTo(member)) {
            Map<Integer, byte[]> reaching = new TreeMap<>(values);
            reaching.keySet().retainAll(instance.inScope(member));
            if (!reaching.isEmpty()) {
               received.put(member, reaching);
            }
         }
      }
      send(passage.order, received.keySet(), (receiver, message, receivedOrder) -> {
         if (instance.knownAs.containsKey(receiver)) {
            reflect(receiver.callbacks(), message, receivedOrder, instance.handle,
                  received.get(receiver), tag, passage.transportation,
                  supplement(receiver, passage.regions));
         }
      });
   }

   private static void reflect(CallbackQueue callbacks, Message message, int receivedOrder,
         int instance, Map<Integer, byte[]> values, byte[] tag, int transportation,
         Supplement info) {
      if (message.time == null) {
         callbacks.reflectAttributeValues(
               instance, values, tag, message.sentOrder, transportation, info);
      } else if (message.retraction == 0) {
         callbacks.reflectAttributeValues(instance, values, tag, message.sentOrder,
               transportation, message.time.encode(), receivedOrder, info);
      } else {
         callbacks.reflectAttributeValues(instance, values, tag, message.sentOrder,
               transportation, message.time.encode(), receivedOrder, message.retraction, info);
      }
   }

   void interact(Fom.InteractionClass interaction, Map<Integer, byte[]> values,
         Set<Region> regions, byte[] tag) {
      Map<Member, Fom.InteractionClass> received = new LinkedHashMap<>();
      for (Member member : _federation.members()) {
         Fom.InteractionClass as = member.declarations().receivedAs(interaction);
         if (member != _sender && as != null
               && member.declarations().subscribedInteractions.get(as.handle).meets(regions)) {
            received.put(member, as);
         }
      }
      int transportation = _sender.declarations().transportation(interaction);
      send(_sender.declarations().order(interaction), received.keySet(),
            (receiver, message, receivedOrder) -> {
               Fom.InteractionClass as = received.get(receiver);
               Map<Integer, byte[]> known = new TreeMap<>(values);
               known.keySet().retainAll(as.parameters.keySet());
               receive(receiver.callbacks(), message, receivedOrder, as.handle, known, tag,
                     transportation, supplement(receiver, regions));
            });
   }

   private static void receive(CallbackQueue callbacks, Message message, int receivedOrder,
         int interaction, Map<Integer, byte[]> values, byte[] tag, int transportation,
         Supplement info) {
      if (message.time == null) {
         callbacks.receiveInteraction(
               interaction, values, tag, message.sentOrder, transportation, info);
      } else if (message.retraction == 0) {
         callbacks.receiveInteraction(interaction, values, tag, message.sentOrder,
               transportation, message.time.encode(), receivedOrder, info);
      } else {
         callbacks.receiveInteraction(interaction, values, tag, message.sentOrder,
               transportation, message.time.encode(), receivedOrder, message.retraction, info);
      }
   }

   /** The sender forgets the instance at once, the others when they get the message. */
   void remove(ObjectInstance instance, byte[] tag) {
      int order = instance.attributes.get(_federation.fom().privilegeToDelete()).order;
      Set<Integer> owned = instance.ownedBy(_sender);
      int knownAs = instance.knownAs.remove(_sender);
      instance.isDeleted = true;
      owned.forEach(attribute -> instance.attributes.get(attribute).owner = null);
      Message sent = send(order, new LinkedHashSet<>(instance.knownAs.keySet()),
            (receiver, message, receivedOrder) -> {
               if (instance.isKnownTo(receiver)) {
                  instance.forgetBy(receiver);
                  removed(receiver.callbacks(), message, receivedOrder, instance.handle, tag,
                        supplement(receiver, Collections.emptySet()));
                  _federation.forgetIfGone(instance);
               }
            });
      sent.undo = () -> {
         instance.isDeleted = false;
         instance.knownAs.put(_sender, knownAs);
         owned.forEach(attribute -> instance.attributes.get(attribute).owner = _sender);
         _federation.add(instance);
      };
      _federation.forgetIfGone(instance);
   }

   private static void removed(CallbackQueue callbacks, Message message, int receivedOrder,
         int instance, byte[] tag, Supplement info) {
      if (message.time == null) {
         callbacks.removeObjectInstance(instance, tag, message.sentOrder, info);
      } else if (message.retraction == 0) {
         callbacks.removeObjectInstance(
               instance, tag, message.sentOrder, message.time.encode(), receivedOrder, info);
      } else {
         callbacks.removeObjectInstance(instance, tag, message.sentOrder, message.time.encode(),
               receivedOrder, message.retraction, info);
      }
   }

   /** Only a regulating member's messages with a time are sent in timestamp order. */
   private Message send(int order, Collection<Member> receivers, Message.Content content) {
      boolean isTimestamped =
            order == Fom.TIMESTAMP && _time != null && _sender.time().isRegulating;
      if (isTimestamped && _retraction == 0) {
         _retraction = _federation.nextRetraction();
      }
      Message message = new Message(_sender, _time, isTimestamped ? Fom.TIMESTAMP : Fom.RECEIVE,
            isTimestamped ? _retraction : 0, content);
      if (isTimestamped) {
         _sender.time().sent.computeIfAbsent(_retraction, none -> new ArrayList<>())
               .add(message);
      }
      receivers.forEach(receiver -> receiver.time().receive(message));
      _federation.clock().update();
      return message;
   }

   private Supplement supplement(Member receiver, Set<Region> regions) {
      Set<Integer> handles = null;
      if (!regions.isEmpty() && receiver.isToldRegions) {
         handles = new TreeSet<>();
         for (Region region : regions) {
            handles.add(region.handle);
         }
      }
      return new Supplement(receiver.isToldProducer ? _sender.handle() : 0, handles);
   }
}
