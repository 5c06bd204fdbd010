// Time regulation, constraint and advance, retraction, and order types.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.List;
import java.util.Set;

final class TimeService implements TimeManagement {
   private final Loopback _loopback;

   TimeService(Loopback loopback) {
      _loopback = loopback;
   }

   @Override
   public void enableTimeRegulation(byte[] encodedLookahead) throws RTIexception {
      Member member = _loopback.workingMember();
      TimeState time = member.time();
      checkNotAdvancing(time);
      if (time.isRegulationPending) {
         throw new RequestForTimeRegulationPending("time regulation is being enabled");
      }
      if (time.isRegulating) {
         throw new TimeRegulationAlreadyEnabled("the federate regulates time");
      }
      time.requestRegulation(lookahead(member, encodedLookahead));
      member.federation().clock().update();
   }

   private static LogicalTime lookahead(Member member, byte[] encoded) throws InvalidLookahead {
      LogicalTime lookahead = member.federation().decodeTime(encoded);
      if (lookahead.isNegative()) {
         throw new InvalidLookahead("the lookahead " + lookahead + " is below zero");
      }
      return lookahead;
   }

   private static void checkNotAdvancing(TimeState time) throws InTimeAdvancingState {
      if (time.isAdvancing()) {
         throw new InTimeAdvancingState("the federate is advancing its time");
      }
   }

   @Override
   public void disableTimeRegulation() throws RTIexception {
      Member member = _loopback.workingMember();
      checkRegulating(member.time());
      member.time().isRegulating = false;
      member.federation().mom().changed(member, "HLAtimeRegulating");
      member.time().sent.clear();
      member.federation().clock().update();
   }

   private static void checkRegulating(TimeState time) throws TimeRegulationIsNotEnabled {
      if (!time.isRegulating || time.isRegulationPending) {
         throw new TimeRegulationIsNotEnabled("the federate does not regulate time");
      }
   }

   @Override
   public void enableTimeConstrained() throws RTIexception {
      Member member = _loopback.workingMember();
      TimeState time = member.time();
      checkNotAdvancing(time);
      if (time.isConstraintPending) {
         throw new RequestForTimeConstrainedPending("the time constraint is being enabled");
      }
      if (time.isConstrained) {
         throw new TimeConstrainedAlreadyEnabled("the federate is constrained");
      }
      time.isConstraintPending = true;
      member.federation().clock().update();
   }

   @Override
   public void disableTimeConstrained() throws RTIexception {
      Member member = _loopback.workingMember();
      if (!member.time().isConstrained || member.time().isConstraintPending) {
         throw new TimeConstrainedIsNotEnabled("the federate is not constrained");
      }
      member.time().endConstraint();
      member.federation().clock().update();
   }

   @Override
   public void timeAdvanceRequest(byte[] time) throws RTIexception {
      advance(TimeState.Advance.TIME, time);
   }

   @Override
   public void timeAdvanceRequestAvailable(byte[] time) throws RTIexception {
      advance(TimeState.Advance.TIME_AVAILABLE, time);
   }

   @Override
   public void nextMessageRequest(byte[] time) throws RTIexception {
      advance(TimeState.Advance.NEXT_MESSAGE, time);
   }

   @Override
   public void nextMessageRequestAvailable(byte[] time) throws RTIexception {
      advance(TimeState.Advance.NEXT_MESSAGE_AVAILABLE, time);
   }

   @Override
   public void flushQueueRequest(byte[] time) throws RTIexception {
      advance(TimeState.Advance.FLUSH_QUEUE, time);
   }

   private void advance(TimeState.Advance advance, byte[] encoded) throws RTIexception {
      Member member = _loopback.workingMember();
      TimeState time = member.time();
      checkNotAdvancing(time);
      if (time.isRegulationPending) {
         throw new RequestForTimeRegulationPending("time regulation is being enabled");
      }
      if (time.isConstraintPending) {
         throw new RequestForTimeConstrainedPending("the time constraint is being enabled");
      }
      LogicalTime to = member.federation().decodeTime(encoded);
      if (to.isNegative()) {
         throw new InvalidLogicalTime("the time " + to + " is before the initial time");
      }
      if (to.compareTo(time.time()) < 0) {
         throw new LogicalTimeAlreadyPassed("the time " + to + " has passed");
      }
      time.request(advance, to);
      member.federation().clock().update();
   }

   @Override
   public void enableAsynchronousDelivery() throws RTIexception {
      TimeState time = _loopback.workingMember().time();
      if (time.isAsynchronous) {
         throw new AsynchronousDeliveryAlreadyEnabled("asynchronous delivery is on");
      }
      time.isAsynchronous = true;
      time.releaseHeld();
   }

   @Override
   public void disableAsynchronousDelivery() throws RTIexception {
      TimeState time = _loopback.workingMember().time();
      if (!time.isAsynchronous) {
         throw new AsynchronousDeliveryAlreadyDisabled("asynchronous delivery is off");
      }
      time.isAsynchronous = false;
   }

   @Override
   public byte[] queryGALT() throws RTIexception {
      Member member = _loopback.workingMember();
      Bound limit = member.federation().clock().limit(member);
      return limit == null ? null : limit.time.encode();
   }

   @Override
   public byte[] queryLogicalTime() throws RTIexception {
      return _loopback.workingMember().time().time().encode();
   }

   @Override
   public byte[] queryLITS() throws RTIexception {
      Member member = _loopback.workingMember();
      LogicalTime least = member.federation().clock().leastIncoming(member);
      return least == null ? null : least.encode();
   }

   @Override
   public void modifyLookahead(byte[] encodedLookahead) throws RTIexception {
      Member member = _loopback.workingMember();
      checkRegulating(member.time());
      checkNotAdvancing(member.time());
      member.time().changeLookahead(lookahead(member, encodedLookahead));
      member.federation().clock().update();
   }

   @Override
   public byte[] queryLookahead() throws RTIexception {
      TimeState time = _loopback.workingMember().time();
      checkRegulating(time);
      return time.lookahead().encode();
   }

   /** Those who wait for the message never see it; those who have it are told. */
   @Override
   public void retract(int retraction) throws RTIexception {
      Member member = _loopback.workingMember();
      TimeState time = member.time();
      checkRegulating(time);
      List<Message> messages = time.sent.get(retraction);
      if (messages == null && !member.federation().hasIssuedRetraction(retraction)) {
         throw new InvalidMessageRetractionHandle("no message has the number " + retraction);
      }
      if (messages == null || time.sendBound().excludes(messages.get(0).time)) {
         throw new MessageCanNoLongerBeRetracted("the time of the message has passed");
      }
      time.sent.remove(retraction);
      for (Member receiver : member.federation().members()) {
         if (messages.stream().filter(message -> takeBack(receiver, message)).count() > 0) {
            receiver.callbacks().requestRetraction(retraction);
         }
      }
      messages.forEach(Message::undo);
      member.federation().clock().update();
   }

   /** Whether the receiver has got the message already. */
   private static boolean takeBack(Member receiver, Message message) {
      return !receiver.time().takeBack(message) && message.deliveredTo.contains(receiver);
   }

   @Override
   public void changeAttributeOrderType(int object, Set<Integer> attributes, int order)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.ownInstance(member, object, attributes);
      attributes.forEach(attribute -> instance.attributes.get(attribute).order = order);
   }

   @Override
   public void changeInteractionOrderType(int interaction, int order) throws RTIexception {
      Member member = _loopback.workingMember();
      Checks.publishedInteraction(member, interaction);
      member.declarations().interactionOrders.put(interaction, order);
   }
}
