// The logical time of one member: whether it regulates or is constrained, what it advances to, and
// the messages that wait for its time.
package skerry.tarn1516e.standin;

import java.io.Serializable;
import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.TreeSet;

final class TimeState implements Serializable {
   private static final long serialVersionUID = 1L;

   /** The advance services. Some are done with their time once granted; after the others, messages
       of the same time may follow. */
   enum Advance {
      NONE(false, false),
      TIME(true, false),
      TIME_AVAILABLE(false, false),
      NEXT_MESSAGE(true, true),
      NEXT_MESSAGE_AVAILABLE(false, true),
      FLUSH_QUEUE(false, false);

      final boolean isWhole;
      final boolean isToNextMessage;

      Advance(boolean isWhole, boolean isToNextMessage) {
         this.isWhole = isWhole;
         this.isToNextMessage = isToNextMessage;
      }
   }

   private final Member _member;
   private LogicalTime _time;
   private LogicalTime _lookahead;

   /** What was promised not to be sent before, when the lookahead was longer. */
   private LogicalTime _promised;

   boolean isRegulating;
   boolean isConstrained;

   /** Requested and not yet told to the federate. */
   boolean isRegulationPending;
   boolean isConstraintPending;
   boolean isAsynchronous;

   private Advance _advance = Advance.NONE;
   private LogicalTime _requested;

   /** Whether the grant is decided and only waits to be delivered. */
   private boolean _isGranted;

   /** Whether the last grant was the last word on its time. */
   private boolean _isWhole;

   private final TreeSet<Message> _queue = new TreeSet<>();
   private final ArrayList<Message> _held = new ArrayList<>();

   /** What the member sent and can still retract, by number. */
   final LinkedHashMap<Integer, List<Message>> sent = new LinkedHashMap<>();

   TimeState(Member member) {
      _member = member;
      _time = LogicalTime.zero(member.federation().timeName());
      _lookahead = _time;
      _promised = _time;
   }

   LogicalTime time() {
      return _time;
   }

   /** While a smaller one is being approached, what is still promised. */
   LogicalTime lookahead() {
      return _promised.compareTo(_time.plus(_lookahead)) > 0 ? _promised.since(_time) : _lookahead;
   }

   boolean isAdvancing() {
      return _advance != Advance.NONE;
   }

   /** Whether a request waits to be decided. */
   boolean isUndecided() {
      return isAdvancing() && !_isGranted;
   }

   Advance advance() {
      return _advance;
   }

   LogicalTime requested() {
      return _requested;
   }

   /** The time of the first message that waits, or null. */
   LogicalTime firstWaiting() {
      return _queue.isEmpty() ? null : _queue.first().time;
   }

   /** What the member may send from now on. */
   Bound sendBound() {
      return isAdvancing() ? sendBound(_requested, _advance.isWhole) : sendBound(_time, _isWhole);
   }

   Bound sendBound(LogicalTime from, boolean isWhole) {
      return new Bound(
            LogicalTime.later(from.plus(_lookahead), _promised), isWhole && _lookahead.isZero());
   }

   /** The messages that the member has been told not to expect any more. */
   Bound receiveBound() {
      return _isGranted ? new Bound(_requested, _advance.isWhole) : new Bound(_time, _isWhole);
   }

   void requestRegulation(LogicalTime lookahead) {
      isRegulationPending = true;
      _lookahead = lookahead;
      _promised = LogicalTime.zero(_member.federation().timeName());
   }

   void regulate(LogicalTime from) {
      isRegulating = true;
      if (from.compareTo(_time) > 0) {
         deliverUpTo(from);
         _time = from;
         _isWhole = false;
      }
      _member.callbacks()
            .before(ifMember(() -> isRegulationPending = false))
            .timeRegulationEnabled(_time.encode());
      _member.federation().mom().changed(_member, "HLAtimeRegulating");
   }

   void constrain() {
      isConstrained = true;
      _member.callbacks()
            .before(ifMember(() -> isConstraintPending = false))
            .timeConstrainedEnabled(_time.encode());
      _member.federation().mom().changed(_member, "HLAtimeConstrained");
   }

   void endConstraint() {
      isConstrained = false;
      _member.federation().mom().changed(_member, "HLAtimeConstrained");
      List<Message> waiting = new ArrayList<>(_queue);
      _queue.clear();
      waiting.forEach(message -> message.deliver(_member, Fom.RECEIVE));
      releaseHeld();
   }

   /** A shorter lookahead does not take back what the longer one has promised. */
   void changeLookahead(LogicalTime lookahead) {
      _promised = sendBound().time;
      _lookahead = lookahead;
   }

   void request(Advance advance, LogicalTime to) {
      _advance = advance;
      _requested = to;
      releaseHeld();
   }

   /** Decides the grant; the federate is in its advancing state until it has got it. */
   void grant(LogicalTime to) {
      if (_advance == Advance.FLUSH_QUEUE) {
         deliverAll();
      } else {
         deliverUpTo(to);
      }
      _requested = to;
      _isGranted = true;
      _member.callbacks().before(ifMember(this::arrive)).timeAdvanceGrant(to.encode());
   }

   /** Not if a restore has put another in its place since. */
   private Runnable ifMember(Runnable action) {
      return () -> {
         if (_member.federation().member(_member.handle()) == _member) {
            action.run();
         }
      };
   }

   private void arrive() {
      _time = _requested;
      _isWhole = _advance.isWhole;
      _advance = Advance.NONE;
      _isGranted = false;
      Bound bound = sendBound();
      sent.values().removeIf(messages -> bound.excludes(messages.get(0).time));
      _member.federation().clock().update();
   }

   /** Takes a message: it waits for its time, or for the next advance, or goes on at once. */
   void receive(Message message) {
      if (message.sentOrder == Fom.TIMESTAMP && isConstrained) {
         _queue.add(message);
      } else if (isConstrained && !isAsynchronous && !isUndecided()) {
         _held.add(message);
      } else {
         message.deliver(_member, Fom.RECEIVE);
      }
   }

   /** False if the message does not wait here. */
   boolean takeBack(Message message) {
      return _queue.remove(message) | _held.remove(message);
   }

   void releaseHeld() {
      List<Message> released = new ArrayList<>(_held);
      _held.clear();
      released.forEach(message -> message.deliver(_member, Fom.RECEIVE));
   }

   void forgetMessages() {
      _queue.clear();
      _held.clear();
      sent.clear();
   }

   int waiting() {
      return _queue.size();
   }

   int held() {
      return _held.size();
   }

   /** Whether nothing up to the time can come to the member or go from it any more, so that it can
       be saved there. A null limit: none. */
   boolean isThrough(LogicalTime until, Bound limit) {
      boolean isQuiet = !isConstrained || limit == null || limit.excludes(until);
      if (!isAdvancing()) {
         int order = _time.compareTo(until);
         return order > 0
               || order == 0 && (_isWhole || isQuiet && sendBound().excludes(until));
      }
      return !_isGranted && isQuiet && nextStop().compareTo(until) > 0;
   }

   /** Where an advance leads at the most. */
   private LogicalTime nextStop() {
      return isConstrained && _advance.isToNextMessage && !_queue.isEmpty()
            ? LogicalTime.earlier(_requested, firstWaiting()) : _requested;
   }

   void deliverUpTo(LogicalTime last) {
      while (!_queue.isEmpty() && _queue.first().time.compareTo(last) <= 0) {
         _queue.pollFirst().deliver(_member, Fom.TIMESTAMP);
      }
   }

   private void deliverAll() {
      while (!_queue.isEmpty()) {
         _queue.pollFirst().deliver(_member, Fom.TIMESTAMP);
      }
   }
}
