// The RTI's own part in a federation: the instances of the management object model, which tell who
// is there, and the reports that federates ask for.
package skerry.tarn1516e.standin;

import java.util.Collections;
import java.util.HashSet;
import java.util.Map;
import java.util.Set;
import java.util.Timer;
import java.util.TimerTask;
import java.util.TreeMap;
import java.util.TreeSet;

final class Mom {
   private static final byte[] NO_TAG = {};
   private static final String FEDERATION = "HLAfederation";
   private static final Timer TIMER = new Timer("tarn-standin-reports", true);

   private final Federation _federation;

   /** Owns the instances and sends the reports; is among no members, and its handle is 0. */
   private Member _rti;

   Mom(Federation federation) {
      _federation = federation;
      appoint(new Member(0, "RTI", "RTI", federation));
      for (String name : new String[] {Mim.FEDERATION, Mim.FEDERATE}) {
         Fom.ObjectClass managed = federation.fom().objectClass(name);
         _rti.declarations().publish(managed.handle, managed.attributes.keySet());
      }
      register(Mim.FEDERATION, FEDERATION);
   }

   /** Nobody takes the callbacks of the RTI. */
   void appoint(Member rti) {
      _rti = rti;
      CallbackQueue nobody = new CallbackQueue(0, false, () -> {});
      nobody.stop();
      _rti.attach(null, nobody);
      _rti.comeBack(_federation);
   }

   Member rti() {
      return _rti;
   }

   private ObjectInstance register(String className, String name) {
      ObjectInstance made = new ObjectInstance(_federation.nextInstanceHandle(), name,
            _federation.fom().objectClass(className), _rti);
      _federation.add(made);
      return made;
   }

   private static String name(int member) {
      return "HLAfederate" + member;
   }

   private static int member(String name) {
      return Integer.parseInt(name.substring("HLAfederate".length()));
   }

   /** What is told of the member goes over a region with its handle alone. */
   void joined(Member member) {
      Fom.Dimension dimension = _federation.fom().dimension(Mim.FEDERATE_DIMENSION);
      Region region = new Region(_federation.nextRegionHandle(), _rti,
            Collections.singleton(dimension.handle));
      region.ranges.put(dimension.handle, new Range(member.handle(), member.handle() + 1L));
      region.commit();
      _federation.regions.put(region.handle, region);
      ObjectInstance made = register(Mim.FEDERATE, name(member.handle()));
      made.attributes.forEach((attribute, state) -> {
         if (attribute != _federation.fom().privilegeToDelete()) {
            state.regions.add(region);
         }
      });
      _federation.changed(made);
      update(FEDERATION, Collections.singleton("HLAfederatesInFederation"));
   }

   void resigned(Member member) {
      ObjectInstance gone = _federation.instanceNamed(name(member.handle()));
      _federation.regions.values().removeAll(regions(member));
      new Traffic(_rti, null).remove(gone, NO_TAG);
      update(FEDERATION, Collections.singleton("HLAfederatesInFederation"));
   }

   private Set<Region> regions(Member member) {
      ObjectInstance instance = _federation.instanceNamed(name(member.handle()));
      Set<Region> regions = new HashSet<>();
      instance.attributes.values().forEach(each -> regions.addAll(each.regions));
      return regions;
   }

   /** These of the member's attributes have new values. */
   void changed(Member member, String... attributes) {
      Set<String> names = new TreeSet<>();
      Collections.addAll(names, attributes);
      update(name(member.handle()), names);
   }

   private void update(String instanceName, Set<String> names) {
      ObjectInstance instance = _federation.instanceNamed(instanceName);
      boolean isKnown = instance != null && instance.knownAs.size() > 1; // not to the RTI alone
      if (isKnown) {
         Fom.ObjectClass managed = _federation.fom().objectClasses.get(instance.objectClass);
         Set<Integer> attributes = new TreeSet<>();
         names.forEach(each -> attributes.add(managed.find(each).handle));
         provide(instance, attributes);
      }
   }

   /** Sends the values, as far as there are any, to all who have subscribed to them. */
   void provide(ObjectInstance instance, Set<Integer> attributes) {
      Member member = instance.name.equals(FEDERATION)
            ? null : _federation.member(member(instance.name));
      Map<String, byte[]> values =
            member == null ? MomValues.of(_federation) : MomValues.of(member);
      Map<Integer, byte[]> sent = new TreeMap<>();
      for (int attribute : attributes) {
         byte[] value =
               values.get(_federation.fom().attributeName(instance.objectClass, attribute));
         if (value != null) {
            sent.put(attribute, value);
         }
      }
      if (!sent.isEmpty()) {
         new Traffic(_rti, null).update(instance, sent, NO_TAG);
      }
   }

   /** A period of 0 ends the reports. */
   void setTiming(Member member, int seconds) {
      int round = ++member.timingRound;
      if (seconds <= 0) {
         return;
      }
      TIMER.schedule(new TimerTask() {
         @Override
         public void run() {
            synchronized (Loopback.LOCK) {
               Member now = _federation.member(member.handle());
               if (now == null || now.timingRound != round
                     || Federation.ALL.get(_federation.name()) != _federation) {
                  cancel();
               } else {
                  ObjectInstance instance = _federation.instanceNamed(name(now.handle()));
                  provide(instance, instance.attributes.keySet());
               }
            }
         }
      }, 1000L * seconds, 1000L * seconds);
   }

   /** Sends a report on the member; its own handle goes with it. */
   void report(Member member, String report, Map<String, byte[]> values) {
      Fom.InteractionClass sent = _federation.fom().interactionClass(
            "HLAmanager.HLAfederate.HLAreport." + report);
      Map<Integer, byte[]> parameters = new TreeMap<>();
      parameters.put(sent.find("HLAfederate"), MomEncoder.ofHandle(member.handle()));
      values.forEach((name, value) -> parameters.put(sent.find(name), value));
      new Traffic(_rti, null).interact(sent, parameters, regions(member), NO_TAG);
   }
}
