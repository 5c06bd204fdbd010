// The enumerations of the interface.
#ifndef RTI_Enums_h
#define RTI_Enums_h

#include <RTI/SpecificConfig.h>

namespace rti1516e {

/// When callbacks are delivered: in the middle of whatever the federate does, on a thread of the
/// RTI's, or only while the federate calls evokeCallback or evokeMultipleCallbacks.
enum CallbackModel {
   HLA_IMMEDIATE = 0,
   HLA_EVOKED = 1
};

/// The order in which a message is sent or delivered.
enum OrderType {
   RECEIVE = 1,
   TIMESTAMP = 2
};

/// How a message is carried.
enum TransportationType {
   RELIABLE = 1,
   BEST_EFFORT = 2
};

/// What becomes of a federate's attributes and objects when it resigns.
enum ResignAction {
   UNCONDITIONALLY_DIVEST_ATTRIBUTES = 0,
   DELETE_OBJECTS = 1,
   CANCEL_PENDING_OWNERSHIP_ACQUISITIONS = 2,
   DELETE_OBJECTS_THEN_DIVEST = 3,
   CANCEL_THEN_DELETE_THEN_DIVEST = 4,
   NO_ACTION = 5
};

/// Why a synchronization point was not registered.
enum SynchronizationPointFailureReason {
   SYNCHRONIZATION_POINT_LABEL_NOT_UNIQUE = 0,
   SYNCHRONIZATION_SET_MEMBER_NOT_JOINED = 1
};

/// How far a federate is with a save.
enum SaveStatus {
   NO_SAVE_IN_PROGRESS = 0,
   FEDERATE_INSTRUCTED_TO_SAVE = 1,
   FEDERATE_SAVING = 2,
   FEDERATE_WAITING_FOR_FEDERATION_TO_SAVE = 3
};

/// Why a federation was not saved.
enum SaveFailureReason {
   RTI_UNABLE_TO_SAVE = 0,
   FEDERATE_REPORTED_FAILURE_DURING_SAVE = 1,
   FEDERATE_RESIGNED_DURING_SAVE = 2,
   RTI_DETECTED_FAILURE_DURING_SAVE = 3,
   SAVE_TIME_CANNOT_BE_HONORED = 4,
   SAVE_ABORTED = 5
};

/// How far a federate is with a restore.
enum RestoreStatus {
   NO_RESTORE_IN_PROGRESS = 0,
   FEDERATE_RESTORE_REQUEST_PENDING = 1,
   FEDERATE_WAITING_FOR_RESTORE_TO_BEGIN = 2,
   FEDERATE_PREPARED_TO_RESTORE = 3,
   FEDERATE_RESTORING = 4,
   FEDERATE_WAITING_FOR_FEDERATION_TO_RESTORE = 5
};

/// Why a federation was not restored.
enum RestoreFailureReason {
   RTI_UNABLE_TO_RESTORE = 0,
   FEDERATE_REPORTED_FAILURE_DURING_RESTORE = 1,
   FEDERATE_RESIGNED_DURING_RESTORE = 2,
   RTI_DETECTED_FAILURE_DURING_RESTORE = 3,
   RESTORE_ABORTED = 4
};

/// A group of services, for normalizeServiceGroup.
enum ServiceGroup {
   FEDERATION_MANAGEMENT = 0,
   DECLARATION_MANAGEMENT = 1,
   OBJECT_MANAGEMENT = 2,
   OWNERSHIP_MANAGEMENT = 3,
   TIME_MANAGEMENT = 4,
   DATA_DISTRIBUTION_MANAGEMENT = 5,
   SUPPORT_SERVICES = 6
};

} // namespace rti1516e

#endif
