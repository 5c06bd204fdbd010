// What federates ask of the RTI by interactions of the management object model.
package skerry.tarn1516e.standin;

import java.util.ArrayList;
import java.util.Collections;
import java.util.HashMap;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeSet;

final class MomRequests {
   private final Federation _federation;
   private final String _name;
   private final Map<String, byte[]> _values = new HashMap<>();

   private MomRequests(Federation federation, Fom.InteractionClass sent,
         Map<Integer, byte[]> values) {
      _federation = federation;
      _name = sent.name;
      values.forEach((parameter, value) -> _values.put(sent.parameters.get(parameter), value));
   }

   /** Every interaction that a federate sends comes by here. */
   static void take(Member sender, Fom.InteractionClass sent, Map<Integer, byte[]> values) {
      if (sent.name.startsWith(Mim.INTERACTIONS)) {
         new MomRequests(sender.federation(), sent, values).act(sender);
      }
   }

   private void act(Member sender) {
      String leaf = _name.substring(_name.lastIndexOf('.') + 1);
      if (_name.startsWith(Mim.INTERACTIONS + ".HLAfederation.")) {
         if (leaf.equals("HLAsetSwitches")) {
            _federation.isAutoProviding = flag("HLAautoProvide", _federation.isAutoProviding);
         }
         return;
      }
      Member about = _federation.member(MomEncoder.handle(_values.get("HLAfederate")));
      if (about != null) {
         act(about, leaf);
      } else if (_name.contains(".HLAadjust.") || _name.contains(".HLArequest.")) {
         Map<String, byte[]> report = new HashMap<>();
         report.put("HLAservice", MomEncoder.of(_name));
         report.put("HLAexception", MomEncoder.of("no federate has the handle in HLAfederate"));
         report.put("HLAparameterError", MomEncoder.of(true));
         _federation.mom().report(sender, "HLAreportMOMexception", report);
      }
   }

   private void act(Member about, String request) {
      switch (request) {
         case "HLAsetTiming":
            _federation.mom().setTiming(
                  about, MomEncoder.integer(_values.get("HLAreportPeriod"), 0));
            break;
         case "HLAsetServiceReporting":
            about.setReporting(
                  flag("HLAreportingState", false), about.isReportingExceptions());
            break;
         case "HLAsetExceptionReporting":
            about.setReporting(about.isReportingServices(), flag("HLAreportingState", false));
            break;
         case "HLAsetSwitches":
            about.isToldRegions = flag("HLAconveyRegionDesignatorSets", about.isToldRegions);
            about.isToldProducer = flag("HLAconveyProducingFederate", about.isToldProducer);
            break;
         case "HLArequestPublications":
            reportPublications(about);
            break;
         case "HLArequestSubscriptions":
            reportSubscriptions(about);
            break;
         default:
            // The other names are there and say nothing.
      }
   }

   private boolean flag(String parameter, boolean otherwise) {
      return MomEncoder.integer(_values.get(parameter), otherwise ? 1 : 0) != 0;
   }

   /** One report a class; one alone if there is no class. */
   private void reportClasses(Member about, String report, List<Map<String, byte[]>> classes,
         int count) {
      byte[] number = MomEncoder.of(count);
      if (classes.isEmpty()) {
         classes.add(new HashMap<>());
      }
      for (Map<String, byte[]> each : classes) {
         each.put("HLAnumberOfClasses", number);
         _federation.mom().report(about, report, each);
      }
   }

   private void reportPublications(Member about) {
      List<Map<String, byte[]>> classes = new ArrayList<>();
      about.declarations().published.forEach((objectClass, attributes) -> {
         Map<String, byte[]> values = new HashMap<>();
         values.put("HLAobjectClass", MomEncoder.ofHandle(objectClass));
         values.put("HLAattributeList", MomEncoder.ofHandles(new TreeSet<>(attributes)));
         classes.add(values);
      });
      reportClasses(about, "HLAreportObjectClassPublication", classes, classes.size());
      _federation.mom().report(about, "HLAreportInteractionPublication",
            Collections.singletonMap("HLAinteractionClassList", MomEncoder.ofHandles(
                  new TreeSet<>(about.declarations().publishedInteractions))));
   }

   /** Attributes of a class with another activity or rate have a report of their own. */
   private void reportSubscriptions(Member about) {
      List<Map<String, byte[]>> classes = new ArrayList<>();
      about.declarations().subscribed.forEach((objectClass, interests) -> {
         Map<Interest.Subscription, Set<Integer>> alike = new LinkedHashMap<>();
         interests.forEach((attribute, interest) -> interest.all().forEach(each ->
               alike.computeIfAbsent(each, none -> new TreeSet<>()).add(attribute)));
         alike.forEach((subscription, attributes) -> {
            Map<String, byte[]> values = new HashMap<>();
            values.put("HLAobjectClass", MomEncoder.ofHandle(objectClass));
            values.put("HLAactive", MomEncoder.of(subscription.isActive));
            values.put("HLAmaxUpdateRate", MomEncoder.of(subscription.updateRate));
            values.put("HLAattributeList", MomEncoder.ofHandles(attributes));
            classes.add(values);
         });
      });
      reportClasses(about, "HLAreportObjectClassSubscription", classes,
            about.declarations().subscribed.size());
      Map<Integer, Interest> interactions = about.declarations().subscribedInteractions;
      MomEncoder list = new MomEncoder().integer(interactions.size());
      interactions.forEach((handle, interest) ->
            list.handle(handle).integer(interest.isActive() ? 1 : 0));
      _federation.mom().report(about, "HLAreportInteractionSubscription",
            Collections.singletonMap("HLAinteractionClassList", list.finish()));
   }
}
