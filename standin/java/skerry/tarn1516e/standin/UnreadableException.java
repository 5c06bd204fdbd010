// Exceptions whose texts fail. Their message says how, in a letter for getMessage and one for
// toString: r raises, n answers null, anything else answers that letter.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.RTIinternalError;

public class UnreadableException extends RTIinternalError {
   private static final long serialVersionUID = 1L;

   public UnreadableException(String plan) {
      super(plan);
   }

   @Override
   public String getMessage() {
      return answer(super.getMessage().charAt(0));
   }

   @Override
   public String toString() {
      return answer(super.getMessage().charAt(1));
   }

   static String answer(char step) {
      if (step == 'r') {
         throw new IllegalStateException("from the text of an exception");
      }
      return step == 'n' ? null : String.valueOf(step);
   }

   /** The same of no kind that the interface knows. */
   public static class Stranger extends RuntimeException {
      private static final long serialVersionUID = 1L;

      private final String plan;

      public Stranger(String plan) {
         this.plan = plan;
      }

      @Override
      public String getMessage() {
         return answer(plan.charAt(0));
      }

      @Override
      public String toString() {
         return answer(plan.charAt(1));
      }
   }
}
