// What the attributes of the management object model say of a federation and of its members. An
// attribute that is not told here has no value.
package skerry.tarn1516e.standin;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

final class MomValues {
   private static final String VERSION = "stand-in";
   private static final int ACTIVE = 1;
   private static final int SAVING = 3;
   private static final int RESTORING = 5;

   private MomValues() {}

   static Map<String, byte[]> of(Federation federation) {
      List<Integer> handles = new ArrayList<>();
      federation.members().forEach(member -> handles.add(member.handle()));
      SaveRestore saves = federation.saveRestore();
      Map<String, byte[]> values = new HashMap<>();
      values.put("HLAfederationName", MomEncoder.of(federation.name()));
      values.put("HLAfederatesInFederation", MomEncoder.ofHandles(handles));
      values.put("HLARTIversion", MomEncoder.of(VERSION));
      values.put("HLAMIMdesignator", MomEncoder.of(federation.mimName()));
      values.put("HLAFOMmoduleDesignatorList", MomEncoder.ofStrings(federation.moduleNames()));
      values.put("HLAtimeImplementationName", MomEncoder.of(federation.timeName()));
      values.put("HLAlastSaveName", MomEncoder.of(saves.lastLabel()));
      values.put("HLAlastSaveTime", MomEncoder.of(saves.lastTime()));
      values.put("HLAnextSaveName", MomEncoder.of(saves.nextLabel()));
      values.put("HLAnextSaveTime", MomEncoder.of(saves.nextTime()));
      values.put("HLAautoProvide", MomEncoder.of(federation.isAutoProviding));
      return values;
   }

   static Map<String, byte[]> of(Member member) {
      Map<String, byte[]> values = new HashMap<>();
      values.put("HLAfederateHandle", MomEncoder.ofHandle(member.handle()));
      values.put("HLAfederateName", MomEncoder.of(member.name()));
      values.put("HLAfederateType", MomEncoder.of(member.type()));
      values.put("HLAfederateHost", MomEncoder.of(host()));
      values.put("HLARTIversion", MomEncoder.of(VERSION));
      values.put("HLAFOMmoduleDesignatorList", MomEncoder.ofStrings(member.moduleNames));
      values.put("HLAfederateState", MomEncoder.of(state(member.federation().saveRestore())));
      values.put("HLAconveyRegionDesignatorSets", MomEncoder.of(member.isToldRegions));
      values.put("HLAconveyProducingFederate", MomEncoder.of(member.isToldProducer));
      addTime(member, values);
      addCounts(member, values);
      return values;
   }

   private static int state(SaveRestore saves) {
      return saves.isSaving() ? SAVING : saves.isBusy() ? RESTORING : ACTIVE;
   }

   private static void addTime(Member member, Map<String, byte[]> values) {
      TimeState time = member.time();
      Clock clock = member.federation().clock();
      Bound limit = clock.limit(member);
      values.put("HLAtimeConstrained", MomEncoder.of(time.isConstrained));
      values.put("HLAtimeRegulating", MomEncoder.of(time.isRegulating));
      values.put("HLAasynchronousDelivery", MomEncoder.of(time.isAsynchronous));
      values.put("HLAtimeManagerState", MomEncoder.of(time.isAdvancing()));
      values.put("HLAlogicalTime", MomEncoder.of(time.time()));
      values.put("HLAlookahead", MomEncoder.of(time.isRegulating ? time.lookahead() : null));
      values.put("HLAGALT", MomEncoder.of(limit == null ? null : limit.time));
      values.put("HLALITS", MomEncoder.of(clock.leastIncoming(member)));
      values.put("HLAROlength", MomEncoder.of(time.held()));
      values.put("HLATSOlength", MomEncoder.of(time.waiting()));
   }

   private static void addCounts(Member member, Map<String, byte[]> values) {
      Counts counts = member.counts();
      values.put("HLAreflectionsReceived",
            MomEncoder.of(Counts.total(counts.reflectionsReceived)));
      values.put("HLAupdatesSent", MomEncoder.of(Counts.total(counts.updatesSent)));
      values.put("HLAinteractionsReceived",
            MomEncoder.of(Counts.total(counts.interactionsReceived)));
      values.put("HLAinteractionsSent", MomEncoder.of(Counts.total(counts.interactionsSent)));
      values.put("HLAobjectInstancesUpdated", MomEncoder.of(Counts.size(counts.updated)));
      values.put("HLAobjectInstancesReflected", MomEncoder.of(Counts.size(counts.reflected)));
      values.put("HLAobjectInstancesDeleted", MomEncoder.of(counts.deleted));
      values.put("HLAobjectInstancesRemoved", MomEncoder.of(counts.removed));
      values.put("HLAobjectInstancesRegistered", MomEncoder.of(counts.registered));
      values.put("HLAobjectInstancesDiscovered", MomEncoder.of(counts.discovered));
      int privilege = member.federation().fom().privilegeToDelete();
      values.put("HLAobjectInstancesThatCanBeDeleted",
            MomEncoder.of((int) member.federation().instances.values().stream()
                  .filter(each -> each.isOwned(privilege, member)).count()));
   }

   /** Without asking a name server, which may take its time. */
   private static String host() {
      try {
         return new String(Files.readAllBytes(Paths.get("/proc/sys/kernel/hostname")),
               StandardCharsets.UTF_8).trim();
      } catch (IOException unknown) {
         return "localhost";
      }
   }
}
