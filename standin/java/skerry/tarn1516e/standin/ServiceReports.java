// Stands before the services of a federate whose calls, or whose failures, are to be reported by
// the management object model.
package skerry.tarn1516e.standin;

import java.lang.reflect.InvocationHandler;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Proxy;
import java.util.ArrayList;
import java.util.Collections;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

final class ServiceReports implements InvocationHandler {
   private final Object _services;
   private final Connection _connection;

   private ServiceReports(Object services, Connection connection) {
      _services = services;
      _connection = connection;
   }

   static <T> T before(Class<T> group, T services, Connection connection) {
      return group.cast(Proxy.newProxyInstance(group.getClassLoader(), new Class<?>[] {group},
            new ServiceReports(services, connection)));
   }

   @Override
   public Object invoke(Object proxy, Method service, Object[] arguments) throws Throwable {
      try {
         Object result = service.invoke(_services, arguments);
         report(service, arguments, result, null);
         return result;
      } catch (InvocationTargetException failure) {
         report(service, arguments, null, failure.getCause());
         throw failure.getCause();
      }
   }

   private void report(Method service, Object[] arguments, Object result, Throwable failure) {
      synchronized (Loopback.LOCK) {
         Member member = _connection.member();
         if (member == null) {
            return;
         }
         byte[] name = MomEncoder.of(service.getName().replaceAll("_.*", ""));
         Map<String, byte[]> values = new HashMap<>();
         values.put("HLAservice", name);
         values.put("HLAexception", MomEncoder.of(
               failure == null ? "" : failure.getClass().getSimpleName()));
         if (failure != null && member.isReportingExceptions()) {
            member.federation().mom().report(member, "HLAreportException", values);
         }
         if (member.isReportingServices()) {
            values.put("HLAsuccessIndicator", MomEncoder.of(failure == null));
            values.put("HLAsuppliedArguments", MomEncoder.ofStrings(texts(arguments)));
            values.put("HLAreturnedArguments", MomEncoder.ofStrings(result == null
                  ? Collections.emptyList() : Collections.singletonList(result.toString())));
            values.put("HLAserialNumber", MomEncoder.of(member.nextReport()));
            member.federation().mom().report(member, "HLAreportServiceInvocation", values);
         }
      }
   }

   private static List<String> texts(Object[] arguments) {
      List<String> texts = new ArrayList<>();
      for (Object each : arguments == null ? new Object[0] : arguments) {
         texts.add(String.valueOf(each));
      }
      return texts;
   }
}
