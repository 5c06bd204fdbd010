// A federation execution: its object model, its members, and what they have made.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.RTIexception;
import java.util.ArrayList;
import java.util.Collection;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;

final class Federation {
   static final Map<String, Federation> ALL = new LinkedHashMap<>();

   private final String _name;
   private final String _timeName;
   private final List<Module> _modules = new ArrayList<>();
   private Fom _fom = new Fom();
   private final Map<Integer, Member> _members = new LinkedHashMap<>();
   private final Clock _clock = new Clock(this);
   private final Discovery _discovery = new Discovery(this);
   private final Advisories _advisories = new Advisories(this);
   private final SaveRestore _saveRestore = new SaveRestore(this);

   final Map<String, SyncPoint> syncPoints = new LinkedHashMap<>();
   final Map<Integer, ObjectInstance> instances = new LinkedHashMap<>();
   final Map<Integer, Region> regions = new LinkedHashMap<>();

   /** Names of instances and names that are reserved for one. */
   final Set<String> takenNames = new HashSet<>();

   private int _lastMember;
   private int _lastInstance;
   private int _lastRegion;
   private int _lastRetraction;
   private long _lastMessage;

   Federation(String name, String timeName) {
      _name = name;
      _timeName = timeName.isEmpty() ? LogicalTime.FLOAT_NAME : timeName;
   }

   String name() {
      return _name;
   }

   String timeName() {
      return _timeName;
   }

   Fom fom() {
      return _fom;
   }

   Clock clock() {
      return _clock;
   }

   Discovery discovery() {
      return _discovery;
   }

   Advisories advisories() {
      return _advisories;
   }

   SaveRestore saveRestore() {
      return _saveRestore;
   }

   Collection<Member> members() {
      return _members.values();
   }

   Member member(int handle) {
      return _members.get(handle);
   }

   Member memberNamed(String name) {
      for (Member member : _members.values()) {
         if (member.name().equals(name)) {
            return member;
         }
      }
      return null;
   }

   /** Whether a federate has ever had the handle. */
   boolean hasIssued(int memberHandle) {
      return memberHandle > 0 && memberHandle <= _lastMember;
   }

   boolean hasIssuedRetraction(int number) {
      return number > 0 && number <= _lastRetraction;
   }

   int nextMemberHandle() {
      return ++_lastMember;
   }

   int nextInstanceHandle() {
      return ++_lastInstance;
   }

   int nextRegionHandle() {
      return ++_lastRegion;
   }

   int nextRetraction() {
      return ++_lastRetraction;
   }

   long nextMessageNumber() {
      return ++_lastMessage;
   }

   LogicalTime decodeTime(byte[] encoded) {
      return LogicalTime.decode(_timeName, encoded);
   }

   /** Adds all the modules or, if they do not fit, none. One that is there already counts once. */
   void addModules(List<Module> added) throws RTIexception {
      List<Module> modules = new ArrayList<>(_modules);
      for (Module module : added) {
         if (modules.stream().noneMatch(module::isSameAs)) {
            modules.add(module);
         }
      }
      if (modules.size() > _modules.size()) {
         _fom = FomReader.merge(modules);
         _modules.clear();
         _modules.addAll(modules);
      }
   }

   void add(Member member) {
      _members.put(member.handle(), member);
      for (SyncPoint point : syncPoints.values()) {
         if (point.isForAll) {
            point.announceTo(member);
         }
      }
   }

   /** Takes the member out after what its resign directive wants has been done. */
   void remove(Member member) {
      new Resignation(member).act(member.resignDirective);
      _members.remove(member.handle());
      member.time().forgetMessages();
      takenNames.removeAll(member.reservedNames);
      regions.values().removeIf(region -> region.creator == member);
      instances.values().forEach(instance -> instance.knownAs.remove(member));
      forgetDeleted();
      syncPoints.values().forEach(point -> point.remove(member));
      finishSyncPoints();
      _saveRestore.remove(member);
      _advisories.update();
      _clock.update();
   }

   /** Forgets the deleted instances that no member knows any more. */
   void forgetDeleted() {
      instances.values().removeIf(instance -> {
         boolean isGone = instance.isDeleted && instance.knownAs.isEmpty();
         if (isGone) {
            takenNames.remove(instance.name);
         }
         return isGone;
      });
   }

   void finishSyncPoints() {
      syncPoints.values().removeIf(SyncPoint::finishIfReached);
   }

   /** What follows from a change of declarations, regions, instances or owners. */
   void update() {
      _discovery.discoverAll();
      _advisories.update();
   }
}
