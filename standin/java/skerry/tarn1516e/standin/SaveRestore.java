// Leads the members of a federation through a save or a restore. A save keeps the federation's
// state within the process; a restore gives it back to members of the same types.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.function.Consumer;

final class SaveRestore {
   private enum Phase { IDLE, SAVING, RESTORING }

   // States of a member in a save; the codes are those of the callbacks.
   private static final int NO_SAVE = 0;
   private static final int INSTRUCTED_TO_SAVE = 1;
   private static final int SAVING = 2;
   private static final int SAVED = 3;

   // States of a member in a restore.
   private static final int NO_RESTORE = 0;
   private static final int RESTORING = 4;
   private static final int RESTORED = 5;

   // Why a save or a restore has failed.
   private static final int FEDERATE_FAILED = 1;
   private static final int FEDERATE_RESIGNED = 2;
   private static final int SAVE_ABORTED = 5;
   private static final int RESTORE_ABORTED = 4;

   private final Federation _federation;
   private Phase _phase = Phase.IDLE;
   private String _label;
   private LogicalTime _awaitedTime;
   private boolean _isFailed;
   private LogicalTime _begunTime;
   private String _lastLabel = "";
   private LogicalTime _lastTime;
   private final Map<Member, Integer> _states = new LinkedHashMap<>();

   /** By label. */
   private final Map<String, Snapshot> _saved = new HashMap<>();

   /** In a restore: the saved member that each one becomes, by handles. */
   private final Map<Member, Integer> _becomes = new LinkedHashMap<>();

   SaveRestore(Federation federation) {
      _federation = federation;
   }

   boolean isBusy() {
      return _phase != Phase.IDLE;
   }

   boolean isSaving() {
      return _phase == Phase.SAVING;
   }

   // What the management object model tells of saves. A null time: none.

   String lastLabel() {
      return _lastLabel;
   }

   LogicalTime lastTime() {
      return _lastTime;
   }

   String nextLabel() {
      return _awaitedTime == null ? "" : _label;
   }

   LogicalTime nextTime() {
      return _awaitedTime;
   }

   void checkIdle() throws SaveInProgress, RestoreInProgress {
      checkNoSave();
      checkNoRestore();
   }

   private void checkNoSave() throws SaveInProgress {
      if (_phase == Phase.SAVING) {
         throw new SaveInProgress("the federation is being saved");
      }
   }

   private void checkNoRestore() throws RestoreInProgress {
      if (_phase == Phase.RESTORING) {
         throw new RestoreInProgress("the federation is being restored");
      }
   }

   /** Begins at once, or when all who take part in time management have reached the time. A request
       takes the place of one that still waits. */
   void requestSave(String label, LogicalTime time) {
      _label = label;
      _awaitedTime = time;
      _begunTime = time;
      if (time == null) {
         beginSave(member -> member.callbacks().initiateFederateSave(label));
      } else {
         _federation.clock().update();
      }
   }

   /** Whether a grant to the time has to wait for a save. */
   boolean holds(LogicalTime granted) {
      return _awaitedTime != null && granted.compareTo(_awaitedTime) > 0;
   }

   /** Before the save everybody gets the messages up to its time. */
   void beginIfTime() {
      if (_awaitedTime == null || isBusy()) {
         return;
      }
      for (Member member : _federation.members()) {
         TimeState time = member.time();
         if ((time.isConstrained || time.isRegulating)
               && !time.isThrough(_awaitedTime, _federation.clock().limit(member))) {
            return;
         }
      }
      LogicalTime time = _awaitedTime;
      _awaitedTime = null;
      _federation.members().forEach(member -> member.time().deliverUpTo(time));
      beginSave(member -> member.callbacks().initiateFederateSave(_label, time.encode()));
   }

   private void beginSave(Consumer<Member> tell) {
      begin(Phase.SAVING, INSTRUCTED_TO_SAVE);
      _federation.members().forEach(tell);
   }

   private void begin(Phase phase, int state) {
      _phase = phase;
      _isFailed = false;
      _states.clear();
      _federation.members().forEach(member -> _states.put(member, state));
   }

   private boolean isIn(Member member, Phase phase, int state) {
      return _phase == phase && _states.getOrDefault(member, NO_SAVE) == state;
   }

   void saveBegun(Member member) throws RTIexception {
      checkNoRestore();
      if (!isIn(member, Phase.SAVING, INSTRUCTED_TO_SAVE)) {
         throw new SaveNotInitiated("the federate has not been told to save");
      }
      _states.put(member, SAVING);
   }

   void saveEnded(Member member, boolean isSuccess) throws RTIexception {
      checkNoRestore();
      if (!isIn(member, Phase.SAVING, SAVING)) {
         throw new FederateHasNotBegunSave("the federate is not saving");
      }
      reached(member, SAVED, isSuccess);
   }

   private void reached(Member member, int state, boolean isSuccess) {
      _states.put(member, state);
      _isFailed |= !isSuccess;
      if (!_states.values().stream().allMatch(each -> each == state)) {
         return;
      }
      if (_isFailed) {
         fail(FEDERATE_FAILED);
      } else if (_phase == Phase.SAVING) {
         _saved.put(_label, _federation.snapshot());
         _lastLabel = _label;
         _lastTime = _begunTime;
         end(each -> each.callbacks().federationSaved());
      } else {
         _federation.restore(_saved.get(_label), new LinkedHashMap<>(_becomes));
         end(each -> each.callbacks().federationRestored());
      }
   }

   /** Both kinds of failure have like codes but for the abortion. */
   private void fail(int reason) {
      if (_phase == Phase.RESTORING) {
         end(member -> member.callbacks().federationNotRestored(reason));
      } else {
         end(member -> member.callbacks().federationNotSaved(reason));
      }
   }

   private void end(Consumer<Member> tell) {
      _phase = Phase.IDLE;
      _awaitedTime = null;
      _states.clear();
      _becomes.clear();
      _federation.members().forEach(tell);
      _federation.clock().update();
   }

   void abortSave() throws SaveNotInProgress {
      if (_phase != Phase.SAVING && _awaitedTime == null) {
         throw new SaveNotInProgress("no save is in progress");
      }
      fail(SAVE_ABORTED);
   }

   void reportSave(Member member) throws RestoreInProgress {
      checkNoRestore();
      List<int[]> states = new ArrayList<>();
      for (Member each : _federation.members()) {
         states.add(new int[] {each.handle(), _states.getOrDefault(each, NO_SAVE)});
      }
      member.callbacks().federationSaveStatusResponse(states);
   }

   /** The members must be of the types that took part in the save. */
   void requestRestore(Member member, String label) {
      Snapshot saved = _saved.get(label);
      if (saved == null || !saved.assign(_federation.members(), _becomes)) {
         member.callbacks().requestFederationRestoreFailed(label);
         return;
      }
      _label = label;
      member.callbacks().requestFederationRestoreSucceeded(label);
      begin(Phase.RESTORING, RESTORING);
      _federation.members().forEach(each -> {
         each.callbacks().federationRestoreBegun();
         int handle = _becomes.get(each);
         each.callbacks().initiateFederateRestore(label, saved.members.get(handle)[0], handle);
      });
   }

   void restoreEnded(Member member, boolean isSuccess) throws RTIexception {
      checkNoSave();
      if (!isIn(member, Phase.RESTORING, RESTORING)) {
         throw new RestoreNotRequested("the federate has not been told to restore");
      }
      reached(member, RESTORED, isSuccess);
   }

   void abortRestore() throws RestoreNotInProgress {
      if (_phase != Phase.RESTORING) {
         throw new RestoreNotInProgress("no restore is in progress");
      }
      fail(RESTORE_ABORTED);
   }

   void reportRestore(Member member) throws SaveInProgress {
      checkNoSave();
      List<int[]> states = new ArrayList<>();
      for (Member each : _federation.members()) {
         states.add(new int[] {each.handle(), _becomes.getOrDefault(each, each.handle()),
               _states.getOrDefault(each, NO_RESTORE)});
      }
      member.callbacks().federationRestoreStatusResponse(states);
   }

   /** A member that resigns fails what goes on. */
   void remove(Member member) {
      if (_states.remove(member) != null && isBusy()) {
         fail(FEDERATE_RESIGNED);
      }
   }
}
