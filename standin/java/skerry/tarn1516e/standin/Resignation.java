// What a member's resignation does to what it owns and what it wants to own.
package skerry.tarn1516e.standin;

import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

final class Resignation {
   static final int UNCONDITIONALLY_DIVEST_ATTRIBUTES = 0;
   static final int DELETE_OBJECTS = 1;
   static final int CANCEL_PENDING_OWNERSHIP_ACQUISITIONS = 2;
   static final int DELETE_OBJECTS_THEN_DIVEST = 3;
   static final int CANCEL_THEN_DELETE_THEN_DIVEST = 4;
   static final int NO_ACTION = 5;

   /** In an object model, by their codes. */
   static final List<String> NAMES = Arrays.asList("UnconditionallyDivestAttributes",
         "DeleteObjects", "CancelPendingOwnershipAcquisitions", "DeleteObjectsThenDivest",
         "CancelThenDeleteThenDivest", "NoAction");

   private final Member _member;

   Resignation(Member member) {
      _member = member;
   }

   static boolean isAction(int code) {
      return code >= UNCONDITIONALLY_DIVEST_ATTRIBUTES && code <= NO_ACTION;
   }

   static boolean cancels(int action) {
      return action == CANCEL_PENDING_OWNERSHIP_ACQUISITIONS
            || action == CANCEL_THEN_DELETE_THEN_DIVEST;
   }

   private static boolean deletes(int action) {
      return action == DELETE_OBJECTS || action == DELETE_OBJECTS_THEN_DIVEST
            || action == CANCEL_THEN_DELETE_THEN_DIVEST;
   }

   private static boolean divests(int action) {
      return action == UNCONDITIONALLY_DIVEST_ATTRIBUTES || action == DELETE_OBJECTS_THEN_DIVEST
            || action == CANCEL_THEN_DELETE_THEN_DIVEST;
   }

   boolean isAcquiring() {
      return _member.federation().instances.values().stream().anyMatch(
            instance -> !instance.acquiredBy(_member).isEmpty());
   }

   /** Whether the member would still own something after the action. */
   boolean leavesOwned(int action) {
      int privilege = _member.federation().fom().privilegeToDelete();
      return !divests(action)
            && _member.federation().instances.values().stream().anyMatch(
                  instance -> !instance.ownedBy(_member).isEmpty()
                        && !(deletes(action) && instance.isOwned(privilege, _member)));
   }

   /** What the action leaves to the member, as when its connection breaks, is divested too. */
   void act(int action) {
      Federation federation = _member.federation();
      int privilege = federation.fom().privilegeToDelete();
      for (ObjectInstance instance : new ArrayList<>(federation.instances.values())) {
         instance.attributes.values().forEach(attribute -> attribute.acquirers.remove(_member));
         if (deletes(action) && instance.isOwned(privilege, _member)) {
            ObjectService.delete(_member, instance, new byte[0], null);
         } else if (!instance.ownedBy(_member).isEmpty()) {
            Ownership.release(instance, instance.ownedBy(_member), federation);
            federation.changed(instance);
         }
      }
   }
}
