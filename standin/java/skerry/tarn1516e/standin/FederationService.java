// Connections, federations and their members, synchronization points, save and restore.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.Set;

final class FederationService implements FederationManagement {
   private static final int HLA_EVOKED = 1;
   private static final int HLA_IMMEDIATE = 2;

   private static final int LABEL_NOT_UNIQUE = 0;
   private static final int SET_MEMBER_NOT_JOINED = 1;

   private final Loopback _loopback;

   FederationService(Loopback loopback) {
      _loopback = loopback;
   }

   @Override
   public void connect(int ambassador, int callbackModel, String localSettings)
         throws RTIexception {
      _loopback.checkNotInCallback();
      if (_loopback.connection().isConnected()) {
         throw new AlreadyConnected("the ambassador is connected");
      }
      if (callbackModel != HLA_EVOKED && callbackModel != HLA_IMMEDIATE) {
         throw new UnsupportedCallbackModel("no callback model has the code " + callbackModel);
      }
      _loopback.connection().connect(ambassador, callbackModel == HLA_IMMEDIATE);
   }

   @Override
   public void disconnect() throws RTIexception {
      _loopback.checkNotInCallback();
      synchronized (Loopback.LOCK) {
         if (_loopback.connection().member() != null) {
            Connection.suspect();
            throw new FederateIsExecutionMember("the federate has to resign first");
         }
      }
      _loopback.connection().disconnect();
   }

   @Override
   public void createFederationExecution(String name, String module, String timeName)
         throws RTIexception {
      create(name, null, Collections.singletonList(module), timeName);
   }

   @Override
   public void createFederationExecution(String name, List<String> modules, String timeName)
         throws RTIexception {
      create(name, null, modules, timeName);
   }

   @Override
   public void createFederationExecution(
         String name, List<String> modules, String mimModule, String timeName)
         throws RTIexception {
      _loopback.callbacks();
      if (mimModule.equals(Mim.NAME)) {
         throw new DesignatorIsHLAstandardMIM("a MIM of one's own needs another name");
      }
      Module mim;
      try {
         mim = Module.open(mimModule, true);
         FomReader.merge(Collections.singletonList(mim));
      } catch (CouldNotOpenFDD failure) {
         throw new CouldNotOpenMIM(failure.getMessage());
      } catch (ErrorReadingFDD | InconsistentFDD failure) {
         throw new ErrorReadingMIM(failure.getMessage());
      }
      create(name, mim, modules, timeName);
   }

   /** A null MIM: the standard's. */
   private void create(String name, Module mim, List<String> modules, String timeName)
         throws RTIexception {
      _loopback.callbacks();
      if (Federation.ALL.containsKey(name)) {
         throw new FederationExecutionAlreadyExists("there is a federation " + name);
      }
      LogicalTime.checkName(timeName);
      if (modules.isEmpty()) {
         throw new InconsistentFDD("a federation needs a module of an object model");
      }
      List<Module> opened = new ArrayList<>(open(modules));
      if (mim != null) {
         opened.add(0, mim);
      }
      Federation created = new Federation(name, timeName);
      created.addModules(opened);
      created.begin();
      Federation.ALL.put(name, created);
   }

   private static List<Module> open(List<String> designators) throws RTIexception {
      List<Module> opened = new ArrayList<>();
      for (String designator : designators) {
         opened.add(Module.open(designator, false));
      }
      return opened;
   }

   @Override
   public void destroyFederationExecution(String name) throws RTIexception {
      _loopback.callbacks();
      if (!find(name).members().isEmpty()) {
         throw new FederatesCurrentlyJoined("the federation " + name + " has members");
      }
      Federation.ALL.remove(name);
   }

   @Override
   public void listFederationExecutions() throws RTIexception {
      List<String[]> names = new ArrayList<>();
      for (Federation federation : Federation.ALL.values()) {
         names.add(new String[] {federation.name(), federation.timeName()});
      }
      _loopback.callbacks().reportFederationExecutions(names);
   }

   @Override
   public int joinFederationExecution(
         String federateName, String type, String federationName, List<String> modules)
         throws RTIexception {
      Federation federation = checkJoin(federationName);
      if (federation.memberNamed(federateName) != null) {
         throw new FederateNameAlreadyInUse("there is a federate " + federateName);
      }
      return join(federation, federateName, type, modules);
   }

   @Override
   public int joinFederationExecution(String type, String federationName, List<String> modules)
         throws RTIexception {
      return join(checkJoin(federationName), null, type, modules);
   }

   private Federation checkJoin(String federationName) throws RTIexception {
      _loopback.checkNotInCallback();
      _loopback.callbacks();
      if (_loopback.connection().member() != null) {
         throw new FederateAlreadyExecutionMember("the federate is a member of a federation");
      }
      Federation federation = find(federationName);
      federation.saveRestore().checkIdle();
      return federation;
   }

   /** A federate without a name gets its type and handle for one. */
   private int join(Federation federation, String name, String type, List<String> modules)
         throws RTIexception {
      federation.addModules(open(modules));
      int handle = federation.nextMemberHandle();
      Member member = new Member(
            handle, name != null ? name : type + " " + handle, type, federation);
      member.moduleNames.addAll(modules);
      _loopback.connection().join(member);
      federation.add(member);
      return handle;
   }

   private static Federation find(String name) throws FederationExecutionDoesNotExist {
      Federation found = Federation.ALL.get(name);
      if (found == null) {
         throw new FederationExecutionDoesNotExist("there is no federation " + name);
      }
      return found;
   }

   @Override
   public void resignFederationExecution(int action) throws RTIexception {
      _loopback.checkNotInCallback();
      Member member = _loopback.member();
      if (!Resignation.isAction(action)) {
         throw new InvalidResignAction("no resign action has the code " + action);
      }
      Resignation resignation = new Resignation(member);
      if (resignation.isAcquiring() && !Resignation.cancels(action)) {
         throw new OwnershipAcquisitionPending("the federate is acquiring attributes");
      }
      if (resignation.leavesOwned(action)) {
         throw new FederateOwnsAttributes("the federate owns attributes");
      }
      member.resignDirective = action;
      member.federation().remove(member);
      _loopback.connection().leave();
   }

   @Override
   public void registerFederationSynchronizationPoint(String label, byte[] tag)
         throws RTIexception {
      registerFederationSynchronizationPoint(label, tag, Collections.emptySet());
   }

   /** An empty set means all members, those too that join before all have reached the point. */
   @Override
   public void registerFederationSynchronizationPoint(
         String label, byte[] tag, Set<Integer> handles) throws RTIexception {
      Member member = _loopback.workingMember();
      Federation federation = member.federation();
      for (int handle : handles) {
         if (!federation.hasIssued(handle)) {
            throw new InvalidFederateHandle("no federate has the handle " + handle);
         }
      }
      if (federation.syncPoints.containsKey(label)) {
         member.callbacks().synchronizationPointRegistrationFailed(label, LABEL_NOT_UNIQUE);
         return;
      }
      List<Member> members = new ArrayList<>(federation.members());
      if (!handles.isEmpty()) {
         members.removeIf(each -> !handles.contains(each.handle()));
         if (members.size() < handles.size()) {
            member.callbacks().synchronizationPointRegistrationFailed(
                  label, SET_MEMBER_NOT_JOINED);
            return;
         }
      }
      SyncPoint point = new SyncPoint(label, tag, handles.isEmpty());
      federation.syncPoints.put(label, point);
      member.callbacks().synchronizationPointRegistrationSucceeded(label);
      members.forEach(point::announceTo);
   }

   @Override
   public void synchronizationPointAchieved(String label, boolean isSuccess) throws RTIexception {
      Member member = _loopback.workingMember();
      SyncPoint point = member.federation().syncPoints.get(label);
      if (point == null || !point.isAwaitedOf(member)) {
         throw new SynchronizationPointLabelNotAnnounced("no point " + label + " is awaited");
      }
      point.reach(member, isSuccess);
      member.federation().finishSyncPoints();
   }

   @Override
   public void requestFederationSave(String label) throws RTIexception {
      Member member = _loopback.workingMember();
      member.federation().saveRestore().requestSave(label, null);
   }

   @Override
   public void requestFederationSave(String label, byte[] encodedTime) throws RTIexception {
      Member member = _loopback.workingMember();
      LogicalTime time = member.federation().decodeTime(encodedTime);
      if (time.isNegative()) {
         throw new InvalidLogicalTime("the time " + time + " is before the initial time");
      }
      if (!member.time().isConstrained && !member.time().isRegulating) {
         throw new FederateUnableToUseTime("the federate neither regulates nor is constrained");
      }
      if (time.compareTo(member.time().time()) <= 0) {
         throw new LogicalTimeAlreadyPassed("the time " + time + " has passed");
      }
      member.federation().saveRestore().requestSave(label, time);
   }

   private SaveRestore saveRestore() throws RTIexception {
      return _loopback.member().federation().saveRestore();
   }

   @Override
   public void federateSaveBegun() throws RTIexception {
      saveRestore().saveBegun(_loopback.member());
   }

   @Override
   public void federateSaveComplete() throws RTIexception {
      saveRestore().saveEnded(_loopback.member(), true);
   }

   @Override
   public void federateSaveNotComplete() throws RTIexception {
      saveRestore().saveEnded(_loopback.member(), false);
   }

   @Override
   public void abortFederationSave() throws RTIexception {
      saveRestore().abortSave();
   }

   @Override
   public void queryFederationSaveStatus() throws RTIexception {
      saveRestore().reportSave(_loopback.member());
   }

   @Override
   public void requestFederationRestore(String label) throws RTIexception {
      Member member = _loopback.workingMember();
      member.federation().saveRestore().requestRestore(member, label);
   }

   @Override
   public void federateRestoreComplete() throws RTIexception {
      saveRestore().restoreEnded(_loopback.member(), true);
   }

   @Override
   public void federateRestoreNotComplete() throws RTIexception {
      saveRestore().restoreEnded(_loopback.member(), false);
   }

   @Override
   public void abortFederationRestore() throws RTIexception {
      saveRestore().abortRestore();
   }

   @Override
   public void queryFederationRestoreStatus() throws RTIexception {
      saveRestore().reportRestore(_loopback.member());
   }
}
