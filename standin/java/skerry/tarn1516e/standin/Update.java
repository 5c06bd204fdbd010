// New values of an instance's attributes, on their way to those who have subscribed to them.
package skerry.tarn1516e.standin;

import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.Set;

final class Update extends Message {
   private static final long serialVersionUID = 1L;

   private final ObjectInstance _instance;
   private final int _transportation;
   private final HashSet<Region> _regions;

   /** What each receiver gets of them. */
   private final LinkedHashMap<Member, Map<Integer, byte[]>> _received;

   Update(Envelope envelope, ObjectInstance instance, int transportation, HashSet<Region> regions,
         LinkedHashMap<Member, Map<Integer, byte[]>> received) {
      super(envelope);
      _instance = instance;
      _transportation = transportation;
      _regions = regions;
      _received = received;
   }

   @Override
   Set<Member> receivers() {
      return _received.keySet();
   }

   @Override
   void send(Member receiver, int receivedOrder) {
      if (!_instance.isKnownTo(receiver)) {
         return;
      }
      receiver.counts().reflected(_instance, _transportation);
      CallbackQueue callbacks = receiver.callbacks();
      Map<Integer, byte[]> values = _received.get(receiver);
      Supplement info = supplement(receiver, _regions);
      if (time == null) {
         callbacks.reflectAttributeValues(
               _instance.handle, values, tag, sentOrder, _transportation, info);
      } else if (retraction == 0) {
         callbacks.reflectAttributeValues(_instance.handle, values, tag, sentOrder,
               _transportation, time.encode(), receivedOrder, info);
      } else {
         callbacks.reflectAttributeValues(_instance.handle, values, tag, sentOrder,
               _transportation, time.encode(), receivedOrder, retraction, info);
      }
   }
}
