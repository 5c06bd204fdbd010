// Names and handles, bounds, switches, and the evocation of callbacks.
package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.*;
import java.util.Collection;
import java.util.Collections;

final class SupportService implements SupportServices {
   private static final int LAST_SERVICE_GROUP = 7;

   private final Loopback _loopback;

   SupportService(Loopback loopback) {
      _loopback = loopback;
   }

   static int[] array(Collection<Integer> values) {
      return values.stream().mapToInt(Integer::intValue).toArray();
   }

   private Fom fom() throws RTIexception {
      return _loopback.member().federation().fom();
   }

   @Override
   public int getAutomaticResignDirective() throws RTIexception {
      return _loopback.member().resignDirective;
   }

   @Override
   public void setAutomaticResignDirective(int action) throws RTIexception {
      Member member = _loopback.member();
      if (!Resignation.isAction(action)) {
         throw new InvalidResignAction("no resign action has the code " + action);
      }
      member.resignDirective = action;
   }

   @Override
   public int getFederateHandle(String name) throws RTIexception {
      Member found = _loopback.member().federation().memberNamed(name);
      if (found == null) {
         throw new NameNotFound("no federate has the name " + name);
      }
      return found.handle();
   }

   @Override
   public String getFederateName(int federate) throws RTIexception {
      checkFederate(federate);
      Member found = _loopback.member().federation().member(federate);
      if (found == null) {
         throw new FederateHandleNotKnown("the federate " + federate + " has resigned");
      }
      return found.name();
   }

   private void checkFederate(int federate) throws RTIexception {
      if (!_loopback.member().federation().hasIssued(federate)) {
         throw new InvalidFederateHandle("no federate has the handle " + federate);
      }
   }

   @Override
   public int getObjectClassHandle(String name) throws RTIexception {
      Fom.ObjectClass found = fom().objectClass(name);
      if (found == null) {
         throw new NameNotFound("no object class has the name " + name);
      }
      return found.handle;
   }

   @Override
   public String getObjectClassName(int objectClass) throws RTIexception {
      return objectClass(objectClass).name;
   }

   private Fom.ObjectClass objectClass(int handle) throws RTIexception {
      Fom.ObjectClass found = fom().objectClasses.get(handle);
      if (found == null) {
         throw new InvalidObjectClassHandle("no object class has the handle " + handle);
      }
      return found;
   }

   @Override
   public int getKnownObjectClassHandle(int object) throws RTIexception {
      Member member = _loopback.member();
      return Checks.instance(member, object).knownAs.get(member);
   }

   @Override
   public int getObjectInstanceHandle(String name) throws RTIexception {
      Member member = _loopback.member();
      ObjectInstance found = member.federation().instanceNamed(name);
      if (found == null || !found.isKnownTo(member)) {
         throw new ObjectInstanceNotKnown("no instance known has the name " + name);
      }
      return found.handle;
   }

   @Override
   public String getObjectInstanceName(int object) throws RTIexception {
      return Checks.instance(_loopback.member(), object).name;
   }

   @Override
   public int getAttributeHandle(int objectClass, String name) throws RTIexception {
      Fom.Attribute found = objectClass(objectClass).find(name);
      if (found == null) {
         throw new NameNotFound("the class has no attribute with the name " + name);
      }
      return found.handle;
   }

   @Override
   public String getAttributeName(int objectClass, int attribute) throws RTIexception {
      return attribute(objectClass, attribute).name;
   }

   private Fom.Attribute attribute(int objectClass, int attribute) throws RTIexception {
      Fom.ObjectClass found = objectClass(objectClass);
      if (!fom().hasAttribute(attribute)) {
         throw new InvalidAttributeHandle("no attribute has the handle " + attribute);
      }
      if (!found.attributes.containsKey(attribute)) {
         throw new AttributeNotDefined(
               "the class " + found.name + " has no attribute with the handle " + attribute);
      }
      return found.attributes.get(attribute);
   }

   @Override
   public double getUpdateRateValue(String designator) throws RTIexception {
      Double rate = fom().updateRates.get(designator);
      if (rate == null) {
         throw new InvalidUpdateRateDesignator("no update rate has the name " + designator);
      }
      return rate;
   }

   /** The greatest rate with which the federate has subscribed to the attribute; 0 if it wants all
       updates or none. */
   @Override
   public double getUpdateRateValueForAttribute(int object, int attribute) throws RTIexception {
      Member member = _loopback.member();
      ObjectInstance instance =
            Checks.instance(member, object, Collections.singleton(attribute));
      Interest interest =
            member.declarations().interests(instance.knownAs.get(member)).get(attribute);
      double greatest = 0;
      for (Interest.Subscription each : (interest == null ? new Interest() : interest).all()) {
         if (each.updateRate.isEmpty()) {
            return 0;
         }
         greatest = Math.max(greatest, fom().updateRates.get(each.updateRate));
      }
      return greatest;
   }

   @Override
   public int getInteractionClassHandle(String name) throws RTIexception {
      Fom.InteractionClass found = fom().interactionClass(name);
      if (found == null) {
         throw new NameNotFound("no interaction class has the name " + name);
      }
      return found.handle;
   }

   @Override
   public String getInteractionClassName(int interaction) throws RTIexception {
      return interaction(interaction).name;
   }

   private Fom.InteractionClass interaction(int handle) throws RTIexception {
      Fom.InteractionClass found = fom().interactionClasses.get(handle);
      if (found == null) {
         throw new InvalidInteractionClassHandle(
               "no interaction class has the handle " + handle);
      }
      return found;
   }

   @Override
   public int getParameterHandle(int interaction, String name) throws RTIexception {
      Integer found = interaction(interaction).find(name);
      if (found == null) {
         throw new NameNotFound("the class has no parameter with the name " + name);
      }
      return found;
   }

   @Override
   public String getParameterName(int interaction, int parameter) throws RTIexception {
      Fom.InteractionClass found = interaction(interaction);
      if (!fom().hasParameter(parameter)) {
         throw new InvalidParameterHandle("no parameter has the handle " + parameter);
      }
      if (!found.parameters.containsKey(parameter)) {
         throw new InteractionParameterNotDefined(
               "the class " + found.name + " has no parameter with the handle " + parameter);
      }
      return found.parameters.get(parameter);
   }

   @Override
   public int getOrderType(String name) throws RTIexception {
      _loopback.member();
      if (!Fom.ORDERS.contains(name)) {
         throw new InvalidOrderName("no order has the name " + name);
      }
      return Fom.ORDERS.indexOf(name);
   }

   @Override
   public String getOrderName(int order) throws RTIexception {
      _loopback.member();
      if (order < 0 || order >= Fom.ORDERS.size()) {
         throw new InvalidOrderType("no order has the code " + order);
      }
      return Fom.ORDERS.get(order);
   }

   @Override
   public int getTransportationTypeHandle(String name) throws RTIexception {
      Integer found = fom().transportation(name);
      if (found == null) {
         throw new InvalidTransportationName("no transportation has the name " + name);
      }
      return found;
   }

   @Override
   public String getTransportationTypeName(int type) throws RTIexception {
      Checks.transportation(_loopback.member(), type);
      return fom().transportationName(type);
   }

   @Override
   public int[] getAvailableDimensionsForClassAttribute(int objectClass, int attribute)
         throws RTIexception {
      return array(attribute(objectClass, attribute).dimensions);
   }

   @Override
   public int[] getAvailableDimensionsForInteractionClass(int interaction) throws RTIexception {
      return array(interaction(interaction).dimensions);
   }

   @Override
   public int getDimensionHandle(String name) throws RTIexception {
      Fom.Dimension found = fom().dimension(name);
      if (found == null) {
         throw new NameNotFound("no dimension has the name " + name);
      }
      return found.handle;
   }

   @Override
   public String getDimensionName(int dimension) throws RTIexception {
      return dimension(dimension).name;
   }

   @Override
   public long getDimensionUpperBound(int dimension) throws RTIexception {
      return dimension(dimension).upperBound;
   }

   private Fom.Dimension dimension(int handle) throws RTIexception {
      Fom.Dimension found = fom().dimensions.get(handle);
      if (found == null) {
         throw new InvalidDimensionHandle("no dimension has the handle " + handle);
      }
      return found;
   }

   @Override
   public int[] getDimensionHandleSet(int region) throws RTIexception {
      return array(Checks.region(_loopback.workingMember(), region).ranges.keySet());
   }

   @Override
   public long[] getRangeBounds(int region, int dimension) throws RTIexception {
      Region found = Checks.region(_loopback.workingMember(), region);
      Range range = range(found, dimension);
      return new long[] {range.lower, range.upper};
   }

   @Override
   public void setRangeBounds(int region, int dimension, Range range) throws RTIexception {
      Region found = Checks.ownRegion(_loopback.workingMember(), region);
      range(found, dimension);
      if (range.lower < 0 || range.lower >= range.upper
            || range.upper > dimension(dimension).upperBound) {
         throw new InvalidRangeBound("the range is empty or exceeds the dimension");
      }
      found.ranges.put(dimension, range);
   }

   private static Range range(Region region, int dimension)
         throws RegionDoesNotContainSpecifiedDimension {
      Range found = region.ranges.get(dimension);
      if (found == null) {
         throw new RegionDoesNotContainSpecifiedDimension(
               "the region has no dimension with the handle " + dimension);
      }
      return found;
   }

   @Override
   public long normalizeFederateHandle(int federate) throws RTIexception {
      checkFederate(federate);
      return federate;
   }

   @Override
   public long normalizeServiceGroup(int group) throws RTIexception {
      _loopback.member();
      if (group < 1 || group > LAST_SERVICE_GROUP) {
         throw new InvalidServiceGroup("no service group has the code " + group);
      }
      return group;
   }

   @Override
   public void enableObjectClassRelevanceAdvisorySwitch() throws RTIexception {
      switchOn(Member.Advisory.OBJECT_CLASS_RELEVANCE,
            () -> new ObjectClassRelevanceAdvisorySwitchIsOn("the switch is on"));
   }

   @Override
   public void disableObjectClassRelevanceAdvisorySwitch() throws RTIexception {
      switchOff(Member.Advisory.OBJECT_CLASS_RELEVANCE,
            () -> new ObjectClassRelevanceAdvisorySwitchIsOff("the switch is off"));
   }

   @Override
   public void enableAttributeRelevanceAdvisorySwitch() throws RTIexception {
      switchOn(Member.Advisory.ATTRIBUTE_RELEVANCE,
            () -> new AttributeRelevanceAdvisorySwitchIsOn("the switch is on"));
   }

   @Override
   public void disableAttributeRelevanceAdvisorySwitch() throws RTIexception {
      switchOff(Member.Advisory.ATTRIBUTE_RELEVANCE,
            () -> new AttributeRelevanceAdvisorySwitchIsOff("the switch is off"));
   }

   @Override
   public void enableAttributeScopeAdvisorySwitch() throws RTIexception {
      switchOn(Member.Advisory.ATTRIBUTE_SCOPE,
            () -> new AttributeScopeAdvisorySwitchIsOn("the switch is on"));
   }

   @Override
   public void disableAttributeScopeAdvisorySwitch() throws RTIexception {
      switchOff(Member.Advisory.ATTRIBUTE_SCOPE,
            () -> new AttributeScopeAdvisorySwitchIsOff("the switch is off"));
   }

   @Override
   public void enableInteractionRelevanceAdvisorySwitch() throws RTIexception {
      switchOn(Member.Advisory.INTERACTION_RELEVANCE,
            () -> new InteractionRelevanceAdvisorySwitchIsOn("the switch is on"));
   }

   @Override
   public void disableInteractionRelevanceAdvisorySwitch() throws RTIexception {
      switchOff(Member.Advisory.INTERACTION_RELEVANCE,
            () -> new InteractionRelevanceAdvisorySwitchIsOff("the switch is off"));
   }

   /** Makes the exception for a switch that is as it should become. */
   private interface Fault {
      RTIexception make();
   }

   private void switchOn(Member.Advisory advisory, Fault fault) throws RTIexception {
      Member member = _loopback.workingMember();
      if (!member.advisories.add(advisory)) {
         throw fault.make();
      }
      member.federation().switchedOn(member, advisory);
   }

   private void switchOff(Member.Advisory advisory, Fault fault) throws RTIexception {
      Member member = _loopback.workingMember();
      if (!member.advisories.remove(advisory)) {
         throw fault.make();
      }
   }

   @Override
   public boolean evokeCallback(double seconds) throws RTIexception {
      return evocable().evokeOne(seconds);
   }

   @Override
   public boolean evokeMultipleCallbacks(double leastSeconds, double mostSeconds)
         throws RTIexception {
      return evocable().evokeMany(leastSeconds, mostSeconds);
   }

   /** The lock is held for the look-up alone. */
   private CallbackQueue evocable() throws RTIexception {
      synchronized (Loopback.LOCK) {
         _loopback.checkNotInCallback();
         return _loopback.connection().callbacksOrFail();
      }
   }

   @Override
   public void enableCallbacks() throws RTIexception {
      switchCallbacks(true);
   }

   @Override
   public void disableCallbacks() throws RTIexception {
      switchCallbacks(false);
   }

   private void switchCallbacks(boolean on) throws RTIexception {
      CallbackQueue callbacks = _loopback.connection().callbacksOrFail();
      if (_loopback.connection().member() != null) {
         _loopback.member().federation().saveRestore().checkIdle();
      }
      callbacks.enable(on);
   }

   @Override
   public String getTimeFactory() throws RTIexception {
      return _loopback.member().federation().timeName();
   }
}
