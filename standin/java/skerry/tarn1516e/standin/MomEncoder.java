// Values of the management object model in the standard's encodings: big-endian integers, arrays
// with a count in front, elements on boundaries of 4 bytes. Handles and times are arrays of bytes.
package skerry.tarn1516e.standin;

import java.io.ByteArrayOutputStream;
import java.nio.BufferUnderflowException;
import java.nio.ByteBuffer;
import java.util.Collection;

final class MomEncoder {
   private final ByteArrayOutputStream _value = new ByteArrayOutputStream();

   static byte[] of(int value) {
      return new MomEncoder().integer(value).finish();
   }

   static byte[] of(boolean value) {
      return of(value ? 1 : 0);
   }

   static byte[] of(String text) {
      return new MomEncoder().string(text).finish();
   }

   /** An empty array for a null. */
   static byte[] of(LogicalTime time) {
      return new MomEncoder().bytes(time == null ? new byte[0] : time.encode()).finish();
   }

   static byte[] ofHandle(int handle) {
      return new MomEncoder().handle(handle).finish();
   }

   static byte[] ofHandles(Collection<Integer> handles) {
      MomEncoder list = new MomEncoder().integer(handles.size());
      handles.forEach(list::handle);
      return list.finish();
   }

   static byte[] ofStrings(Collection<String> texts) {
      MomEncoder list = new MomEncoder().integer(texts.size());
      texts.forEach(list::string);
      return list.finish();
   }

   MomEncoder integer(int value) {
      pad();
      byte[] bytes = ByteBuffer.allocate(4).putInt(value).array();
      _value.write(bytes, 0, bytes.length);
      return this;
   }

   MomEncoder handle(int handle) {
      return bytes(ByteBuffer.allocate(4).putInt(handle).array());
   }

   private MomEncoder string(String text) {
      integer(text.length());
      for (char unit : text.toCharArray()) {
         _value.write(unit >> 8);
         _value.write(unit);
      }
      return this;
   }

   private MomEncoder bytes(byte[] data) {
      integer(data.length);
      _value.write(data, 0, data.length);
      return this;
   }

   private void pad() {
      while (_value.size() % 4 != 0) {
         _value.write(0);
      }
   }

   byte[] finish() {
      return _value.toByteArray();
   }

   /** An integer or a boolean; the alternative for what is none. */
   static int integer(byte[] value, int otherwise) {
      return value != null && value.length == 4 ? ByteBuffer.wrap(value).getInt() : otherwise;
   }

   /** A handle as an array of bytes, or as federates encode theirs; 0 for what is none. */
   static int handle(byte[] value) {
      try {
         ByteBuffer in = ByteBuffer.wrap(value == null ? new byte[0] : value);
         return value != null && value.length > 4 ? in.getInt(4) : in.getInt();
      } catch (BufferUnderflowException none) {
         return 0;
      }
   }
}
