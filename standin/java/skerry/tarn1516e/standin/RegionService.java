// Regions, and what is sent and subscribed over them.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeSet;

final class RegionService implements DataDistributionManagement {
   private final Loopback _loopback;

   RegionService(Loopback loopback) {
      _loopback = loopback;
   }

   @Override
   public int createRegion(Set<Integer> dimensions) throws RTIexception {
      Member member = _loopback.workingMember();
      Federation federation = member.federation();
      if (!federation.fom().dimensions.keySet().containsAll(dimensions)) {
         throw new InvalidDimensionHandle("there is no dimension with one of the handles");
      }
      Region made = new Region(federation.nextRegionHandle(), member, dimensions);
      federation.regions.put(made.handle, made);
      return made.handle;
   }

   @Override
   public void commitRegionModifications(Set<Integer> regions) throws RTIexception {
      Member member = _loopback.workingMember();
      for (Region region : Checks.ownRegions(member, regions)) {
         region.commit();
         member.federation().moved(region);
      }
   }

   @Override
   public void deleteRegion(int handle) throws RTIexception {
      Member member = _loopback.workingMember();
      Region region = Checks.ownRegion(member, handle);
      if (member.declarations().usesRegion(region)
            || region.associated.stream().anyMatch(each -> each.uses(region))) {
         throw new RegionInUseForUpdateOrSubscription("the region " + handle + " is in use");
      }
      member.federation().regions.remove(handle);
   }

   @Override
   public int registerObjectInstanceWithRegions(int objectClass, List<AttributeRegions> pairs)
         throws RTIexception {
      return register(objectClass, pairs, null);
   }

   @Override
   public int registerObjectInstanceWithRegions(
         int objectClass, List<AttributeRegions> pairs, String name) throws RTIexception {
      return register(objectClass, pairs, name);
   }

   private int register(int objectClass, List<AttributeRegions> pairs, String name)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Set<Integer> attributes = Checks.attributesOf(pairs);
      Fom.ObjectClass found = Checks.objectClass(member, objectClass, attributes);
      Checks.context(member, found, pairs);
      boolean isPublished = member.declarations().published.containsKey(objectClass);
      for (int attribute : attributes) {
         if (isPublished && !member.declarations().publishes(objectClass, attribute)) {
            throw new AttributeNotPublished("the attribute " + attribute + " is not published");
         }
      }
      ObjectInstance instance = ObjectService.make(member, objectClass, name);
      associate(member, instance, pairs);
      member.federation().changed(instance);
      return instance.handle;
   }

   private static void associate(
         Member member, ObjectInstance instance, List<AttributeRegions> pairs)
         throws RTIexception {
      for (AttributeRegions pair : pairs) {
         Set<Region> regions = Checks.ownRegions(member, pair.regions);
         regions.forEach(region -> region.associated.add(instance));
         for (int attribute : pair.attributes) {
            if (instance.isOwned(attribute, member)) {
               instance.attributes.get(attribute).regions.addAll(regions);
            }
         }
      }
   }

   /** Regions count for what the federate owns. */
   @Override
   public void associateRegionsForUpdates(int object, List<AttributeRegions> pairs)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.instance(member, object, Checks.attributesOf(pairs));
      Checks.context(
            member, member.federation().fom().objectClasses.get(instance.objectClass), pairs);
      associate(member, instance, pairs);
      member.federation().changed(instance);
   }

   @Override
   public void unassociateRegionsForUpdates(int object, List<AttributeRegions> pairs)
         throws RTIexception {
      Member member = _loopback.workingMember();
      ObjectInstance instance = Checks.instance(member, object, Checks.attributesOf(pairs));
      for (AttributeRegions pair : pairs) {
         Set<Region> regions = Checks.ownRegions(member, pair.regions);
         for (int attribute : pair.attributes) {
            instance.attributes.get(attribute).regions.removeAll(regions);
         }
      }
      member.federation().changed(instance);
   }

   /** A pair without regions subscribes over the whole space. */
   @Override
   public void subscribeObjectClassAttributesWithRegions(
         int objectClass, List<AttributeRegions> pairs, boolean isActive, String updateRate)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.ObjectClass found =
            Checks.objectClass(member, objectClass, Checks.attributesOf(pairs));
      Checks.updateRate(member, updateRate);
      Checks.context(member, found, pairs);
      Interest.Subscription made = new Interest.Subscription(isActive, updateRate);
      for (AttributeRegions pair : pairs) {
         Set<Region> regions = Checks.ownRegions(member, pair.regions);
         for (int attribute : pair.attributes) {
            Interest interest = member.declarations().makeInterest(objectClass, attribute);
            if (regions.isEmpty()) {
               interest.subscribe(made);
            }
            interest.subscribe(made, regions);
         }
      }
      member.federation().subscribed(member, found);
   }

   @Override
   public void unsubscribeObjectClassAttributesWithRegions(
         int objectClass, List<AttributeRegions> pairs) throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.ObjectClass found =
            Checks.objectClass(member, objectClass, Checks.attributesOf(pairs));
      for (AttributeRegions pair : pairs) {
         Set<Region> regions = Checks.ownRegions(member, pair.regions);
         for (int attribute : pair.attributes) {
            member.declarations().makeInterest(objectClass, attribute).unsubscribe(regions);
         }
      }
      member.declarations().dropEmptyInterests();
      member.federation().subscribed(member, found);
   }

   @Override
   public void subscribeInteractionClassWithRegions(
         int interaction, boolean isActive, Set<Integer> handles) throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.InteractionClass found = Checks.interaction(member, interaction);
      Checks.mayGetReports(member, found);
      member.declarations().makeInterest(interaction).subscribe(
            new Interest.Subscription(isActive, ""), checkRegions(member, found, handles));
      member.declarations().dropEmptyInterests();
      member.federation().advisories().subscribed(found);
   }

   private static Set<Region> checkRegions(
         Member member, Fom.InteractionClass interaction, Set<Integer> handles)
         throws RTIexception {
      Set<Region> regions = Checks.ownRegions(member, handles);
      Checks.context(regions, interaction.dimensions);
      return regions;
   }

   @Override
   public void unsubscribeInteractionClassWithRegions(int interaction, Set<Integer> handles)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.InteractionClass found = Checks.interaction(member, interaction);
      member.declarations().makeInterest(interaction)
            .unsubscribe(Checks.ownRegions(member, handles));
      member.declarations().dropEmptyInterests();
      member.federation().advisories().subscribed(found);
   }

   @Override
   public void sendInteractionWithRegions(
         int interaction, Map<Integer, byte[]> values, Set<Integer> handles, byte[] tag)
         throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.InteractionClass sent = ObjectService.checkSent(member, interaction, values);
      Set<Region> regions = checkRegions(member, sent, handles);
      new Traffic(member, null).interact(sent, values, regions, tag);
   }

   @Override
   public byte[] sendInteractionWithRegions(int interaction, Map<Integer, byte[]> values,
         Set<Integer> handles, byte[] tag, byte[] time) throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.InteractionClass sent = ObjectService.checkSent(member, interaction, values);
      Set<Region> regions = checkRegions(member, sent, handles);
      Traffic traffic = new Traffic(member, Traffic.checkTime(member, time));
      traffic.interact(sent, values, regions, tag);
      return traffic.retractionHandle();
   }

   /** Owners are asked for what would reach a subscription over the regions. */
   @Override
   public void requestAttributeValueUpdateWithRegions(
         int objectClass, List<AttributeRegions> pairs, byte[] tag) throws RTIexception {
      Member member = _loopback.workingMember();
      Fom.ObjectClass wanted =
            Checks.objectClass(member, objectClass, Checks.attributesOf(pairs));
      Checks.context(member, wanted, pairs);
      Federation federation = member.federation();
      for (AttributeRegions pair : pairs) {
         Interest interest = new Interest();
         Interest.Subscription asked = new Interest.Subscription(true, "");
         interest.subscribe(asked, Checks.ownRegions(member, pair.regions));
         if (pair.regions.isEmpty()) {
            interest.subscribe(asked);
         }
         for (ObjectInstance instance : federation.instancesOf(wanted)) {
            Set<Integer> reached = new TreeSet<>(pair.attributes);
            reached.removeIf(attribute -> !instance.reaches(attribute, member, interest));
            ObjectService.requestUpdate(member, instance, reached, tag);
         }
      }
   }
}
