"""Writes the Java side of the rows: the ambassador's methods, the natives, the exceptions, and the
typed interfaces between them and the loopback."""

from collections import Counter

from codes import ANSWERS, RESULTS, TYPES
from layout import GLUE, NOTE, fold, glue

ROOT = "standin/generated/"
AMBASSADOR = "skerry/tarn1516e/"
STANDIN = "skerry/tarn1516e/standin/"
EXCEPTIONS = "hla/rti1516e/exceptions/"

THROWS = f"throws{GLUE}RTIexception"

# These run callbacks or wait for them, so that they may not hold the lock.
UNLOCKED = ("disconnect", "evokeCallback", "evokeMultipleCallbacks")

SERVICES = "gen/rows/services.rows"
CALLBACKS = "gen/rows/callbacks.rows"
EXCEPTION_HEADER = "api/RTI/Exception.h"


def files(services, callbacks, exceptions):
    """The generated files: path to text."""
    texts = {ROOT + EXCEPTIONS + name + ".java": exception_text(name) for name in exceptions}
    texts[ROOT + AMBASSADOR + "RTIambassadorC2007.java"] = ambassador_text(services)
    texts[ROOT + AMBASSADOR + "FederateAmbassadorC2007.java"] = natives_text(callbacks)
    texts[ROOT + STANDIN + "NativeTable.java"] = native_table_text(callbacks)
    texts[ROOT + STANDIN + "CallbackSender.java"] = sender_text(callbacks)
    for group in dict.fromkeys(service.group for service in services):
        rows = [service for service in services if service.group == group]
        texts[ROOT + STANDIN + camel(group) + ".java"] = group_text(
            group, rows, plain_names(services))
    return texts


def camel(group):
    return "".join(word[0].upper() + word[1:] for word in group.split())


def member(group):
    """The loopback's field for a group: its first word."""
    return group.split()[0].lower()


def answer(service):
    return ANSWERS[RESULTS[service.result].signature]


def plain_names(rows):
    """The Java names of the typed forms: the row's own, with codes where Java can't tell two
    overloads apart."""
    forms = Counter((row.name, parameter_types(row)) for row in rows)
    return {
        row.java_name: row.name if forms[row.name, parameter_types(row)] == 1 else row.java_name
        for row in rows
    }


def parameter_types(row):
    return tuple(TYPES[field.code].java for field in row.fields)


def parameters(row):
    return ", ".join(glue(f"{TYPES[field.code].java} {field.name}") for field in row.fields)


def head(source, purpose):
    return f"{NOTE.format(source)}// {purpose}\n"


def exception_text(name):
    return (
        head(EXCEPTION_HEADER, "An exception of the interface.")
        + f"""package hla.rti1516e.exceptions;

public class {name} extends RTIexception {{
   private static final long serialVersionUID = 1L;

   public {name}(String message) {{
      super(message);
   }}
}}
""")


def ambassador_text(services):
    names = plain_names(services)
    return (
        head(SERVICES, "The Java end of an RTI ambassador: one method a service. Each asks the "
             "script first, then\n// decodes its body for the loopback.")
        + """package skerry.tarn1516e;

import hla.rti1516e.exceptions.RTIexception;
import skerry.tarn1516e.standin.BodyReader;
import skerry.tarn1516e.standin.Loopback;
import skerry.tarn1516e.standin.Script;

public class RTIambassadorC2007 {
   private final Loopback _loopback;

   /** The arguments are a count and that many strings. */
   public RTIambassadorC2007(byte[] arguments) {
      _loopback = new Loopback(new BodyReader(arguments).strings());
   }
"""
        + "".join(method_text(service, names) for service in services)
        + "}\n")


def method_text(service, names):
    _, _, result, script = answer(service)
    body = "byte[] body" if service.fields else ""
    given = "body" if service.fields else "null"
    lines = [
        "",
        fold(f"public {result} {service.java_name}({body}) {THROWS}{GLUE}{{", 3),
        "      if (Script.isOn) {",
        fold("Script.Answer answer ="
             f' Script.answer("{service.java_name}",{GLUE}{given});', 9),
        "         if (answer != null) {",
        f"            return{' answer.' + script + '()' if script else ''};",
        "         }",
        "      }",
    ]
    if service.fields:
        lines.append("      BodyReader in = new BodyReader(body);")
    arguments = ", ".join(f"in.{TYPES[field.code].stream}()" for field in service.fields)
    call = f"_loopback.{member(service.group)}.{names[service.java_name]}({arguments});"
    call = ("return " if script else "") + call
    if service.name in UNLOCKED:
        lines.append(fold(call, 6))
    else:
        lines += ["      synchronized (Loopback.LOCK) {", fold(call, 9), "      }"]
    return "\n".join(lines + ["   }", ""])


def natives_text(callbacks):
    return (
        head(CALLBACKS, "The natives that take a callback, as one framed array, to the federate.")
        + """package skerry.tarn1516e;

import hla.rti1516e.exceptions.FederateInternalError;

public class FederateAmbassadorC2007 {
"""
        + "\n".join(
            fold(f"public native void {row.native_name}(byte[]{GLUE}frame) "
                 f"throws{GLUE}FederateInternalError;", 3) + "\n" for row in callbacks)
        + "}\n")


def native_table_text(callbacks):
    return (
        head(CALLBACKS, "The natives by name.")
        + """package skerry.tarn1516e.standin;

import hla.rti1516e.exceptions.FederateInternalError;
import java.util.HashMap;
import java.util.Map;
import skerry.tarn1516e.FederateAmbassadorC2007;

final class NativeTable {
   /** A native, called with its frame. */
   interface Native {
      void call(FederateAmbassadorC2007 ambassador, byte[] frame) throws FederateInternalError;
   }

   private static final Map<String, Native> NATIVES = new HashMap<>();

   private NativeTable() {}

   static Native find(String name) {
      Native found = NATIVES.get(name);
      if (found == null) {
         throw new IllegalArgumentException("no native has the name " + name);
      }
      return found;
   }

   static {
"""
        + "".join(
            fold(f'NATIVES.put("{row.native_name}", '
                 f"FederateAmbassadorC2007::{row.native_name});", 6, 3) + "\n"
            for row in callbacks)
        + "   }\n}\n")


def imports(rows):
    used = " ".join(kind for row in rows for kind in parameter_types(row))
    return "".join(
        f"import java.util.{name};\n" for name in ("List", "Map", "Set") if name + "<" in used)


def sender_text(callbacks):
    names = plain_names(callbacks)
    return (
        head(CALLBACKS, "Builds the frame of each callback to one ambassador and hands it on.")
        + "package skerry.tarn1516e.standin;\n\n"
        + imports(callbacks)
        + """
abstract class CallbackSender {
   private final int _handle;

   /** The handle is the one that the ambassador sent when it connected. */
   CallbackSender(int handle) {
      _handle = handle;
   }

   /** Takes the finished frame for the native of that name. */
   abstract void send(String nativeName, byte[] frame);
"""
        + "".join(send_text(row, names) for row in callbacks)
        + "}\n")


def send_text(row, names):
    return "\n".join([
        "",
        fold(f"void {names[row.java_name]}({parameters(row)}) {{", 3),
        "      byte[] frame = new FrameWriter(_handle)",
        *(f"            .{TYPES[field.code].stream}({field.name})" for field in row.fields),
        "            .finish();",
        f'      send("{row.native_name}", frame);',
        "   }",
        "",
    ])


def group_text(group, services, names):
    return (
        head(SERVICES, f"{group}, as the loopback offers it.")
        + "package skerry.tarn1516e.standin;\n\n"
        + "import hla.rti1516e.exceptions.RTIexception;\n"
        + imports(services)
        + f"\npublic interface {camel(group)} {{\n"
        + "\n".join(
            fold(f"{answer(row).java} {names[row.java_name]}"
                 f"({parameters(row)}) {THROWS};", 3) + "\n"
            for row in services)
        + "}\n")
