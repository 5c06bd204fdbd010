// The connection of one ambassador: its callbacks and its membership. Nothing here holds the
// ambassador, so that one that nobody else holds is found, and its federate counts as lost.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.NotConnected;
import hla.rti1516e.exceptions.RTIinternalError;
import java.lang.ref.PhantomReference;
import java.lang.ref.Reference;
import java.lang.ref.ReferenceQueue;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.HashSet;
import java.util.Map;
import java.util.Set;

final class Connection {
   /** Knows when an ambassador has become unreachable. */
   private static final class Trace extends PhantomReference<Loopback> {
      final Connection connection;

      Trace(Loopback ambassador, Connection connection) {
         super(ambassador, UNREACHABLE);
         this.connection = connection;
      }
   }

   private static final ReferenceQueue<Loopback> UNREACHABLE = new ReferenceQueue<>();
   private static final long LOOK_MILLISECONDS = 300;
   private static final int LOOKS = 3;

   /** Those that are connected, by their handles, and the traces of all ambassadors. */
   private static final Map<Integer, Connection> ALL = new HashMap<>();
   private static final Set<Trace> TRACES = new HashSet<>();

   private static volatile int _looks;

   private final WeakReference<Loopback> _ambassador;
   private CallbackQueue _callbacks;
   private Member _member;
   private boolean _isLost;

   Connection(Loopback ambassador) {
      _ambassador = new WeakReference<>(ambassador);
      synchronized (Loopback.LOCK) {
         if (TRACES.isEmpty()) {
            Thread watch = new Thread(Connection::watch, "tarn-standin-watch");
            watch.setDaemon(true);
            watch.start();
         }
         TRACES.add(new Trace(ambassador, this));
      }
   }

   /** An ambassador that wanted to disconnect and could not may be dropped next: it is looked for
       sooner than memory runs short. */
   static void suspect() {
      _looks = LOOKS;
   }

   private static void watch() {
      while (true) {
         try {
            Reference<? extends Loopback> gone = UNREACHABLE.remove(LOOK_MILLISECONDS);
            if (gone != null) {
               ((Trace) gone).connection.end((Trace) gone);
            } else if (_looks > 0) {
               --_looks;
               System.gc();
            }
         } catch (InterruptedException ignored) {
            // Nobody means this thread.
         }
      }
   }

   private void end(Trace trace) {
      synchronized (Loopback.LOCK) {
         TRACES.remove(trace);
         if (isConnected()) {
            lose(null);
         }
      }
   }

   static boolean lose(int handle, String faultDescription) {
      synchronized (Loopback.LOCK) {
         Connection lost = ALL.get(handle);
         if (lost != null) {
            lost.lose(faultDescription);
         }
         return lost != null;
      }
   }

   /** The federate resigns as its automatic directive says. Without a description it is not there
       to be told any more. */
   private void lose(String faultDescription) {
      ALL.remove(_callbacks.handle());
      _isLost = true;
      if (_member != null) {
         _member.federation().remove(_member);
         leave();
      }
      if (faultDescription == null) {
         _callbacks.stop();
      } else {
         _callbacks.connectionLost(faultDescription);
      }
   }

   /** All federates cease to be members, without a callback. */
   static void leaveAll() {
      for (Connection each : new ArrayList<>(ALL.values())) {
         if (each._member != null) {
            each.leave();
         }
      }
   }

   void connect(int handle, boolean isImmediate) {
      if (_callbacks != null) {
         _callbacks.stop();
      }
      _callbacks = new CallbackQueue(handle, isImmediate, () -> lose(handle, null));
      _isLost = false;
      ALL.put(handle, this);
   }

   /** Called without the lock: the callbacks that still run may need it. */
   void disconnect() {
      CallbackQueue closed;
      synchronized (Loopback.LOCK) {
         closed = _callbacks;
         _callbacks = null;
         if (closed != null) {
            ALL.remove(closed.handle(), this);
         }
      }
      if (closed != null) {
         closed.close();
      }
   }

   boolean isConnected() {
      return _callbacks != null && !_isLost;
   }

   boolean isInCallback() {
      return _callbacks != null && _callbacks.isInCallback();
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

   /** Null if the federate is no member. */
   Member member() {
      return _member;
   }

   void join(Member member) {
      _member = member;
      member.attach(this, _callbacks);
      report(member.isReportingServices() || member.isReportingExceptions());
   }

   /** Whether the services of the ambassador are to be reported. */
   void report(boolean on) {
      Loopback ambassador = _ambassador.get();
      if (ambassador != null) {
         ambassador.report(on);
      }
   }

   void leave() {
      _callbacks.dropMemberCallbacks();
      report(false);
      _member = null;
   }
}
