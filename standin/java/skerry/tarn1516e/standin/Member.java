// A federate that has joined a federation.
package skerry.tarn1516e.standin;

import java.io.Serializable;
import java.util.ArrayList;
import java.util.EnumSet;
import java.util.HashSet;

final class Member implements Serializable {
   private static final long serialVersionUID = 1L;

   enum Advisory {
      OBJECT_CLASS_RELEVANCE,
      ATTRIBUTE_RELEVANCE,
      ATTRIBUTE_SCOPE,
      INTERACTION_RELEVANCE
   }

   private final int _handle;
   private final String _name;
   private final String _type;
   private final Counts _counts = new Counts();
   private final Declarations _declarations = new Declarations();
   private final TimeState _time;

   final EnumSet<Advisory> advisories = EnumSet.noneOf(Advisory.class);
   final HashSet<String> reservedNames = new HashSet<>();
   int resignDirective;

   /** Whether messages tell the member who sent them, and over which regions. */
   boolean isToldProducer;
   boolean isToldRegions;

   /** The modules that it brought along. */
   final ArrayList<String> moduleNames = new ArrayList<>();

   /** Counts the changes of the period of its reports. */
   int timingRound;

   private boolean _isReportingServices;
   private boolean _isReportingExceptions;
   private int _reports;

   // What a save does not keep.
   private transient Federation _federation;
   private transient Connection _connection;
   private transient CallbackQueue _callbacks;

   Member(int handle, String name, String type, Federation federation) {
      _handle = handle;
      _name = name;
      _type = type;
      _federation = federation;
      _time = new TimeState(this);
      resignDirective = federation.fom().automaticResignAction;
      adopt(Advisory.OBJECT_CLASS_RELEVANCE, "objectClassRelevanceAdvisory", true);
      adopt(Advisory.INTERACTION_RELEVANCE, "interactionRelevanceAdvisory", true);
      adopt(Advisory.ATTRIBUTE_RELEVANCE, "attributeRelevanceAdvisory", false);
      isToldProducer = isOn("conveyProducingFederate");
      isToldRegions = isOn("conveyRegionDesignatorSets");
      adopt(Advisory.ATTRIBUTE_SCOPE, "attributeScopeAdvisory", false);
   }

   private boolean isOn(String fomSwitch) {
      return _federation.fom().isSwitchedOn(fomSwitch, false);
   }

   private void adopt(Advisory advisory, String fomSwitch, boolean otherwise) {
      if (_federation.fom().isSwitchedOn(fomSwitch, otherwise)) {
         advisories.add(advisory);
      }
   }

   int handle() {
      return _handle;
   }

   String name() {
      return _name;
   }

   String type() {
      return _type;
   }

   Federation federation() {
      return _federation;
   }

   CallbackQueue callbacks() {
      return _callbacks;
   }

   Connection connection() {
      return _connection;
   }

   void attach(Connection connection, CallbackQueue callbacks) {
      _connection = connection;
      _callbacks = callbacks;
   }

   /** A restored member comes back into its federation. */
   void comeBack(Federation federation) {
      _federation = federation;
   }

   Counts counts() {
      return _counts;
   }

   Declarations declarations() {
      return _declarations;
   }

   TimeState time() {
      return _time;
   }

   boolean isReportingServices() {
      return _isReportingServices;
   }

   boolean isReportingExceptions() {
      return _isReportingExceptions;
   }

   void setReporting(boolean services, boolean exceptions) {
      _isReportingServices = services;
      _isReportingExceptions = exceptions;
      _connection.report(services || exceptions);
   }

   int nextReport() {
      return _reports++;
   }

   boolean isAdvised(Advisory advisory) {
      return advisories.contains(advisory);
   }
}
