// A logical time or an interval, of the type that the federation was made with: 8 bytes,
// big-endian, an IEEE double for HLAfloat64Time and a signed integer for every other type.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.CouldNotCreateLogicalTimeFactory;
import java.io.Serializable;
import java.nio.ByteBuffer;
import java.util.Arrays;

final class LogicalTime implements Comparable<LogicalTime>, Serializable {
   private static final long serialVersionUID = 1L;

   static final int ENCODED_SIZE = 8;
   static final String FLOAT_NAME = "HLAfloat64Time";

   private static final String INTEGER_NAME = "HLAinteger64Time";

   private final boolean _isFloat;
   private final long _bits;

   private LogicalTime(boolean isFloat, long bits) {
      _isFloat = isFloat;
      _bits = bits;
   }

   /** The standard's two types, and what the system property names: types that federates bring. An
       empty name stands for the standard's choice. */
   static void checkName(String name) throws CouldNotCreateLogicalTimeFactory {
      String further = System.getProperty("tarn.standin.times", "");
      if (!name.isEmpty() && !name.equals(FLOAT_NAME) && !name.equals(INTEGER_NAME)
            && !Arrays.asList(further.split("[, ]+")).contains(name)) {
         throw new CouldNotCreateLogicalTimeFactory("no time type has the name " + name
               + "; the system property tarn.standin.times lists further ones");
      }
   }

   static LogicalTime decode(String typeName, byte[] encoded) {
      return new LogicalTime(typeName.equals(FLOAT_NAME), ByteBuffer.wrap(encoded).getLong());
   }

   /** The initial time, and the interval of no length: both are all zeros. */
   static LogicalTime zero(String typeName) {
      return new LogicalTime(typeName.equals(FLOAT_NAME), 0);
   }

   byte[] encode() {
      return ByteBuffer.allocate(ENCODED_SIZE).putLong(_bits).array();
   }

   LogicalTime plus(LogicalTime interval) {
      if (_isFloat) {
         return new LogicalTime(true, Double.doubleToLongBits(real() + interval.real()));
      }
      return new LogicalTime(false, saturatedSum(_bits, interval._bits));
   }

   /** The interval from an earlier time. */
   LogicalTime since(LogicalTime earlier) {
      return _isFloat ? new LogicalTime(true, Double.doubleToLongBits(real() - earlier.real()))
                      : new LogicalTime(false, _bits - earlier._bits);
   }

   boolean isZero() {
      return _isFloat ? real() == 0 : _bits == 0;
   }

   boolean isNegative() {
      return _isFloat ? !(real() >= 0) : _bits < 0;
   }

   static LogicalTime earlier(LogicalTime a, LogicalTime b) {
      return a.compareTo(b) <= 0 ? a : b;
   }

   static LogicalTime later(LogicalTime a, LogicalTime b) {
      return a.compareTo(b) >= 0 ? a : b;
   }

   @Override
   public int compareTo(LogicalTime other) {
      return _isFloat ? Double.compare(real(), other.real()) : Long.compare(_bits, other._bits);
   }

   @Override
   public boolean equals(Object other) {
      return other instanceof LogicalTime && compareTo((LogicalTime) other) == 0;
   }

   @Override
   public int hashCode() {
      return _isFloat ? Double.hashCode(real()) : Long.hashCode(_bits);
   }

   @Override
   public String toString() {
      return _isFloat ? Double.toString(real()) : Long.toString(_bits);
   }

   /** Adding 0.0 makes a negative zero a positive one, so that both compare alike. */
   private double real() {
      return Double.longBitsToDouble(_bits) + 0.0;
   }

   /** A sum past the final time stays at the final time. */
   private static long saturatedSum(long a, long b) {
      long sum = a + b;
      return a > 0 && b > 0 && sum < 0 ? Long.MAX_VALUE : sum;
   }
}
