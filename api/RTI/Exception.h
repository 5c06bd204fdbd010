// The exceptions of the interface: one abstract base and 122 classes, alike in all but the name.
#ifndef RTI_Exception_h
#define RTI_Exception_h

#include <RTI/SpecificConfig.h>
#include <string>

RTI_BEGIN_INTERFACE

namespace rti1516e {

/// Base of every exception that the interface throws. Exceptions are thrown by value and caught by
/// reference; each holds its own copy of its message. No class of the family derives from another
/// one than this.
class RTI_EXPORT Exception {
public:
   /// Holds nothing.
   Exception();
   Exception(Exception const&);

   /// Copies nothing; there is nothing to copy.
   Exception& operator=(Exception const&);

   virtual ~Exception();

   /// The message that the exception was made with: no class name, nothing in front.
   virtual std::wstring what() const = 0;
};

/// Declares the exception class A. Its destructor is defined in the library, which so holds the
/// class's type information: a handler in any executable or library of the process finds it.
#define RTI_EXCEPTION(A)                                                                           \
   class RTI_EXPORT A : public Exception {                                                         \
   public:                                                                                         \
      /** Copies the message. Ends the process if there is no memory for it. */                    \
      A(std::wstring const& message) RTI_NOEXCEPT;                                                 \
      A(A const&);                                                                                 \
      A& operator=(A const&);                                                                      \
      virtual ~A();                                                                                \
      /** A copy of the message. */                                                                \
      virtual std::wstring what() const RTI_NOEXCEPT;                                              \
                                                                                                   \
   private:                                                                                        \
      std::wstring _message;                                                                       \
   };

/// Every exception class, each with the condition that it stands for. What is thrown where is told
/// with the operations that throw it; classes that no operation names are there for federates.
/// The class of the same name in Java is hla.rti1516e.exceptions.X.
#define RTI_FOR_EACH_EXCEPTION(X)                                                                  \
   X(AlreadyConnected)                    /**< the ambassador is connected already */              \
   X(AsynchronousDeliveryAlreadyDisabled) /**< asynchronous delivery is off already */             \
   X(AsynchronousDeliveryAlreadyEnabled)  /**< asynchronous delivery is on already */              \
   X(AttributeAcquisitionWasNotCanceled)  /**< an acquisition could not be canceled */             \
   X(AttributeAcquisitionWasNotRequested) /**< no acquisition of the attribute is pending */       \
   X(AttributeAlreadyBeingAcquired)       /**< the federate is acquiring the attribute already */  \
   X(AttributeAlreadyBeingChanged)        /**< a change is pending */                              \
   X(AttributeAlreadyBeingDivested)       /**< the federate is divesting the attribute already */  \
   X(AttributeAlreadyOwned)               /**< the federate owns the attribute already */          \
   X(AttributeDivestitureWasNotRequested) /**< no divestiture of the attribute is pending */       \
   X(AttributeNotDefined)                 /**< the attribute does not exist in the class */        \
   X(AttributeNotOwned)                   /**< the federate does not own the attribute */          \
   X(AttributeNotPublished)               /**< the federate does not publish the attribute */      \
   X(AttributeNotRecognized) /**< a federate does not know the attribute it was told of */         \
   X(AttributeNotSubscribed) /**< a federate did not subscribe the attribute it was told of */     \
   X(AttributeRelevanceAdvisorySwitchIsOff) /**< the switch is off already */                      \
   X(AttributeRelevanceAdvisorySwitchIsOn)  /**< the switch is on already */                       \
   X(AttributeScopeAdvisorySwitchIsOff)     /**< the switch is off already */                      \
   X(AttributeScopeAdvisorySwitchIsOn)      /**< the switch is on already */                       \
   X(BadInitializationParameter) /**< an object was built from a parameter that it can't use */    \
   X(CallNotAllowedFromWithinCallback) /**< not to be called inside a callback */                  \
   X(ConnectionFailed)                 /**< the RTI could not be reached */                        \
   X(CouldNotCreateLogicalTimeFactory) /**< no time factory of that name */                        \
   X(CouldNotDecode)                   /**< bytes do not hold the value that they should */        \
   X(CouldNotDiscover)           /**< a federate can't take the object instance it was told of */  \
   X(CouldNotEncode)             /**< a value does not fit the buffer given for it */              \
   X(CouldNotInitiateRestore)    /**< a federate can't begin the restore it was told of */         \
   X(CouldNotOpenFDD)            /**< a FOM module can't be opened */                              \
   X(CouldNotOpenMIM)            /**< the MIM module can't be opened */                            \
   X(DeletePrivilegeNotHeld)     /**< the federate may not delete the object instance */           \
   X(DesignatorIsHLAstandardMIM) /**< the standard MIM may not be named as a MIM module */         \
   X(EncoderException)           /**< an encoding helper can't encode or decode */                 \
   X(ErrorReadingFDD)            /**< a FOM module can't be read */                                \
   X(ErrorReadingMIM)            /**< the MIM module can't be read */                              \
   X(FederateAlreadyExecutionMember) /**< the federate has joined already */                       \
   X(FederateHandleNotKnown)         /**< no federate of the execution has the handle */           \
   X(FederateHasNotBegunSave)        /**< the federate did not call federateSaveBegun */           \
   X(FederateInternalError)          /**< a federate could not carry out a callback */             \
   X(FederateIsExecutionMember)      /**< the federate is still joined */                          \
   X(FederateNameAlreadyInUse)       /**< another federate of the execution has the name */        \
   X(FederateNotExecutionMember)     /**< the federate has not joined */                           \
   X(FederateOwnsAttributes)         /**< the federate owns attributes */                          \
   X(FederateServiceInvocationsAreBeingReportedViaMOM) /**< its calls are being reported */        \
   X(FederateUnableToUseTime)             /**< the federate can't take part in a timed save */     \
   X(FederatesCurrentlyJoined)            /**< federates are joined to the execution */            \
   X(FederationExecutionAlreadyExists)    /**< an execution has the name already */                \
   X(FederationExecutionDoesNotExist)     /**< no execution has the name */                        \
   X(IllegalName)                         /**< the name may not be used */                         \
   X(IllegalTimeArithmetic)               /**< an operation on logical times has no result */      \
   X(InTimeAdvancingState)                /**< a time advance is pending */                        \
   X(InconsistentFDD)                     /**< FOM modules contradict each other */                \
   X(InteractionClassAlreadyBeingChanged) /**< a change is pending */                              \
   X(InteractionClassNotDefined)          /**< the interaction class does not exist */             \
   X(InteractionClassNotPublished)   /**< the federate does not publish the interaction class */   \
   X(InteractionClassNotRecognized)  /**< unknown to the federate told of it */                    \
   X(InteractionClassNotSubscribed)  /**< a federate did not subscribe the class it was told of */ \
   X(InteractionParameterNotDefined) /**< the parameter does not exist in the interaction class */ \
   X(InteractionParameterNotRecognized)       /**< unknown to the federate told of it */           \
   X(InteractionRelevanceAdvisorySwitchIsOff) /**< the switch is off already */                    \
   X(InteractionRelevanceAdvisorySwitchIsOn)  /**< the switch is on already */                     \
   X(InternalError)                  /**< a logical time failed for a reason of its own */         \
   X(InvalidAttributeHandle)         /**< the handle is no attribute's */                          \
   X(InvalidDimensionHandle)         /**< the handle is no dimension's */                          \
   X(InvalidFederateHandle)          /**< the handle is no federate's */                           \
   X(InvalidInteractionClassHandle)  /**< the handle is no interaction class's */                  \
   X(InvalidLocalSettingsDesignator) /**< the local settings designator can't be used */           \
   X(InvalidLogicalTime)             /**< the logical time can't be used here */                   \
   X(InvalidLogicalTimeInterval)     /**< the interval can't be used here */                       \
   X(InvalidLookahead)               /**< the lookahead can't be used */                           \
   X(InvalidMessageRetractionHandle) /**< the handle is no message's */                            \
   X(InvalidObjectClassHandle)       /**< the handle is no object class's */                       \
   X(InvalidOrderName)               /**< no order type has the name */                            \
   X(InvalidOrderType)               /**< the order type does not exist */                         \
   X(InvalidParameterHandle)         /**< the handle is no parameter's */                          \
   X(InvalidRangeBound)              /**< the bounds do not fit the dimension */                   \
   X(InvalidRegion)                  /**< the handle is no region's */                             \
   X(InvalidRegionContext)        /**< a region's dimensions do not fit the class or attribute */  \
   X(InvalidResignAction)         /**< the resign action does not exist */                         \
   X(InvalidServiceGroup)         /**< the service group does not exist */                         \
   X(InvalidTransportationName)   /**< no transportation type has the name */                      \
   X(InvalidTransportationType)   /**< the transportation type does not exist */                   \
   X(InvalidUpdateRateDesignator) /**< no update rate has the name */                              \
   X(JoinedFederateIsNotInTimeAdvancingState)    /**< a grant came while no advance was pending */ \
   X(LogicalTimeAlreadyPassed)                   /**< the logical time lies in the past */         \
   X(MessageCanNoLongerBeRetracted)              /**< the message has been delivered */            \
   X(NameNotFound)                               /**< nothing of that kind has the name */         \
   X(NameSetWasEmpty)                            /**< the set of names is empty */                 \
   X(NoAcquisitionPending)                       /**< no acquisition waits for the divestiture */  \
   X(NoFederateWillingToAcquireAttribute)        /**< no federate wants the attribute */           \
   X(NoRequestToEnableTimeConstrainedWasPending) /**< an answer came without its request */        \
   X(NoRequestToEnableTimeRegulationWasPending)  /**< an answer came without its request */        \
   X(NotConnected)                               /**< the ambassador is not connected */           \
   X(ObjectClassNotDefined)                      /**< the object class does not exist */           \
   X(ObjectClassNotKnown)     /**< a federate does not know the object class it was told of */     \
   X(ObjectClassNotPublished) /**< the federate does not publish the object class */               \
   X(ObjectClassRelevanceAdvisorySwitchIsOff) /**< the switch is off already */                    \
   X(ObjectClassRelevanceAdvisorySwitchIsOn)  /**< the switch is on already */                     \
   X(ObjectInstanceNameInUse)                 /**< another object instance has the name */         \
   X(ObjectInstanceNameNotReserved)           /**< the federate did not reserve the name */        \
   X(ObjectInstanceNotKnown)                  /**< the federate knows no such object instance */   \
   X(OwnershipAcquisitionPending)             /**< the federate is still acquiring attributes */   \
   X(RTIinternalError) /**< the RTI, or this library, failed for a reason of its own */            \
   X(RegionDoesNotContainSpecifiedDimension) /**< the region lacks the dimension */                \
   X(RegionInUseForUpdateOrSubscription)     /**< the region is still in use */                    \
   X(RegionNotCreatedByThisFederate)         /**< the region belongs to another federate */        \
   X(RequestForTimeConstrainedPending)       /**< the federate is becoming time constrained */     \
   X(RequestForTimeRegulationPending)        /**< the federate is becoming time regulating */      \
   X(RestoreInProgress)                      /**< a restore is in progress */                      \
   X(RestoreNotInProgress)                   /**< no restore is in progress */                     \
   X(RestoreNotRequested)                    /**< no restore was requested */                      \
   X(SaveInProgress)                         /**< a save is in progress */                         \
   X(SaveNotInProgress)                      /**< no save is in progress */                        \
   X(SaveNotInitiated)                       /**< the federate was not told to save */             \
   X(SpecifiedSaveLabelDoesNotExist)         /**< no save has the label */                         \
   X(SynchronizationPointLabelNotAnnounced)  /**< no synchronization point has the label */        \
   X(TimeConstrainedAlreadyEnabled)          /**< the federate is time constrained already */      \
   X(TimeConstrainedIsNotEnabled)            /**< the federate is not time constrained */          \
   X(TimeRegulationAlreadyEnabled)           /**< the federate is time regulating already */       \
   X(TimeRegulationIsNotEnabled)             /**< the federate is not time regulating */           \
   X(UnableToPerformSave)                    /**< a federate can't save */                         \
   X(UnknownName)                            /**< a name means nothing */                          \
   X(UnsupportedCallbackModel)               /**< the RTI does not offer the callback model */

RTI_FOR_EACH_EXCEPTION(RTI_EXCEPTION)

} // namespace rti1516e

RTI_END_INTERFACE

#endif
