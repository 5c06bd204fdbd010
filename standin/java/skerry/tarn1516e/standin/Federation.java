// A federation execution: its object model, its members, and what they have made.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.RTIexception;
import java.io.Serializable;
import java.util.ArrayList;
import java.util.Collection;
import java.util.Collections;
import java.util.HashMap;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.stream.Collectors;

final class Federation {
   /** What a save keeps. */
   private static final class State implements Serializable {
      private static final long serialVersionUID = 1L;

      final LinkedHashMap<Integer, Member> members;
      final LinkedHashMap<String, SyncPoint> syncPoints;
      final LinkedHashMap<Integer, ObjectInstance> instances;
      final LinkedHashMap<Integer, Region> regions;
      final HashSet<String> takenNames;
      final boolean isAutoProviding;
      final Member rti;

      State(Federation from) {
         members = new LinkedHashMap<>(from._members);
         syncPoints = new LinkedHashMap<>(from.syncPoints);
         instances = new LinkedHashMap<>(from.instances);
         regions = new LinkedHashMap<>(from.regions);
         takenNames = new HashSet<>(from.takenNames);
         isAutoProviding = from.isAutoProviding;
         rti = from._mom.rti();
      }
   }

   static final Map<String, Federation> ALL = new LinkedHashMap<>();

   private final String _name;
   private final String _timeName;
   private final List<Module> _modules = new ArrayList<>();
   private Fom _fom = new Fom();
   private final Map<Integer, Member> _members = new LinkedHashMap<>();
   private final Clock _clock = new Clock(this);
   private final Discovery _discovery = new Discovery(this);
   private final Advisories _advisories = new Advisories(this);
   private final InstanceAdvisories _instanceAdvisories = new InstanceAdvisories(this);
   private final SaveRestore _saveRestore = new SaveRestore(this);

   final Map<String, SyncPoint> syncPoints = new LinkedHashMap<>();
   final Map<Integer, ObjectInstance> instances = new LinkedHashMap<>();
   final Map<Integer, Region> regions = new LinkedHashMap<>();

   private final Map<String, ObjectInstance> _instancesByName = new HashMap<>();
   private final Map<Integer, Set<ObjectInstance>> _instancesByClass = new HashMap<>();

   /** Names of instances and names that are reserved for one. */
   final Set<String> takenNames = new HashSet<>();

   /** Whether whoever discovers an instance gets its values without asking. */
   boolean isAutoProviding;

   private Mom _mom;
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

   Mom mom() {
      return _mom;
   }

   /** The object model is there. */
   void begin() {
      isAutoProviding = _fom.isSwitchedOn("autoProvide", false);
      _mom = new Mom(this);
   }

   String mimName() {
      return _modules.stream().filter(each -> each.isMim).map(each -> each.designator)
            .findFirst().orElse(Mim.NAME);
   }

   List<String> moduleNames() {
      return _modules.stream().filter(each -> !each.isMim).map(each -> each.designator)
            .collect(Collectors.toList());
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
      _mom.joined(member);
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
      _mom.resigned(member);
      member.time().forgetMessages();
      takenNames.removeAll(member.reservedNames);
      regions.values().removeIf(region -> region.creator == member);
      for (ObjectInstance instance : new ArrayList<>(instances.values())) {
         instance.forgetBy(member);
         forgetIfGone(instance);
         _instanceAdvisories.update(instance);
      }
      syncPoints.values().forEach(point -> point.remove(member));
      finishSyncPoints();
      _saveRestore.remove(member);
      members().forEach(_advisories::update);
      _clock.update();
   }

   void add(ObjectInstance instance) {
      takenNames.add(instance.name);
      instances.put(instance.handle, instance);
      _instancesByName.put(instance.name, instance);
      _instancesByClass.computeIfAbsent(instance.objectClass, none -> new LinkedHashSet<>())
            .add(instance);
   }

   /** A deleted instance is forgotten when no member knows it any more. */
   void forgetIfGone(ObjectInstance instance) {
      if (instance.isDeleted && instance.knownAs.isEmpty()) {
         takenNames.remove(instance.name);
         instances.remove(instance.handle);
         _instancesByName.remove(instance.name);
         _instancesByClass.get(instance.objectClass).remove(instance);
      }
   }

   ObjectInstance instanceNamed(String name) {
      return _instancesByName.get(name);
   }

   /** Those of the class and of the classes below. */
   List<ObjectInstance> instancesOf(Fom.ObjectClass objectClass) {
      List<ObjectInstance> found = new ArrayList<>(
            _instancesByClass.getOrDefault(objectClass.handle, Collections.emptySet()));
      objectClass.children.forEach(child -> found.addAll(instancesOf(child)));
      return found;
   }

   Snapshot snapshot() {
      return new Snapshot(members(), new State(this));
   }

   /** What came after the save is gone, but for the object model and for handles: none is given
       twice. */
   void restore(Snapshot saved, Map<Member, Integer> becomes) {
      State state = (State) saved.state();
      becomes.forEach((member, handle) ->
            member.connection().join(state.members.get(handle)));
      refill(_members, state.members);
      refill(syncPoints, state.syncPoints);
      refill(regions, state.regions);
      instances.clear();
      _instancesByName.clear();
      _instancesByClass.clear();
      takenNames.clear();
      takenNames.addAll(state.takenNames);
      isAutoProviding = state.isAutoProviding;
      members().forEach(member -> member.comeBack(this));
      _mom.appoint(state.rti);
      regions.values().forEach(region -> region.associated = new HashSet<>());
      for (ObjectInstance instance : state.instances.values()) {
         add(instance);
         instance.attributes.values().forEach(each ->
               each.regions.forEach(region -> region.associated.add(instance)));
      }
   }

   private static <K, V> void refill(Map<K, V> to, Map<K, V> from) {
      to.clear();
      to.putAll(from);
   }

   void finishSyncPoints() {
      syncPoints.values().removeIf(SyncPoint::finishIfReached);
   }

   // What follows from a change, for those whom it concerns.

   /** The instance is new, or its owners or its regions are. */
   void changed(ObjectInstance instance) {
      _discovery.discover(instance);
      _instanceAdvisories.update(instance);
   }

   void subscribed(Member member, Fom.ObjectClass objectClass) {
      _advisories.subscribed(objectClass);
      for (ObjectInstance instance : instancesOf(objectClass)) {
         _discovery.discover(instance, member);
         _instanceAdvisories.subscribed(instance, member);
      }
   }

   void published(Member member, Fom.ObjectClass objectClass) {
      _advisories.updateRegistration(member, objectClass.handle);
      for (ObjectInstance instance : instancesOf(objectClass)) {
         if (instance.isKnownAs(member, objectClass.handle)) {
            Ownership.askToAssume(instance, member);
         }
      }
   }

   void switchedOn(Member member, Member.Advisory advisory) {
      _advisories.update(member);
      for (ObjectInstance instance : instances.values()) {
         if (advisory == Member.Advisory.ATTRIBUTE_SCOPE) {
            _instanceAdvisories.updateScope(instance, member);
         } else if (advisory == Member.Advisory.ATTRIBUTE_RELEVANCE) {
            _instanceAdvisories.updateRelevance(instance, member);
         }
      }
   }

   void moved(Region region) {
      region.associated.removeIf(instance -> !instance.uses(region));
      region.associated.forEach(this::changed);
      region.creator.declarations().subscribedOver(region)
            .forEach(each -> subscribed(region.creator, _fom.objectClasses.get(each)));
   }
}
