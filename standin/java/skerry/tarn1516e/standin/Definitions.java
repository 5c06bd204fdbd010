// What the modules of an object model tell of its parts. The first word stands, and whoever tells
// otherwise is refused with both modules' names.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.InconsistentFDD;
import java.util.HashMap;
import java.util.Map;

final class Definitions {
   private static final class Word {
      final Object value;
      final String module;

      Word(Object value, String module) {
         this.value = value;
         this.module = module;
      }
   }

   private final Map<String, Word> _words = new HashMap<>();

   /** As in "the attribute x of the class A has the order Receive". */
   void tell(String part, String fact, Object value, String module) throws InconsistentFDD {
      Word first = _words.putIfAbsent(part + " has the " + fact, new Word(value, module));
      if (first != null && !first.value.equals(value)) {
         throw new InconsistentFDD(part + " has the " + fact + " " + first.value + " in "
               + first.module + ", and " + value + " in " + module);
      }
   }

   /** What holds if no module tells it. Nobody may tell otherwise from now on. */
   void assume(String part, String fact, Object value, String module) {
      _words.putIfAbsent(part + " has the " + fact, new Word(value, module));
   }
}
