// The removal of an instance, on its way to those who know it.
package skerry.tarn1516e.standin;

import java.util.Collections;
import java.util.LinkedHashSet;
import java.util.Set;
import java.util.TreeSet;

final class Removal extends Message {
   private static final long serialVersionUID = 1L;

   private final ObjectInstance _instance;
   private final LinkedHashSet<Member> _receivers;

   /** What the sender had before. */
   private final int _knownAs;
   private final TreeSet<Integer> _owned;

   /** The sender forgets the instance at once, the others when they get the message. */
   Removal(Envelope envelope, ObjectInstance instance) {
      super(envelope);
      _instance = instance;
      _knownAs = instance.knownAs.get(sender);
      _owned = new TreeSet<>(instance.ownedBy(sender));
      instance.forgetBy(sender);
      instance.isDeleted = true;
      _owned.forEach(attribute -> instance.attributes.get(attribute).owner = null);
      _receivers = new LinkedHashSet<>(instance.knownAs.keySet());
   }

   @Override
   Set<Member> receivers() {
      return _receivers;
   }

   @Override
   void send(Member receiver, int receivedOrder) {
      if (!_instance.isKnownTo(receiver)) {
         return;
      }
      _instance.forgetBy(receiver);
      receiver.counts().removed++;
      CallbackQueue callbacks = receiver.callbacks();
      Supplement info = supplement(receiver, Collections.emptySet());
      if (time == null) {
         callbacks.removeObjectInstance(_instance.handle, tag, sentOrder, info);
      } else if (retraction == 0) {
         callbacks.removeObjectInstance(
               _instance.handle, tag, sentOrder, time.encode(), receivedOrder, info);
      } else {
         callbacks.removeObjectInstance(_instance.handle, tag, sentOrder, time.encode(),
               receivedOrder, retraction, info);
      }
      receiver.federation().forgetIfGone(_instance);
   }

   @Override
   void undo() {
      _instance.isDeleted = false;
      _instance.knownAs.put(sender, _knownAs);
      _owned.forEach(attribute -> _instance.attributes.get(attribute).owner = sender);
      sender.federation().add(_instance);
   }
}
