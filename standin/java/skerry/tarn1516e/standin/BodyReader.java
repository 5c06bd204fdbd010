// Reads the fields of a service's body in their order. All integers are big-endian. What stands
// behind the last field is surplus and of no meaning.
package skerry.tarn1516e.standin;

import java.nio.ByteBuffer;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;

public final class BodyReader {
   private final ByteBuffer _body;

   public BodyReader(byte[] body) {
      _body = ByteBuffer.wrap(body);
   }

   public int integer() {
      return _body.getInt();
   }

   public boolean flag() {
      return integer() != 0;
   }

   public double real() {
      return _body.getDouble();
   }

   /** A count and that many UTF-16 units. */
   public String string() {
      char[] units = new char[integer()];
      for (int i = 0; i < units.length; ++i) {
         units[i] = _body.getChar();
      }
      return new String(units);
   }

   public List<String> strings() {
      List<String> read = new ArrayList<>();
      for (int count = integer(); count > 0; --count) {
         read.add(string());
      }
      return read;
   }

   public Set<String> stringSet() {
      return new TreeSet<>(strings());
   }

   /** A size and that many bytes. */
   public byte[] bytes() {
      byte[] read = new byte[integer()];
      _body.get(read);
      return read;
   }

   public Set<Integer> integers() {
      Set<Integer> read = new TreeSet<>();
      for (int count = integer(); count > 0; --count) {
         read.add(integer());
      }
      return read;
   }

   /** A count, and for each entry a handle and a value. */
   public Map<Integer, byte[]> values() {
      Map<Integer, byte[]> read = new TreeMap<>();
      for (int count = integer(); count > 0; --count) {
         int handle = integer();
         read.put(handle, bytes());
      }
      return read;
   }

   public List<AttributeRegions> attributeRegions() {
      List<AttributeRegions> read = new ArrayList<>();
      for (int count = integer(); count > 0; --count) {
         Set<Integer> attributes = integers();
         read.add(new AttributeRegions(attributes, integers()));
      }
      return read;
   }

   public Range range() {
      long lower = _body.getLong();
      return new Range(lower, _body.getLong());
   }

   /** A time or an interval has no length field: it is 8 bytes whatever its type. */
   public byte[] time() {
      byte[] read = new byte[LogicalTime.ENCODED_SIZE];
      _body.get(read);
      return read;
   }

   /** The number of a message; the bytes behind it are not used here. */
   public int retraction() {
      int id = integer();
      bytes();
      return id;
   }
}
