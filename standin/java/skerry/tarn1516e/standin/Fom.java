// The object model of a federation: classes, attributes, interactions, parameters, dimensions, and
// what else has a name. Handles count from 1 in the order of reading, so that a model read again
// with further modules behind gives the names that it had the handles that they had.
package skerry.tarn1516e.standin;

import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashMap;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;

final class Fom {
   static final int RECEIVE = 0;
   static final int TIMESTAMP = 1;
   static final int RELIABLE = 1;

   /** By their codes. */
   static final List<String> ORDERS = Arrays.asList("Receive", "TimeStamp");

   static final String OBJECT_ROOT = "HLAobjectRoot";
   static final String INTERACTION_ROOT = "HLAinteractionRoot";
   static final String PRIVILEGE_TO_DELETE = "HLAprivilegeToDeleteObject";

   /** What attributes and interaction classes have in common. */
   static class Sent {
      int order = RECEIVE;
      int transportation = RELIABLE;
      final Set<Integer> dimensions = new HashSet<>();
   }

   static final class Attribute extends Sent {
      final int handle;
      final String name;

      Attribute(int handle, String name) {
         this.handle = handle;
         this.name = name;
      }
   }

   static final class ObjectClass {
      final int handle;
      final String name;
      final ObjectClass parent;

      final List<ObjectClass> children = new ArrayList<>();

      /** Its own and the inherited ones, by handle. */
      final Map<Integer, Attribute> attributes = new LinkedHashMap<>();

      private final Map<String, Attribute> _own = new HashMap<>();

      ObjectClass(int handle, String name, ObjectClass parent) {
         this.handle = handle;
         this.name = name;
         this.parent = parent;
      }

      Attribute own(String attributeName) {
         return _own.get(attributeName);
      }

      Attribute find(String attributeName) {
         Attribute own = own(attributeName);
         return own != null || parent == null ? own : parent.find(attributeName);
      }

      boolean isOwnBelow(String attributeName) {
         return children.stream().anyMatch(child -> child.own(attributeName) != null
               || child.isOwnBelow(attributeName));
      }

      private void inherit(Attribute added) {
         attributes.put(added.handle, added);
         children.forEach(child -> child.inherit(added));
      }

      boolean isOrDescendsFrom(ObjectClass other) {
         return this == other || parent != null && parent.isOrDescendsFrom(other);
      }
   }

   static final class InteractionClass extends Sent {
      final int handle;
      final String name;
      final InteractionClass parent;

      /** Its own and the inherited ones, by handle. */
      final Map<Integer, String> parameters = new LinkedHashMap<>();

      private final List<InteractionClass> _children = new ArrayList<>();
      private final Map<String, Integer> _own = new HashMap<>();

      InteractionClass(int handle, String name, InteractionClass parent) {
         this.handle = handle;
         this.name = name;
         this.parent = parent;
      }

      boolean isOrDescendsFrom(InteractionClass other) {
         return this == other || parent != null && parent.isOrDescendsFrom(other);
      }

      boolean isOwn(String parameterName) {
         return _own.containsKey(parameterName);
      }

      Integer find(String parameterName) {
         Integer own = _own.get(parameterName);
         return own != null || parent == null ? own : parent.find(parameterName);
      }

      boolean isOwnBelow(String parameterName) {
         return _children.stream().anyMatch(
               child -> child.isOwn(parameterName) || child.isOwnBelow(parameterName));
      }

      private void inherit(int added, String parameterName) {
         parameters.put(added, parameterName);
         _children.forEach(child -> child.inherit(added, parameterName));
      }
   }

   static final class Dimension {
      final int handle;
      final String name;
      final long upperBound;

      Dimension(int handle, String name, long upperBound) {
         this.handle = handle;
         this.name = name;
         this.upperBound = upperBound;
      }
   }

   final Map<Integer, ObjectClass> objectClasses = new LinkedHashMap<>();
   final Map<Integer, InteractionClass> interactionClasses = new LinkedHashMap<>();
   final Map<Integer, Dimension> dimensions = new LinkedHashMap<>();
   final Map<String, Double> updateRates = new HashMap<>();
   final Map<String, Boolean> switches = new HashMap<>();
   int automaticResignAction = Resignation.CANCEL_THEN_DELETE_THEN_DIVEST;

   private final Map<String, ObjectClass> _objectClassesByName = new HashMap<>();
   private final Map<String, InteractionClass> _interactionClassesByName = new HashMap<>();
   private final Map<String, Dimension> _dimensionsByName = new HashMap<>();
   private final List<String> _transportations = new ArrayList<>();
   private int _attributeCount;
   private int _parameterCount;

   /** What is there without any module. */
   Fom() {
      addTransportation("HLAreliable");
      addTransportation("HLAbestEffort");
      int federate = addDimension(Mim.FEDERATE_DIMENSION, Integer.MAX_VALUE).handle;
      addDimension(Mim.SERVICE_GROUP_DIMENSION, 8);
      Mim.read(Mim.OBJECT_CLASSES, (name, parent, members) -> {
         ObjectClass added = addObjectClass(name, _objectClassesByName.get(parent));
         for (String member : members) {
            addAttribute(added, member);
         }
      });
      Mim.read(Mim.INTERACTION_CLASSES, (name, parent, members) -> {
         InteractionClass added =
               addInteractionClass(name, _interactionClassesByName.get(parent));
         for (String member : members) {
            addParameter(added, member);
         }
         if (name.contains("HLAfederate.HLAreport")) {
            added.dimensions.add(federate);
         }
      });
      objectClass(OBJECT_ROOT).own(PRIVILEGE_TO_DELETE).order = TIMESTAMP;
      interactionClass(INTERACTION_ROOT).order = TIMESTAMP;
      objectClass(Mim.FEDERATE)._own.values().forEach(each -> each.dimensions.add(federate));
   }

   /** By the full name or by the name without the root. */
   ObjectClass objectClass(String name) {
      ObjectClass found = _objectClassesByName.get(name);
      return found != null ? found : _objectClassesByName.get(OBJECT_ROOT + "." + name);
   }

   InteractionClass interactionClass(String name) {
      InteractionClass found = _interactionClassesByName.get(name);
      return found != null ? found : _interactionClassesByName.get(INTERACTION_ROOT + "." + name);
   }

   Dimension dimension(String name) {
      return _dimensionsByName.get(name);
   }

   /** Null if there is none of that name. */
   Integer transportation(String name) {
      int at = _transportations.indexOf(name);
      return at < 0 ? null : RELIABLE + at;
   }

   /** Null if there is none with that handle. */
   String transportationName(int handle) {
      int at = handle - RELIABLE;
      return at < 0 || at >= _transportations.size() ? null : _transportations.get(at);
   }

   void addTransportation(String name) {
      _transportations.add(name);
   }

   String attributeName(int objectClass, int attribute) {
      return objectClasses.get(objectClass).attributes.get(attribute).name;
   }

   boolean hasAttribute(int handle) {
      return handle > 0 && handle <= _attributeCount;
   }

   boolean hasParameter(int handle) {
      return handle > 0 && handle <= _parameterCount;
   }

   boolean isSwitchedOn(String name, boolean otherwise) {
      return switches.getOrDefault(name, otherwise);
   }

   int privilegeToDelete() {
      return objectClass(OBJECT_ROOT).find(PRIVILEGE_TO_DELETE).handle;
   }

   ObjectClass addObjectClass(String name, ObjectClass parent) {
      ObjectClass added = new ObjectClass(objectClasses.size() + 1, name, parent);
      if (parent != null) {
         added.attributes.putAll(parent.attributes);
         parent.children.add(added);
      }
      objectClasses.put(added.handle, added);
      _objectClassesByName.put(name, added);
      return added;
   }

   /** Classes below the class get it too. */
   Attribute addAttribute(ObjectClass to, String name) {
      Attribute added = new Attribute(++_attributeCount, name);
      to._own.put(name, added);
      to.inherit(added);
      return added;
   }

   InteractionClass addInteractionClass(String name, InteractionClass parent) {
      InteractionClass added = new InteractionClass(interactionClasses.size() + 1, name, parent);
      if (parent != null) {
         added.parameters.putAll(parent.parameters);
         parent._children.add(added);
      }
      interactionClasses.put(added.handle, added);
      _interactionClassesByName.put(name, added);
      return added;
   }

   /** Classes below the class get it too. */
   void addParameter(InteractionClass to, String name) {
      int handle = ++_parameterCount;
      to._own.put(name, handle);
      to.inherit(handle, name);
   }

   Dimension addDimension(String name, long upperBound) {
      Dimension added = new Dimension(dimensions.size() + 1, name, upperBound);
      dimensions.put(added.handle, added);
      _dimensionsByName.put(name, added);
      return added;
   }
}
