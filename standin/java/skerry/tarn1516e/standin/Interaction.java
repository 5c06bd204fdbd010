// An interaction on its way to those who have subscribed to its class or to one above it.
package skerry.tarn1516e.standin;

import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;

final class Interaction extends Message {
   private static final long serialVersionUID = 1L;

   private final TreeMap<Integer, byte[]> _values;
   private final int _transportation;
   private final HashSet<Region> _regions;

   /** The class as which each receiver gets it. */
   private final LinkedHashMap<Member, Integer> _receivedAs;

   Interaction(Envelope envelope, Map<Integer, byte[]> values, int transportation,
         Set<Region> regions, LinkedHashMap<Member, Integer> receivedAs) {
      super(envelope);
      _values = new TreeMap<>(values);
      _transportation = transportation;
      _regions = new HashSet<>(regions);
      _receivedAs = receivedAs;
   }

   @Override
   Set<Member> receivers() {
      return _receivedAs.keySet();
   }

   @Override
   void send(Member receiver, int receivedOrder) {
      int as = _receivedAs.get(receiver);
      Map<Integer, byte[]> known = new TreeMap<>(_values);
      known.keySet().retainAll(
            receiver.federation().fom().interactionClasses.get(as).parameters.keySet());
      receiver.counts().received(as, _transportation);
      CallbackQueue callbacks = receiver.callbacks();
      Supplement info = supplement(receiver, _regions);
      if (time == null) {
         callbacks.receiveInteraction(as, known, tag, sentOrder, _transportation, info);
      } else if (retraction == 0) {
         callbacks.receiveInteraction(as, known, tag, sentOrder, _transportation, time.encode(),
               receivedOrder, info);
      } else {
         callbacks.receiveInteraction(as, known, tag, sentOrder, _transportation, time.encode(),
               receivedOrder, retraction, info);
      }
   }
}
