"""Writes the two generated C++ units: the services of the bridge object, and the natives."""

from codes import ANSWERS, RESULTS, TYPES, short
from layout import NOTE, call, fold, glue, grouped, rule

SERVICES = NOTE.format("gen/rows/services.rows")
CALLBACKS = NOTE.format("gen/rows/callbacks.rows")


def _wrapped(name):
    """wrappedTime for theTime."""
    base = name[3:] if name.startswith("the") and name[3:4].isupper() else name
    return "wrapped" + base[0].upper() + base[1:]


def _parameters(service, shorten=lambda text: text):
    return [f"{shorten(TYPES[field.code].parameter)} {field.name}" for field in service.fields]


# ---- RTIambassadorC.h

HEADER = """
// The bridge object: one Java object, and every service as one call of a method on it.
#ifndef gen_RTIambassadorC_h
#define gen_RTIambassadorC_h

#include "gen/cpp/FederateAmbassadorHelper.h"
#include <RTI/Enums.h>
#include <RTI/Handle.h>
#include <RTI/LogicalTime.h>
#include <RTI/LogicalTimeInterval.h>
#include <RTI/RangeBounds.h>
#include <RTI/Typedefs.h>
#include <RTI/VariableLengthData.h>

#include <jni.h>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tarn1516e {

// Whether there is such a time, and the time.
typedef std::pair<bool, std::unique_ptr<rti1516e::LogicalTime>> TimeQueryReturn;

// Whether the federate is connected or joined is known on the Java side alone. Services may be
// called from any thread. A Java exception comes out as the rti1516e exception of its name.
class RTIambassadorC {
public:
   // Brings up the VM and makes the Java object.
   RTIambassadorC();

   // Disconnects in Java, whatever the state, and drops the Java object.
   virtual ~RTIambassadorC();
"""

HEADER_END = """
   // Throws; `which` names the classes that Java can't find.
   [[noreturn]] virtual void reportClassLoadingError(JNIEnv* env, std::wstring const& which);

private:
   RTIambassadorC(RTIambassadorC const&) = delete;
   RTIambassadorC& operator=(RTIambassadorC const&) = delete;

   void adoptTimeFactory();

   // Each releases the array and throws if nothing comes of it; that a time query's is null says
   // that there is no such time.
   std::unique_ptr<rti1516e::LogicalTime> returnLogicalTime(JNIEnv* env, jbyteArray encoded);
   std::unique_ptr<rti1516e::LogicalTimeInterval> returnLogicalTimeInterval(
         JNIEnv* env, jbyteArray encoded);
   TimeQueryReturn returnTimeQueryReturn(JNIEnv* env, jbyteArray encoded);

   FederateAmbassadorHelper _helper;
   jobject _rtiObject; // global reference
};

// Resolves the identifiers of all Java methods. Every construction stores the same values again.
void initRtiJmethods(JNIEnv* env, jclass adapterClass);

extern jmethodID _idDisconnect;

} // namespace tarn1516e

#endif
"""


def _declaration(service):
    head = f"virtual {RESULTS[service.result].cpp} {service.name}("
    return fold(call(head, _parameters(service), ");"), 3)


def _header(services):
    out = grouped(services, _declaration, lambda group: f"\n   // {group}\n")
    return "\n".join([SERVICES + HEADER.strip("\n"), *out]) + "\n" + HEADER_END


# ---- RTIambassadorC.cpp

SOURCE = """
#include "gen/cpp_generated/RTIambassadorC.h"

#include "gen/cpp/Encoder.h"
#include "gen/cpp/HandleTable.h"
#include "gen/cpp/JavaExceptions.h"
#include "gen/cpp/JavaMethod.h"
#include "gen/cpp/ServiceFrame.h"
#include "jvm/FpuGuards.h"
#include "jvm/JVM.h"

using namespace rti1516e;

namespace tarn1516e {
"""


def _wrapper(field):
    wrapped = _wrapped(field.name)
    if field.code == "FA":
        return f"CppWrapper<int> {wrapped}(env, makeHandle(&_helper));"
    if field.code == "CM":
        return f"CppWrapper<int> {wrapped}(env, 2 - ({field.name} == HLA_EVOKED));"
    head = f"CppWrapper<{short(TYPES[field.code].parameter)}> {wrapped}("
    return call(head, [glue(f"env, {field.name}")], ");")


def _java_call(service):
    """The call, with what keeps its answer."""
    signature = RESULTS[service.result].signature
    answer = ANSWERS[signature]
    body = ["body"] if service.fields else []
    text = call(f"env->{answer.call}(", [", ".join(["_rtiObject", service.method_id] + body)], ")")
    if service.result is None:
        return text + ";"
    if answer.call == "CallObjectMethod":
        text = f"static_cast<{answer.jni}>({text})"
    return f"{answer.jni} const answer = {text};"


def _definition(service):
    result = RESULTS[service.result]
    head = call(f"{short(result.cpp)} RTIambassadorC::{service.name}(",
                _parameters(service, short), ")")
    body = [f"_helper.federateAmbassador = &{field.name};"
            for field in service.fields if field.code == "FA"]
    body += ["ProtectFPU protectFPU;", "MyEnv env;"]
    body += map(_wrapper, service.fields)
    if service.fields:
        wrapped = [_wrapped(field.name) for field in service.fields]
        body.append(call("jbyteArray const body = encodeBody(", ["env", *wrapped], ");"))
    body.append(_java_call(service))
    if service.fields:
        body.append("env->DeleteLocalRef(body);")
    body.append(call("throwPending<Ladder<", service.rungs, ">>(env);"))
    if service.step:
        body.append(f"{service.step}();")
    if service.result is not None:
        body.append(f"return {result.convert}(env, answer);")
    return "\n".join([fold(head), "{", *(fold(line, 3) for line in body), "}", ""])


def _source(services, tails):
    out = [SERVICES + SOURCE.lstrip("\n")]
    for name, rungs in tails.items():
        out.append(fold(call("typedef Ladder<", rungs, f"> {name};")) + "\n")
    out.append("// Identifiers of the Java methods.")
    out += [f"jmethodID {service.method_id};" for service in services]
    out.append("\nvoid initRtiJmethods(JNIEnv* env, jclass adapterClass)\n{")
    for service in services:
        names = [f'"{service.java_name}"', f'"{service.signature}"']
        out.append(fold(
            call(f"{service.method_id} = bind(", ["env", "adapterClass", *names], ");"), 3))
    out.append("}\n")
    out += grouped(services, _definition, rule)
    out.append("} // namespace tarn1516e\n")
    return "\n".join(out)


# ---- FederateAmbassadorC.cpp

NATIVES = """
// The natives by which Java delivers callbacks. RegisterNatives binds them; their symbols are not
// names that a VM would look for.
#include "gen/cpp/CallbackFrame.h"
#include "gen/cpp/Decoder.h"
#include "jvm/Installation.h"
#include "jvm/StartTexts.h"
#include "runtime/StandardError.h"

using namespace rti1516e;
using namespace tarn1516e;
"""

REGISTER_NATIVES = """
namespace {{

JNINativeMethod native(char const* name, void (*function)(JNIEnv*, jobject, jbyteArray))
{{
   static char const signature[] = "([B)V";
   return {{const_cast<char*>(name), const_cast<char*>(signature),
         reinterpret_cast<void*>(function)}};
}}

}} // namespace

#define NATIVE(method) native(#method, Java_skerry_tarn1516e_FederateAmbassadorC2007_##method)

void registerNatives(JNIEnv* env)
{{
   jclass const type = env->FindClass(nativesClass);
   describePending(env);
   if (type == nullptr) {{
      writeError(text::noNativesClass);
      return;
   }}
   JNINativeMethod const nm[] = {{
{table}
   }};
   if (env->RegisterNatives(type, nm, sizeof nm / sizeof *nm) != 0) {{
      writeError(text::nativesRefused);
      env->ExceptionDescribe(); // names the native that Java does not know
      env->ExceptionClear();    // the ambassador is made all the same
   }}
   env->DeleteLocalRef(type);
}}
"""

PREFIX = "Java_skerry_tarn1516e_FederateAmbassadorC2007_"


def _native(callback):
    out = [f"void {PREFIX}{callback.native_name}(", "      JNIEnv* env, jobject, jbyteArray array)",
           "{", "   CallbackFrame frame(env, array);",
           "   FederateAmbassadorHelper* const helper = frame.open(TARN_HERE);"]
    for field in callback.fields:
        out.append(f"   {TYPES[field.code].decoder} {field.name}(helper, frame);")
    out.append("   frame.close(TARN_HERE);")
    out.append("   deliver(env, helper, [&](FederateAmbassador& federate) {")
    names = [field.name for field in callback.fields]
    out.append(fold(call(f"federate.{callback.name}(", names, ");"), 6))
    out += ["   });", "}\n"]
    return "\n".join(out)


def _natives(callbacks):
    table = "\n".join(f"         NATIVE({callback.native_name})," for callback in callbacks)
    return "\n".join([CALLBACKS + NATIVES.lstrip("\n"), *grouped(callbacks, _native, rule),
                      REGISTER_NATIVES.format(table=table).strip("\n") + "\n"])


def files(services, tails, callbacks):
    """The generated files: text by path."""
    return {
        "gen/cpp_generated/RTIambassadorC.h": _header(services),
        "gen/cpp_generated/RTIambassadorC.cpp": _source(services, tails),
        "gen/cpp_generated/FederateAmbassadorC.cpp": _natives(callbacks),
    }
