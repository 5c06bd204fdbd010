// What one ambassador is connected to: its callbacks, its membership, and the services of each
// group. All federations of the VM live behind one lock.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.CallNotAllowedFromWithinCallback;
import hla.rti1516e.exceptions.FederateNotExecutionMember;
import hla.rti1516e.exceptions.NotConnected;
import hla.rti1516e.exceptions.RTIexception;
import hla.rti1516e.exceptions.RTIinternalError;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

public final class Loopback {
   /** Held by every service but those that run or await callbacks. Never held in a callback. */
   public static final Object LOCK = new Object();

   private static final Map<Integer, Loopback> CONNECTED = new HashMap<>();
   private static boolean _isAnnounced;

   public final FederationManagement federation = new FederationService(this);
   public final DeclarationManagement declaration = new DeclarationService(this);
   public final ObjectManagement object = new ObjectService(this);
   public final OwnershipManagement ownership = new OwnershipService(this);
   public final TimeManagement time = new TimeService(this);
   public final DataDistributionManagement data = new RegionService(this);
   public final SupportServices support = new SupportService(this);

   private CallbackQueue _callbacks;
   private Member _member;
   private boolean _isLost;

   /** The ambassador's arguments are settings, of which none is known here. */
   public Loopback(List<String> arguments) {
      String told = System.getProperty("tarn.standin.constructor", "");
      if (told.startsWith("throw")) {
         throw new IllegalStateException(
               told.startsWith("throw:") ? told.substring("throw:".length()) : null);
      }
      announce();
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

   static boolean loseConnection(int handle, String faultDescription) {
      synchronized (LOCK) {
         Loopback lost = CONNECTED.remove(handle);
         if (lost == null) {
            return false;
         }
         if (lost._member != null) {
            lost._member.federation().remove(lost._member);
            lost.leave();
         }
         lost._isLost = true;
         lost._callbacks.connectionLost(faultDescription);
         return true;
      }
   }

   void connect(int handle, boolean isImmediate) {
      if (_callbacks != null) {
         _callbacks.stop();
      }
      _callbacks = new CallbackQueue(handle, isImmediate);
      _isLost = false;
      CONNECTED.put(handle, this);
   }

   /** Called without the lock: the callbacks that still run may need it. */
   void disconnect() {
      CallbackQueue closed;
      synchronized (LOCK) {
         closed = _callbacks;
         _callbacks = null;
         if (closed != null) {
            CONNECTED.remove(closed.handle(), this);
         }
      }
      if (closed != null) {
         closed.close();
      }
   }

   boolean isConnected() {
      return _callbacks != null && !_isLost;
   }

   void checkNotInCallback() throws CallNotAllowedFromWithinCallback {
      if (_callbacks != null && _callbacks.isInCallback()) {
         throw new CallNotAllowedFromWithinCallback("called from within a callback");
      }
   }

   CallbackQueue callbacks() throws NotConnected {
      if (!isConnected()) {
         throw new NotConnected("the ambassador is not connected");
      }
      return _callbacks;
   }

   /** The callbacks for services that can't say that there is no connection. A lost connection has
       one callback left. */
   CallbackQueue callbacksOrFail() throws RTIinternalError {
      if (_callbacks == null) {
         throw new RTIinternalError("the ambassador is not connected");
      }
      return _callbacks;
   }

   void join(Member member) {
      _member = member;
   }

   void leave() {
      _callbacks.dropMemberCallbacks();
      _member = null;
   }

   boolean isMember() {
      return _member != null;
   }

   Member member() throws RTIexception {
      callbacks();
      if (_member == null) {
         throw new FederateNotExecutionMember("the federate is not a member of a federation");
      }
      return _member;
   }

   /** The member, for the services that neither a save nor a restore lets pass. */
   Member workingMember() throws RTIexception {
      Member member = member();
      member.federation().saveRestore().checkIdle();
      return member;
   }
}
