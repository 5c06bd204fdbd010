// What the trials of the loopback share: federates whose callbacks are caught in place of the
// natives, and comparisons that end the program when something differs.
package skerry.tarn1516e.standin;

import java.nio.ByteBuffer;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Collections;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.function.Supplier;

final class Trial {
   static final int EVOKED = 1;
   static final int IMMEDIATE = 2;

   private static final Map<Integer, Federate> FEDERATES = new HashMap<>();

   private static int _handles;

   private Trial() {}

   /** An ambassador with the callbacks that it has got. */
   static final class Federate {
      final Loopback rti = new Loopback(Collections.emptyList());
      final List<String> got = Collections.synchronizedList(new ArrayList<>());

      Federate(int callbackModel) throws Exception {
         int handle = ++_handles;
         FEDERATES.put(handle, this);
         rti.federation.connect(handle, callbackModel, "");
      }

      /** Lets the callbacks come, waits for as many, and compares all since the last time. */
      void expect(String... callbacks) throws Exception {
         while (rti.support.evokeCallback(0)) {
         }
         for (int tries = 0; tries < 100 && got.size() < callbacks.length; ++tries) {
            rti.support.evokeCallback(0.1);
         }
         same(Arrays.asList(callbacks), new ArrayList<>(got));
         got.clear();
      }
   }

   static void forget(Federate federate) {
      FEDERATES.values().removeIf(each -> each == federate);
   }

   static void catchCallbacks() {
      CallbackQueue.sink = (handle, nativeName, frame) -> {
         FEDERATES.get(handle).got.add(describe(handle, nativeName, frame));
      };
   }

   static void same(Object expected, Object found) {
      if (!expected.equals(found)) {
         throw new AssertionError("expected " + expected + "\n   found " + found);
      }
   }

   static byte[] time(long value) {
      return ByteBuffer.allocate(8).putLong(value).array();
   }

   /** A callback as text, read by the codes in the native's name: the operation and its fields.
       Tags are left out. */
   private static String describe(int handle, String nativeName, byte[] frame) {
      ByteBuffer in = ByteBuffer.wrap(frame);
      same(0x63626160, in.getInt());
      same(handle, in.getInt());
      String[] codes = nativeName.split("_");
      StringBuilder text = new StringBuilder(codes[0]);
      for (int i = 1; i < codes.length - 1; ++i) {
         String field = field(codes[0].startsWith("multiple") ? "SX" : codes[i],
               codes[0].startsWith("remove"), in);
         text.append(field.isEmpty() ? "" : " ").append(field);
      }
      same(0x59585756, in.getInt());
      same(0, in.remaining());
      return text.toString();
   }

   private static String field(String code, boolean isRemoval, ByteBuffer in) {
      switch (code) {
         case "S":
            return string(in);
         case "SX":
            return repeat(in, () -> string(in));
         case "FEIS":
            return repeat(in, () -> string(in) + ":" + string(in));
         case "BX":
            in.get(new byte[in.getInt()]);
            return "";
         case "AHS":
         case "FHS":
            return repeat(in, () -> "" + in.getInt());
         case "FHSSPX":
            return repeat(in, () -> in.getInt() + ":" + in.getInt());
         case "FRSX":
            return repeat(in, () -> in.getInt() + ":" + in.getInt() + ":" + in.getInt());
         case "AHVM":
         case "PHVM":
            return repeat(in, () -> in.getInt() + "=" + value(in));
         case "LT":
            return "@" + in.getLong();
         case "MRH":
            int id = in.getInt();
            same(0, in.getInt());
            return "#" + id;
         case "FASRI":
            return supplement(isRemoval, in);
         default:
            return "" + in.getInt();
      }
   }

   /** A single byte as a number; of more, those that are not 0, as letters where they are such. */
   private static String value(ByteBuffer in) {
      byte[] bytes = new byte[in.getInt()];
      in.get(bytes);
      StringBuilder text = new StringBuilder();
      for (byte each : bytes) {
         text.append(bytes.length == 1 ? "" + each : each == 0 ? ""
               : each >= ' ' ? "" + (char) each : "<" + each + ">");
      }
      return text.toString();
   }

   private static String supplement(boolean isRemoval, ByteBuffer in) {
      boolean hasProducer = in.getInt() != 0;
      boolean hasRegions = !isRemoval && in.getInt() != 0;
      String producer = hasProducer ? "from " + in.getInt() : "";
      return (producer + (hasRegions ? " over " + repeat(in, () -> "" + in.getInt()) : "")).trim();
   }

   private static String string(ByteBuffer in) {
      StringBuilder text = new StringBuilder();
      for (int count = in.getInt(); count > 0; --count) {
         text.append(in.getChar());
      }
      return text.toString();
   }

   private static String repeat(ByteBuffer in, Supplier<String> element) {
      List<String> all = new ArrayList<>();
      for (int count = in.getInt(); count > 0; --count) {
         all.add(element.get());
      }
      return all.toString();
   }
}
