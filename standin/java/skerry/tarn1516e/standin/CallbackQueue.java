// The callbacks of one connection: they wait here until the federate evokes them, or, in the
// immediate model, until the connection's own thread hands them over.
package skerry.tarn1516e.standin;

import java.util.ArrayDeque;
import java.util.Deque;
import java.util.HashSet;
import java.util.Set;
import skerry.tarn1516e.FederateAmbassadorC2007;

final class CallbackQueue extends CallbackSender {
   /** Where callbacks go in the end: the natives, unless a trial without them listens instead. */
   interface Sink {
      void deliver(int handle, String nativeName, byte[] frame) throws Exception;
   }

   private static final class Callback {
      final String nativeName;
      final byte[] frame;
      final Runnable before;

      Callback(String nativeName, byte[] frame, Runnable before) {
         this.nativeName = nativeName;
         this.frame = frame;
         this.before = before;
      }
   }

   private static final FederateAmbassadorC2007 NATIVES = new FederateAmbassadorC2007();
   private static final Runnable NOTHING = () -> {};
   private static final double LONG_ENOUGH_SECONDS = 1e9;

   static volatile Sink sink =
         (handle, nativeName, frame) -> NativeTable.find(nativeName).call(NATIVES, frame);

   private final int _handle;
   private final boolean _isImmediate;
   private final Deque<Callback> _waiting = new ArrayDeque<>();
   private final Set<Thread> _delivering = new HashSet<>();
   private boolean _isEnabled = true;
   private volatile boolean _isClosed;
   private Runnable _before = NOTHING;

   /** What to do if the thread of the immediate model dies. */
   CallbackQueue(int handle, boolean isImmediate, Runnable onDeath) {
      super(handle);
      _handle = handle;
      _isImmediate = isImmediate;
      if (isImmediate) {
         Thread thread = new Thread(() -> {
            try {
               deliverAll();
            } finally {
               if (!_isClosed) {
                  onDeath.run();
               }
            }
         }, "tarn-standin-callbacks-" + handle);
         thread.setDaemon(true);
         thread.start();
      }
   }

   int handle() {
      return _handle;
   }

   /** What to do, under the lock of all services, just before the next callback sent is handed
       over. */
   CallbackQueue before(Runnable action) {
      _before = action;
      return this;
   }

   @Override
   synchronized void send(String nativeName, byte[] frame) {
      if (_isClosed) {
         return;
      }
      _waiting.add(new Callback(nativeName, frame, _before));
      _before = NOTHING;
      notifyAll();
   }

   /** Whether this thread is inside a callback of this connection. */
   synchronized boolean isInCallback() {
      return _delivering.contains(Thread.currentThread());
   }

   synchronized void enable(boolean on) {
      _isEnabled = on;
      notifyAll();
   }

   /** Drops what was meant for a member of a federation; a report of federations stays. */
   synchronized void dropMemberCallbacks() {
      _waiting.removeIf(callback -> !callback.nativeName.startsWith("reportFederationExecutions"));
   }

   /** No callback begins any more. */
   synchronized void stop() {
      _isClosed = true;
      _waiting.clear();
      notifyAll();
   }

   /** Stops, and waits for the callbacks that run on other threads. */
   synchronized void close() {
      stop();
      while (!_delivering.isEmpty() && !isInCallback()) {
         if (!waitNanos(Long.MAX_VALUE)) {
            return;
         }
      }
   }

   /** Hands over one callback, for which it waits so long; tells whether more wait. */
   boolean evokeOne(double seconds) {
      deliverNext(System.nanoTime() + nanos(seconds));
      return isPending();
   }

   /** Hands over what comes within the shorter time, then what is there until the longer time is
       over; tells whether more wait. */
   boolean evokeMany(double leastSeconds, double mostSeconds) {
      long start = System.nanoTime();
      long latest = start + nanos(mostSeconds);
      long enough = start + Math.min(nanos(leastSeconds), nanos(mostSeconds));
      boolean goesOn = true;
      while (goesOn) {
         boolean delivered = deliverNext(enough);
         goesOn = delivered && System.nanoTime() - latest < 0;
      }
      return isPending();
   }

   private synchronized boolean isPending() {
      return !_isImmediate && _isEnabled && !_waiting.isEmpty();
   }

   private void deliverAll() {
      while (true) {
         Callback next;
         synchronized (this) {
            while (!_isClosed && (_waiting.isEmpty() || !_isEnabled)) {
               if (!waitNanos(Long.MAX_VALUE)) {
                  return;
               }
            }
            if (_isClosed) {
               return;
            }
            next = begin();
         }
         deliver(next);
      }
   }

   /** False if nothing came until the deadline. In the immediate model nothing comes this way. */
   private boolean deliverNext(long deadline) {
      Callback next;
      synchronized (this) {
         while (_isImmediate || _waiting.isEmpty() || !_isEnabled) {
            long left = deadline - System.nanoTime();
            if (_isClosed || left <= 0 || !waitNanos(left)) {
               return false;
            }
         }
         next = begin();
      }
      deliver(next);
      return true;
   }

   private Callback begin() {
      _delivering.add(Thread.currentThread());
      return _waiting.removeFirst();
   }

   private void deliver(Callback callback) {
      try {
         synchronized (Loopback.LOCK) {
            callback.before.run();
         }
         sink.deliver(_handle, callback.nativeName, callback.frame);
      } catch (Exception | LinkageError failure) {
         System.err.println(
               "tarn1516e stand-in: " + callback.nativeName + " ended with " + failure);
      } finally {
         synchronized (this) {
            _delivering.remove(Thread.currentThread());
            notifyAll();
         }
      }
   }

   /** False if the thread was interrupted. */
   private boolean waitNanos(long nanos) {
      try {
         wait(nanos / 1000000, (int) (nanos % 1000000));
         return true;
      } catch (InterruptedException interrupted) {
         Thread.currentThread().interrupt();
         return false;
      }
   }

   /** Neither a number below zero nor none at all is a time to wait. */
   private static long nanos(double seconds) {
      return seconds > 0 ? (long) (Math.min(seconds, LONG_ENOUGH_SECONDS) * 1e9) : 0;
   }
}
