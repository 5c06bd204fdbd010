// Trials of the stand-in without a native library: scenes of federates, their callbacks compared as
// text. Takes the folder of the object models; ends with 1 at the first difference.
package skerry.tarn1516e.standin;

import com.sun.management.ThreadMXBean;
import java.lang.management.ManagementFactory;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.LinkedHashMap;
import java.util.Map;

import static skerry.tarn1516e.standin.Trial.*;

public final class LoopbackTrials {
   /** The sender publishes and registers, the other subscribes; both have got their callbacks. */
   private static final String[] SHARE = {
      "a publishObjectClassAttributes Ship Name,Position",
      "a publishInteractionClass Signal",
      "b subscribeObjectClassAttributes Ship Name,Position true -",
      "b subscribeInteractionClass Signal true",
      "s = a registerObjectInstance Ship",
      "a: startRegistrationForObjectClass Ship | turnInteractionsOn Signal",
      "b: discoverObjectInstance s Ship HLAinstance{s} 1"};

   private static String _harbour;
   private static int _federations;

   /** A trial that needs more than steps. */
   private interface Trick {
      void run(Play play) throws Exception;
   }

   private static final Map<String, Trick> TRIALS = new LinkedHashMap<>();

   private static void scene(String name, String[] first, String... steps) {
      TRIALS.put(name, play -> play.act(first).act(steps));
   }

   private static void scene(String name, String... steps) {
      TRIALS.put(name, play -> play.act(steps));
   }

   public static void main(String[] arguments) throws Exception {
      _harbour = Paths.get(arguments[0], "Harbour.xml").toString();
      catchCallbacks();
      TRIALS.put("object models", LoopbackTrials::objectModels);
      objectScenes();
      timeScenes();
      ownershipScenes();
      regionScenes();
      federationScenes();
      managementScenes();
      TRIALS.put("cost", LoopbackTrials::cost);
      TRIALS.put("lost connection", LoopbackTrials::lostConnection);
      for (Map.Entry<String, Trick> trial : TRIALS.entrySet()) {
         System.out.println(trial.getKey());
         trial.getValue().run(harbour());
         Script.forgetFederations();
      }
      System.out.println(TRIALS.size() + " trials passed");
   }

   /** Two members, 1 and 2, of a federation with the harbour's model and integer time. */
   private static Play harbour() {
      Play play = new Play();
      play.known.put("F", "F" + ++_federations);
      play.known.put("HARBOUR", _harbour);
      return play.act("a connect", "b connect",
            "a createFederationExecution F HARBOUR HLAinteger64Time", "a join F", "b join F",
            "Ship = a getObjectClassHandle Ship", "Name = a getAttributeHandle Ship Name",
            "Position = a getAttributeHandle Ship Position",
            "Signal = a getInteractionClassHandle HLAinteractionRoot.Signal",
            "Text = a getParameterHandle Signal Text", "SeaArea = a getDimensionHandle SeaArea");
   }

   private static void objectModels(Play play) throws Exception {
      play.act("a getObjectClassName Ship ? HLAobjectRoot.Ship",
            "a getParameterName Signal Text ? Text", "a getDimensionUpperBound SeaArea ? 1000",
            "a getUpdateRateValue Slow ? 0.5", "a getOrderName 1 ? TimeStamp",
            "a getTransportationTypeHandle HLAbestEffort ? 2",
            "a getObjectClassHandle Boat ! NameNotFound", "c connect");
      Path module = Files.createTempFile("model", ".xml");
      play.known.put("MODULE", module.toUri().toString());
      String position = attribute("Position", "<order>Receive</order>");
      String rest = attribute("Name", "") + attribute("Cargo", "");
      String[][] faults = {{"<objectModel", "ErrorReadingFDD"}, {"<other/>", "ErrorReadingFDD"},
            {model("Ship", attribute("Name", "")), "InconsistentFDD Ship {MODULE} Harbour.xml"},
            {model("Ship", position + rest),
                  "InconsistentFDD Position HLAobjectRoot.Ship TimeStamp {MODULE} Harbour.xml"},
            {model("Tug", attribute("HLAprivilegeToDeleteObject", "")), "InconsistentFDD"},
            {model("Tug", position + position), "InconsistentFDD Tug Position twice"},
            {model("Tug</name></objectClass><objectClass><name>Tug", ""), "InconsistentFDD twice"},
            {model("Tug", attribute("Power", "<order>Late</order>")), "InconsistentFDD Late"},
            {model("Tug", attribute("Power", "<transportation>Pigeon</transportation>")),
                  "InconsistentFDD Power HLAobjectRoot.Tug Pigeon"},
            {model("Tug boat", ""), "InconsistentFDD blank"},
            {model("Tug.Boat", ""), "InconsistentFDD dot"},
            {model("Tug", attribute("hlaPower", "")), "InconsistentFDD hlaPower HLA"}};
      for (String[] fault : faults) {
         Files.write(module, fault[0].getBytes("UTF-8"));
         play.act("c join F MODULE ! " + fault[1]);
      }
      position = position.replace("Receive", "TimeStamp");
      String both = model("Tug", attribute("Power", "") + "</objectClass><objectClass><name>Ship"
            + "</name>" + position + rest);
      Files.write(module, both.replace("<objects>", "<transportations><transportation><name>Pigeon"
            + "</name></transportation></transportations><objects>").getBytes("UTF-8"));
      play.act("c join F MODULE", "Tug = a getObjectClassHandle Tug",
            "Power = a getAttributeHandle Tug Power", "c getAttributeName Tug Power ? Power",
            "c getObjectClassHandle HLAobjectRoot.Ship ? Ship",
            "a getTransportationTypeHandle Pigeon ? 3", "a getTransportationTypeName 3 ? Pigeon");
      Files.write(module, model("Tug", attribute("Draught", "")).replace("<objects>", "<switches>"
            + "<autoProvide isEnabled='true'/><automaticResignAction resignAction='NoAction'/>"
            + "</switches><objects>").getBytes("UTF-8"));
      play.act("d connect", "e connect", "d createFederationExecution {F}auto MODULE -",
            "d join {F}auto", "e join {F}auto", "Tug = d getObjectClassHandle HLAobjectRoot.Tug",
            "Power = d getAttributeHandle Tug Draught", "d publishObjectClassAttributes Tug Power",
            "s = d registerObjectInstance Tug", "e subscribeObjectClassAttributes Tug Power true -",
            "e: discoverObjectInstance s Tug HLAinstance{s}",
            "d: startRegistrationForObjectClass Tug | provideAttributeValueUpdate s [Power]",
            "d getAutomaticResignDirective ? 5", "d resignFederationExecution 4",
            "e resignFederationExecution 4");
      play.act("d createFederationExecution E - MODULE - ! InconsistentFDD a module");
      Files.delete(module);
      play.act("d join F MODULE ! CouldNotOpenFDD");
   }

   private static String model(String objectClass, String attributes) {
      return "<objectModel><objects><objectClass><name>HLAobjectRoot</name><objectClass><name>"
            + objectClass + "</name>" + attributes
            + "</objectClass></objectClass></objects></objectModel>";
   }

   private static String attribute(String name, String facts) {
      return "<attribute><name>" + name + "</name>" + facts + "</attribute>";
   }

   private static void objectScenes() {
      scene("names", "a reserveObjectInstanceName HLAx ! IllegalName",
            "a reserveMultipleObjectInstanceName - ! NameSetWasEmpty",
            "a reserveObjectInstanceName x", "b reserveMultipleObjectInstanceName y,x",
            "a: objectInstanceNameReservationSucceeded x",
            "b: multipleObjectInstanceNameReservationFailed [x, y]",
            "a registerObjectInstance Ship x ! ObjectClassNotPublished",
            "a publishObjectClassAttributes Ship Name",
            "a registerObjectInstance Ship y ! ObjectInstanceNameNotReserved",
            "s = a registerObjectInstance Ship x",
            "a registerObjectInstance Ship x ! ObjectInstanceNameInUse",
            "a releaseObjectInstanceName x ! ObjectInstanceNameNotReserved",
            "a getObjectInstanceHandle x ? s",
            "b getObjectInstanceName s ! ObjectInstanceNotKnown");
      scene("declarations", "a publishObjectClassAttributes Ship Name",
            "a publishInteractionClass Signal",
            "b subscribeObjectClassAttributes Ship Name false -", "a:",
            "b subscribeObjectClassAttributes Ship Position true -",
            "b subscribeInteractionClass Signal false", "a:",
            "b subscribeObjectClassAttributes Ship Name true -",
            "b subscribeInteractionClass Signal true",
            "a: startRegistrationForObjectClass Ship | turnInteractionsOn Signal",
            "b unsubscribeObjectClass Ship", "b unsubscribeInteractionClass Signal",
            "a: stopRegistrationForObjectClass Ship | turnInteractionsOff Signal",
            "a publishObjectClassAttributes 1 Name ! AttributeNotDefined",
            "b subscribeObjectClassAttributes Ship Name true Fast ! InvalidUpdateRateDesignator");
      scene("updates", SHARE, "a updateAttributeValues s Name=5 @7",
            "b: reflectAttributeValues s [Name=5] 0 1 from 1",
            "a updateAttributeValues s Name=6 @7 @3 ? null",
            "b: reflectAttributeValues s [Name=6] 0 1 @3 0 from 1",
            "b updateAttributeValues s Name=5 @7 ! AttributeNotOwned",
            "a sendInteraction Signal Text=4 @7",
            "b: receiveInteraction Signal [Text=4] 0 1 from 1",
            "a sendInteraction Signal 99=4 @7 ! InteractionParameterNotDefined",
            "b requestAttributeValueUpdate_OIH_AHS_BX s Name @7",
            "a requestAttributeValueUpdate_OCH_AHS_BX Ship Name @7",
            "a: provideAttributeValueUpdate s [Name]",
            "a requestAttributeTransportationTypeChange s Name 2",
            "a: confirmAttributeTransportationTypeChange s [Name] 2",
            "b queryAttributeTransportationType s Name",
            "b: reportAttributeTransportationType s Name 2",
            "b deleteObjectInstance s @7 ! DeletePrivilegeNotHeld", "b localDeleteObjectInstance s",
            "a updateAttributeValues s Name=7 @7",
            "b: discoverObjectInstance s Ship HLAinstance{s} 1"
                  + " | reflectAttributeValues s [Name=7] 0 2 from 1",
            "a deleteObjectInstance s @7", "b: removeObjectInstance s 0 from 1",
            "b getObjectInstanceName s ! ObjectInstanceNotKnown");
   }

   /** Both regulate with the lookahead and are constrained, and have got the callbacks. */
   private static String[] timed(int lookahead) {
      return new String[] {"a enableTimeRegulation @" + lookahead,
            "a timeAdvanceRequest @1 ! RequestForTimeRegulationPending",
            "a: timeRegulationEnabled @0", "a enableTimeConstrained",
            "a: timeConstrainedEnabled @0", "b enableTimeRegulation @" + lookahead,
            "b: timeRegulationEnabled @0", "b enableTimeConstrained",
            "b: timeConstrainedEnabled @0"};
   }

   private static void timed(String name, int lookahead, String... steps) {
      TRIALS.put(name, play -> play.act(SHARE).act(timed(lookahead)).act(steps));
   }

   private static void timeScenes() {
      timed("steps in time", 1, "a updateAttributeValues s Name=1 @7 @0 ! InvalidLogicalTime",
            "a updateAttributeValues s Name=2 @7 @2", "a updateAttributeValues s Name=1 @7 @1",
            "b timeAdvanceRequest @1", "b timeAdvanceRequest @1 ! InTimeAdvancingState", "b:",
            "b queryGALT ? @1", "b queryLITS ? @1", "a timeAdvanceRequest @1",
            "a: timeAdvanceGrant @1",
            "b: reflectAttributeValues s [Name=1] 1 1 @1 1 #2 from 1 | timeAdvanceGrant @1",
            "b timeAdvanceRequest @0 ! LogicalTimeAlreadyPassed", "a timeAdvanceRequest @5", "a:",
            "b timeAdvanceRequest @4",
            "b: reflectAttributeValues s [Name=2] 1 1 @2 1 #1 from 1 | timeAdvanceGrant @4",
            "b disableTimeRegulation", "a: timeAdvanceGrant @5");
      timed("next messages", 1, "a updateAttributeValues s Name=3 @7 @3",
            "b nextMessageRequest @10", "b:", "a nextMessageRequest @10",
            "b: reflectAttributeValues s [Name=3] 1 1 @3 1 #1 from 1 | timeAdvanceGrant @3", "a:",
            "b nextMessageRequest @10", "a: timeAdvanceGrant @10", "b: timeAdvanceGrant @10");
      // A time is over for both only when both are done with it.
      timed("no lookahead", 0, "a timeAdvanceRequestAvailable @2",
            "b timeAdvanceRequestAvailable @2", "a: timeAdvanceGrant @2", "b: timeAdvanceGrant @2",
            "a updateAttributeValues s Name=8 @7 @2", "b timeAdvanceRequest @2", "b:",
            "a timeAdvanceRequest @2",
            "b: reflectAttributeValues s [Name=8] 1 1 @2 1 #1 from 1 | timeAdvanceGrant @2",
            "a: timeAdvanceGrant @2",
            "a updateAttributeValues s Name=1 @7 @2 ! InvalidLogicalTime");
      timed("flushed queue", 1, "a updateAttributeValues s Name=1 @7 @9", "b flushQueueRequest @5",
            "b: reflectAttributeValues s [Name=1] 1 1 @9 1 #1 from 1 | timeAdvanceGrant @1");
      // What has no timestamp waits for an advance unless delivery is asynchronous.
      timed("held messages", 1, "a updateAttributeValues s Name=1 @7", "b:",
            "b timeAdvanceRequest @1", "b: reflectAttributeValues s [Name=1] 0 1 from 1",
            "a timeAdvanceRequest @1", "b: timeAdvanceGrant @1",
            "a updateAttributeValues s Name=1 @7", "b:", "b enableAsynchronousDelivery",
            "b: reflectAttributeValues s [Name=1] 0 1 from 1",
            "b enableAsynchronousDelivery ! AsynchronousDeliveryAlreadyEnabled");
      timed("retraction", 1, "c connect", "c join F",
            "c subscribeObjectClassAttributes Ship Name true -",
            "c: discoverObjectInstance s Ship HLAinstance{s} 1",
            "a updateAttributeValues s Name=1 @7 @3", "a retract 1",
            "c: reflectAttributeValues s [Name=1] 1 1 @3 0 #1 from 1 | requestRetraction #1",
            "a deleteObjectInstance s @7 @4", "a getObjectInstanceName s ! ObjectInstanceNotKnown",
            "a retract 2", "a getObjectInstanceName s ? HLAinstance{s}",
            "a updateAttributeValues s Name=1 @7 @1", "a timeAdvanceRequest @4",
            "b timeAdvanceRequest @4",
            "b: reflectAttributeValues s [Name=1] 1 1 @1 1 #3 from 1 | timeAdvanceGrant @4",
            "a: timeAdvanceGrant @4", "a retract 3 ! MessageCanNoLongerBeRetracted",
            "a retract 77 ! InvalidMessageRetractionHandle");
      // A shorter lookahead counts only when what the longer one promised has passed.
      timed("lookahead", 5, "a modifyLookahead @-1 ! InvalidLookahead", "a modifyLookahead @1",
            "b queryGALT ? @5", "a queryLookahead ? @5", "b timeAdvanceRequest @4",
            "b: timeAdvanceGrant @4", "a timeAdvanceRequest @3", "a: timeAdvanceGrant @3",
            "a queryLookahead ? @2", "a timeAdvanceRequest @6", "b queryGALT ? @7",
            "a: timeAdvanceGrant @6", "a queryLookahead ? @1");
      // It comes before the grants beyond its time; a restore leads back there, with all as it was.
      timed("timed save", 1, "a requestFederationSave x @2",
            "a updateAttributeValues s Name=1 @7 @2", "a updateAttributeValues s Name=2 @7 @3",
            "a timeAdvanceRequest @4", "a:", "b timeAdvanceRequest @4",
            "a: initiateFederateSave x @2",
            "b: reflectAttributeValues s [Name=1] 1 1 @2 1 #1 from 1 | initiateFederateSave x @2",
            "a federateSaveBegun", "a federateSaveComplete", "b federateSaveBegun",
            "b federateSaveComplete", "a: federationSaved | timeAdvanceGrant @4",
            "b: federationSaved | reflectAttributeValues s [Name=2] 1 1 @3 1 #2 from 1"
                  + " | timeAdvanceGrant @4", "t = a registerObjectInstance Ship",
            "a unconditionalAttributeOwnershipDivestiture s Name", "b resignFederationExecution 4",
            "b join F", "a requestFederationRestore x", "a federateRestoreComplete",
            "b federateRestoreComplete",
            "b: federationRestoreBegun | initiateFederateRestore x B 2 2 | federationRestored"
                  + " | reflectAttributeValues s [Name=2] 1 1 @3 1 #2 from 1 | timeAdvanceGrant @4",
            "a getFederateName 2 ? B 2", "a isAttributeOwnedByFederate s Name ? true",
            "a getObjectInstanceName t ! ObjectInstanceNotKnown", "b queryLookahead ? @1");
   }

   private static void ownershipScenes() {
      scene("ownership", SHARE,
            "b attributeOwnershipAcquisition s Name @7 ! ObjectClassNotPublished",
            "b publishObjectClassAttributes Ship Name",
            "a negotiatedAttributeOwnershipDivestiture s Name @7",
            "b: requestAttributeOwnershipAssumption s [Name]",
            "a confirmDivestiture s Name @7 ! NoAcquisitionPending",
            "b attributeOwnershipAcquisitionIfAvailable s Name",
            "a: requestDivestitureConfirmation s [Name]", "a confirmDivestiture s Name @7",
            "b: attributeOwnershipAcquisitionNotification s [Name]",
            "b isAttributeOwnedByFederate s Name ? true",
            "a attributeOwnershipAcquisitionIfAvailable s Name",
            "a: attributeOwnershipUnavailable s [Name]",
            "a attributeOwnershipAcquisition s Name @7",
            "b: requestAttributeOwnershipRelease s [Name]",
            "a resignFederationExecution 5 ! OwnershipAcquisitionPending",
            "b attributeOwnershipReleaseDenied s Name",
            "a cancelAttributeOwnershipAcquisition s Name",
            "a: confirmAttributeOwnershipAcquisitionCancellation s [Name]",
            "b attributeOwnershipDivestitureIfWanted s Name ? []",
            "a attributeOwnershipAcquisition s Name @7",
            "b attributeOwnershipDivestitureIfWanted s Name ? [Name]",
            "a: attributeOwnershipAcquisitionNotification s [Name]",
            "b: requestAttributeOwnershipRelease s [Name]",
            "b attributeOwnershipAcquisition s Name @7",
            "a unconditionalAttributeOwnershipDivestiture s Name",
            "b: attributeOwnershipAcquisitionNotification s [Name]",
            "b unconditionalAttributeOwnershipDivestiture s Name",
            "b queryAttributeOwnership s Name", "b queryAttributeOwnership s Position",
            "b: attributeIsNotOwned s Name | informAttributeOwnership s Position 1",
            "a cancelNegotiatedAttributeOwnershipDivestiture s Name ! AttributeNotOwned",
            "a cancelNegotiatedAttributeOwnershipDivestiture s Position !"
                  + " AttributeDivestitureWasNotRequested");
      scene("contested ownership", SHARE, "b publishObjectClassAttributes Ship Name,Position",
            "b attributeOwnershipAcquisitionIfAvailable s Name,Position",
            "b: attributeOwnershipUnavailable s [Name, Position]", "a:",
            "b cancelAttributeOwnershipAcquisition s Name ! AttributeAcquisitionWasNotRequested",
            "a negotiatedAttributeOwnershipDivestiture s Name @7",
            "b: requestAttributeOwnershipAssumption s [Name]",
            "b attributeOwnershipAcquisitionIfAvailable s Name",
            "b cancelAttributeOwnershipAcquisition s Name ! AttributeAcquisitionWasNotRequested",
            "c connect", "c join F", "c publishObjectClassAttributes Ship Name,Position",
            "c subscribeObjectClassAttributes Ship Name true -",
            "c: startRegistrationForObjectClass Ship"
                  + " | discoverObjectInstance s Ship HLAinstance{s} 1",
            "c attributeOwnershipAcquisition s Name,Position @7",
            "a: requestDivestitureConfirmation s [Name]"
                  + " | requestAttributeOwnershipRelease s [Position]",
            "a cancelNegotiatedAttributeOwnershipDivestiture s Name",
            "a: requestAttributeOwnershipRelease s [Name]",
            "b: startRegistrationForObjectClass Ship | attributeOwnershipUnavailable s [Name]",
            "b attributeOwnershipAcquisition s Name,Position @7",
            "a unconditionalAttributeOwnershipDivestiture s Name,Position",
            "c: attributeOwnershipAcquisitionNotification s [Name, Position]"
                  + " | requestAttributeOwnershipRelease s [Name, Position]",
            "b cancelAttributeOwnershipAcquisition s Name,Position", "b unpublishObjectClass Ship",
            "b: confirmAttributeOwnershipAcquisitionCancellation s [Name, Position]",
            "c negotiatedAttributeOwnershipDivestiture s Name @7",
            "c unconditionalAttributeOwnershipDivestiture s Position", "b:",
            "b publishObjectClassAttributes Ship Name",
            "b: startRegistrationForObjectClass Ship"
                  + " | requestAttributeOwnershipAssumption s [Name]",
            "b publishObjectClassAttributes Ship Position",
            "b: requestAttributeOwnershipAssumption s [Position]");
      // What is published counts for the class as which the federate knows the instance.
      scene("ownership as another class", "a publishObjectClassAttributes Ship Name",
            "Privilege = a getAttributeHandle 1 HLAprivilegeToDeleteObject",
            "b publishObjectClassAttributes 1 Privilege",
            "b subscribeObjectClassAttributes 1 Privilege true -",
            "s = a registerObjectInstance Ship", "b getKnownObjectClassHandle s ? 1",
            "b attributeOwnershipAcquisition s Privilege @7",
            "a attributeOwnershipDivestitureIfWanted s Privilege ? [Privilege]",
            "b unpublishObjectClass 1", "b isAttributeOwnedByFederate s Privilege ? false");
   }

   private static void regionScenes() {
      scene("regions", "near = a createRegion SeaArea", "far = a createRegion SeaArea",
            "seen = b createRegion SeaArea", "a setRangeBounds near SeaArea 0-50",
            "a setRangeBounds far SeaArea 500-600", "a commitRegionModifications near,far",
            "b setRangeBounds seen SeaArea 50-200", "b commitRegionModifications seen",
            "a publishObjectClassAttributes Ship Name,Position", "a publishInteractionClass Signal",
            "b subscribeObjectClassAttributesWithRegions Ship Position:seen true -",
            "b subscribeInteractionClassWithRegions Signal true seen",
            "s = a registerObjectInstanceWithRegions Ship Position:far",
            "a associateRegionsForUpdates s Position:near", "b:",
            "a setRangeBounds near SeaArea 0-51", "a commitRegionModifications near",
            "b: discoverObjectInstance s Ship HLAinstance{s} 1",
            "a updateAttributeValues s Position=1 @7",
            "b: reflectAttributeValues s [Position=1] 0 1 from 1 over [near, far]",
            "a unassociateRegionsForUpdates s Position:near",
            "a updateAttributeValues s Position=2 @7",
            "a sendInteractionWithRegions Signal Text=1 far @7", "b:",
            "a sendInteractionWithRegions Signal Text=1 near @7",
            "b: receiveInteraction Signal [Text=1] 0 1 from 1 over [near]",
            "b setRangeBounds seen SeaArea 500-501", "a updateAttributeValues s Position=2 @7",
            "b:", "b commitRegionModifications seen", "a updateAttributeValues s Position=2 @7",
            "b: reflectAttributeValues s [Position=2] 0 1 from 1 over [far]",
            "a deleteRegion far ! RegionInUseForUpdateOrSubscription",
            "a deleteRegion seen ! RegionNotCreatedByThisFederate",
            "a associateRegionsForUpdates s Name:near ! InvalidRegionContext",
            "a setRangeBounds near SeaArea 5-5 ! InvalidRangeBound", "a deleteRegion near",
            "a getDimensionHandleSet near ! InvalidRegion");
      scene("instance advisories", "a enableAttributeRelevanceAdvisorySwitch",
            "b enableAttributeScopeAdvisorySwitch",
            "b enableAttributeScopeAdvisorySwitch ! AttributeScopeAdvisorySwitchIsOn",
            "a publishObjectClassAttributes Ship Name", "s = a registerObjectInstance Ship",
            "b subscribeObjectClassAttributes Ship Name true Slow",
            "a: startRegistrationForObjectClass Ship"
                  + " | turnUpdatesOnForObjectInstance s [Name] Slow",
            "b: discoverObjectInstance s Ship HLAinstance{s} 1 | attributesInScope s [Name]",
            "b unsubscribeObjectClass Ship",
            "a: stopRegistrationForObjectClass Ship | turnUpdatesOffForObjectInstance s [Name]",
            "b: attributesOutOfScope s [Name]", "r = b createRegion SeaArea",
            "b subscribeObjectClassAttributesWithRegions Ship Position:r true -",
            "a publishObjectClassAttributes Ship Position", "q = a createRegion SeaArea",
            "t = a registerObjectInstanceWithRegions Ship Position:q",
            "b: discoverObjectInstance t Ship HLAinstance{t} 1 | attributesInScope t [Position]",
            "a setRangeBounds q SeaArea 500-501", "b setRangeBounds r SeaArea 0-500",
            "a commitRegionModifications q", "b:", "b commitRegionModifications r",
            "b: attributesOutOfScope t [Position]");
      // Only the owner's regions count; each subscription is active or passive by itself.
      scene("regions of others", SHARE, "r = b createRegion SeaArea", "q = b createRegion SeaArea",
            "b setRangeBounds r SeaArea 0-10", "b setRangeBounds q SeaArea 500-600",
            "b commitRegionModifications q,r", "b associateRegionsForUpdates s Position:q",
            "b unsubscribeObjectClass Ship",
            "b subscribeObjectClassAttributesWithRegions Ship Position:r true Slow",
            "b subscribeObjectClassAttributesWithRegions Ship Position:q false -",
            "a: stopRegistrationForObjectClass Ship | startRegistrationForObjectClass Ship",
            "a updateAttributeValues s Position=1 @7",
            "b: reflectAttributeValues s [Position=1] 0 1 from 1",
            "a enableAttributeRelevanceAdvisorySwitch",
            "a: turnUpdatesOnForObjectInstance s [Position] Slow");
   }

   /** What a registration allocates does not grow with the instances that are there. */
   private static void cost(Play play) {
      play.act(SHARE).act("a enableAttributeRelevanceAdvisorySwitch",
            "b enableAttributeScopeAdvisorySwitch");
      long beside = allocatedByRegistration(play);
      for (int i = 0; i < 200; ++i) {
         play.act("a registerObjectInstance Ship");
      }
      same(true, allocatedByRegistration(play) < 2 * beside);
   }

   private static long allocatedByRegistration(Play play) {
      ThreadMXBean threads = (ThreadMXBean) ManagementFactory.getThreadMXBean();
      long before = threads.getThreadAllocatedBytes(Thread.currentThread().getId());
      play.act("a registerObjectInstance Ship", "b subscribeInteractionClass Signal false");
      return threads.getThreadAllocatedBytes(Thread.currentThread().getId()) - before;
   }

   private static void federationScenes() {
      scene("federations", "a connect 1 1 - ! AlreadyConnected",
            "a createFederationExecution F HARBOUR - ! FederationExecutionAlreadyExists",
            "a join F ! FederateAlreadyExecutionMember", "a disconnect ! FederateIsExecutionMember",
            "a destroyFederationExecution F ! FederatesCurrentlyJoined",
            "a destroyFederationExecution none ! FederationExecutionDoesNotExist",
            "a createFederationExecution M - HLAstandardMIM - ! DesignatorIsHLAstandardMIM",
            "a createFederationExecution T HARBOUR TickTime ! CouldNotCreateLogicalTimeFactory",
            "a resignFederationExecution 6 ! InvalidResignAction", "c connect",
            "c resignFederationExecution 5 ! FederateNotExecutionMember",
            "c joinFederationExecution A_1 C F -",
            "b joinFederationExecution A_1 C F - ! FederateAlreadyExecutionMember", "d connect",
            "d joinFederationExecution A_1 C F - ! FederateNameAlreadyInUse",
            "c resignFederationExecution 5", "a getTimeFactory ? HLAinteger64Time",
            "a resignFederationExecution 5", "b resignFederationExecution 5", "c disconnect",
            "c listFederationExecutions ! NotConnected", "a destroyFederationExecution F");
      scene("synchronization points", "a registerFederationSynchronizationPoint p @7",
            "a: synchronizationPointRegistrationSucceeded p | announceSynchronizationPoint p",
            "b registerFederationSynchronizationPoint p @7",
            "b: announceSynchronizationPoint p | synchronizationPointRegistrationFailed p 0",
            "c connect", "c join F", "c: announceSynchronizationPoint p",
            "a synchronizationPointAchieved p true",
            "a synchronizationPointAchieved p true ! SynchronizationPointLabelNotAnnounced",
            "b synchronizationPointAchieved p false", "b:", "c resignFederationExecution 5",
            "a: federationSynchronized p [2]", "b: federationSynchronized p [2]",
            "a registerFederationSynchronizationPoint q @7 9 ! InvalidFederateHandle",
            "a registerFederationSynchronizationPoint q @7 3",
            "a: synchronizationPointRegistrationFailed q 1",
            "a registerFederationSynchronizationPoint q @7 2",
            "a: synchronizationPointRegistrationSucceeded q", "b: announceSynchronizationPoint q");
      scene("save and restore", "a federateSaveBegun ! SaveNotInitiated",
            "a abortFederationSave ! SaveNotInProgress", "a requestFederationRestore x",
            "a: requestFederationRestoreFailed x", "a requestFederationSave x",
            "b: initiateFederateSave x", "b requestFederationSave t ! SaveInProgress",
            "a federateSaveComplete ! FederateHasNotBegunSave", "a federateSaveBegun",
            "a queryFederationSaveStatus", "a federateSaveComplete",
            "a: initiateFederateSave x | federationSaveStatusResponse [1:2, 2:1]",
            "b federateSaveBegun", "b federateSaveComplete", "a: federationSaved",
            "b: federationSaved", "a requestFederationSave t", "b federateSaveBegun",
            "b federateSaveNotComplete", "a abortFederationSave",
            "a: initiateFederateSave t | federationNotSaved 5",
            "b: initiateFederateSave t | federationNotSaved 5", "a requestFederationRestore x",
            "a requestFederationSave u ! RestoreInProgress",
            "a: requestFederationRestoreSucceeded x | federationRestoreBegun"
                  + " | initiateFederateRestore x A 1 1", "a federateRestoreComplete",
            "a federateRestoreComplete ! RestoreNotRequested", "b queryFederationRestoreStatus",
            "b federateRestoreNotComplete", "a: federationNotRestored 1",
            "b: federationRestoreBegun | initiateFederateRestore x B 2 2"
                  + " | federationRestoreStatusResponse [1:1:5, 2:2:4] | federationNotRestored 1");
      scene("immediate callbacks", "c connect immediate", "c disableCallbacks",
            "c listFederationExecutions", "c evokeCallback 0.05", "c:", "c enableCallbacks",
            "c: reportFederationExecutions [{F}:HLAinteger64Time]", "c disconnect",
            "c evokeCallback 0 ! RTIinternalError");
      scene("resignation", SHARE, "a resignFederationExecution 5 ! FederateOwnsAttributes",
            "a resignFederationExecution 1", "b: removeObjectInstance s 0 from 1",
            "b getFederateName 1 ! FederateHandleNotKnown",
            "b getFederateName 3 ! InvalidFederateHandle", "a join F", "b getFederateName 3 ? A 3",
            "a publishObjectClassAttributes Ship Name", "s = a registerObjectInstance Ship",
            "b listFederationExecutions", "b resignFederationExecution 5",
            "b: reportFederationExecutions [{F}:HLAinteger64Time]",
            "a resignFederationExecution 0");
   }

   private static void managementScenes() {
      String reports = "HLAmanager.HLAfederate.HLAreport.HLAreport";
      String requests = "HLAmanager.HLAfederate.HLArequest.HLArequest";
      String adjusts = "HLAmanager.HLAfederate.HLAadjust.HLAset";
      scene("who is there", "Federate = a getObjectClassHandle HLAmanager.HLAfederate",
            "Called = a getAttributeHandle Federate HLAfederateName",
            "Now = a getAttributeHandle Federate HLAlogicalTime",
            "a subscribeObjectClassAttributes Federate Called,Now true -",
            "a: discoverObjectInstance 2 Federate HLAfederate1"
                  + " | discoverObjectInstance 3 Federate HLAfederate2",
            "a requestAttributeValueUpdate_OIH_AHS_BX 3 Called @7",
            "a: reflectAttributeValues 3 [Called=<3>B 2] 0 1 over [2]",
            "a queryAttributeOwnership 3 Called", "a: attributeIsOwnedByRTI 3 Called",
            "Timing = a getInteractionClassHandle " + adjusts + "Timing",
            "Who = a getParameterHandle Timing HLAfederate",
            "Period = a getParameterHandle Timing HLAreportPeriod",
            "a publishInteractionClass Timing", "a sendInteraction Timing Who=i2,Period=i1 @7",
            "a:", "a: reflectAttributeValues 3 [Called=<3>B 2, Now=<8>] 0 1 over [2]",
            "a sendInteraction Timing Who=i2,Period=i0 @7", "b resignFederationExecution 5",
            "a: removeObjectInstance 3 0");
      scene("reports", "Ask = a getInteractionClassHandle " + requests + "Subscriptions",
            "Report = a getInteractionClassHandle " + reports + "ObjectClassSubscription",
            "Who = a getParameterHandle Ask HLAfederate", "a subscribeInteractionClass Report true",
            "a subscribeObjectClassAttributes Ship Name true Slow", "a publishInteractionClass Ask",
            "a sendInteraction Ask Who=i1 @7",
            "a: receiveInteraction Report [Who=<4><1>, 16=<1>, 17=<4><{Ship}>, 18=<1>,"
                  + " 19=<4>Slow, 20=<1><4>.] 0 1 over [1]",
            "Services = a getInteractionClassHandle " + adjusts + "ServiceReporting",
            "On = a getParameterHandle Services HLAreportingState",
            "Invocation = a getInteractionClassHandle " + reports + "ServiceInvocation",
            "b subscribeInteractionClass Invocation true", "a publishInteractionClass Services",
            "a sendInteraction Services Who=i1,On=i1 @7",
            "a subscribeInteractionClass Invocation true !"
                  + " FederateServiceInvocationsAreBeingReportedViaMOM",
            "a getOrderName 1 ? TimeStamp",
            "b: receiveInteraction Invocation [Who=<4><1>, 39=<25>subscribeInteractionClass,"
                  + " 40=, 41=<2><2>{Invocation}<4>true, 42=,"
                  + " 43=0FederateServiceInvocationsAreBeingReportedViaMOM, 44=] 0 1 over [1]"
                  + " | receiveInteraction Invocation [Who=<4><1>, 39=<12>getOrderName, 40=<1>,"
                  + " 41=<1><1>1, 42=<1><9>TimeStamp, 43=, 44=<1>] 0 1 over [1]");
   }

   private static int connection(Play play, String federate) throws Exception {
      return play.federates.get(federate).rti.connection().callbacksOrFail().handle();
   }

   private static void lostConnection(Play play) throws Exception {
      play.act(SHARE);
      same(true, Script.loseConnection(connection(play, "a"), "gone"));
      play.act("a getTimeFactory ! NotConnected", "a: connectionLost gone",
            "b: removeObjectInstance s 0 from 1");
      same(false, Script.loseConnection(connection(play, "a"), "gone"));
      play.act("c connect immediate", "c join F", "c publishObjectClassAttributes Ship Name",
            "s = c registerObjectInstance Ship",
            "b: discoverObjectInstance s Ship HLAinstance{s} 3");
      String thread = "tarn-standin-callbacks-" + connection(play, "c");
      Thread.getAllStackTraces().keySet().stream().filter(each -> each.getName().equals(thread))
            .forEach(Thread::interrupt);
      play.act("b: removeObjectInstance s 0 from 3", "d connect", "d join F",
            "d publishObjectClassAttributes Ship Name", "s = d registerObjectInstance Ship",
            "b: discoverObjectInstance s Ship HLAinstance{s} 4",
            "d disconnect ! FederateIsExecutionMember");
      forget(play.federates.remove("d"));
      play.act("b: removeObjectInstance s 0 from 4");
      Script.forgetFederations();
      play.act("b:", "b getTimeFactory ! FederateNotExecutionMember",
            "b createFederationExecution F HARBOUR -");
   }
}
