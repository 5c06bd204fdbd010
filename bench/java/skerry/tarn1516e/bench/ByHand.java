// What the benchmarks need in Java: loops that fire natives, and the Java end of bindings written
// by hand.
package skerry.tarn1516e.bench;

import hla.rti1516e.exceptions.FederateInternalError;
import skerry.tarn1516e.FederateAmbassadorC2007;

public final class ByHand {
   private static final FederateAmbassadorC2007 LIBRARY = new FederateAmbassadorC2007();
   private static final ByHand BY_HAND = new ByHand();

   /** Takes the frame, copies its values into a map of byte vectors and makes a virtual call. */
   public native void reflectAttributeValues(byte[] frame);

   /** Pins the frame and releases it. */
   public native void pinAndRelease(byte[] frame);

   /** The Java end of a binding with an array for each value. */
   public void updateAttributeValues(int object, int[] attributes, byte[][] values, byte[] tag) {}

   // One loop for each native, so that the compiler sees one callee in each.

   public static void fireReflectAttributeValues(byte[] frame, int times)
         throws FederateInternalError {
      for (int i = 0; i < times; ++i) {
         LIBRARY.reflectAttributeValues_OIH_AHVM_BX_OT_TTH_FASRI_Native(frame);
      }
   }

   public static void fireTimeAdvanceGrant(byte[] frame, int times) throws FederateInternalError {
      for (int i = 0; i < times; ++i) {
         LIBRARY.timeAdvanceGrant_LT_Native(frame);
      }
   }

   public static void fireFederationSaved(byte[] frame, int times) throws FederateInternalError {
      for (int i = 0; i < times; ++i) {
         LIBRARY.federationSaved_Native(frame);
      }
   }

   public static void fireReflectByHand(byte[] frame, int times) {
      for (int i = 0; i < times; ++i) {
         BY_HAND.reflectAttributeValues(frame);
      }
   }

   // The frames in turn.

   public static void fireReflectAttributeValuesInTurn(byte[][] frames, int times)
         throws FederateInternalError {
      for (int i = 0; i < times; ++i) {
         LIBRARY.reflectAttributeValues_OIH_AHVM_BX_OT_TTH_FASRI_Native(frames[i % frames.length]);
      }
   }

   public static void fireReflectByHandInTurn(byte[][] frames, int times) {
      for (int i = 0; i < times; ++i) {
         BY_HAND.reflectAttributeValues(frames[i % frames.length]);
      }
   }

   public static void firePinAndRelease(byte[] frame, int times) {
      for (int i = 0; i < times; ++i) {
         BY_HAND.pinAndRelease(frame);
      }
   }
}
