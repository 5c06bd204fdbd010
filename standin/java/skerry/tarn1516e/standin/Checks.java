// Finds what a handle stands for, or throws the exception for a wrong one.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.Collection;
import java.util.HashSet;
import java.util.List;
import java.util.Set;

final class Checks {
   private Checks() {}

   static Fom.ObjectClass objectClass(Member member, int handle) throws ObjectClassNotDefined {
      Fom.ObjectClass found = member.federation().fom().objectClasses.get(handle);
      if (found == null) {
         throw new ObjectClassNotDefined("no object class has the handle " + handle);
      }
      return found;
   }

   static Fom.ObjectClass objectClass(Member member, int handle, Collection<Integer> attributes)
         throws ObjectClassNotDefined, AttributeNotDefined {
      Fom.ObjectClass found = objectClass(member, handle);
      for (int attribute : attributes) {
         if (!found.attributes.containsKey(attribute)) {
            throw new AttributeNotDefined(
                  "the class " + found.name + " has no attribute with the handle " + attribute);
         }
      }
      return found;
   }

   static Fom.InteractionClass interaction(Member member, int handle)
         throws InteractionClassNotDefined {
      Fom.InteractionClass found = member.federation().fom().interactionClasses.get(handle);
      if (found == null) {
         throw new InteractionClassNotDefined("no interaction class has the handle " + handle);
      }
      return found;
   }

   static Fom.InteractionClass publishedInteraction(Member member, int handle)
         throws InteractionClassNotDefined, InteractionClassNotPublished {
      Fom.InteractionClass found = interaction(member, handle);
      if (!member.declarations().publishedInteractions.contains(handle)) {
         throw new InteractionClassNotPublished("the federate does not publish " + found.name);
      }
      return found;
   }

   /** Reports of service calls don't go to the federate whose calls they tell. */
   static void mayGetReports(Member member, Fom.InteractionClass subscribed)
         throws FederateServiceInvocationsAreBeingReportedViaMOM {
      if (subscribed.name.equals(Mim.SERVICE_INVOCATION) && member.isReportingServices()) {
         throw new FederateServiceInvocationsAreBeingReportedViaMOM(
               "the federate's own service calls are being reported");
      }
   }

   /** An instance that the member knows. */
   static ObjectInstance instance(Member member, int handle) throws ObjectInstanceNotKnown {
      ObjectInstance found = member.federation().instances.get(handle);
      if (found == null || !found.knownAs.containsKey(member)) {
         throw new ObjectInstanceNotKnown("no instance known has the handle " + handle);
      }
      return found;
   }

   static ObjectInstance instance(Member member, int handle, Collection<Integer> attributes)
         throws ObjectInstanceNotKnown, AttributeNotDefined {
      ObjectInstance found = instance(member, handle);
      Fom fom = member.federation().fom();
      Fom.ObjectClass known = fom.objectClasses.get(found.knownAs.get(member));
      for (int attribute : attributes) {
         if (!known.attributes.containsKey(attribute)) {
            throw new AttributeNotDefined(
                  found.name + " has no attribute with the handle " + attribute);
         }
      }
      return found;
   }

   static ObjectInstance ownInstance(Member member, int handle, Collection<Integer> attributes)
         throws ObjectInstanceNotKnown, AttributeNotDefined, AttributeNotOwned {
      ObjectInstance found = instance(member, handle, attributes);
      for (int attribute : attributes) {
         if (!found.isOwned(attribute, member)) {
            throw new AttributeNotOwned(
                  "the federate does not own the attribute " + attribute + " of " + found.name);
         }
      }
      return found;
   }

   static void transportation(Member member, int handle) throws InvalidTransportationType {
      if (member.federation().fom().transportationName(handle) == null) {
         throw new InvalidTransportationType("no transportation has the handle " + handle);
      }
   }

   static void updateRate(Member member, String designator) throws InvalidUpdateRateDesignator {
      if (!designator.isEmpty()
            && !member.federation().fom().updateRates.containsKey(designator)) {
         throw new InvalidUpdateRateDesignator("no update rate has the name " + designator);
      }
   }

   static Region region(Member member, int handle) throws InvalidRegion {
      Region found = member.federation().regions.get(handle);
      if (found == null) {
         throw new InvalidRegion("no region has the handle " + handle);
      }
      return found;
   }

   static Region ownRegion(Member member, int handle)
         throws InvalidRegion, RegionNotCreatedByThisFederate {
      Region found = region(member, handle);
      if (found.creator != member) {
         throw new RegionNotCreatedByThisFederate("another federate made the region " + handle);
      }
      return found;
   }

   static Set<Region> ownRegions(Member member, Collection<Integer> handles)
         throws InvalidRegion, RegionNotCreatedByThisFederate {
      Set<Region> found = new HashSet<>();
      for (int handle : handles) {
         found.add(ownRegion(member, handle));
      }
      return found;
   }

   /** The regions may have no dimension that is not available to what they are used for. */
   static void context(Collection<Region> regions, Set<Integer> available)
         throws InvalidRegionContext {
      for (Region region : regions) {
         if (!available.containsAll(region.ranges.keySet())) {
            throw new InvalidRegionContext(
                  "the region " + region.handle + " has a dimension that is not available");
         }
      }
   }

   /** All regions of the pairs, each with the attributes that it is for. */
   static void context(Member member, Fom.ObjectClass objectClass, List<AttributeRegions> pairs)
         throws InvalidRegion, RegionNotCreatedByThisFederate, InvalidRegionContext {
      for (AttributeRegions pair : pairs) {
         Set<Region> regions = ownRegions(member, pair.regions);
         for (int attribute : pair.attributes) {
            context(regions, objectClass.attributes.get(attribute).dimensions);
         }
      }
   }

   static Set<Integer> attributesOf(List<AttributeRegions> pairs) {
      Set<Integer> all = new HashSet<>();
      pairs.forEach(pair -> all.addAll(pair.attributes));
      return all;
   }
}
