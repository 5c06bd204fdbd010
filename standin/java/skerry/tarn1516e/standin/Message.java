// A reflection, an interaction or a removal on its way from one member to others.
package skerry.tarn1516e.standin;

import java.util.HashSet;
import java.util.Set;

final class Message {
   /** Makes the callback. */
   interface Content {
      void send(Member receiver, Message message, int receivedOrder);
   }

   final int sender;

   /** Null if the message has none. */
   final LogicalTime time;
   final int sentOrder;

   /** Its number among all messages that can be retracted; 0 if it can't. */
   final int retraction;

   /** Counts up, so that messages of one time keep their order. */
   final long number;

   /** Who has got it. Kept for messages that can be retracted. */
   final Set<Member> deliveredTo = new HashSet<>();

   /** What brings back the state before the message was sent. */
   Runnable undo = () -> {};

   private final Content _content;

   Message(Member sender, LogicalTime time, int sentOrder, int retraction, Content content) {
      this.sender = sender.handle();
      this.time = time;
      this.sentOrder = sentOrder;
      this.retraction = retraction;
      number = sender.federation().nextMessageNumber();
      _content = content;
   }

   void deliver(Member receiver, int receivedOrder) {
      if (retraction != 0) {
         deliveredTo.add(receiver);
      }
      _content.send(receiver, this, receivedOrder);
   }
}
