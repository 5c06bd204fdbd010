// Merges the modules of an object model, in the order given, behind the standard's management
// object model. A class may stand in several modules: either without attributes of its own, or with
// the same ones. What one module tells no other may tell otherwise.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.ErrorReadingFDD;
import hla.rti1516e.exceptions.InconsistentFDD;
import java.util.Collections;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import java.util.TreeSet;
import org.w3c.dom.Element;

final class FomReader {
   private static final String[] FACTS_OF_ATTRIBUTES = {
         "dataType", "updateType", "ownership", "sharing"};

   private final Fom _fom = new Fom();
   private final Definitions _definitions = new Definitions();

   /** The one being read, and the classes that it has given so far. */
   private Module _module;
   private final Set<String> _given = new HashSet<>();

   private FomReader() {
      _definitions.assume("the class " + Fom.OBJECT_ROOT, "attributes",
            Collections.singleton(Fom.PRIVILEGE_TO_DELETE), Mim.NAME);
   }

   /** The model of all these modules. */
   static Fom merge(List<Module> modules) throws ErrorReadingFDD, InconsistentFDD {
      FomReader reader = new FomReader();
      for (Module module : modules) {
         reader.read(module);
      }
      return reader._fom;
   }

   private void read(Module module) throws ErrorReadingFDD, InconsistentFDD {
      _module = module;
      _given.clear();
      for (Element each : Xml.children(module.root, "dimensions", "dimension")) {
         readDimension(each);
      }
      for (Element each : Xml.children(module.root, "updateRates", "updateRate")) {
         readUpdateRate(each);
      }
      for (Element each : Xml.children(module.root, "transportations", "transportation")) {
         readTransportation(each);
      }
      for (Element each : Xml.children(module.root, "switches", null)) {
         readSwitch(each);
      }
      for (Element each : Xml.children(module.root, "objects", "objectClass")) {
         readObjectClass(each, null);
      }
      for (Element each : Xml.children(module.root, "interactions", "interactionClass")) {
         readInteractionClass(each, null);
      }
   }

   private void tell(String part, String fact, Object value) throws InconsistentFDD {
      _definitions.tell(part, fact, value, _module.designator);
   }

   private InconsistentFDD inconsistent(String what) {
      return new InconsistentFDD(what + " in " + _module.designator);
   }

   /** Names that begin with HLA are the standard's own. What modules repeat of its management
       object model is taken. */
   private String newName(String name, String part) throws InconsistentFDD {
      if (!name.matches("[^\\s.]+")) {
         throw inconsistent(part + " has a blank or a dot in its name");
      }
      if (name.regionMatches(true, 0, "HLA", 0, 3) && !_module.isMim
            && !part.contains(".HLAmanager")) {
         throw inconsistent(part + " has a name that begins with HLA");
      }
      return name;
   }

   private void readDimension(Element element) throws ErrorReadingFDD, InconsistentFDD {
      String name = Xml.name(element);
      long upperBound = Math.round(Xml.number(element, "upperBound", Long.MAX_VALUE));
      Fom.Dimension known = _fom.dimension(name);
      if (known == null) {
         known = _fom.addDimension(newName(name, "the dimension " + name), upperBound);
      }
      if (!name.startsWith("HLA")) {
         tell("the dimension " + name, "upper bound", upperBound);
      }
   }

   private void readUpdateRate(Element element) throws ErrorReadingFDD, InconsistentFDD {
      String name = Xml.name(element);
      double rate = Xml.number(element, "rate", 0);
      tell("the update rate " + newName(name, "the update rate " + name), "value", rate);
      _fom.updateRates.put(name, rate);
   }

   private void readTransportation(Element element) throws ErrorReadingFDD, InconsistentFDD {
      String name = Xml.name(element);
      if (_fom.transportation(name) == null) {
         _fom.addTransportation(newName(name, "the transportation " + name));
      }
      if (!Xml.text(element, "reliable").isEmpty()) {
         tell("the transportation " + name, "reliability", Xml.text(element, "reliable"));
      }
   }

   private void readSwitch(Element element) throws InconsistentFDD {
      String name = element.getLocalName();
      if (name.equals("automaticResignAction")) {
         String action = element.hasAttribute("resignAction")
               ? element.getAttribute("resignAction") : element.getTextContent().trim();
         if (!Resignation.NAMES.contains(action)) {
            throw inconsistent("the automatic resign action is " + action);
         }
         tell("the switch " + name, "value", action);
         _fom.automaticResignAction = Resignation.NAMES.indexOf(action);
         return;
      }
      String value = element.hasAttribute("isEnabled") ? element.getAttribute("isEnabled")
                                                       : element.getTextContent().trim();
      boolean isOn = value.equalsIgnoreCase("true") || value.equalsIgnoreCase("enabled");
      tell("the switch " + name, "value", isOn);
      _fom.switches.put(name, isOn);
   }

   private void readObjectClass(Element element, Fom.ObjectClass parent)
         throws ErrorReadingFDD, InconsistentFDD {
      String name = fullName(element, parent == null ? null : parent.name, Fom.OBJECT_ROOT);
      Fom.ObjectClass known = _fom.objectClass(name);
      Fom.ObjectClass read = known != null ? known : _fom.addObjectClass(name, parent);
      List<Element> attributes = Xml.children(element, "attribute");
      checkMembers(attributes, "the class " + name, "attributes");
      for (Element each : attributes) {
         readAttribute(each, read);
      }
      for (Element each : Xml.children(element, "objectClass")) {
         readObjectClass(each, read);
      }
   }

   /** The same set in every module that tells any, and none twice. */
   private void checkMembers(List<Element> members, String part, String fact)
         throws ErrorReadingFDD, InconsistentFDD {
      Set<String> names = new TreeSet<>();
      for (Element each : members) {
         if (!names.add(Xml.name(each))) {
            throw inconsistent(part + " has " + Xml.name(each) + " twice among its " + fact);
         }
      }
      if (!names.isEmpty()) {
         tell(part, fact, names);
      }
   }

   private void readAttribute(Element element, Fom.ObjectClass to)
         throws ErrorReadingFDD, InconsistentFDD {
      String name = Xml.name(element);
      String part = "the attribute " + name + " of the class " + to.name;
      Fom.Attribute known = to.own(name);
      if (known == null) {
         checkNotInherited(to.find(name) != null || to.isOwnBelow(name), part);
         known = _fom.addAttribute(to, newName(name, part));
         readSent(element, known, part);
         _definitions.assume(
               part, "order", Fom.ORDERS.get(known.order), _module.designator);
         _definitions.assume(part, "transportation",
               _fom.transportationName(known.transportation), _module.designator);
      } else {
         readSent(element, known, part);
      }
      for (String fact : FACTS_OF_ATTRIBUTES) {
         if (!Xml.text(element, fact).isEmpty()) {
            tell(part, fact, Xml.text(element, fact));
         }
      }
   }

   private void checkNotInherited(boolean isInherited, String part) throws InconsistentFDD {
      if (isInherited) {
         throw inconsistent("a class above or below has another like " + part);
      }
   }

   private void readInteractionClass(Element element, Fom.InteractionClass parent)
         throws ErrorReadingFDD, InconsistentFDD {
      String name = fullName(element, parent == null ? null : parent.name, Fom.INTERACTION_ROOT);
      Fom.InteractionClass known = _fom.interactionClass(name);
      Fom.InteractionClass read = known != null ? known : _fom.addInteractionClass(name, parent);
      String part = "the class " + name;
      readSent(element, read, part);
      List<Element> parameters = Xml.children(element, "parameter");
      checkMembers(parameters, part, "parameters");
      for (Element each : parameters) {
         readParameter(each, read);
      }
      for (Element each : Xml.children(element, "interactionClass")) {
         readInteractionClass(each, read);
      }
   }

   private void readParameter(Element element, Fom.InteractionClass to)
         throws ErrorReadingFDD, InconsistentFDD {
      String name = Xml.name(element);
      String part = "the parameter " + name + " of the class " + to.name;
      if (!to.isOwn(name)) {
         checkNotInherited(to.find(name) != null || to.isOwnBelow(name), part);
         _fom.addParameter(to, newName(name, part));
      }
      if (!Xml.text(element, "dataType").isEmpty()) {
         tell(part, "dataType", Xml.text(element, "dataType"));
      }
   }

   /** What the element does not tell stays as it was. */
   private void readSent(Element element, Fom.Sent to, String part) throws InconsistentFDD {
      String order = Xml.text(element, "order");
      if (!order.isEmpty()) {
         int code = Fom.ORDERS.indexOf(order);
         if (code < 0) {
            throw inconsistent(part + " has the unknown order " + order);
         }
         tell(part, "order", order);
         to.order = code;
      }
      String transportation = Xml.text(element, "transportation");
      if (!transportation.isEmpty()) {
         Integer type = _fom.transportation(transportation);
         if (type == null) {
            throw inconsistent(part + " has the unknown transportation " + transportation);
         }
         tell(part, "transportation", transportation);
         to.transportation = type;
      }
      Set<Integer> dimensions = new TreeSet<>();
      for (Element each : Xml.children(element, "dimensions", "dimension")) {
         Fom.Dimension dimension = _fom.dimension(each.getTextContent().trim());
         if (dimension == null) {
            throw inconsistent(
                  part + " has the unknown dimension " + each.getTextContent().trim());
         }
         dimensions.add(dimension.handle);
      }
      if (!dimensions.isEmpty()) {
         tell(part, "dimensions", dimensions);
         to.dimensions.addAll(dimensions);
      }
   }

   /** The outermost class is the root. A module gives each class once. */
   private String fullName(Element element, String parentName, String root)
         throws ErrorReadingFDD, InconsistentFDD {
      String name = Xml.name(element);
      if (parentName == null && !name.equals(root)) {
         throw inconsistent("the class " + name + " is not below " + root);
      }
      String full = parentName == null ? name : parentName + "." + name;
      if (_fom.objectClass(full) == null && _fom.interactionClass(full) == null) {
         newName(name, "the class " + full);
      }
      if (!_given.add(element.getLocalName() + " " + full)) {
         throw inconsistent("the class " + full + " stands twice");
      }
      return full;
   }
}
