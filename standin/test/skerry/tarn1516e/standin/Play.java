// Plays scenes of federates in one program. A scene is a list of steps, each a line of text:
//    b connect           makes a federate; "b connect immediate", one of the immediate model
//    b join F x.xml      joins it, by its name, with further modules if any are told
//    a service Ship 5    calls a service; names stand for the handles that they were given
//    s = a service Ship  calls it and gives its answer a name
//    a service ? 5       compares its answer
//    a service ! Fault x is refused with that exception, and the words in its message
//    b: one | two        compares all callbacks since the last time, as Trial tells them
// Arguments: sets "Name,Position", values of one byte or of four "Name=5,Text=i6", attributes over
// regions "Position:r,q", ranges "0-100", times and tags "@5"; "-" is nothing. A "{s}" within a
// word is what s stands for.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.RTIexception;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.nio.ByteBuffer;
import java.util.Arrays;
import java.util.Collections;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.TreeMap;
import java.util.TreeSet;
import java.util.regex.Matcher;
import java.util.regex.Pattern;
import java.util.stream.Collectors;

final class Play {
   private static final Pattern NAME = Pattern.compile("\\{(\\w+)\\}|(?<![.\\w])[A-Za-z]\\w*");
   private static final Pattern CALL =
         Pattern.compile("(?:(\\w+) = )?(\\w+) (\\w+)((?: [^ ?!]\\S*)*)(?: ([?!]) (.*))?");
   private static final Pattern EXPECTED = Pattern.compile("(\\w+): ?(.*)");

   final Map<String, Trial.Federate> federates = new HashMap<>();
   final Map<String, String> known = new HashMap<>();

   Play act(String... steps) {
      for (String step : steps) {
         try {
            perform(step);
         } catch (Exception | AssertionError failure) {
            throw new AssertionError(step + "\n" + failure.getMessage(), failure);
         }
      }
      return this;
   }

   private void perform(String step) throws Exception {
      Matcher expected = EXPECTED.matcher(step);
      if (expected.matches()) {
         String all = replaced(expected.group(2));
         String[] callbacks = all.isEmpty() ? new String[0] : all.split(" \\| ");
         federates.get(expected.group(1)).expect(callbacks);
         return;
      }
      Matcher call = CALL.matcher(step);
      Trial.same(true, call.matches());
      String[] words = call.group(4).trim().split(" ");
      String[] arguments = words[0].isEmpty() ? new String[0] : words;
      String wanted = call.group(6);
      try {
         String answer = answer(call.group(2), call.group(3), arguments);
         Trial.same(false, "!".equals(call.group(5)));
         if (wanted != null && !wanted.equals(answer)) {
            Trial.same(replaced(wanted), answer);
         }
         known.put("" + call.group(1), answer);
      } catch (RTIexception refused) {
         String fault = refused.getClass().getSimpleName() + " " + refused.getMessage();
         for (String word : ("!".equals(call.group(5)) ? wanted : "to be done").split(" ")) {
            String part = word.startsWith("{") ? replaced(word) : word;
            Trial.same(fault.contains(part) ? fault : part, fault);
         }
      }
   }

   private String answer(String who, String service, String[] arguments) throws Exception {
      if (service.equals("connect") && arguments.length < 2) {
         federates.put(who,
               new Trial.Federate(arguments.length == 0 ? Trial.EVOKED : Trial.IMMEDIATE));
         return "";
      }
      Loopback rti = federates.get(who).rti;
      if (service.equals("join")) {
         return "" + rti.federation.joinFederationExecution(who.toUpperCase(),
               replaced(arguments[0]), texts(arguments).subList(1, arguments.length));
      }
      for (Object group : Arrays.asList(rti.federation, rti.declaration, rti.object,
                 rti.ownership, rti.time, rti.data, rti.support)) {
         for (Method method : group.getClass().getDeclaredMethods()) {
            if (method.getName().equals(service)
                  && method.getParameterCount() == arguments.length) {
               return called(group, method, arguments);
            }
         }
      }
      throw new IllegalArgumentException("there is no service " + service);
   }

   private String called(Object on, Method method, String[] words) throws Exception {
      Object[] arguments = new Object[words.length];
      for (int i = 0; i < words.length; ++i) {
         arguments[i] = argument(method.getGenericParameterTypes()[i].getTypeName(), words[i]);
      }
      try {
         method.setAccessible(true);
         Object answer = method.invoke(on, arguments);
         if (answer instanceof byte[]) {
            ByteBuffer bytes = ByteBuffer.wrap((byte[]) answer);
            return method.getName().startsWith("query") ? "@" + bytes.getLong()
                                                         : "" + bytes.getInt();
         }
         return answer instanceof int[] ? Arrays.toString((int[]) answer) : "" + answer;
      } catch (InvocationTargetException failure) {
         throw (Exception) failure.getCause();
      }
   }

   private Object argument(String type, String word) {
      String text = word.equals("-") ? "" : word;
      String[] parts = text.isEmpty() ? new String[0] : text.split(",");
      switch (type.replaceAll("\\b\\w+\\.", "")) {
         case "int":
            return number(text);
         case "double":
            return Double.parseDouble(text);
         case "boolean":
            return Boolean.parseBoolean(text);
         case "byte[]":
            return Trial.time(Long.parseLong(text.substring(1)));
         case "Range":
            String[] bounds = text.split("-");
            return new Range(Long.parseLong(bounds[0]), Long.parseLong(bounds[1]));
         case "Set<Integer>":
            return numbers(parts);
         case "Set<String>":
            return new TreeSet<>(Arrays.asList(parts));
         case "List<String>":
            return texts(parts);
         case "Map<Integer, byte[]>":
            Map<Integer, byte[]> values = new TreeMap<>();
            for (String part : parts) {
               String[] pair = part.split("=");
               values.put(number(pair[0]), pair[1].startsWith("i")
                     ? MomEncoder.of(Integer.parseInt(pair[1].substring(1)))
                     : new byte[] {Byte.parseByte(pair[1])});
            }
            return values;
         case "List<AttributeRegions>":
            String[] both = text.split(":", 2);
            return Collections.singletonList(
                  new AttributeRegions(numbers(both[0].split(",")), numbers(both[1].split(","))));
         default:
            return replaced(text);
      }
   }

   private int number(String word) {
      return Integer.parseInt(replaced(word));
   }

   private TreeSet<Integer> numbers(String[] words) {
      return Arrays.stream(words).map(this::number).collect(Collectors.toCollection(TreeSet::new));
   }

   private List<String> texts(String[] words) {
      return Arrays.stream(words).map(this::replaced).collect(Collectors.toList());
   }

   /** The text with the names in it as what they stand for. */
   private String replaced(String text) {
      Matcher name = NAME.matcher(text);
      StringBuffer all = new StringBuffer();
      while (name.find()) {
         String key = name.group(1) == null ? name.group() : name.group(1);
         name.appendReplacement(
               all, Matcher.quoteReplacement(known.getOrDefault(key, name.group())));
      }
      return name.appendTail(all).toString();
   }
}
