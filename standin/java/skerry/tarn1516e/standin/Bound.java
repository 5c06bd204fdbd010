// A limit in logical time for messages that may still come: none comes before it, and none at it
// either if it is open.
package skerry.tarn1516e.standin;

final class Bound {
   final LogicalTime time;
   final boolean isOpen;

   Bound(LogicalTime time, boolean isOpen) {
      this.time = time;
      this.isOpen = isOpen;
   }

   /** Whether a message of that time may not come any more. */
   boolean excludes(LogicalTime when) {
      int order = when.compareTo(time);
      return order < 0 || order == 0 && isOpen;
   }

   /** Whether all messages before that time have come. */
   boolean reaches(LogicalTime when) {
      return when.compareTo(time) <= 0;
   }

   boolean isBelow(Bound other) {
      int order = time.compareTo(other.time);
      return order < 0 || order == 0 && !isOpen && other.isOpen;
   }
}
