// Decides, for all members of a federation, who may advance. The members' own limits depend on each
// other: they are worked out together each time.
package skerry.tarn1516e.standin;

import java.util.HashMap;
import java.util.Map;

final class Clock {
   private final Federation _federation;

   Clock(Federation federation) {
      _federation = federation;
   }

   /** The greatest time to which the member can go without waiting for others; null if nobody else
       regulates. */
   Bound limit(Member member) {
      return lowestOfOthers(member, sendBounds());
   }

   /** The least time that the next message for the member can have, or null. */
   LogicalTime leastIncoming(Member member) {
      Bound limit = limit(member);
      LogicalTime waiting = member.time().firstWaiting();
      if (limit == null || waiting == null) {
         return limit == null ? waiting : limit.time;
      }
      return LogicalTime.earlier(limit.time, waiting);
   }

   /** Decides all that can be decided now; what lies beyond a save that waits for its time comes
       after it. */
   void update() {
      boolean isDecided = !_federation.saveRestore().isBusy();
      while (isDecided) {
         isDecided = false;
         for (Member member : _federation.members()) {
            isDecided |= decide(member);
         }
      }
      _federation.saveRestore().beginIfTime();
   }

   private boolean decide(Member member) {
      TimeState time = member.time();
      if (time.isRegulationPending && !time.isRegulating) {
         return tryRegulation(member);
      }
      if (time.isConstraintPending && !time.isConstrained) {
         Bound limit = limit(member);
         if (limit != null && !limit.reaches(time.time())) {
            return false;
         }
         time.constrain();
         return true;
      }
      LogicalTime granted = time.isUndecided() ? grantable(member) : null;
      if (granted == null || _federation.saveRestore().holds(granted)) {
         return false;
      }
      time.grant(granted);
      return true;
   }

   /** The member may send nothing that a constrained one has been told not to expect. If it could,
       it starts at the latest time of those. */
   private boolean tryRegulation(Member member) {
      TimeState time = member.time();
      LogicalTime from = time.time();
      LogicalTime first = from.plus(time.lookahead());
      for (Member other : _federation.members()) {
         Bound passed = other.time().receiveBound();
         if (other != member && other.time().isConstrained && passed.excludes(first)) {
            from = LogicalTime.later(from, passed.time);
         }
      }
      Bound limit = limit(member);
      if (time.isConstrained && limit != null && !limit.reaches(from)) {
         return false;
      }
      time.regulate(from);
      return true;
   }

   /** The time to which the member can be granted its request now, or null. */
   private LogicalTime grantable(Member member) {
      TimeState time = member.time();
      LogicalTime requested = time.requested();
      if (!time.isConstrained) {
         return requested;
      }
      Bound limit = limit(member);
      LogicalTime waiting = time.firstWaiting();
      if (time.advance() == TimeState.Advance.FLUSH_QUEUE) {
         return LogicalTime.later(time.time(), flushedTo(requested, limit, waiting));
      }
      boolean isNext = time.advance().isToNextMessage && waiting != null;
      LogicalTime to = isNext ? LogicalTime.earlier(waiting, requested) : requested;
      boolean isSafe = limit == null
            || (time.advance().isWhole ? limit.excludes(to) : limit.reaches(to));
      return isSafe ? LogicalTime.later(time.time(), to) : null;
   }

   private static LogicalTime flushedTo(LogicalTime requested, Bound limit, LogicalTime waiting) {
      LogicalTime to = requested;
      if (limit != null) {
         to = LogicalTime.earlier(to, limit.time);
      }
      return waiting == null ? to : LogicalTime.earlier(to, waiting);
   }

   /** What each regulating member may send at the least. A member on its way to its next message
       may be granted less than it asked for, down to what others may send to it: the bounds begin
       with what was asked for and fall until they agree. */
   private Map<Member, Bound> sendBounds() {
      Map<Member, Bound> bounds = new HashMap<>();
      for (Member member : _federation.members()) {
         if (member.time().isRegulating) {
            bounds.put(member, member.time().sendBound());
         }
      }
      boolean isFalling = true;
      while (isFalling) {
         isFalling = false;
         for (Map.Entry<Member, Bound> entry : bounds.entrySet()) {
            Bound least = leastSent(entry.getKey(), bounds);
            if (least.isBelow(entry.getValue())) {
               entry.setValue(least);
               isFalling = true;
            }
         }
      }
      return bounds;
   }

   private static Bound leastSent(Member member, Map<Member, Bound> bounds) {
      TimeState time = member.time();
      if (!time.isUndecided() || !time.isConstrained || !time.advance().isToNextMessage) {
         return bounds.get(member);
      }
      LogicalTime from =
            flushedTo(time.requested(), lowestOfOthers(member, bounds), time.firstWaiting());
      return time.sendBound(LogicalTime.later(time.time(), from), time.advance().isWhole);
   }

   private static Bound lowestOfOthers(Member member, Map<Member, Bound> bounds) {
      Bound lowest = null;
      for (Map.Entry<Member, Bound> entry : bounds.entrySet()) {
         if (entry.getKey() != member && (lowest == null || entry.getValue().isBelow(lowest))) {
            lowest = entry.getValue();
         }
      }
      return lowest;
   }
}
