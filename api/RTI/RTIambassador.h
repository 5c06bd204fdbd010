// The RTI ambassador: the services of the RTI, as a federate calls them.
#ifndef RTI_RTIambassador_h
#define RTI_RTIambassador_h

#include <RTI/SpecificConfig.h>

#include <memory>
#include <RTI/Enums.h>
#include <RTI/Exception.h>
#include <RTI/Handle.h>
#include <RTI/LogicalTime.h>
#include <RTI/LogicalTimeFactory.h>
#include <RTI/LogicalTimeInterval.h>
#include <RTI/RangeBounds.h>
#include <RTI/Typedefs.h>
#include <RTI/VariableLengthData.h>
#include <set>
#include <string>
#include <vector>

RTI_BEGIN_INTERFACE

namespace rti1516e {

class FederateAmbassador;

/// Most lists of exceptions end with one of these. The first is for services that any joined
/// federate may call, the second for those that have to wait while a save or restore is in
/// progress.
#define RTI_MEMBER_TAIL                                                                            \
   rti1516e::FederateNotExecutionMember, rti1516e::NotConnected, rti1516e::RTIinternalError
#define RTI_COMMON_TAIL rti1516e::SaveInProgress, rti1516e::RestoreInProgress, RTI_MEMBER_TAIL

/// A federate's way to the RTI. RTIambassadorFactory makes one, and the caller owns it.
///
/// Resign, disconnect, and only then delete it. Deleting asks the RTI to disconnect, which it
/// refuses while the federate is a member: the federate then stays one, and its next callback meets
/// freed memory. See to it on every way out, an exception's too.
///
/// Each service is one call into the RTI, which alone knows whether the federate is connected,
/// joined, saving or advancing. What the RTI throws comes out as the exception of the same name if
/// the service lists it, with the RTI's own text, and otherwise as RTIinternalError. Any other
/// exception ends the process, such as one out of a time's encode(). So does a ResignAction,
/// OrderType, TransportationType or ServiceGroup that has none of its enumeration's values.
///
/// Arguments stay the caller's and are not used after the call. The RTI gets the low 16 bits of
/// each character of a string, so that one beyond U+FFFF arrives as another, and of a time its
/// encoded form.
///
/// Services may be called from any thread, from several at once, and from inside a callback if they
/// do not list CallNotAllowedFromWithinCallback. No lock is taken on this side. But connect is for
/// one thread at a time in the whole process, also for different ambassadors: of two at the same
/// moment one may never get a callback. connect and joinFederationExecution come before other
/// threads use the ambassador.
class RTI_EXPORT RTIambassador {
protected:
   RTIambassador();

public:
   virtual ~RTIambassador();

   // ---- Federation management

   /// Connects to the RTI. Callbacks go to theFederateAmbassador from now on, even if connect
   /// fails; the object stays the federate's and must outlive the connection. A process has room
   /// for 4096 calls of connect, by all its ambassadors, failed ones included. What the local
   /// settings designator means is the RTI's affair; an empty one asks for the default settings.
   virtual void connect(FederateAmbassador& theFederateAmbassador, CallbackModel theCallbackModel,
         std::wstring const& localSettingsDesignator = L"")
         RTI_THROW((ConnectionFailed, InvalidLocalSettingsDesignator, UnsupportedCallbackModel,
               AlreadyConnected, CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   /// Ends the connection. The ambassador may connect again.
   virtual void disconnect() RTI_THROW(
         (FederateIsExecutionMember, CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   /// Creates a federation execution with one FOM module, a path or URL that the RTI reads. An
   /// empty logicalTimeImplementationName leaves the kind of time to the RTI.
   virtual void createFederationExecution(std::wstring const& federationExecutionName,
         std::wstring const& fomModule, std::wstring const& logicalTimeImplementationName = L"")
         RTI_THROW(
               (CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
                     FederationExecutionAlreadyExists, NotConnected, RTIinternalError)) = 0;

   /// The same with any number of FOM modules.
   virtual void createFederationExecution(std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& fomModules,
         std::wstring const& logicalTimeImplementationName = L"")
         RTI_THROW(
               (CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
                     FederationExecutionAlreadyExists, NotConnected, RTIinternalError)) = 0;

   /// The same with a MIM module, a path or URL, in place of the standard MIM.
   virtual void createFederationExecutionWithMIM(std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& fomModules, std::wstring const& mimModule,
         std::wstring const& logicalTimeImplementationName = L"")
         RTI_THROW((CouldNotCreateLogicalTimeFactory, InconsistentFDD, ErrorReadingFDD,
               CouldNotOpenFDD, DesignatorIsHLAstandardMIM, ErrorReadingMIM, CouldNotOpenMIM,
               FederationExecutionAlreadyExists, NotConnected, RTIinternalError)) = 0;

   /// Destroys a federation execution that no federate is joined to.
   virtual void destroyFederationExecution(std::wstring const& federationExecutionName)
         RTI_THROW((FederatesCurrentlyJoined, FederationExecutionDoesNotExist, NotConnected,
               RTIinternalError)) = 0;

   /// Asks for the federation executions; reportFederationExecutions answers.
   virtual void listFederationExecutions() RTI_THROW((NotConnected, RTIinternalError)) = 0;

   /// Joins a federation execution under a name that the RTI makes up. The additional FOM modules
   /// are added to those of the execution. The time factory comes from the federate's time library.
   /// If that throws, the federate is joined but its handle is lost; if it does not know the
   /// execution's kind of time, the join succeeds and the first callback with a time ends the
   /// process with "postMagic == POST_MAGIC". A federate sees it before by getTimeFactory, which
   /// then gives none.
   virtual FederateHandle joinFederationExecution(std::wstring const& federateType,
         std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& additionalFomModules = std::vector<std::wstring>())
         RTI_THROW((CouldNotCreateLogicalTimeFactory, FederationExecutionDoesNotExist,
               InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD, SaveInProgress, RestoreInProgress,
               FederateAlreadyExecutionMember, NotConnected, CallNotAllowedFromWithinCallback,
               RTIinternalError)) = 0;

   /// The same under a name of the federate's choice.
   virtual FederateHandle joinFederationExecution(std::wstring const& federateName,
         std::wstring const& federateType, std::wstring const& federationExecutionName,
         std::vector<std::wstring> const& additionalFomModules = std::vector<std::wstring>())
         RTI_THROW((CouldNotCreateLogicalTimeFactory, FederateNameAlreadyInUse,
               FederationExecutionDoesNotExist, InconsistentFDD, ErrorReadingFDD, CouldNotOpenFDD,
               SaveInProgress, RestoreInProgress, FederateAlreadyExecutionMember, NotConnected,
               CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   /// Leaves the federation execution; the action says what becomes of the federate's instances.
   virtual void resignFederationExecution(ResignAction theResignAction)
         RTI_THROW((InvalidResignAction, OwnershipAcquisitionPending, FederateOwnsAttributes,
               FederateNotExecutionMember, NotConnected, CallNotAllowedFromWithinCallback,
               RTIinternalError)) = 0;

   /// Announces a synchronization point to all federates, including those that join before it is
   /// reached. synchronizationPointRegistrationSucceeded or synchronizationPointRegistrationFailed
   /// answers; announceSynchronizationPoint tells the federates.
   virtual void registerFederationSynchronizationPoint(std::wstring const& label,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   /// The same for the federates of the set only.
   virtual void registerFederationSynchronizationPoint(std::wstring const& label,
         VariableLengthData const& theUserSuppliedTag, FederateHandleSet const& synchronizationSet)
         RTI_THROW((InvalidFederateHandle, RTI_COMMON_TAIL)) = 0;

   /// Tells that this federate has reached the synchronization point, successfully or not.
   /// federationSynchronized comes when all federates have.
   virtual void synchronizationPointAchieved(std::wstring const& label, bool successfully = true)
         RTI_THROW((SynchronizationPointLabelNotAnnounced, RTI_COMMON_TAIL)) = 0;

   /// Asks for a save of the federation as soon as possible; initiateFederateSave tells the
   /// federates.
   virtual void requestFederationSave(std::wstring const& label) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   /// Asks for a save of the federation at a logical time.
   virtual void requestFederationSave(std::wstring const& label, LogicalTime const& theTime)
         RTI_THROW((LogicalTimeAlreadyPassed, InvalidLogicalTime, FederateUnableToUseTime,
               RTI_COMMON_TAIL)) = 0;

   /// Tells that the federate is saving itself, in answer to initiateFederateSave.
   virtual void federateSaveBegun()
         RTI_THROW((SaveNotInitiated, RestoreInProgress, RTI_MEMBER_TAIL)) = 0;

   /// Tells that the federate has saved itself. federationSaved or federationNotSaved comes when
   /// all federates have answered.
   virtual void federateSaveComplete()
         RTI_THROW((FederateHasNotBegunSave, RestoreInProgress, RTI_MEMBER_TAIL)) = 0;

   /// Tells that the federate could not save itself.
   virtual void federateSaveNotComplete()
         RTI_THROW((FederateHasNotBegunSave, RestoreInProgress, RTI_MEMBER_TAIL)) = 0;

   /// Gives up the save for all federates; federationNotSaved follows.
   virtual void abortFederationSave() RTI_THROW((SaveNotInProgress, RTI_MEMBER_TAIL)) = 0;

   /// Asks how far each federate is with the save; federationSaveStatusResponse answers.
   virtual void queryFederationSaveStatus() RTI_THROW((RestoreInProgress, RTI_MEMBER_TAIL)) = 0;

   /// Asks for a restore of the save with that label. requestFederationRestoreSucceeded or
   /// requestFederationRestoreFailed answers; federationRestoreBegun and initiateFederateRestore
   /// tell the federates.
   virtual void requestFederationRestore(std::wstring const& label)
         RTI_THROW((RTI_COMMON_TAIL)) = 0;

   /// Tells that the federate has restored itself. federationRestored or federationNotRestored
   /// comes when all federates have answered.
   virtual void federateRestoreComplete()
         RTI_THROW((RestoreNotRequested, SaveInProgress, RTI_MEMBER_TAIL)) = 0;

   /// Tells that the federate could not restore itself.
   virtual void federateRestoreNotComplete()
         RTI_THROW((RestoreNotRequested, SaveInProgress, RTI_MEMBER_TAIL)) = 0;

   /// Gives up the restore for all federates; federationNotRestored follows.
   virtual void abortFederationRestore() RTI_THROW((RestoreNotInProgress, RTI_MEMBER_TAIL)) = 0;

   /// Asks how far each federate is with the restore; federationRestoreStatusResponse answers.
   virtual void queryFederationRestoreStatus() RTI_THROW((SaveInProgress, RTI_MEMBER_TAIL)) = 0;

   // ---- Declaration management

   /// Declares that the federate will register instances of the class and may own these attributes
   /// of them. Adds to the attributes published before.
   virtual void publishObjectClassAttributes(
         ObjectClassHandle theClass, AttributeHandleSet const& theAttributes)
         RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Takes back the publication of the class. Attributes that the federate owns by it are
   /// divested.
   virtual void unpublishObjectClass(ObjectClassHandle theClass)
         RTI_THROW((OwnershipAcquisitionPending, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Takes back the publication of these attributes of the class, in the same way.
   virtual void unpublishObjectClassAttributes(ObjectClassHandle theClass,
         AttributeHandleSet const& theAttributes) RTI_THROW((OwnershipAcquisitionPending,
         AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Declares that the federate will send interactions of the class.
   virtual void publishInteractionClass(InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Takes that back.
   virtual void unpublishInteractionClass(InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Asks to discover instances of the class and to have these attributes reflected. A passive
   /// subscription (active false) causes no advisories at the publishers. The designator names an
   /// update rate of the FOM; an empty one asks for every update.
   virtual void subscribeObjectClassAttributes(ObjectClassHandle theClass,
         AttributeHandleSet const& theAttributes, bool active = true,
         std::wstring const& updateRateDesignator = L"") RTI_THROW((AttributeNotDefined,
         ObjectClassNotDefined, InvalidUpdateRateDesignator, RTI_COMMON_TAIL)) = 0;

   /// Takes back the subscription of the class.
   virtual void unsubscribeObjectClass(ObjectClassHandle theClass)
         RTI_THROW((ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Takes back the subscription of these attributes of the class.
   virtual void unsubscribeObjectClassAttributes(
         ObjectClassHandle theClass, AttributeHandleSet const& theAttributes)
         RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Asks to receive interactions of the class and its subclasses, actively or passively.
   virtual void subscribeInteractionClass(InteractionClassHandle theInteraction, bool active = true)
         RTI_THROW((FederateServiceInvocationsAreBeingReportedViaMOM, InteractionClassNotDefined,
               RTI_COMMON_TAIL)) = 0;

   /// Takes that back.
   virtual void unsubscribeInteractionClass(InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   // ---- Object management

   /// Reserves a name for an object instance. objectInstanceNameReservationSucceeded or
   /// objectInstanceNameReservationFailed answers.
   virtual void reserveObjectInstanceName(std::wstring const& theName)
         RTI_THROW((IllegalName, RTI_COMMON_TAIL)) = 0;

   /// Gives back a name that the federate reserved and does not use.
   virtual void releaseObjectInstanceName(std::wstring const& theName)
         RTI_THROW((ObjectInstanceNameNotReserved, RTI_COMMON_TAIL)) = 0;

   /// Reserves all the names or none. multipleObjectInstanceNameReservationSucceeded or
   /// multipleObjectInstanceNameReservationFailed answers.
   virtual void reserveMultipleObjectInstanceName(std::set<std::wstring> const& theNames)
         RTI_THROW((IllegalName, NameSetWasEmpty, RTI_COMMON_TAIL)) = 0;

   /// Gives back names that the federate reserved and does not use.
   virtual void releaseMultipleObjectInstanceName(std::set<std::wstring> const& theNames)
         RTI_THROW((ObjectInstanceNameNotReserved, RTI_COMMON_TAIL)) = 0;

   /// Registers a new object instance under a name that the RTI makes up, and returns its handle.
   /// The federate owns the attributes that it publishes.
   virtual ObjectInstanceHandle registerObjectInstance(ObjectClassHandle theClass)
         RTI_THROW((ObjectClassNotPublished, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// The same under a name that the federate has reserved.
   virtual ObjectInstanceHandle registerObjectInstance(
         ObjectClassHandle theClass, std::wstring const& theName)
         RTI_THROW((ObjectInstanceNameInUse, ObjectInstanceNameNotReserved, ObjectClassNotPublished,
               ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Sends new values of attributes that the federate owns, in receive order.
   virtual void updateAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((AttributeNotOwned,
         AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Sends them with a time stamp. The handle returned is for retract; it is invalid if the
   /// message can't be retracted.
   virtual MessageRetractionHandle updateAttributeValues(ObjectInstanceHandle theObject,
         AttributeHandleValueMap const& theAttributeValues,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, AttributeNotOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Sends an interaction in receive order.
   virtual void sendInteraction(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((InteractionClassNotPublished,
         InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Sends an interaction with a time stamp. The handle returned is for retract.
   virtual MessageRetractionHandle sendInteraction(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, InteractionClassNotPublished,
               InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Deletes an object instance in the whole federation, in receive order. The federate must own
   /// the attribute HLAprivilegeToDeleteObject of it.
   virtual void deleteObjectInstance(
         ObjectInstanceHandle theObject, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((DeletePrivilegeNotHeld, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Deletes an object instance with a time stamp. The handle returned is for retract.
   virtual MessageRetractionHandle deleteObjectInstance(ObjectInstanceHandle theObject,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, DeletePrivilegeNotHeld, ObjectInstanceNotKnown,
               RTI_COMMON_TAIL)) = 0;

   /// Makes this federate alone forget the object instance; it may discover it again.
   virtual void localDeleteObjectInstance(ObjectInstanceHandle theObject)
         RTI_THROW((OwnershipAcquisitionPending, FederateOwnsAttributes, ObjectInstanceNotKnown,
               RTI_COMMON_TAIL)) = 0;

   /// Asks the owners for the values of attributes of one object instance: they get
   /// provideAttributeValueUpdate, and this federate reflectAttributeValues when they answer.
   virtual void requestAttributeValueUpdate(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// The same for all object instances of the class.
   virtual void requestAttributeValueUpdate(ObjectClassHandle theClass,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Asks for another transportation type of attributes that the federate owns;
   /// confirmAttributeTransportationTypeChange answers.
   virtual void requestAttributeTransportationTypeChange(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, TransportationType theType)
         RTI_THROW((AttributeAlreadyBeingChanged, AttributeNotOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, InvalidTransportationType, RTI_COMMON_TAIL)) = 0;

   /// Asks for the transportation type of an attribute; reportAttributeTransportationType answers.
   virtual void queryAttributeTransportationType(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Asks for another transportation type of the interactions of the class that this federate
   /// sends; confirmInteractionTransportationTypeChange answers.
   virtual void requestInteractionTransportationTypeChange(
         InteractionClassHandle theInteraction, TransportationType theType)
         RTI_THROW((InteractionClassAlreadyBeingChanged, InteractionClassNotPublished,
               InteractionClassNotDefined, InvalidTransportationType, RTI_COMMON_TAIL)) = 0;

   /// Asks for the transportation type with which a federate sends interactions of the class;
   /// reportInteractionTransportationType answers.
   virtual void queryInteractionTransportationType(
         FederateHandle theFederate, InteractionClassHandle theInteraction)
         RTI_THROW((InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   // ---- Ownership management

   /// Gives up attributes at once, whether or not another federate takes them.
   virtual void unconditionalAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeNotOwned, AttributeNotDefined,
         ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Offers attributes to other federates, which get requestAttributeOwnershipAssumption. This
   /// federate goes on owning them until requestDivestitureConfirmation and confirmDivestiture.
   virtual void negotiatedAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeAlreadyBeingDivested, AttributeNotOwned, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Ends a negotiated divestiture: the attributes go to the federate that wants them.
   virtual void confirmDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((NoAcquisitionPending, AttributeDivestitureWasNotRequested, AttributeNotOwned,
               AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Asks for attributes; their owners get requestAttributeOwnershipRelease.
   /// attributeOwnershipAcquisitionNotification comes when the federate owns them.
   virtual void attributeOwnershipAcquisition(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((AttributeNotPublished, ObjectClassNotPublished, FederateOwnsAttributes,
               AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Asks for attributes that nobody owns or that are offered, without troubling an owner.
   /// attributeOwnershipAcquisitionNotification or attributeOwnershipUnavailable answers.
   virtual void attributeOwnershipAcquisitionIfAvailable(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeAlreadyBeingAcquired,
         AttributeNotPublished, ObjectClassNotPublished, FederateOwnsAttributes,
         AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Keeps the attributes, in answer to requestAttributeOwnershipRelease.
   virtual void attributeOwnershipReleaseDenied(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeNotOwned, AttributeNotDefined,
         ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Gives up those of the attributes that other federates want. Replaces the content of
   /// theDivestedAttributes by them.
   virtual void attributeOwnershipDivestitureIfWanted(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, AttributeHandleSet& theDivestedAttributes)
         RTI_THROW((AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown,
               RTI_COMMON_TAIL)) = 0;

   /// Takes back the offer of a negotiated divestiture.
   virtual void cancelNegotiatedAttributeOwnershipDivestiture(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeDivestitureWasNotRequested,
         AttributeNotOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Takes back a request for attributes. confirmAttributeOwnershipAcquisitionCancellation
   /// answers, or attributeOwnershipAcquisitionNotification if it was too late.
   virtual void cancelAttributeOwnershipAcquisition(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes) RTI_THROW((AttributeAcquisitionWasNotRequested,
         AttributeAlreadyOwned, AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Asks for the owner of an attribute; informAttributeOwnership, attributeIsNotOwned or
   /// attributeIsOwnedByRTI answers.
   virtual void queryAttributeOwnership(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// True if this federate owns the attribute.
   virtual bool isAttributeOwnedByFederate(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   // ---- Time management

   // Times and intervals must be of the federation's kind; the RTI takes the bytes of another kind
   // for its own. The queries assign to the caller's object, which ends the process if the object
   // is of another kind: no list here allows what its assignment then throws. An answer that comes
   // before any join can't be read for lack of a time factory and is an RTIinternalError.

   /// Asks to send messages with time stamps, none earlier than the federate's time and the
   /// lookahead. timeRegulationEnabled tells from when on.
   virtual void enableTimeRegulation(LogicalTimeInterval const& theLookahead)
         RTI_THROW((InvalidLookahead, InTimeAdvancingState, RequestForTimeRegulationPending,
               TimeRegulationAlreadyEnabled, RTI_COMMON_TAIL)) = 0;

   /// Ends that at once.
   virtual void disableTimeRegulation()
         RTI_THROW((TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   /// Asks to get messages in the order of their time stamps. timeConstrainedEnabled tells from
   /// when on.
   virtual void enableTimeConstrained() RTI_THROW((InTimeAdvancingState,
         RequestForTimeConstrainedPending, TimeConstrainedAlreadyEnabled, RTI_COMMON_TAIL)) = 0;

   /// Ends that at once.
   virtual void disableTimeConstrained()
         RTI_THROW((TimeConstrainedIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   /// Asks to advance to a time. The messages up to and including it come first, then
   /// timeAdvanceGrant.
   virtual void timeAdvanceRequest(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   /// The same, but messages of just that time may still come later.
   virtual void timeAdvanceRequestAvailable(LogicalTime const& theTime) RTI_THROW((
         LogicalTimeAlreadyPassed, InvalidLogicalTime, InTimeAdvancingState,
         RequestForTimeRegulationPending, RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   /// Asks to advance to the time of the next message, at most to theTime. The messages of that
   /// time come first, then timeAdvanceGrant.
   virtual void nextMessageRequest(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   /// The same, but messages of just that time may still come later.
   virtual void nextMessageRequestAvailable(LogicalTime const& theTime) RTI_THROW((
         LogicalTimeAlreadyPassed, InvalidLogicalTime, InTimeAdvancingState,
         RequestForTimeRegulationPending, RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   /// Asks for all queued messages, whatever their time stamps. Then comes timeAdvanceGrant, to
   /// theTime or to an earlier time if messages with a smaller time stamp may still come.
   virtual void flushQueueRequest(LogicalTime const& theTime) RTI_THROW((LogicalTimeAlreadyPassed,
         InvalidLogicalTime, InTimeAdvancingState, RequestForTimeRegulationPending,
         RequestForTimeConstrainedPending, RTI_COMMON_TAIL)) = 0;

   /// Lets messages in receive order come at any time, also while no advance is pending.
   virtual void enableAsynchronousDelivery()
         RTI_THROW((AsynchronousDeliveryAlreadyEnabled, RTI_COMMON_TAIL)) = 0;

   /// Lets them come to a time constrained federate only while an advance is pending.
   virtual void disableAsynchronousDelivery()
         RTI_THROW((AsynchronousDeliveryAlreadyDisabled, RTI_COMMON_TAIL)) = 0;

   /// The greatest time to which the federate could advance now. False if there is no limit, or
   /// none is known; theTime is then left as it is.
   virtual bool queryGALT(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   /// The federate's time.
   virtual void queryLogicalTime(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   /// The smallest time stamp that the federate may still get. False if there is none; theTime is
   /// then left as it is.
   virtual bool queryLITS(LogicalTime& theTime) RTI_THROW((RTI_COMMON_TAIL)) = 0;

   /// Sets the lookahead. A smaller one comes into force by and by, as time advances.
   virtual void modifyLookahead(LogicalTimeInterval const& theLookahead) RTI_THROW(
         (InvalidLookahead, InTimeAdvancingState, TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   /// The lookahead that is in force.
   virtual void queryLookahead(LogicalTimeInterval& theInterval)
         RTI_THROW((TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   /// Takes back a message that was sent with a time stamp. Federates that have got it already get
   /// requestRetraction.
   virtual void retract(MessageRetractionHandle theHandle) RTI_THROW((MessageCanNoLongerBeRetracted,
         InvalidMessageRetractionHandle, TimeRegulationIsNotEnabled, RTI_COMMON_TAIL)) = 0;

   /// Sets the order in which attributes that the federate owns are sent.
   virtual void changeAttributeOrderType(ObjectInstanceHandle theObject,
         AttributeHandleSet const& theAttributes, OrderType theOrder) RTI_THROW((AttributeNotOwned,
         AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Sets the order in which this federate sends interactions of the class.
   virtual void changeInteractionOrderType(
         InteractionClassHandle theInteraction, OrderType theOrder)
         RTI_THROW((InteractionClassNotPublished, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   // ---- Data distribution management

   /// Creates a region with these dimensions. It can be used when its bounds are set and committed.
   virtual RegionHandle createRegion(DimensionHandleSet const& theDimensions)
         RTI_THROW((InvalidDimensionHandle, RTI_COMMON_TAIL)) = 0;

   /// Brings the bounds that setRangeBounds has set into force, for all these regions at once.
   virtual void commitRegionModifications(RegionHandleSet const& theRegions)
         RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, RTI_COMMON_TAIL)) = 0;

   /// Deletes a region that is not in use.
   virtual void deleteRegion(RegionHandle const& theRegion)
         RTI_THROW((RegionInUseForUpdateOrSubscription, RegionNotCreatedByThisFederate,
               InvalidRegion, RTI_COMMON_TAIL)) = 0;

   /// registerObjectInstance and associateRegionsForUpdates in one.
   virtual ObjectInstanceHandle registerObjectInstanceWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotPublished, ObjectClassNotPublished, AttributeNotDefined,
               ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// The same under a name that the federate has reserved.
   virtual ObjectInstanceHandle registerObjectInstanceWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
         std::wstring const& theName) RTI_THROW((ObjectInstanceNameInUse,
         ObjectInstanceNameNotReserved, InvalidRegionContext, RegionNotCreatedByThisFederate,
         InvalidRegion, AttributeNotPublished, ObjectClassNotPublished, AttributeNotDefined,
         ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// Uses the regions for updates of these attributes, besides those that are used already.
   virtual void associateRegionsForUpdates(ObjectInstanceHandle theObject,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotDefined, ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// Ends the use of the regions for updates of these attributes.
   virtual void unassociateRegionsForUpdates(ObjectInstanceHandle theObject,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined,
               ObjectInstanceNotKnown, RTI_COMMON_TAIL)) = 0;

   /// subscribeObjectClassAttributes for updates whose regions overlap with these.
   virtual void subscribeObjectClassAttributesWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
         bool active = true, std::wstring const& updateRateDesignator = L"")
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotDefined, ObjectClassNotDefined, InvalidUpdateRateDesignator,
               RTI_COMMON_TAIL)) = 0;

   /// Takes the regions out of the subscription of these attributes.
   virtual void unsubscribeObjectClassAttributesWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions)
         RTI_THROW((RegionNotCreatedByThisFederate, InvalidRegion, AttributeNotDefined,
               ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// subscribeInteractionClass for interactions whose regions overlap with these.
   virtual void subscribeInteractionClassWithRegions(InteractionClassHandle theInteraction,
         RegionHandleSet const& theRegions, bool active = true)
         RTI_THROW((FederateServiceInvocationsAreBeingReportedViaMOM, InvalidRegionContext,
               RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotDefined,
               RTI_COMMON_TAIL)) = 0;

   /// Takes the regions out of the subscription.
   virtual void unsubscribeInteractionClassWithRegions(InteractionClassHandle theInteraction,
         RegionHandleSet const& theRegions) RTI_THROW((RegionNotCreatedByThisFederate,
         InvalidRegion, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// sendInteraction to those whose regions overlap with these.
   virtual void sendInteractionWithRegions(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues, RegionHandleSet const& theRegions,
         VariableLengthData const& theUserSuppliedTag) RTI_THROW((InvalidRegionContext,
         RegionNotCreatedByThisFederate, InvalidRegion, InteractionClassNotPublished,
         InteractionParameterNotDefined, InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// The same with a time stamp. The handle returned is for retract.
   virtual MessageRetractionHandle sendInteractionWithRegions(InteractionClassHandle theInteraction,
         ParameterHandleValueMap const& theParameterValues, RegionHandleSet const& theRegions,
         VariableLengthData const& theUserSuppliedTag, LogicalTime const& theTime)
         RTI_THROW((InvalidLogicalTime, InvalidRegionContext, RegionNotCreatedByThisFederate,
               InvalidRegion, InteractionClassNotPublished, InteractionParameterNotDefined,
               InteractionClassNotDefined, RTI_COMMON_TAIL)) = 0;

   /// requestAttributeValueUpdate for the object instances whose regions overlap with these.
   virtual void requestAttributeValueUpdateWithRegions(ObjectClassHandle theClass,
         AttributeHandleSetRegionHandleSetPairVector const& theAttributesAndRegions,
         VariableLengthData const& theUserSuppliedTag)
         RTI_THROW((InvalidRegionContext, RegionNotCreatedByThisFederate, InvalidRegion,
               AttributeNotDefined, ObjectClassNotDefined, RTI_COMMON_TAIL)) = 0;

   // ---- Support services

   // Nothing is kept on this side: each look-up is a call into the RTI. A federate does well to
   // look up its names and handles once.

   /// What becomes of the federate's attributes and objects if its connection is lost.
   virtual ResignAction getAutomaticResignDirective() RTI_THROW((RTI_MEMBER_TAIL)) = 0;

   /// Sets what becomes of them.
   virtual void setAutomaticResignDirective(ResignAction theResignAction)
         RTI_THROW((InvalidResignAction, RTI_MEMBER_TAIL)) = 0;

   /// The joined federate of that name.
   virtual FederateHandle getFederateHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) = 0;

   /// The name of a federate that is or was joined.
   virtual std::wstring getFederateName(FederateHandle theFederate)
         RTI_THROW((InvalidFederateHandle, FederateHandleNotKnown, RTI_MEMBER_TAIL)) = 0;

   /// The object class of that name.
   virtual ObjectClassHandle getObjectClassHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) = 0;

   /// The full name of the object class.
   virtual std::wstring getObjectClassName(ObjectClassHandle theClass)
         RTI_THROW((InvalidObjectClassHandle, RTI_MEMBER_TAIL)) = 0;

   /// The class as which the federate registered or discovered the object instance.
   virtual ObjectClassHandle getKnownObjectClassHandle(ObjectInstanceHandle theObject)
         RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL)) = 0;

   /// The object instance of that name, if the federate knows it.
   virtual ObjectInstanceHandle getObjectInstanceHandle(std::wstring const& theName)
         RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL)) = 0;

   /// The name of the object instance, if the federate knows it.
   virtual std::wstring getObjectInstanceName(ObjectInstanceHandle theObject)
         RTI_THROW((ObjectInstanceNotKnown, RTI_MEMBER_TAIL)) = 0;

   /// The attribute of that name, which the class has itself or by inheritance.
   virtual AttributeHandle getAttributeHandle(
         ObjectClassHandle theClass, std::wstring const& theName)
         RTI_THROW((NameNotFound, InvalidObjectClassHandle, RTI_MEMBER_TAIL)) = 0;

   /// The name of the attribute.
   virtual std::wstring getAttributeName(ObjectClassHandle theClass, AttributeHandle theAttribute)
         RTI_THROW((AttributeNotDefined, InvalidAttributeHandle, InvalidObjectClassHandle,
               RTI_MEMBER_TAIL)) = 0;

   /// The update rate of that name in updates a second.
   virtual double getUpdateRateValue(std::wstring const& updateRateDesignator)
         RTI_THROW((InvalidUpdateRateDesignator, RTI_MEMBER_TAIL)) = 0;

   /// The update rate at which the attribute is reflected to this federate, in updates a second.
   virtual double getUpdateRateValueForAttribute(
         ObjectInstanceHandle theObject, AttributeHandle theAttribute)
         RTI_THROW((ObjectInstanceNotKnown, AttributeNotDefined, RTI_MEMBER_TAIL)) = 0;

   /// The interaction class of that name.
   virtual InteractionClassHandle getInteractionClassHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) = 0;

   /// The full name of the interaction class.
   virtual std::wstring getInteractionClassName(InteractionClassHandle theInteraction)
         RTI_THROW((InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) = 0;

   /// The parameter of that name, which the class has itself or by inheritance.
   virtual ParameterHandle getParameterHandle(
         InteractionClassHandle theInteraction, std::wstring const& theName)
         RTI_THROW((NameNotFound, InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) = 0;

   /// The name of the parameter.
   virtual std::wstring getParameterName(InteractionClassHandle theInteraction,
         ParameterHandle theParameter) RTI_THROW((InteractionParameterNotDefined,
         InvalidParameterHandle, InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) = 0;

   /// The order type of that name.
   virtual OrderType getOrderType(std::wstring const& theName)
         RTI_THROW((InvalidOrderName, RTI_MEMBER_TAIL)) = 0;

   /// The name of the order type.
   virtual std::wstring getOrderName(OrderType theOrder)
         RTI_THROW((InvalidOrderType, RTI_MEMBER_TAIL)) = 0;

   /// The transportation type of that name.
   virtual TransportationType getTransportationType(std::wstring const& theName)
         RTI_THROW((InvalidTransportationName, RTI_MEMBER_TAIL)) = 0;

   /// The name of the transportation type.
   virtual std::wstring getTransportationName(TransportationType theType)
         RTI_THROW((InvalidTransportationType, RTI_MEMBER_TAIL)) = 0;

   /// The dimensions that regions for the attribute can have.
   virtual DimensionHandleSet getAvailableDimensionsForClassAttribute(
         ObjectClassHandle theClass, AttributeHandle theAttribute) RTI_THROW((AttributeNotDefined,
         InvalidAttributeHandle, InvalidObjectClassHandle, RTI_MEMBER_TAIL)) = 0;

   /// The dimensions that regions for the interaction class can have.
   virtual DimensionHandleSet getAvailableDimensionsForInteractionClass(
         InteractionClassHandle theInteraction)
         RTI_THROW((InvalidInteractionClassHandle, RTI_MEMBER_TAIL)) = 0;

   /// The dimension of that name.
   virtual DimensionHandle getDimensionHandle(std::wstring const& theName)
         RTI_THROW((NameNotFound, RTI_MEMBER_TAIL)) = 0;

   /// The name of the dimension.
   virtual std::wstring getDimensionName(DimensionHandle theDimension)
         RTI_THROW((InvalidDimensionHandle, RTI_MEMBER_TAIL)) = 0;

   /// The upper bound of the dimension, for ranges to stay within.
   virtual unsigned long getDimensionUpperBound(DimensionHandle theDimension)
         RTI_THROW((InvalidDimensionHandle, RTI_MEMBER_TAIL)) = 0;

   /// The dimensions of the region.
   virtual DimensionHandleSet getDimensionHandleSet(RegionHandle theRegion)
         RTI_THROW((InvalidRegion, RTI_COMMON_TAIL)) = 0;

   /// The bounds of the region in a dimension.
   virtual RangeBounds getRangeBounds(RegionHandle theRegion, DimensionHandle theDimension)
         RTI_THROW((RegionDoesNotContainSpecifiedDimension, InvalidRegion, RTI_COMMON_TAIL)) = 0;

   /// Sets the bounds of the region in a dimension; commitRegionModifications brings them into
   /// force.
   virtual void setRangeBounds(
         RegionHandle theRegion, DimensionHandle theDimension, RangeBounds const& theRangeBounds)
         RTI_THROW((InvalidRangeBound, RegionDoesNotContainSpecifiedDimension,
               RegionNotCreatedByThisFederate, InvalidRegion, RTI_COMMON_TAIL)) = 0;

   /// The point of the federate in the dimension HLAfederate.
   virtual unsigned long normalizeFederateHandle(FederateHandle theFederate)
         RTI_THROW((InvalidFederateHandle, RTI_MEMBER_TAIL)) = 0;

   /// The point of the service group in the dimension HLAserviceGroup.
   virtual unsigned long normalizeServiceGroup(ServiceGroup theServiceGroup)
         RTI_THROW((InvalidServiceGroup, RTI_MEMBER_TAIL)) = 0;

   /// Lets startRegistrationForObjectClass and stopRegistrationForObjectClass come.
   virtual void enableObjectClassRelevanceAdvisorySwitch()
         RTI_THROW((ObjectClassRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL)) = 0;

   /// Keeps them away.
   virtual void disableObjectClassRelevanceAdvisorySwitch()
         RTI_THROW((ObjectClassRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL)) = 0;

   /// Lets turnUpdatesOnForObjectInstance and turnUpdatesOffForObjectInstance come.
   virtual void enableAttributeRelevanceAdvisorySwitch()
         RTI_THROW((AttributeRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL)) = 0;

   /// Keeps them away.
   virtual void disableAttributeRelevanceAdvisorySwitch()
         RTI_THROW((AttributeRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL)) = 0;

   /// Lets attributesInScope and attributesOutOfScope come.
   virtual void enableAttributeScopeAdvisorySwitch()
         RTI_THROW((AttributeScopeAdvisorySwitchIsOn, RTI_COMMON_TAIL)) = 0;

   /// Keeps them away.
   virtual void disableAttributeScopeAdvisorySwitch()
         RTI_THROW((AttributeScopeAdvisorySwitchIsOff, RTI_COMMON_TAIL)) = 0;

   /// Lets turnInteractionsOn and turnInteractionsOff come.
   virtual void enableInteractionRelevanceAdvisorySwitch()
         RTI_THROW((InteractionRelevanceAdvisorySwitchIsOn, RTI_COMMON_TAIL)) = 0;

   /// Keeps them away.
   virtual void disableInteractionRelevanceAdvisorySwitch()
         RTI_THROW((InteractionRelevanceAdvisorySwitchIsOff, RTI_COMMON_TAIL)) = 0;

   /// Delivers one callback. If there is none, waits about that long for one; the time may be
   /// infinite. True if there are more callbacks.
   virtual bool evokeCallback(double approximateMinimumTimeInSeconds)
         RTI_THROW((CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   /// Delivers callbacks for about the minimum time, and then as long as there are any, but no
   /// longer than about the maximum time. Both may be infinite. True if there are more callbacks.
   virtual bool evokeMultipleCallbacks(
         double approximateMinimumTimeInSeconds, double approximateMaximumTimeInSeconds)
         RTI_THROW((CallNotAllowedFromWithinCallback, RTIinternalError)) = 0;

   /// Lets callbacks come, as they do from the start.
   virtual void enableCallbacks()
         RTI_THROW((SaveInProgress, RestoreInProgress, RTIinternalError)) = 0;

   /// Holds callbacks back until enableCallbacks.
   virtual void disableCallbacks()
         RTI_THROW((SaveInProgress, RestoreInProgress, RTIinternalError)) = 0;

   /// A new factory of the federation's times at every call, owned by the caller. It comes from the
   /// federate's time library, and is empty if that does not know the kind of time. An exception
   /// out of that library that is not in the list ends the process.
   virtual std::auto_ptr<LogicalTimeFactory> getTimeFactory() const
         RTI_THROW((RTI_MEMBER_TAIL)) = 0;

   // ---- Decoding of handles

   /// The handle that an encoded form holds, as encode() of the handle gave it. None of these needs
   /// a connection or the Java VM. The bytes are not checked: a form that is cut short is read
   /// beyond its end.
   virtual FederateHandle decodeFederateHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual ObjectClassHandle decodeObjectClassHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual InteractionClassHandle decodeInteractionClassHandle(
         VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual ObjectInstanceHandle decodeObjectInstanceHandle(
         VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual AttributeHandle decodeAttributeHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual ParameterHandle decodeParameterHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual DimensionHandle decodeDimensionHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual MessageRetractionHandle decodeMessageRetractionHandle(
         VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
   virtual RegionHandle decodeRegionHandle(VariableLengthData const& encodedValue) const
         RTI_THROW((CouldNotDecode, RTI_MEMBER_TAIL)) = 0;
};

} // namespace rti1516e

RTI_END_INTERFACE

#endif
