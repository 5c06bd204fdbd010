// The object model of a federation: classes, attributes, interactions, parameters, dimensions, and
// what else has a name. Handles count from 1 in the order of reading, so that a model read again
// with further modules behind gives the names that it had the handles that they had.
package skerry.tarn1516e.standin;

import java.util.HashMap;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.Set;

final class Fom {
   static final int RECEIVE = 0;
   static final int TIMESTAMP = 1;
   static final int RELIABLE = 1;
   static final int BEST_EFFORT = 2;

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

      /** Its own and the inherited ones, by handle. */
      final Map<Integer, Attribute> attributes = new LinkedHashMap<>();

      ObjectClass(int handle, String name, ObjectClass parent) {
         this.handle = handle;
         this.name = name;
         this.parent = parent;
      }

      Attribute find(String attributeName) {
         for (Attribute attribute : attributes.values()) {
            if (attribute.name.equals(attributeName)) {
               return attribute;
            }
         }
         return null;
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

      InteractionClass(int handle, String name, InteractionClass parent) {
         this.handle = handle;
         this.name = name;
         this.parent = parent;
      }

      boolean isOrDescendsFrom(InteractionClass other) {
         return this == other || parent != null && parent.isOrDescendsFrom(other);
      }

      Integer find(String parameterName) {
         for (Map.Entry<Integer, String> parameter : parameters.entrySet()) {
            if (parameter.getValue().equals(parameterName)) {
               return parameter.getKey();
            }
         }
         return null;
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

   private final Map<String, ObjectClass> _objectClassesByName = new HashMap<>();
   private final Map<String, InteractionClass> _interactionClassesByName = new HashMap<>();
   private final Map<String, Dimension> _dimensionsByName = new HashMap<>();
   private int _attributeCount;
   private int _parameterCount;

   /** What is there without any module. */
   Fom() {
      addAttribute(addObjectClass(OBJECT_ROOT, null), PRIVILEGE_TO_DELETE).order = TIMESTAMP;
      addInteractionClass(INTERACTION_ROOT, null).order = TIMESTAMP;
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
      }
      objectClasses.put(added.handle, added);
      _objectClassesByName.put(name, added);
      return added;
   }

   /** Classes below the class get it too. */
   Attribute addAttribute(ObjectClass to, String name) {
      Attribute added = new Attribute(++_attributeCount, name);
      for (ObjectClass each : objectClasses.values()) {
         if (each.isOrDescendsFrom(to)) {
            each.attributes.put(added.handle, added);
         }
      }
      return added;
   }

   InteractionClass addInteractionClass(String name, InteractionClass parent) {
      InteractionClass added = new InteractionClass(interactionClasses.size() + 1, name, parent);
      if (parent != null) {
         added.parameters.putAll(parent.parameters);
      }
      interactionClasses.put(added.handle, added);
      _interactionClassesByName.put(name, added);
      return added;
   }

   /** Classes below the class get it too. */
   void addParameter(InteractionClass to, String name) {
      int handle = ++_parameterCount;
      for (InteractionClass each : interactionClasses.values()) {
         if (each.isOrDescendsFrom(to)) {
            each.parameters.put(handle, name);
         }
      }
   }

   Dimension addDimension(String name, long upperBound) {
      Dimension added = new Dimension(dimensions.size() + 1, name, upperBound);
      dimensions.put(added.handle, added);
      _dimensionsByName.put(name, added);
      return added;
   }
}
