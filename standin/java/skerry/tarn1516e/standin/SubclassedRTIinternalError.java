// A subclass of an exception of the interface, for trials of how subclasses are told apart.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.RTIinternalError;

public class SubclassedRTIinternalError extends RTIinternalError {
   private static final long serialVersionUID = 1L;

   public SubclassedRTIinternalError(String message) {
      super(message);
   }
}
