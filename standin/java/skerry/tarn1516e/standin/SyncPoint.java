// A synchronization point that is announced and not yet reached by all.
package skerry.tarn1516e.standin;

import java.io.Serializable;
import java.util.HashSet;
import java.util.LinkedHashSet;
import java.util.TreeSet;

final class SyncPoint implements Serializable {
   private static final long serialVersionUID = 1L;

   final String label;
   final byte[] tag;

   /** Whether members that join later take part. */
   final boolean isForAll;

   private final LinkedHashSet<Member> _members = new LinkedHashSet<>();
   private final HashSet<Member> _reached = new HashSet<>();
   private final TreeSet<Integer> _failed = new TreeSet<>();

   SyncPoint(String label, byte[] tag, boolean isForAll) {
      this.label = label;
      this.tag = tag;
      this.isForAll = isForAll;
   }

   void announceTo(Member member) {
      _members.add(member);
      member.callbacks().announceSynchronizationPoint(label, tag);
   }

   boolean isAwaitedOf(Member member) {
      return _members.contains(member) && !_reached.contains(member);
   }

   void reach(Member member, boolean isSuccess) {
      _reached.add(member);
      if (!isSuccess) {
         _failed.add(member.handle());
      }
   }

   void remove(Member member) {
      _members.remove(member);
      _reached.remove(member);
      _failed.remove(member.handle());
   }

   /** Tells all members if no one is awaited any more. */
   boolean finishIfReached() {
      if (_reached.size() < _members.size()) {
         return false;
      }
      for (Member member : _members) {
         member.callbacks().federationSynchronized(label, _failed);
      }
      return true;
   }
}
