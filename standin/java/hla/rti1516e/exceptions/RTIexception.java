// The common base of the interface's exceptions on the Java side.
package hla.rti1516e.exceptions;

public abstract class RTIexception extends Exception {
   private static final long serialVersionUID = 1L;

   protected RTIexception(String message) {
      super(message);
   }
}
