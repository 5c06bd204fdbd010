// Trials of the stand-in without a native library: the script, and federates in one program, their
// callbacks compared as text. Takes the folder of the object models; ends with 1 at the first difference.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.math.BigInteger;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.Arrays;
import java.util.Collections;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.TreeSet;
import skerry.tarn1516e.RTIambassadorC2007;
import skerry.tarn1516e.standin.Trial.Federate;

import static skerry.tarn1516e.standin.Trial.*;

public final class LoopbackTrials {
   private static String _harbour;
   private static int _federations;

   private final String _federation = "F" + ++_federations;
   private final Federate _a = new Federate(EVOKED);
   private final Federate _b = new Federate(EVOKED);
   private final int _ship;
   private final int _name;
   private final int _position;
   private final int _signal;
   private final int _text;
   private final int _seaArea;

   /** Two members, 1 and 2, of a federation with the harbour's model and integer time. */
   private LoopbackTrials() throws Exception {
      _a.rti.federation.createFederationExecution(_federation, _harbour, "HLAinteger64Time");
      _a.join("A", _federation);
      _b.join("B", _federation);
      _ship = _a.rti.support.getObjectClassHandle("Ship");
      _name = _a.rti.support.getAttributeHandle(_ship, "Name");
      _position = _a.rti.support.getAttributeHandle(_ship, "Position");
      _signal = _a.rti.support.getInteractionClassHandle("HLAinteractionRoot.Signal");
      _text = _a.rti.support.getParameterHandle(_signal, "Text");
      _seaArea = _a.rti.support.getDimensionHandle("SeaArea");
   }

   private interface Step {
      void run(LoopbackTrials on) throws Exception;
   }

   public static void main(String[] arguments) throws Exception {
      _harbour = Paths.get(arguments[0], "Harbour.xml").toString();
      catchCallbacks();
      Map<String, Step> trials = new LinkedHashMap<>();
      trials.put("bodies", LoopbackTrials::bodies);
      trials.put("script", LoopbackTrials::script);
      trials.put("federations", LoopbackTrials::federations);
      trials.put("object models", LoopbackTrials::objectModels);
      trials.put("synchronization points", LoopbackTrials::synchronizationPoints);
      trials.put("names", LoopbackTrials::names);
      trials.put("declarations", LoopbackTrials::declarations);
      trials.put("updates", LoopbackTrials::updates);
      trials.put("steps in time", LoopbackTrials::stepsInTime);
      trials.put("next messages", LoopbackTrials::nextMessages);
      trials.put("no lookahead", LoopbackTrials::noLookahead);
      trials.put("flushed queue", LoopbackTrials::flushedQueue);
      trials.put("held messages", LoopbackTrials::heldMessages);
      trials.put("retraction", LoopbackTrials::retraction);
      trials.put("lookahead", LoopbackTrials::lookahead);
      trials.put("ownership", LoopbackTrials::ownership);
      trials.put("regions", LoopbackTrials::regions);
      trials.put("save and restore", LoopbackTrials::saveAndRestore);
      trials.put("instance advisories", LoopbackTrials::instanceAdvisories);
      trials.put("resignation", LoopbackTrials::resignation);
      trials.put("lost connection", LoopbackTrials::lostConnection);
      trials.put("immediate callbacks", LoopbackTrials::immediateCallbacks);
      for (Map.Entry<String, Step> trial : trials.entrySet()) {
         System.out.println(trial.getKey());
         trial.getValue().run(new LoopbackTrials());
      }
      System.out.println(trials.size() + " trials passed");
   }

   /** The surplus behind strings is not read. */
   private void bodies() {
      byte[] body = {0, 0, 0, 1, 0, 'T', 0, 0, 0, 1, 0, 'F', 0, 0, 0, 0, 0, 0, 0, 0};
      BodyReader in = new BodyReader(body);
      same("T", in.string());
      same("F", in.string());
      same(Collections.emptyList(), in.strings());
      byte[] retraction = {-1, -1, -1, -2, 0, 0, 0, 2, 9, 9, 0, 0, 0, 5};
      in = new BodyReader(retraction);
      same(-2, in.retraction());
      same(5, in.integer());
   }

   /** Answers come in their order, and a lasting one stays; what has none reaches the loopback. */
   private void script() throws Exception {
      RTIambassadorC2007 ambassador = new RTIambassadorC2007(new byte[4]);
      byte[] name = {0, 0, 0, 1, 0, 'x'};
      fails(NotConnected.class, () -> ambassador.getFederateHandle_S(name));
      Script.answerInt("getFederateHandle_S", 5, false);
      Script.answerThrow("getFederateHandle_S", "java/lang/IllegalStateException", "no", false);
      Script.answerInt("getFederateHandle_S", 6, true);
      Script.answerString("getTimeFactory", null, false);
      Script.answerDefault("getTimeFactory", false);
      Script.record(true);
      same(5, ambassador.getFederateHandle_S(name));
      fails(IllegalStateException.class, () -> ambassador.getFederateHandle_S(name));
      same(6, ambassador.getFederateHandle_S(name));
      same(6, ambassador.getFederateHandle_S(name));
      same("null", "" + ambassador.getTimeFactory());
      same("", ambassador.getTimeFactory());
      fails(NotConnected.class, () -> ambassador.getTimeFactory());
      same(4, Script.calls("getFederateHandle_S"));
      same(true, name == Script.lastBody("getFederateHandle_S"));
      same(7, Script.totalCalls());
      same("getTimeFactory", Script.calledMethod(4));
      Script.scriptAll(true);
      same(0.0, ambassador.getUpdateRateValue_S(name));
      Script.reset();
      same(false, Script.isOn);
      same(0, Script.totalCalls());
      fails(NotConnected.class, () -> ambassador.getFederateHandle_S(name));
   }

   private void federations() throws Exception {
      FederationManagement a = _a.rti.federation;
      fails(AlreadyConnected.class, () -> a.connect(1, EVOKED, ""));
      fails(FederationExecutionAlreadyExists.class,
            () -> a.createFederationExecution(_federation, _harbour, ""));
      fails(FederateAlreadyExecutionMember.class, () -> _a.join("A", _federation));
      fails(FederateIsExecutionMember.class, a::disconnect);
      fails(FederatesCurrentlyJoined.class, () -> a.destroyFederationExecution(_federation));
      fails(FederationExecutionDoesNotExist.class, () -> a.destroyFederationExecution("none"));
      fails(DesignatorIsHLAstandardMIM.class,
            () -> a.createFederationExecution("M", Collections.emptyList(), "HLAstandardMIM", ""));
      fails(InvalidResignAction.class, () -> a.resignFederationExecution(6));
      Federate c = new Federate(EVOKED);
      fails(FederateNotExecutionMember.class, () -> c.rti.federation.resignFederationExecution(5));
      fails(FederateNameAlreadyInUse.class,
            () -> c.rti.federation.joinFederationExecution(
                  "A 1", "C", _federation, Collections.emptyList()));
      same("HLAinteger64Time", _a.rti.support.getTimeFactory());
      a.resignFederationExecution(5);
      _b.rti.federation.resignFederationExecution(5);
      c.rti.federation.disconnect();
      fails(NotConnected.class, () -> c.rti.federation.listFederationExecutions());
      a.destroyFederationExecution(_federation);
   }

   private void objectModels() throws Exception {
      same("HLAobjectRoot.Ship", _a.rti.support.getObjectClassName(_ship));
      same("Text", _a.rti.support.getParameterName(_signal, _text));
      same(1000L, _a.rti.support.getDimensionUpperBound(_seaArea));
      same(0.5, _a.rti.support.getUpdateRateValue("Slow"));
      same("TimeStamp", _a.rti.support.getOrderName(1));
      same(2, _a.rti.support.getTransportationTypeHandle("HLAbestEffort"));
      fails(NameNotFound.class, () -> _a.rti.support.getObjectClassHandle("Boat"));
      Path module = Files.createTempFile("model", ".xml");
      Map<String, Class<? extends Exception>> faults = new LinkedHashMap<>();
      faults.put("<objectModel", ErrorReadingFDD.class);
      faults.put("<other/>", ErrorReadingFDD.class);
      faults.put(model("Ship", "Name"), InconsistentFDD.class);
      faults.put(model("Tug", "HLAprivilegeToDeleteObject"), InconsistentFDD.class);
      Federate c = new Federate(EVOKED);
      for (Map.Entry<String, Class<? extends Exception>> fault : faults.entrySet()) {
         Files.write(module, fault.getKey().getBytes("UTF-8"));
         fails(fault.getValue(), () -> join(c, module));
      }
      Files.write(module, model("Tug", "Power").getBytes("UTF-8"));
      join(c, module);
      Files.delete(module);
      int tug = _a.rti.support.getObjectClassHandle("Tug");
      same("Power", _a.rti.support.getAttributeName(
            tug, _a.rti.support.getAttributeHandle(tug, "Power")));
      same(_ship, c.rti.support.getObjectClassHandle("Ship"));
      fails(CouldNotOpenFDD.class, () -> join(new Federate(EVOKED), module));
   }

   private static String model(String objectClass, String attribute) {
      return "<objectModel><objects><objectClass><name>HLAobjectRoot</name><objectClass><name>"
            + objectClass + "</name><attribute><name>" + attribute
            + "</name></attribute></objectClass></objectClass></objects></objectModel>";
   }

   private void join(Federate federate, Path module) throws Exception {
      federate.rti.federation.joinFederationExecution(
            "C", _federation, Collections.singletonList(module.toUri().toString()));
   }

   private void synchronizationPoints() throws Exception {
      _a.rti.federation.registerFederationSynchronizationPoint("p", TAG);
      _a.expect("synchronizationPointRegistrationSucceeded p", "announceSynchronizationPoint p");
      _b.rti.federation.registerFederationSynchronizationPoint("p", TAG);
      _b.expect("announceSynchronizationPoint p", "synchronizationPointRegistrationFailed p 0");
      Federate c = new Federate(EVOKED).join("C", _federation);
      c.expect("announceSynchronizationPoint p");
      _a.rti.federation.synchronizationPointAchieved("p", true);
      fails(SynchronizationPointLabelNotAnnounced.class,
            () -> _a.rti.federation.synchronizationPointAchieved("p", true));
      _b.rti.federation.synchronizationPointAchieved("p", false);
      _b.expect();
      c.rti.federation.resignFederationExecution(5);
      _a.expect("federationSynchronized p [2]");
      _b.expect("federationSynchronized p [2]");
      fails(InvalidFederateHandle.class, () -> _a.rti.federation
            .registerFederationSynchronizationPoint("q", TAG, set(9)));
      _a.rti.federation.registerFederationSynchronizationPoint("q", TAG, set(3));
      _a.expect("synchronizationPointRegistrationFailed q 1");
      _a.rti.federation.registerFederationSynchronizationPoint("q", TAG, set(2));
      _a.expect("synchronizationPointRegistrationSucceeded q");
      _b.expect("announceSynchronizationPoint q");
   }

   private void names() throws Exception {
      ObjectManagement a = _a.rti.object;
      fails(IllegalName.class, () -> a.reserveObjectInstanceName("HLAx"));
      fails(NameSetWasEmpty.class,
            () -> a.reserveMultipleObjectInstanceName(Collections.emptySet()));
      a.reserveObjectInstanceName("x");
      _b.rti.object.reserveMultipleObjectInstanceName(
            new TreeSet<>(Arrays.asList("y", "x")));
      _a.expect("objectInstanceNameReservationSucceeded x");
      _b.expect("multipleObjectInstanceNameReservationFailed [x, y]");
      fails(ObjectClassNotPublished.class, () -> a.registerObjectInstance(_ship, "x"));
      _a.rti.declaration.publishObjectClassAttributes(_ship, set(_name));
      fails(ObjectInstanceNameNotReserved.class, () -> a.registerObjectInstance(_ship, "y"));
      int object = a.registerObjectInstance(_ship, "x");
      fails(ObjectInstanceNameInUse.class, () -> a.registerObjectInstance(_ship, "x"));
      fails(ObjectInstanceNameNotReserved.class, () -> a.releaseObjectInstanceName("x"));
      same(object, _a.rti.support.getObjectInstanceHandle("x"));
      fails(ObjectInstanceNotKnown.class, () -> _b.rti.support.getObjectInstanceName(object));
   }

   private void declarations() throws Exception {
      _a.rti.declaration.publishObjectClassAttributes(_ship, set(_name));
      _a.rti.declaration.publishInteractionClass(_signal);
      _b.rti.declaration.subscribeObjectClassAttributes(_ship, set(_name), false, "");
      _a.expect();
      _b.rti.declaration.subscribeObjectClassAttributes(_ship, set(_position), true, "");
      _b.rti.declaration.subscribeInteractionClass(_signal, false);
      _a.expect();
      _b.rti.declaration.subscribeObjectClassAttributes(_ship, set(_name), true, "");
      _b.rti.declaration.subscribeInteractionClass(_signal, true);
      _a.expect("startRegistrationForObjectClass " + _ship, "turnInteractionsOn " + _signal);
      _b.rti.declaration.unsubscribeObjectClass(_ship);
      _b.rti.declaration.unsubscribeInteractionClass(_signal);
      _a.expect("stopRegistrationForObjectClass " + _ship, "turnInteractionsOff " + _signal);
      fails(AttributeNotDefined.class,
            () -> _a.rti.declaration.publishObjectClassAttributes(1, set(_name)));
      fails(InvalidUpdateRateDesignator.class, () -> _b.rti.declaration
            .subscribeObjectClassAttributes(_ship, set(_name), true, "Fast"));
   }

   /** The sender publishes and registers, the other subscribes; both have got their callbacks. */
   private int share() throws Exception {
      _a.rti.declaration.publishObjectClassAttributes(_ship, set(_name, _position));
      _a.rti.declaration.publishInteractionClass(_signal);
      _b.rti.declaration.subscribeObjectClassAttributes(_ship, set(_name, _position), true, "");
      _b.rti.declaration.subscribeInteractionClass(_signal, true);
      int object = _a.rti.object.registerObjectInstance(_ship);
      _a.expect("startRegistrationForObjectClass " + _ship, "turnInteractionsOn " + _signal);
      _b.expect("discoverObjectInstance " + object + " " + _ship + " HLAinstance" + object + " 1");
      return object;
   }

   private void updates() throws Exception {
      int object = share();
      _a.rti.object.updateAttributeValues(object, value(_name, 5), TAG);
      _b.expect("reflectAttributeValues " + object + " [" + _name + "=5] 0 1 from 1");
      same("null", "" + _a.rti.object.updateAttributeValues(
            object, value(_name, 6), TAG, time(3)));
      _b.expect("reflectAttributeValues " + object + " [" + _name + "=6] 0 1 @3 0 from 1");
      fails(AttributeNotOwned.class,
            () -> _b.rti.object.updateAttributeValues(object, value(_name, 5), TAG));
      _a.rti.object.sendInteraction(_signal, value(_text, 4), TAG);
      _b.expect("receiveInteraction " + _signal + " [" + _text + "=4] 0 1 from 1");
      fails(InteractionParameterNotDefined.class,
            () -> _a.rti.object.sendInteraction(_signal, value(99, 4), TAG));
      _b.rti.object.requestAttributeValueUpdate_OIH_AHS_BX(object, set(_name), TAG);
      _a.rti.object.requestAttributeValueUpdate_OCH_AHS_BX(_ship, set(_name), TAG);
      _a.expect("provideAttributeValueUpdate " + object + " [" + _name + "]");
      _a.rti.object.requestAttributeTransportationTypeChange(object, set(_name), 2);
      _a.expect("confirmAttributeTransportationTypeChange " + object + " [" + _name + "] 2");
      _b.rti.object.queryAttributeTransportationType(object, _name);
      _b.expect("reportAttributeTransportationType " + object + " " + _name + " 2");
      fails(DeletePrivilegeNotHeld.class, () -> _b.rti.object.deleteObjectInstance(object, TAG));
      _b.rti.object.localDeleteObjectInstance(object);
      _a.rti.object.updateAttributeValues(object, value(_name, 7), TAG);
      _b.expect("discoverObjectInstance " + object + " " + _ship + " HLAinstance" + object + " 1",
            "reflectAttributeValues " + object + " [" + _name + "=7] 0 2 from 1");
      _a.rti.object.deleteObjectInstance(object, TAG);
      _b.expect("removeObjectInstance " + object + " 0 from 1");
      fails(ObjectInstanceNotKnown.class, () -> _b.rti.support.getObjectInstanceName(object));
   }

   /** Both regulate with the lookahead and are constrained, and have got the callbacks. */
   private void manageTime(long lookahead) throws Exception {
      for (Federate each : Arrays.asList(_a, _b)) {
         each.rti.time.enableTimeRegulation(time(lookahead));
         fails(RequestForTimeRegulationPending.class,
               () -> each.rti.time.timeAdvanceRequest(time(1)));
         each.expect("timeRegulationEnabled @0");
         each.rti.time.enableTimeConstrained();
         each.expect("timeConstrainedEnabled @0");
      }
   }

   private void stepsInTime() throws Exception {
      int object = share();
      manageTime(1);
      fails(InvalidLogicalTime.class,
            () -> _a.rti.object.updateAttributeValues(object, value(_name, 1), TAG, time(0)));
      _a.rti.object.updateAttributeValues(object, value(_name, 2), TAG, time(2));
      _a.rti.object.updateAttributeValues(object, value(_name, 1), TAG, time(1));
      _b.rti.time.timeAdvanceRequest(time(1));
      fails(InTimeAdvancingState.class, () -> _b.rti.time.timeAdvanceRequest(time(1)));
      _b.expect();
      same(1L, new BigInteger(_b.rti.time.queryGALT()).longValue());
      same(1L, new BigInteger(_b.rti.time.queryLITS()).longValue());
      _a.rti.time.timeAdvanceRequest(time(1));
      _a.expect("timeAdvanceGrant @1");
      _b.expect("reflectAttributeValues " + object + " [" + _name + "=1] 1 1 @1 1 #2 from 1",
            "timeAdvanceGrant @1");
      fails(LogicalTimeAlreadyPassed.class, () -> _b.rti.time.timeAdvanceRequest(time(0)));
      _a.rti.time.timeAdvanceRequest(time(5));
      _a.expect();
      _b.rti.time.timeAdvanceRequest(time(4));
      _b.expect("reflectAttributeValues " + object + " [" + _name + "=2] 1 1 @2 1 #1 from 1",
            "timeAdvanceGrant @4");
      _b.rti.time.disableTimeRegulation();
      _a.expect("timeAdvanceGrant @5");
   }

   private void nextMessages() throws Exception {
      int object = share();
      manageTime(1);
      _a.rti.object.updateAttributeValues(object, value(_name, 3), TAG, time(3));
      _b.rti.time.nextMessageRequest(time(10));
      _b.expect();
      _a.rti.time.nextMessageRequest(time(10));
      _b.expect("reflectAttributeValues " + object + " [" + _name + "=3] 1 1 @3 1 #1 from 1",
            "timeAdvanceGrant @3");
      _a.expect();
      _b.rti.time.nextMessageRequest(time(10));
      _a.expect("timeAdvanceGrant @10");
      _b.expect("timeAdvanceGrant @10");
   }

   /** Without lookahead, a time is over for both only when both are done with it. */
   private void noLookahead() throws Exception {
      int object = share();
      manageTime(0);
      _a.rti.time.timeAdvanceRequestAvailable(time(2));
      _b.rti.time.timeAdvanceRequestAvailable(time(2));
      _a.expect("timeAdvanceGrant @2");
      _b.expect("timeAdvanceGrant @2");
      _a.rti.object.updateAttributeValues(object, value(_name, 8), TAG, time(2));
      _b.rti.time.timeAdvanceRequest(time(2));
      _b.expect();
      _a.rti.time.timeAdvanceRequest(time(2));
      _b.expect("reflectAttributeValues " + object + " [" + _name + "=8] 1 1 @2 1 #1 from 1",
            "timeAdvanceGrant @2");
      _a.expect("timeAdvanceGrant @2");
      fails(InvalidLogicalTime.class,
            () -> _a.rti.object.updateAttributeValues(object, value(_name, 1), TAG, time(2)));
   }

   private void flushedQueue() throws Exception {
      int object = share();
      manageTime(1);
      _a.rti.object.updateAttributeValues(object, value(_name, 1), TAG, time(9));
      _b.rti.time.flushQueueRequest(time(5));
      _b.expect("reflectAttributeValues " + object + " [" + _name + "=1] 1 1 @9 1 #1 from 1",
            "timeAdvanceGrant @1");
   }

   /** What has no timestamp waits for an advance unless delivery is asynchronous. */
   private void heldMessages() throws Exception {
      int object = share();
      manageTime(1);
      _a.rti.object.updateAttributeValues(object, value(_name, 1), TAG);
      _b.expect();
      _b.rti.time.timeAdvanceRequest(time(1));
      String reflection = "reflectAttributeValues " + object + " [" + _name + "=1] 0 1 from 1";
      _b.expect(reflection);
      _a.rti.time.timeAdvanceRequest(time(1));
      _b.expect("timeAdvanceGrant @1");
      _a.rti.object.updateAttributeValues(object, value(_name, 1), TAG);
      _b.expect();
      _b.rti.time.enableAsynchronousDelivery();
      _b.expect(reflection);
      fails(AsynchronousDeliveryAlreadyEnabled.class,
            () -> _b.rti.time.enableAsynchronousDelivery());
   }

   private void retraction() throws Exception {
      int object = share();
      manageTime(1);
      Federate c = new Federate(EVOKED).join("C", _federation);
      c.rti.declaration.subscribeObjectClassAttributes(_ship, set(_name), true, "");
      c.got.clear();
      _a.rti.object.updateAttributeValues(object, value(_name, 1), TAG, time(3));
      _a.rti.time.retract(1);
      c.expect("discoverObjectInstance " + object + " " + _ship + " HLAinstance" + object + " 1",
            "reflectAttributeValues " + object + " [" + _name + "=1] 1 1 @3 0 #1 from 1",
            "requestRetraction #1");
      _a.rti.object.deleteObjectInstance(object, TAG, time(4));
      fails(ObjectInstanceNotKnown.class, () -> _a.rti.support.getObjectInstanceName(object));
      _a.rti.time.retract(2);
      same("HLAinstance" + object, _a.rti.support.getObjectInstanceName(object));
      _a.rti.object.updateAttributeValues(object, value(_name, 1), TAG, time(1));
      _a.rti.time.timeAdvanceRequest(time(4));
      _b.rti.time.timeAdvanceRequest(time(4));
      _b.expect("reflectAttributeValues " + object + " [" + _name + "=1] 1 1 @1 1 #3 from 1",
            "timeAdvanceGrant @4");
      _a.expect("timeAdvanceGrant @4");
      fails(MessageCanNoLongerBeRetracted.class, () -> _a.rti.time.retract(3));
      fails(InvalidMessageRetractionHandle.class, () -> _a.rti.time.retract(77));
   }

   /** A shorter lookahead counts only when what the longer one promised has passed. */
   private void lookahead() throws Exception {
      share();
      manageTime(5);
      fails(InvalidLookahead.class, () -> _a.rti.time.modifyLookahead(time(-1)));
      _a.rti.time.modifyLookahead(time(1));
      same(5L, new BigInteger(_b.rti.time.queryGALT()).longValue());
      same(1L, new BigInteger(_a.rti.time.queryLookahead()).longValue());
      _b.rti.time.timeAdvanceRequest(time(4));
      _b.expect("timeAdvanceGrant @4");
      _a.rti.time.timeAdvanceRequest(time(6));
      same(7L, new BigInteger(_b.rti.time.queryGALT()).longValue());
   }

   private void ownership() throws Exception {
      int object = share();
      String attribute = object + " [" + _name + "]";
      fails(ObjectClassNotPublished.class,
            () -> _b.rti.ownership.attributeOwnershipAcquisition(object, set(_name), TAG));
      _b.rti.declaration.publishObjectClassAttributes(_ship, set(_name));
      _a.rti.ownership.negotiatedAttributeOwnershipDivestiture(object, set(_name), TAG);
      _b.expect("requestAttributeOwnershipAssumption " + attribute);
      fails(NoAcquisitionPending.class,
            () -> _a.rti.ownership.confirmDivestiture(object, set(_name), TAG));
      _b.rti.ownership.attributeOwnershipAcquisitionIfAvailable(object, set(_name));
      _a.expect("requestDivestitureConfirmation " + attribute);
      _a.rti.ownership.confirmDivestiture(object, set(_name), TAG);
      _b.expect("attributeOwnershipAcquisitionNotification " + attribute);
      same(true, _b.rti.ownership.isAttributeOwnedByFederate(object, _name));
      _a.rti.ownership.attributeOwnershipAcquisitionIfAvailable(object, set(_name));
      _a.expect("attributeOwnershipUnavailable " + attribute);
      _a.rti.ownership.attributeOwnershipAcquisition(object, set(_name), TAG);
      _b.expect("requestAttributeOwnershipRelease " + attribute);
      fails(OwnershipAcquisitionPending.class,
            () -> _a.rti.federation.resignFederationExecution(5));
      _b.rti.ownership.attributeOwnershipReleaseDenied(object, set(_name));
      _a.rti.ownership.cancelAttributeOwnershipAcquisition(object, set(_name));
      _a.expect("confirmAttributeOwnershipAcquisitionCancellation " + attribute);
      same(0, _b.rti.ownership.attributeOwnershipDivestitureIfWanted(object, set(_name)).length);
      _a.rti.ownership.attributeOwnershipAcquisition(object, set(_name), TAG);
      same(1, _b.rti.ownership.attributeOwnershipDivestitureIfWanted(object, set(_name)).length);
      _a.expect("attributeOwnershipAcquisitionNotification " + attribute);
      _b.expect("requestAttributeOwnershipRelease " + attribute);
      Federate c = new Federate(EVOKED).join("C", _federation);
      c.rti.declaration.publishObjectClassAttributes(_ship, set(_name));
      c.rti.declaration.subscribeObjectClassAttributes(_ship, set(_name), true, "");
      _b.rti.ownership.attributeOwnershipAcquisition(object, set(_name), TAG);
      c.rti.ownership.attributeOwnershipAcquisition(object, set(_name), TAG);
      _a.rti.ownership.unconditionalAttributeOwnershipDivestiture(object, set(_name));
      _b.got.clear();
      _b.expect("startRegistrationForObjectClass " + _ship,
            "attributeOwnershipAcquisitionNotification " + attribute,
            "requestAttributeOwnershipRelease " + attribute);
      c.rti.federation.resignFederationExecution(4);
      _b.rti.ownership.unconditionalAttributeOwnershipDivestiture(object, set(_name));
      _b.rti.ownership.queryAttributeOwnership(object, _name);
      _b.rti.ownership.queryAttributeOwnership(object, _position);
      _b.expect("stopRegistrationForObjectClass " + _ship,
            "attributeIsNotOwned " + object + " " + _name,
            "informAttributeOwnership " + object + " " + _position + " 1");
      fails(AttributeNotOwned.class, () -> _a.rti.ownership
            .cancelNegotiatedAttributeOwnershipDivestiture(object, set(_name)));
      fails(AttributeDivestitureWasNotRequested.class, () -> _a.rti.ownership
            .cancelNegotiatedAttributeOwnershipDivestiture(object, set(_position)));
   }

   private void regions() throws Exception {
      same(false, new Range(0, 50).overlaps(new Range(50, 60)));
      same(false, new Range(50, 60).overlaps(new Range(0, 50)));
      same(true, new Range(50, 60).overlaps(new Range(0, 51)));
      int near = region(_a, 0, 100);
      int far = region(_a, 500, 600);
      int watched = region(_b, 50, 200);
      _a.rti.declaration.publishObjectClassAttributes(_ship, set(_name, _position));
      _a.rti.declaration.publishInteractionClass(_signal);
      _b.rti.data.subscribeObjectClassAttributesWithRegions(
            _ship, over(_position, watched), true, "");
      _b.rti.data.subscribeInteractionClassWithRegions(_signal, true, set(watched));
      int object = _a.rti.data.registerObjectInstanceWithRegions(_ship, over(_position, far));
      _b.expect();
      _a.rti.data.associateRegionsForUpdates(object, over(_position, near));
      _b.expect("discoverObjectInstance " + object + " " + _ship + " HLAinstance" + object + " 1");
      _a.rti.object.updateAttributeValues(object, value(_position, 1), TAG);
      _b.expect("reflectAttributeValues " + object + " [" + _position + "=1] 0 1 from 1 over ["
            + near + ", " + far + "]");
      _a.rti.data.unassociateRegionsForUpdates(object, over(_position, near));
      _a.rti.object.updateAttributeValues(object, value(_position, 2), TAG);
      _a.rti.data.sendInteractionWithRegions(_signal, value(_text, 1), set(far), TAG);
      _b.expect();
      _a.rti.data.sendInteractionWithRegions(_signal, value(_text, 1), set(near), TAG);
      _b.expect("receiveInteraction " + _signal + " [" + _text + "=1] 0 1 from 1 over [" + near
            + "]");
      _b.rti.support.setRangeBounds(watched, _seaArea, new Range(500, 501));
      _a.rti.object.updateAttributeValues(object, value(_position, 2), TAG);
      _b.expect();
      _b.rti.data.commitRegionModifications(set(watched));
      _a.rti.object.updateAttributeValues(object, value(_position, 2), TAG);
      _b.expect("reflectAttributeValues " + object + " [" + _position + "=2] 0 1 from 1 over ["
            + far + "]");
      fails(RegionInUseForUpdateOrSubscription.class, () -> _a.rti.data.deleteRegion(far));
      fails(RegionNotCreatedByThisFederate.class, () -> _a.rti.data.deleteRegion(watched));
      fails(InvalidRegionContext.class,
            () -> _a.rti.data.associateRegionsForUpdates(object, over(_name, near)));
      fails(InvalidRangeBound.class,
            () -> _a.rti.support.setRangeBounds(near, _seaArea, new Range(5, 5)));
      _a.rti.data.deleteRegion(near);
      fails(InvalidRegion.class, () -> _a.rti.support.getDimensionHandleSet(near));
   }

   private int region(Federate federate, long lower, long upper) throws Exception {
      int region = federate.rti.data.createRegion(set(_seaArea));
      federate.rti.support.setRangeBounds(region, _seaArea, new Range(lower, upper));
      federate.rti.data.commitRegionModifications(set(region));
      return region;
   }

   private void saveAndRestore() throws Exception {
      FederationManagement a = _a.rti.federation;
      FederationManagement b = _b.rti.federation;
      fails(SaveNotInitiated.class, a::federateSaveBegun);
      fails(SaveNotInProgress.class, a::abortFederationSave);
      a.requestFederationRestore("s");
      _a.expect("requestFederationRestoreFailed s");
      a.requestFederationSave("s");
      _b.expect("initiateFederateSave s");
      fails(SaveInProgress.class, () -> b.requestFederationSave("t"));
      fails(FederateHasNotBegunSave.class, a::federateSaveComplete);
      a.federateSaveBegun();
      a.queryFederationSaveStatus();
      a.federateSaveComplete();
      _a.expect("initiateFederateSave s", "federationSaveStatusResponse [1:2, 2:1]");
      b.federateSaveBegun();
      b.federateSaveComplete();
      _a.expect("federationSaved");
      _b.expect("federationSaved");
      a.requestFederationSave("t");
      b.federateSaveBegun();
      b.federateSaveNotComplete();
      a.abortFederationSave();
      _a.expect("initiateFederateSave t", "federationNotSaved 5");
      _b.expect("initiateFederateSave t", "federationNotSaved 5");
      a.requestFederationRestore("s");
      fails(RestoreInProgress.class, () -> a.requestFederationSave("u"));
      _a.expect("requestFederationRestoreSucceeded s", "federationRestoreBegun",
            "initiateFederateRestore s A 1 1");
      a.federateRestoreComplete();
      fails(RestoreNotRequested.class, a::federateRestoreComplete);
      b.queryFederationRestoreStatus();
      b.federateRestoreNotComplete();
      _a.expect("federationNotRestored 1");
      _b.expect("federationRestoreBegun", "initiateFederateRestore s B 2 2",
            "federationRestoreStatusResponse [1:1:5, 2:2:4]", "federationNotRestored 1");
      manageTime(1);
      fails(LogicalTimeAlreadyPassed.class, () -> a.requestFederationSave("v", time(0)));
      a.requestFederationSave("v", time(2));
      _a.rti.time.timeAdvanceRequest(time(2));
      _b.rti.time.timeAdvanceRequest(time(2));
      _a.expect("timeAdvanceGrant @2");
      _b.expect("timeAdvanceGrant @2", "initiateFederateSave v @2");
   }

   private void instanceAdvisories() throws Exception {
      _a.rti.support.enableAttributeRelevanceAdvisorySwitch();
      _b.rti.support.enableAttributeScopeAdvisorySwitch();
      fails(AttributeScopeAdvisorySwitchIsOn.class,
            () -> _b.rti.support.enableAttributeScopeAdvisorySwitch());
      _a.rti.declaration.publishObjectClassAttributes(_ship, set(_name));
      int object = _a.rti.object.registerObjectInstance(_ship);
      _b.rti.declaration.subscribeObjectClassAttributes(_ship, set(_name), true, "Slow");
      String attribute = object + " [" + _name + "]";
      _a.expect("startRegistrationForObjectClass " + _ship,
            "turnUpdatesOnForObjectInstance " + attribute + " Slow");
      _b.expect("discoverObjectInstance " + object + " " + _ship + " HLAinstance" + object + " 1",
            "attributesInScope " + attribute);
      _b.rti.declaration.unsubscribeObjectClass(_ship);
      _a.expect("stopRegistrationForObjectClass " + _ship,
            "turnUpdatesOffForObjectInstance " + attribute);
      _b.expect("attributesOutOfScope " + attribute);
   }

   private void resignation() throws Exception {
      int object = share();
      fails(FederateOwnsAttributes.class, () -> _a.rti.federation.resignFederationExecution(5));
      _a.rti.federation.resignFederationExecution(1);
      _b.expect("removeObjectInstance " + object + " 0 from 1");
      fails(FederateHandleNotKnown.class, () -> _b.rti.support.getFederateName(1));
      fails(InvalidFederateHandle.class, () -> _b.rti.support.getFederateName(3));
      _a.join("A", _federation);
      same("A 3", _b.rti.support.getFederateName(3));
      _a.rti.declaration.publishObjectClassAttributes(_ship, set(_name));
      _a.rti.object.registerObjectInstance(_ship);
      _b.rti.federation.listFederationExecutions();
      _b.rti.federation.resignFederationExecution(5);
      _b.got.clear();
      while (_b.rti.support.evokeCallback(0)) {
      }
      same(1, _b.got.size());
      same(true, _b.got.get(0).startsWith("reportFederationExecutions "));
      _a.rti.federation.resignFederationExecution(0);
   }

   private void lostConnection() throws Exception {
      int object = share();
      same(true, Script.loseConnection(connection(_a), "gone"));
      fails(NotConnected.class, () -> _a.rti.support.getTimeFactory());
      _a.expect("connectionLost gone");
      _b.expect("removeObjectInstance " + object + " 0 from 1");
      same(false, Script.loseConnection(connection(_a), "gone"));
   }

   private static int connection(Federate federate) throws Exception {
      return federate.rti.callbacksOrFail().handle();
   }

   private void immediateCallbacks() throws Exception {
      Federate c = new Federate(IMMEDIATE);
      c.rti.support.disableCallbacks();
      c.rti.federation.listFederationExecutions();
      same(0, c.got.size());
      c.rti.support.enableCallbacks();
      synchronized (c.got) {
         for (int tries = 0; c.got.isEmpty() && tries < 100; ++tries) {
            c.got.wait(100);
         }
         same(1, c.got.size());
         same(true, c.got.get(0).contains(_federation + ":HLAinteger64Time"));
      }
      c.rti.federation.disconnect();
      fails(RTIinternalError.class, () -> c.rti.support.evokeCallback(0));
   }
}
