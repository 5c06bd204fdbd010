// An exception that never has a message.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.RTIinternalError;

public class SilentException extends RTIinternalError {
   private static final long serialVersionUID = 1L;

   public SilentException(String message) {
      super(message);
   }

   @Override
   public String getMessage() {
      return null;
   }
}
