// One ambassador: its connection, and the services of each group. All federations of the VM live
// behind one lock.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.CallNotAllowedFromWithinCallback;
import hla.rti1516e.exceptions.FederateNotExecutionMember;
import hla.rti1516e.exceptions.RTIexception;
import java.util.List;

public final class Loopback {
   /** Held by every service but those that run or await callbacks. Never held in a callback. */
   public static final Object LOCK = new Object();

   private static boolean _isAnnounced;

   public final FederationManagement federation = new FederationService(this);
   public final DeclarationManagement declaration = new DeclarationService(this);
   public final ObjectManagement object = new ObjectService(this);
   public final OwnershipManagement ownership = new OwnershipService(this);
   public final TimeManagement time = new TimeService(this);
   public final DataDistributionManagement data = new RegionService(this);
   public final SupportServices support = new SupportService(this);

   private final Connection _connection;

   /** The ambassador's arguments are settings, of which none is known here. */
   public Loopback(List<String> arguments) {
      String told = System.getProperty("tarn.standin.constructor", "");
      if (told.startsWith("throw")) {
         throw new IllegalStateException(
               told.startsWith("throw:") ? told.substring("throw:".length()) : null);
      }
      announce();
      _connection = new Connection(this);
   }

   private static void announce() {
      synchronized (LOCK) {
         if (!_isAnnounced && System.getProperty("tarn.standin.quiet") == null) {
            System.err.println(
                  "tarn1516e stand-in: not an RTI, for trials and tests only");
         }
         _isAnnounced = true;
      }
   }

   Connection connection() {
      return _connection;
   }

   void checkNotInCallback() throws CallNotAllowedFromWithinCallback {
      if (_connection.isInCallback()) {
         throw new CallNotAllowedFromWithinCallback("called from within a callback");
      }
   }

   CallbackQueue callbacks() throws RTIexception {
      return _connection.callbacks();
   }

   Member member() throws RTIexception {
      callbacks();
      if (_connection.member() == null) {
         throw new FederateNotExecutionMember("the federate is not a member of a federation");
      }
      return _connection.member();
   }

   /** The member, for the services that neither a save nor a restore lets pass. */
   Member workingMember() throws RTIexception {
      Member member = member();
      member.federation().saveRestore().checkIdle();
      return member;
   }
}
