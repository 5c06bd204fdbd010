// The script face: a test says what a method answers or throws, reads back what arrived, and fires
// natives with frames of its own. All methods may be called from any thread.
package skerry.tarn1516e.standin;

import java.util.ArrayDeque;
import java.util.ArrayList;
import java.util.Deque;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import skerry.tarn1516e.FederateAmbassadorC2007;

public final class Script {
   /** Whether services have to ask the script at all; all that an unscripted service costs. */
   public static volatile boolean isOn;

   /** What a method answers. The default is 0, false, null or "" by the method's type. */
   public static final class Answer {
      private static final Object NOTHING = new Object();
      private static final Answer DEFAULT = new Answer(NOTHING, null, true);

      private final Object _value;
      private final Throwable _thrown;
      private final boolean _always;

      private Answer(Object value, Throwable thrown, boolean always) {
         _value = value;
         _thrown = thrown;
         _always = always;
      }

      public int asInt() {
         return isDefault() ? 0 : (Integer) _value;
      }

      public long asLong() {
         return isDefault() ? 0 : (Long) _value;
      }

      public double asDouble() {
         return isDefault() ? 0 : (Double) _value;
      }

      public boolean asBoolean() {
         return !isDefault() && (Boolean) _value;
      }

      public String asString() {
         return isDefault() ? "" : (String) _value;
      }

      public byte[] asBytes() {
         return isDefault() ? null : (byte[]) _value;
      }

      public int[] asInts() {
         return isDefault() ? null : (int[]) _value;
      }

      public long[] asLongs() {
         return isDefault() ? null : (long[]) _value;
      }

      private boolean isDefault() {
         return _value == NOTHING;
      }
   }

   private static final Object LOCK = new Object();
   private static final FederateAmbassadorC2007 NATIVES = new FederateAmbassadorC2007();

   private static final Map<String, Deque<Answer>> _answers = new HashMap<>();
   private static final Map<String, byte[]> _lastBodies = new HashMap<>();
   private static final List<String> _callOrder = new ArrayList<>();
   private static volatile boolean _all;
   private static volatile boolean _isRecording;
   private static volatile boolean _hasAnswers;

   private Script() {}

   /** Forgets all answers and records, and turns recording and the script for all methods off. */
   public static void reset() {
      synchronized (LOCK) {
         _answers.clear();
         _hasAnswers = false;
         _all = false;
         _isRecording = false;
         forgetCalls();
         update();
      }
   }

   /** Whether methods without an answer of their own answer 0, null, "" or false; if not, they go
       to the loopback. */
   public static void scriptAll(boolean on) {
      synchronized (LOCK) {
         _all = on;
         update();
      }
   }

   /** Whether calls, and of each method the last body, are kept. */
   public static void record(boolean on) {
      synchronized (LOCK) {
         _isRecording = on;
         update();
      }
   }

   /** Forgets the calls recorded so far; answers stay. */
   public static void forgetCalls() {
      synchronized (LOCK) {
         _lastBodies.clear();
         _callOrder.clear();
      }
   }

   // What a method answers: at its next call, behind the answers given before; or, with `always`,
   // from then on.

   public static void answerInt(String method, int value, boolean always) {
      add(method, new Answer(value, null, always));
   }

   public static void answerLong(String method, long value, boolean always) {
      add(method, new Answer(value, null, always));
   }

   public static void answerDouble(String method, double value, boolean always) {
      add(method, new Answer(value, null, always));
   }

   public static void answerBoolean(String method, boolean value, boolean always) {
      add(method, new Answer(value, null, always));
   }

   public static void answerString(String method, String value, boolean always) {
      add(method, new Answer(value, null, always));
   }

   public static void answerBytes(String method, byte[] value, boolean always) {
      add(method, new Answer(value, null, always));
   }

   public static void answerInts(String method, int[] value, boolean always) {
      add(method, new Answer(value, null, always));
   }

   public static void answerLongs(String method, long[] value, boolean always) {
      add(method, new Answer(value, null, always));
   }

   /** Answers 0, null, "" or false; the one for void methods. */
   public static void answerDefault(String method, boolean always) {
      add(method, new Answer(Answer.NOTHING, null, always));
   }

   /** Throws an exception of the class, which has a constructor from a message or else one from
       nothing. The message may be null. The class may be told with dots or with slashes. */
   public static void answerThrow(
         String method, String className, String message, boolean always) {
      add(method, new Answer(null, makeThrowable(className, message), always));
   }

   /** The body of the last recorded call; null if the method has none or there was no call. */
   public static byte[] lastBody(String method) {
      synchronized (LOCK) {
         return _lastBodies.get(method);
      }
   }

   /** How many calls of any method were recorded. */
   public static int totalCalls() {
      synchronized (LOCK) {
         return _callOrder.size();
      }
   }

   /** The name of the recorded call of that number, counted from 0; null if there was none. */
   public static String calledMethod(int index) {
      synchronized (LOCK) {
         return index < 0 || index >= _callOrder.size() ? null : _callOrder.get(index);
      }
   }

   /** Calls a native on this thread. The answer is null, or the class of what it threw, a line feed
       and the message. */
   public static String fire(String nativeName, byte[] frame) {
      NativeTable.Native called = NativeTable.find(nativeName);
      try {
         called.call(NATIVES, frame);
         return null;
      } catch (Throwable thrown) {
         return thrown.getClass().getName() + "\n" + thrown.getMessage();
      }
   }

   /** As `fire`, but on a new Java thread; waits for its end. */
   public static String fireOnNewThread(String nativeName, byte[] frame)
         throws InterruptedException {
      String[] answer = new String[1];
      Thread thread = new Thread(() -> answer[0] = fire(nativeName, frame), "tarn-standin-fire");
      thread.start();
      thread.join();
      return answer[0];
   }

   /** Breaks the connection of the ambassador with that handle: it leaves its federation, and gets
       `connectionLost`. False if no connection has the handle. */
   public static boolean loseConnection(int handle, String faultDescription) {
      return Connection.lose(handle, faultDescription);
   }

   /** Ends all federations of the VM at once: their federates are no members any more and get no
       callback of it. Connections stay. */
   public static void forgetFederations() {
      synchronized (Loopback.LOCK) {
         Connection.leaveAll();
         Federation.ALL.clear();
      }
   }

   /** What the method answers now, thrown if it is an exception; null if the loopback is to answer.
       Called by services. */
   public static Answer answer(String method, byte[] body) {
      if (!_isRecording && !_hasAnswers) {
         return _all ? Answer.DEFAULT : null;
      }
      Answer answer;
      synchronized (LOCK) {
         if (_isRecording) {
            _lastBodies.put(method, body);
            _callOrder.add(method);
         }
         answer = next(method);
      }
      if (answer != null && answer._thrown != null) {
         answer._thrown.fillInStackTrace();
         Script.<RuntimeException>raise(answer._thrown);
      }
      return answer;
   }

   private static Answer next(String method) {
      Deque<Answer> waiting = _answers.get(method);
      if (waiting == null) {
         return _all ? Answer.DEFAULT : null;
      }
      Answer answer = waiting.peekFirst();
      if (!answer._always) {
         waiting.removeFirst();
         if (waiting.isEmpty()) {
            _answers.remove(method);
            _hasAnswers = !_answers.isEmpty();
            update();
         }
      }
      return answer;
   }

   private static void add(String method, Answer answer) {
      synchronized (LOCK) {
         Deque<Answer> waiting = _answers.computeIfAbsent(method, name -> new ArrayDeque<>());
         if (!waiting.isEmpty() && waiting.peekLast()._always) {
            waiting.removeLast();
         }
         waiting.addLast(answer);
         _hasAnswers = true;
         update();
      }
   }

   private static void update() {
      isOn = _all || _isRecording || _hasAnswers;
   }

   private static Throwable makeThrowable(String className, String message) {
      try {
         Class<?> thrown = Class.forName(className.replace('/', '.'));
         try {
            return (Throwable) thrown.getConstructor(String.class).newInstance(message);
         } catch (NoSuchMethodException noMessage) {
            return (Throwable) thrown.getConstructor().newInstance();
         }
      } catch (ReflectiveOperationException failure) {
         throw new IllegalArgumentException("cannot make a " + className, failure);
      }
   }

   /** Throws what the compiler would want declared. */
   @SuppressWarnings("unchecked")
   private static <T extends Throwable> void raise(Throwable thrown) throws T {
      throw (T) thrown;
   }
}
