// Writes the frame of a callback: a magic number, the ambassador's handle, the fields, and another
// magic number. All integers are big-endian.
package skerry.tarn1516e.standin;

import java.io.ByteArrayOutputStream;
import java.util.List;
import java.util.Map;
import java.util.Set;

final class FrameWriter {
   private static final int PRE_MAGIC = 0x63626160;
   private static final int POST_MAGIC = 0x59585756;

   private final ByteArrayOutputStream _frame = new ByteArrayOutputStream(64);

   FrameWriter(int handle) {
      integer(PRE_MAGIC).integer(handle);
   }

   byte[] finish() {
      return integer(POST_MAGIC)._frame.toByteArray();
   }

   FrameWriter integer(int value) {
      _frame.write(value >> 24);
      _frame.write(value >> 16);
      _frame.write(value >> 8);
      _frame.write(value);
      return this;
   }

   FrameWriter string(String text) {
      integer(text.length());
      for (char unit : text.toCharArray()) {
         _frame.write(unit >> 8);
         _frame.write(unit);
      }
      return this;
   }

   FrameWriter stringSet(Set<String> texts) {
      integer(texts.size());
      texts.forEach(this::string);
      return this;
   }

   FrameWriter bytes(byte[] data) {
      integer(data.length);
      _frame.write(data, 0, data.length);
      return this;
   }

   FrameWriter integers(Set<Integer> values) {
      integer(values.size());
      values.forEach(this::integer);
      return this;
   }

   FrameWriter values(Map<Integer, byte[]> values) {
      integer(values.size());
      values.forEach((handle, value) -> integer(handle).bytes(value));
      return this;
   }

   /** Pairs and triples of handles and codes. */
   FrameWriter records(List<int[]> records) {
      integer(records.size());
      for (int[] record : records) {
         for (int field : record) {
            integer(field);
         }
      }
      return this;
   }

   FrameWriter namePairs(List<String[]> pairs) {
      integer(pairs.size());
      pairs.forEach(pair -> string(pair[0]).string(pair[1]));
      return this;
   }

   /** No length field: the reader knows the length from the type. */
   FrameWriter time(byte[] encoded) {
      _frame.write(encoded, 0, encoded.length);
      return this;
   }

   /** A number, and an opaque part that is empty here. */
   FrameWriter retraction(int id) {
      return integer(id).integer(0);
   }

   /** The flags first, then what is there: for reflections and receptions. */
   FrameWriter supplement(Supplement info) {
      integer(info.producer != 0 ? 1 : 0).integer(info.regions != null ? 1 : 0);
      if (info.producer != 0) {
         integer(info.producer);
      }
      return info.regions != null ? integers(info.regions) : this;
   }

   /** The same for removals, which know no regions. */
   FrameWriter producer(Supplement info) {
      integer(info.producer != 0 ? 1 : 0);
      return info.producer != 0 ? integer(info.producer) : this;
   }
}
