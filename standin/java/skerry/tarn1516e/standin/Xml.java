// Looks into the elements of an object model's module.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.ErrorReadingFDD;
import java.util.ArrayList;
import java.util.List;
import org.w3c.dom.Element;
import org.w3c.dom.Node;

final class Xml {
   private Xml() {}

   static String name(Element element) throws ErrorReadingFDD {
      String name = text(element, "name");
      if (name.isEmpty()) {
         throw new ErrorReadingFDD("a " + element.getLocalName() + " has no name");
      }
      return name;
   }

   static double number(Element element, String child, double otherwise) throws ErrorReadingFDD {
      String text = text(element, child);
      try {
         return text.isEmpty() ? otherwise : Double.parseDouble(text);
      } catch (NumberFormatException failure) {
         throw new ErrorReadingFDD("the " + child + " " + text + " is not a number");
      }
   }

   /** The text of the first child of that name; empty if there is none. */
   static String text(Element element, String child) {
      for (Node at = element.getFirstChild(); at != null; at = at.getNextSibling()) {
         if (child.equals(at.getLocalName())) {
            return at.getTextContent().trim();
         }
      }
      return "";
   }

   static List<Element> children(Element parent, String list, String name) {
      List<Element> found = new ArrayList<>();
      for (Element each : children(parent, list)) {
         found.addAll(children(each, name));
      }
      return found;
   }

   /** The child elements of that name, or all for a null. */
   static List<Element> children(Element parent, String name) {
      List<Element> found = new ArrayList<>();
      for (Node child = parent.getFirstChild(); child != null; child = child.getNextSibling()) {
         if (child instanceof Element && (name == null || name.equals(child.getLocalName()))) {
            found.add((Element) child);
         }
      }
      return found;
   }
}
