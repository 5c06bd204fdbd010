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

   public volatile FederationManagement federation;
   public volatile DeclarationManagement declaration;
   public volatile ObjectManagement object;
   public volatile OwnershipManagement ownership;
   public volatile TimeManagement time;
   public volatile DataDistributionManagement data;
   public volatile SupportServices support;

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
      report(false);
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

   /** Whether somebody listens to what is called. */
   void report(boolean on) {
      federation = new FederationService(this);
      declaration = new DeclarationService(this);
      object = new ObjectService(this);
      ownership = new OwnershipService(this);
      time = new TimeService(this);
      data = new RegionService(this);
      support = new SupportService(this);
      if (on) {
         Connection to = _connection;
         federation = ServiceReports.before(FederationManagement.class, federation, to);
         declaration = ServiceReports.before(DeclarationManagement.class, declaration, to);
         object = ServiceReports.before(ObjectManagement.class, object, to);
         ownership = ServiceReports.before(OwnershipManagement.class, ownership, to);
         time = ServiceReports.before(TimeManagement.class, time, to);
         data = ServiceReports.before(DataDistributionManagement.class, data, to);
         support = ServiceReports.before(SupportServices.class, support, to);
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
