// The state of a federation as bytes: what a save keeps, and a restore makes anew.
package skerry.tarn1516e.standin;

import java.io.ByteArrayInputStream;
import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.ObjectInputStream;
import java.io.ObjectOutputStream;
import java.util.Collection;
import java.util.LinkedHashMap;
import java.util.Map;

final class Snapshot {
   /** The name and the type of those who took part, by their handles. */
   final Map<Integer, String[]> members = new LinkedHashMap<>();

   private final byte[] _state;

   Snapshot(Collection<Member> members, Object state) {
      members.forEach(each -> this.members.put(
            each.handle(), new String[] {each.name(), each.type()}));
      _state = write(state);
   }

   /** Finds for each of these members one of those saved, of its type and, if there is one, of its
       name. False if they are not as many of each type. */
   boolean assign(Collection<Member> to, Map<Member, Integer> becomes) {
      Map<Integer, String[]> left = new LinkedHashMap<>(members);
      becomes.clear();
      for (boolean isByName : new boolean[] {true, false}) {
         for (Member member : to) {
            left.keySet().stream()
                  .filter(each -> !becomes.containsKey(member)
                        && left.get(each)[1].equals(member.type())
                        && (!isByName || left.get(each)[0].equals(member.name())))
                  .findFirst()
                  .ifPresent(each -> becomes.put(member, each));
            left.keySet().removeAll(becomes.values());
         }
      }
      return left.isEmpty() && becomes.size() == to.size();
   }

   private static byte[] write(Object state) {
      ByteArrayOutputStream bytes = new ByteArrayOutputStream();
      try (ObjectOutputStream out = new ObjectOutputStream(bytes)) {
         out.writeObject(state);
      } catch (IOException failure) {
         throw new IllegalStateException("the federation can't be saved", failure);
      }
      return bytes.toByteArray();
   }

   Object state() {
      try (ObjectInputStream in = new ObjectInputStream(new ByteArrayInputStream(_state))) {
         return in.readObject();
      } catch (IOException | ClassNotFoundException failure) {
         throw new IllegalStateException("the federation can't be restored", failure);
      }
   }
}
