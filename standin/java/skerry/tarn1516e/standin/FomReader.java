// Reads the XML modules of an object model, in the order given, into one model. A class may stand
// in several modules: either without attributes of its own, or with the same ones.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.CouldNotOpenFDD;
import hla.rti1516e.exceptions.ErrorReadingFDD;
import hla.rti1516e.exceptions.InconsistentFDD;
import java.io.File;
import java.io.IOException;
import java.io.InputStream;
import java.net.MalformedURLException;
import java.net.URL;
import java.nio.file.Files;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import javax.xml.XMLConstants;
import javax.xml.parsers.DocumentBuilder;
import javax.xml.parsers.DocumentBuilderFactory;
import javax.xml.parsers.ParserConfigurationException;
import org.w3c.dom.Element;
import org.w3c.dom.Node;
import org.xml.sax.SAXException;

final class FomReader {
   private final Fom _fom = new Fom();

   private FomReader() {}

   /** The module behind a path, which starts from the current directory, or a URL. */
   static Element open(String designator) throws CouldNotOpenFDD, ErrorReadingFDD {
      Element root;
      try (InputStream in = stream(designator)) {
         root = parser().parse(in).getDocumentElement();
      } catch (IOException failure) {
         throw new CouldNotOpenFDD("cannot open " + designator + ": " + failure.getMessage());
      } catch (SAXException | ParserConfigurationException failure) {
         throw new ErrorReadingFDD("cannot read " + designator + ": " + failure.getMessage());
      }
      if (!localName(root).equals("objectModel")) {
         throw new ErrorReadingFDD(designator + " is not an object model");
      }
      return root;
   }

   /** The model of all these modules. */
   static Fom merge(List<Element> modules) throws ErrorReadingFDD, InconsistentFDD {
      FomReader reader = new FomReader();
      for (Element module : modules) {
         reader.readDimensions(module);
         reader.readUpdateRates(module);
         reader.readSwitches(module);
         for (Element each : children(module, "objects", "objectClass")) {
            reader.readObjectClass(each, null);
         }
         for (Element each : children(module, "interactions", "interactionClass")) {
            reader.readInteractionClass(each, null);
         }
      }
      return reader._fom;
   }

   private static InputStream stream(String designator) throws IOException {
      URL url;
      try {
         url = new URL(designator);
      } catch (MalformedURLException path) {
         return Files.newInputStream(new File(designator).toPath());
      }
      if (!url.getProtocol().equals("file")) {
         throw new IOException("only files are read");
      }
      return url.openStream();
   }

   private static DocumentBuilder parser() throws ParserConfigurationException {
      DocumentBuilderFactory factory = DocumentBuilderFactory.newInstance();
      factory.setNamespaceAware(true);
      factory.setFeature(XMLConstants.FEATURE_SECURE_PROCESSING, true);
      factory.setFeature("http://xml.org/sax/features/external-general-entities", false);
      factory.setFeature("http://xml.org/sax/features/external-parameter-entities", false);
      factory.setFeature(
            "http://apache.org/xml/features/nonvalidating/load-external-dtd", false);
      factory.setExpandEntityReferences(false);
      DocumentBuilder parser = factory.newDocumentBuilder();
      parser.setErrorHandler(null);
      return parser;
   }

   private void readDimensions(Element module) throws ErrorReadingFDD, InconsistentFDD {
      for (Element each : children(module, "dimensions", "dimension")) {
         String name = name(each);
         long upperBound = Math.round(number(each, "upperBound", Long.MAX_VALUE));
         Fom.Dimension known = _fom.dimension(name);
         if (known == null) {
            _fom.addDimension(name, upperBound);
         } else if (known.upperBound != upperBound) {
            throw new InconsistentFDD("the dimension " + name + " has two upper bounds");
         }
      }
   }

   private void readUpdateRates(Element module) throws ErrorReadingFDD, InconsistentFDD {
      for (Element each : children(module, "updateRates", "updateRate")) {
         String name = name(each);
         double rate = number(each, "rate", 0);
         Double known = _fom.updateRates.put(name, rate);
         if (known != null && known != rate) {
            throw new InconsistentFDD("the update rate " + name + " has two values");
         }
      }
   }

   private void readSwitches(Element module) {
      for (Element list : children(module, "switches")) {
         for (Element each : children(list, null)) {
            String value = each.hasAttribute("isEnabled") ? each.getAttribute("isEnabled")
                                                          : each.getTextContent().trim();
            _fom.switches.put(localName(each),
                  value.equalsIgnoreCase("true") || value.equalsIgnoreCase("enabled"));
         }
      }
   }

   private void readObjectClass(Element element, Fom.ObjectClass parent)
         throws ErrorReadingFDD, InconsistentFDD {
      String name = fullName(element, parent == null ? null : parent.name, Fom.OBJECT_ROOT);
      Fom.ObjectClass known = _fom.objectClass(name);
      Fom.ObjectClass read = known != null ? known : _fom.addObjectClass(name, parent);
      Set<String> inherited = new HashSet<>();
      if (parent != null) {
         parent.attributes.values().forEach(attribute -> inherited.add(attribute.name));
      }
      List<Element> attributes = children(element, "attribute");
      boolean isComplete = known != null && parent != null
            && known.attributes.size() > parent.attributes.size();
      if (isComplete && !attributes.isEmpty()
            && attributes.size() != known.attributes.size() - parent.attributes.size()) {
         throw new InconsistentFDD("the class " + name + " has two sets of attributes");
      }
      for (Element each : attributes) {
         readAttribute(each, read, inherited, isComplete);
      }
      for (Element each : children(element, "objectClass")) {
         readObjectClass(each, read);
      }
   }

   private void readAttribute(
         Element element, Fom.ObjectClass to, Set<String> inherited, boolean isComplete)
         throws ErrorReadingFDD, InconsistentFDD {
      String name = name(element);
      if (inherited.contains(name)) {
         throw new InconsistentFDD("a class above " + to.name + " has an attribute " + name);
      }
      Fom.Attribute known = to.find(name);
      if (known == null && isComplete) {
         throw new InconsistentFDD("the class " + to.name + " has two sets of attributes");
      }
      readSent(element, known != null ? known : _fom.addAttribute(to, name));
   }

   private void readInteractionClass(Element element, Fom.InteractionClass parent)
         throws ErrorReadingFDD, InconsistentFDD {
      String name = fullName(element, parent == null ? null : parent.name, Fom.INTERACTION_ROOT);
      Fom.InteractionClass known = _fom.interactionClass(name);
      Fom.InteractionClass read = known != null ? known : _fom.addInteractionClass(name, parent);
      readSent(element, read);
      List<Element> parameters = children(element, "parameter");
      int inherited = parent == null ? 0 : parent.parameters.size();
      boolean isComplete = known != null && known.parameters.size() > inherited;
      if (isComplete && !parameters.isEmpty()
            && parameters.size() != known.parameters.size() - inherited) {
         throw new InconsistentFDD("the class " + name + " has two sets of parameters");
      }
      for (Element each : parameters) {
         Integer handle = read.find(name(each));
         if (handle != null && !isComplete || handle == null && isComplete) {
            throw new InconsistentFDD("the class " + name + " has two sets of parameters");
         }
         if (handle == null) {
            _fom.addParameter(read, name(each));
         }
      }
      for (Element each : children(element, "interactionClass")) {
         readInteractionClass(each, read);
      }
   }

   /** What the element does not tell stays as it was. */
   private void readSent(Element element, Fom.Sent to) throws InconsistentFDD {
      String order = text(element, "order");
      if (order != null) {
         to.order = order.equalsIgnoreCase("TimeStamp") ? Fom.TIMESTAMP : Fom.RECEIVE;
      }
      String transportation = text(element, "transportation");
      if (transportation != null) {
         to.transportation =
               transportation.equals("HLAbestEffort") ? Fom.BEST_EFFORT : Fom.RELIABLE;
      }
      for (Element each : children(element, "dimensions", "dimension")) {
         Fom.Dimension dimension = _fom.dimension(each.getTextContent().trim());
         if (dimension == null) {
            throw new InconsistentFDD("no dimension has the name " + each.getTextContent().trim());
         }
         to.dimensions.add(dimension.handle);
      }
   }

   /** The outermost class is the root. */
   private static String fullName(Element element, String parentName, String root)
         throws ErrorReadingFDD, InconsistentFDD {
      String name = name(element);
      if (parentName == null && !name.equals(root)) {
         throw new InconsistentFDD("the class " + name + " is not below " + root);
      }
      return parentName == null ? name : parentName + "." + name;
   }

   private static String name(Element element) throws ErrorReadingFDD {
      String name = text(element, "name");
      if (name == null || name.isEmpty()) {
         throw new ErrorReadingFDD("a " + localName(element) + " has no name");
      }
      return name;
   }

   private static double number(Element element, String child, double otherwise)
         throws ErrorReadingFDD {
      String text = text(element, child);
      try {
         return text == null || text.isEmpty() ? otherwise : Double.parseDouble(text);
      } catch (NumberFormatException failure) {
         throw new ErrorReadingFDD("the " + child + " " + text + " is not a number");
      }
   }

   /** The text of the first child of that name, or null. */
   private static String text(Element element, String child) {
      List<Element> found = children(element, child);
      return found.isEmpty() ? null : found.get(0).getTextContent().trim();
   }

   private static List<Element> children(Element parent, String list, String name) {
      List<Element> found = new ArrayList<>();
      for (Element each : children(parent, list)) {
         found.addAll(children(each, name));
      }
      return found;
   }

   /** The child elements of that name, or all for a null. */
   private static List<Element> children(Element parent, String name) {
      List<Element> found = new ArrayList<>();
      for (Node child = parent.getFirstChild(); child != null; child = child.getNextSibling()) {
         if (child instanceof Element && (name == null || localName(child).equals(name))) {
            found.add((Element) child);
         }
      }
      return found;
   }

   private static String localName(Node node) {
      return node.getLocalName();
   }
}
