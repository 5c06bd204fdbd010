// A reflection, an interaction or a removal on its way from one member to others.
package skerry.tarn1516e.standin;

import java.io.Serializable;
import java.util.HashSet;
import java.util.Set;
import java.util.TreeSet;

abstract class Message implements Serializable, Comparable<Message> {
   private static final long serialVersionUID = 1L;

   final Member sender;
   final byte[] tag;

   /** Null if the message has none. */
   final LogicalTime time;
   final int sentOrder;

   /** Its number among all messages that can be retracted; 0 if it can't. */
   final int retraction;

   /** Who has got it. Kept for messages that can be retracted. */
   final HashSet<Member> deliveredTo = new HashSet<>();

   /** Counts up, so that messages of one time keep their order. */
   private final long _number;

   /** How a message is sent, whatever it says. */
   static final class Envelope {
      final Member sender;
      final byte[] tag;
      final LogicalTime time;
      final int sentOrder;
      final int retraction;

      Envelope(Member sender, byte[] tag, LogicalTime time, int sentOrder, int retraction) {
         this.sender = sender;
         this.tag = tag;
         this.time = time;
         this.sentOrder = sentOrder;
         this.retraction = retraction;
      }
   }

   Message(Envelope envelope) {
      sender = envelope.sender;
      tag = envelope.tag;
      time = envelope.time;
      sentOrder = envelope.sentOrder;
      retraction = envelope.retraction;
      _number = sender.federation().nextMessageNumber();
   }

   /** Makes the callback. */
   abstract void send(Member receiver, int receivedOrder);

   abstract Set<Member> receivers();

   /** Brings back the state before the message was sent. */
   void undo() {}

   final void deliver(Member receiver, int receivedOrder) {
      if (retraction != 0) {
         deliveredTo.add(receiver);
      }
      send(receiver, receivedOrder);
   }

   /** The RTI itself is no producer. */
   final Supplement supplement(Member receiver, Set<Region> regions) {
      Set<Integer> handles = null;
      if (!regions.isEmpty() && receiver.isToldRegions) {
         handles = new TreeSet<>();
         for (Region region : regions) {
            handles.add(region.handle);
         }
      }
      return new Supplement(receiver.isToldProducer ? sender.handle() : 0, handles);
   }

   /** By time, and in the order of sending. */
   @Override
   public final int compareTo(Message other) {
      int order = time.compareTo(other.time);
      return order != 0 ? order : Long.compare(_number, other._number);
   }

   @Override
   public final boolean equals(Object other) {
      return this == other;
   }

   @Override
   public final int hashCode() {
      return Long.hashCode(_number);
   }
}
