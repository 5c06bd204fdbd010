// The names of the standard's management object model: classes as a tree by their indentation, each
// with its own attributes or parameters behind it.
package skerry.tarn1516e.standin;

import java.util.Arrays;

final class Mim {
   static final String NAME = "HLAstandardMIM";

   static final String FEDERATION = "HLAobjectRoot.HLAmanager.HLAfederation";
   static final String FEDERATE = "HLAobjectRoot.HLAmanager.HLAfederate";

   static final String INTERACTIONS = "HLAinteractionRoot.HLAmanager";
   static final String SERVICE_INVOCATION =
         INTERACTIONS + ".HLAfederate.HLAreport.HLAreportServiceInvocation";

   /** The dimensions that attributes and reports about one federate have. */
   static final String FEDERATE_DIMENSION = "HLAfederate";
   static final String SERVICE_GROUP_DIMENSION = "HLAserviceGroup";

   static final String[] OBJECT_CLASSES = {
      "HLAobjectRoot HLAprivilegeToDeleteObject",
      " HLAmanager",
      "  HLAfederation HLAfederationName HLAfederatesInFederation HLARTIversion HLAMIMdesignator"
            + " HLAFOMmoduleDesignatorList HLAcurrentFDD HLAtimeImplementationName"
            + " HLAlastSaveName HLAlastSaveTime HLAnextSaveName HLAnextSaveTime HLAautoProvide",
      "  HLAfederate HLAfederateHandle HLAfederateName HLAfederateType HLAfederateHost"
            + " HLARTIversion HLAFOMmoduleDesignatorList HLAtimeConstrained HLAtimeRegulating"
            + " HLAasynchronousDelivery HLAfederateState HLAtimeManagerState HLAlogicalTime"
            + " HLAlookahead HLAGALT HLALITS HLAROlength HLATSOlength HLAreflectionsReceived"
            + " HLAupdatesSent HLAinteractionsReceived HLAinteractionsSent"
            + " HLAobjectInstancesThatCanBeDeleted HLAobjectInstancesUpdated"
            + " HLAobjectInstancesReflected HLAobjectInstancesDeleted HLAobjectInstancesRemoved"
            + " HLAobjectInstancesRegistered HLAobjectInstancesDiscovered HLAtimeGrantedTime"
            + " HLAtimeAdvancingTime HLAconveyRegionDesignatorSets HLAconveyProducingFederate"};

   static final String[] INTERACTION_CLASSES = {
      "HLAinteractionRoot",
      " HLAmanager",
      "  HLAfederate HLAfederate",
      "   HLAadjust",
      "    HLAsetTiming HLAreportPeriod",
      "    HLAmodifyAttributeState HLAobjectInstance HLAattribute HLAattributeState",
      "    HLAsetServiceReporting HLAreportingState",
      "    HLAsetExceptionReporting HLAreportingState",
      "    HLAsetSwitches HLAconveyRegionDesignatorSets HLAconveyProducingFederate",
      "   HLArequest",
      "    HLArequestPublications",
      "    HLArequestSubscriptions",
      "    HLArequestObjectInstancesThatCanBeDeleted",
      "    HLArequestObjectInstancesUpdated",
      "    HLArequestObjectInstancesReflected",
      "    HLArequestUpdatesSent",
      "    HLArequestInteractionsSent",
      "    HLArequestReflectionsReceived",
      "    HLArequestInteractionsReceived",
      "    HLArequestObjectInstanceInformation HLAobjectInstance",
      "    HLArequestFOMmoduleData HLAFOMmoduleIndicator",
      "   HLAreport",
      "    HLAreportObjectClassPublication HLAnumberOfClasses HLAobjectClass HLAattributeList",
      "    HLAreportInteractionPublication HLAinteractionClassList",
      "    HLAreportObjectClassSubscription HLAnumberOfClasses HLAobjectClass HLAactive"
            + " HLAmaxUpdateRate HLAattributeList",
      "    HLAreportInteractionSubscription HLAinteractionClassList",
      "    HLAreportObjectInstancesThatCanBeDeleted HLAobjectInstanceCounts",
      "    HLAreportObjectInstancesUpdated HLAobjectInstanceCounts",
      "    HLAreportObjectInstancesReflected HLAobjectInstanceCounts",
      "    HLAreportUpdatesSent HLAtransportation HLAupdateCounts",
      "    HLAreportReflectionsReceived HLAtransportation HLAreflectCounts",
      "    HLAreportInteractionsSent HLAtransportation HLAinteractionCounts",
      "    HLAreportInteractionsReceived HLAtransportation HLAinteractionCounts",
      "    HLAreportObjectInstanceInformation HLAobjectInstance HLAownedInstanceAttributeList"
            + " HLAregisteredClass HLAknownClass",
      "    HLAreportException HLAservice HLAexception",
      "    HLAreportServiceInvocation HLAservice HLAsuccessIndicator HLAsuppliedArguments"
            + " HLAreturnedArguments HLAexception HLAserialNumber",
      "    HLAreportMOMexception HLAservice HLAexception HLAparameterError",
      "    HLAreportFOMmoduleData HLAFOMmoduleIndicator HLAFOMmoduleData",
      "   HLAservice",
      "    HLAresignFederationExecution HLAresignAction",
      "    HLAsynchronizationPointAchieved HLAlabel",
      "    HLAfederateSaveBegun",
      "    HLAfederateSaveComplete HLAsuccessIndicator",
      "    HLAfederateRestoreComplete HLAsuccessIndicator",
      "    HLApublishObjectClassAttributes HLAobjectClass HLAattributeList",
      "    HLAunpublishObjectClassAttributes HLAobjectClass HLAattributeList",
      "    HLApublishInteractionClass HLAinteractionClass",
      "    HLAunpublishInteractionClass HLAinteractionClass",
      "    HLAsubscribeObjectClassAttributes HLAobjectClass HLAattributeList HLAactive",
      "    HLAunsubscribeObjectClassAttributes HLAobjectClass HLAattributeList",
      "    HLAsubscribeInteractionClass HLAinteractionClass HLAactive",
      "    HLAunsubscribeInteractionClass HLAinteractionClass",
      "    HLAdeleteObjectInstance HLAobjectInstance HLAtag HLAtimeStamp",
      "    HLAlocalDeleteObjectInstance HLAobjectInstance",
      "    HLArequestAttributeTransportationTypeChange HLAobjectInstance HLAattributeList"
            + " HLAtransportation",
      "    HLArequestInteractionTransportationTypeChange HLAinteractionClass HLAtransportation",
      "    HLAunconditionalAttributeOwnershipDivestiture HLAobjectInstance HLAattributeList",
      "    HLAenableTimeRegulation HLAlookahead",
      "    HLAdisableTimeRegulation",
      "    HLAenableTimeConstrained",
      "    HLAdisableTimeConstrained",
      "    HLAtimeAdvanceRequest HLAtimeStamp",
      "    HLAtimeAdvanceRequestAvailable HLAtimeStamp",
      "    HLAnextMessageRequest HLAtimeStamp",
      "    HLAnextMessageRequestAvailable HLAtimeStamp",
      "    HLAflushQueueRequest HLAtimeStamp",
      "    HLAenableAsynchronousDelivery",
      "    HLAdisableAsynchronousDelivery",
      "    HLAmodifyLookahead HLAlookahead",
      "    HLAchangeAttributeOrderType HLAobjectInstance HLAattributeList HLAsendOrder",
      "    HLAchangeInteractionOrderType HLAinteractionClass HLAsendOrder",
      "  HLAfederation",
      "   HLAadjust",
      "    HLAsetSwitches HLAautoProvide",
      "   HLArequest",
      "    HLArequestSynchronizationPoints",
      "    HLArequestSynchronizationPointStatus HLAsyncPointName",
      "    HLArequestFOMmoduleData HLAFOMmoduleIndicator",
      "    HLArequestMIMdata",
      "   HLAreport",
      "    HLAreportSynchronizationPoints HLAsyncPoints",
      "    HLAreportSynchronizationPointStatus HLAsyncPointName HLAsyncPointFederates",
      "    HLAreportFOMmoduleData HLAFOMmoduleIndicator HLAFOMmoduleData",
      "    HLAreportMIMdata HLAMIMdata"};

   /** Takes a class of the tables. */
   interface Reader {
      void read(String name, String parent, String[] members);
   }

   private Mim() {}

   /** Hands over each class by its full name, behind the one above it; the root's is null. */
   static void read(String[] table, Reader reader) {
      String[] path = new String[8];
      for (String line : table) {
         String[] words = line.trim().split(" ");
         int depth = line.length() - line.trim().length();
         String parent = depth == 0 ? null : path[depth - 1];
         path[depth] = depth == 0 ? words[0] : parent + "." + words[0];
         reader.read(path[depth], parent, Arrays.copyOfRange(words, 1, words.length));
      }
   }
}
