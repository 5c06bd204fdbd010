// A module of an object model, read from its file and not yet looked into.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.CouldNotOpenFDD;
import hla.rti1516e.exceptions.ErrorReadingFDD;
import java.io.File;
import java.io.IOException;
import java.io.InputStream;
import java.net.MalformedURLException;
import java.net.URL;
import java.nio.file.Files;
import javax.xml.XMLConstants;
import javax.xml.parsers.DocumentBuilder;
import javax.xml.parsers.DocumentBuilderFactory;
import javax.xml.parsers.ParserConfigurationException;
import org.w3c.dom.Element;
import org.xml.sax.SAXException;

final class Module {
   /** As the federate gave it. */
   final String designator;
   final Element root;

   /** Only such a module may give names that begin with HLA. */
   final boolean isMim;

   private Module(String designator, Element root, boolean isMim) {
      this.designator = designator;
      this.root = root;
      this.isMim = isMim;
   }

   /** The module behind a path, which starts from the current directory, or a URL. */
   static Module open(String designator, boolean isMim) throws CouldNotOpenFDD, ErrorReadingFDD {
      Element root;
      try (InputStream in = stream(designator)) {
         root = parser().parse(in).getDocumentElement();
      } catch (IOException failure) {
         throw new CouldNotOpenFDD("cannot open " + designator + ": " + failure.getMessage());
      } catch (SAXException | ParserConfigurationException failure) {
         throw new ErrorReadingFDD("cannot read " + designator + ": " + failure.getMessage());
      }
      if (!root.getLocalName().equals("objectModel")) {
         throw new ErrorReadingFDD(designator + " is not an object model");
      }
      return new Module(designator, root, isMim);
   }

   boolean isSameAs(Module other) {
      return root.isEqualNode(other.root);
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
}
