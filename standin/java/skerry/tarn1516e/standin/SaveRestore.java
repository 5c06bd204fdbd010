// Leads the members of a federation through a save or a restore. Nothing is stored: a save keeps
// its label and who took part, and a restore changes no state.
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
   private final Map<Member, Integer> _states = new LinkedHashMap<>();

   /** The types of those who took part, sorted, by label. */
   private final Map<String, List<String>> _saved = new HashMap<>();

   SaveRestore(Federation federation) {
      _federation = federation;
   }

   boolean isBusy() {
      return _phase != Phase.IDLE;
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
      if (time == null) {
         beginSave(member -> member.callbacks().initiateFederateSave(label));
      } else {
         timePassed();
      }
   }

   void timePassed() {
      if (_awaitedTime == null || isBusy()) {
         return;
      }
      for (Member member : _federation.members()) {
         TimeState time = member.time();
         if ((time.isConstrained || time.isRegulating)
               && time.time().compareTo(_awaitedTime) < 0) {
            return;
         }
      }
      byte[] time = _awaitedTime.encode();
      _awaitedTime = null;
      beginSave(member -> member.callbacks().initiateFederateSave(_label, time));
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
         _saved.put(_label, types());
         end(each -> each.callbacks().federationSaved());
      } else {
         end(each -> each.callbacks().federationRestored());
      }
   }

   private List<String> types() {
      List<String> types = new ArrayList<>();
      _federation.members().forEach(member -> types.add(member.type()));
      types.sort(null);
      return types;
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
      if (!types().equals(_saved.get(label))) {
         member.callbacks().requestFederationRestoreFailed(label);
         return;
      }
      member.callbacks().requestFederationRestoreSucceeded(label);
      begin(Phase.RESTORING, RESTORING);
      _federation.members().forEach(each -> {
         each.callbacks().federationRestoreBegun();
         each.callbacks().initiateFederateRestore(label, each.name(), each.handle());
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
         states.add(new int[] {
               each.handle(), each.handle(), _states.getOrDefault(each, NO_RESTORE)});
      }
      member.callbacks().federationRestoreStatusResponse(states);
   }

   /** A member that resigns fails what goes on. */
   void remove(Member member) {
      if (_states.remove(member) != null && isBusy()) {
         fail(FEDERATE_RESIGNED);
      }
      timePassed();
   }
}
