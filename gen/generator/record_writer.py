"""Writes the recorder's two ambassadors: around the RTI's, with all operations, and around the
federate's, with all callbacks. Each tells its arguments, makes the call and tells what came of
it."""

from adapter_writer import head
from layout import NOTE, WIDTH, call, fold, glue, grouped, rule
from rows import parameter

FOLDER = "record/generated/"
AMBASSADOR = "RecordingAmbassador"
FEDERATE = "RecordingFederate"
SERVICES = NOTE.format("gen/rows/services.rows")
CALLBACKS = NOTE.format("gen/rows/callbacks.rows")

# Kinds of handles that have names, and the parameters that bring one.
NAMED = ("FH", "OCH", "ICH", "OIH", "AH", "PH", "DH")
NAMES = ("theName", "federateName", "theObjectInstanceName")

# After these nothing may come for a while, or ever.
FLUSHED = ("resignFederationExecution", "disconnect")

AMBASSADOR_HEADER = """
// The ambassador that a recorded federate holds: the RTI's own inside, each call told. The
// exception lists are the interface's.
#ifndef record_generated_RecordingAmbassador_h
#define record_generated_RecordingAmbassador_h

#include "record/generated/RecordingFederate.h"
#include <RTI/RTIambassador.h>

#include <memory>

namespace tarn1516e {
namespace record {

using namespace rti1516e;

class RecordingAmbassador : public RTIambassador {
public:
   // Takes the real one over. The number tells ambassadors of a process apart.
   RecordingAmbassador(RTIambassador* real, int number);

   ~RecordingAmbassador() override;
"""

AMBASSADOR_HEADER_END = """
private:
   int _number;
   RecordingFederate _federate; // takes the callbacks
   std::unique_ptr<RTIambassador> _real;
};

} // namespace record
} // namespace tarn1516e

#endif
"""

AMBASSADOR_SOURCE = """
#include "record/generated/RecordingAmbassador.h"

#include "record/Event.h"

namespace tarn1516e {
namespace record {

RecordingAmbassador::RecordingAmbassador(RTIambassador* real, int number)
      : _number(number),
        _federate(number),
        _real(real)
{
}

RecordingAmbassador::~RecordingAmbassador()
{
   _real.reset();
   Recording::instance().flush();
}
"""

FEDERATE_HEADER = """
// The federate ambassador that the RTI is given: the federate's own behind it, each callback told.
#ifndef record_generated_RecordingFederate_h
#define record_generated_RecordingFederate_h

#include <RTI/FederateAmbassador.h>

namespace tarn1516e {
namespace record {

using namespace rti1516e;

class RecordingFederate : public FederateAmbassador {
public:
   explicit RecordingFederate(int ambassador) : _ambassador(ambassador) {}

   // From now on callbacks go to the federate's own, which must outlive their delivery.
   void passTo(FederateAmbassador& real)
   {
      _real = &real;
   }
"""

FEDERATE_HEADER_END = """
private:
   int _ambassador;
   FederateAmbassador* _real = nullptr;
};

} // namespace record
} // namespace tarn1516e

#endif
"""

FEDERATE_SOURCE = """
#include "record/generated/RecordingFederate.h"

#include "record/Event.h"

namespace tarn1516e {
namespace record {
"""

END = "} // namespace record\n} // namespace tarn1516e\n"


def _event(number, category, row):
    begin = call("Event event(", [number, f'"{category}"', f'"{row.name}"'], ");")
    return [begin] + [f'event.argument("{field.name}", {field.name});' for field in row.fields]


def _run(text):
    """The call inside the event; a long one has lines of its own."""
    line = f"event.run([&] {{ {text}; }});"
    if len(line) + 3 <= WIDTH:
        return glue(line)
    return f"   event.run([&] {{\n{fold(text + ';', 6)}\n   }});"


def _lines(body):
    """Lines that are laid out already stay as they are."""
    return [line if line.startswith(" ") else fold(line, 3) for line in body]


def _learned(fields, result=None):
    """(handle, name) where a row tells what a handle is called."""
    names = [field.name for field in fields if field.name in NAMES]
    handles = [field.name for field in fields if field.code in NAMED]
    if result == "std::wstring" and handles:
        return handles[-1], "result"
    if names and result and result.endswith("Handle"):
        return "result", names[0]
    return (handles[0], names[0]) if names and handles and not result else None


def _operation_body(operation):
    body = ["FlushAtEnd flush;"] if operation.name in FLUSHED else []
    body += _event("_number", "service", operation)
    names = [field.name for field in operation.fields]
    for field in operation.fields:
        if field.code == "FA":
            body.append(f"_federate.passTo({field.name});")
            names[names.index(field.name)] = "_federate"
    if operation.out:
        names.append(operation.out[1])
    answers = operation.result != "void"
    if answers:
        body.append(f"{operation.result} result{{}};")
    forward = call(f"_real->{operation.name}(", names, ")")
    body.append(_run(("result = " if answers else "") + forward))
    if operation.out:
        name = operation.out[1]
        body.append(f'event.outcome("{name}", {name});')
    if answers:
        body.append('event.outcome("result", result);')
        learned = _learned(operation.fields, operation.result)
        if learned:
            body.append(f"learn(_number, {learned[0]}, {learned[1]});")
        body.append("return result;")
    return body


def _definition(operation):
    lines = _lines(_operation_body(operation))
    return "\n".join([head(operation, AMBASSADOR), "{", *lines, "}", ""])


def _callback_head(callback, scope="", end="", indent=0):
    parameters = [f"{parameter(field)} {field.name}" for field in callback.fields]
    return fold(call(f"void {scope}{callback.name}(", parameters, ")" + end), indent)


def _callback_definition(callback):
    body = _event("_ambassador", "callback", callback)
    names = [field.name for field in callback.fields]
    learned = _learned(callback.fields)
    if learned:
        body.insert(0, f"learn(_ambassador, {learned[0]}, {learned[1]});")
    forward = call(f"_real->{callback.name}(", names, ")")
    body.append(_run(forward))
    head_line = _callback_head(callback, FEDERATE + "::")
    return "\n".join([head_line, "{", *_lines(body), "}", ""])


def _heading(group):
    return f"\n   // {group}\n"


def files(operations, callbacks):
    """The generated files: text by path."""
    declarations = grouped(
        operations, lambda operation: head(operation, indent=3, end=" override;"), _heading)
    callback_declarations = grouped(
        callbacks, lambda callback: _callback_head(callback, end=" override;", indent=3), _heading)
    return {
        f"{FOLDER}{AMBASSADOR}.h": "\n".join(
            [SERVICES + AMBASSADOR_HEADER.strip("\n"), *declarations, AMBASSADOR_HEADER_END]),
        f"{FOLDER}{AMBASSADOR}.cpp": "\n".join(
            [SERVICES + AMBASSADOR_SOURCE.lstrip("\n"), *grouped(operations, _definition, rule),
             END]),
        f"{FOLDER}{FEDERATE}.h": "\n".join(
            [CALLBACKS + FEDERATE_HEADER.strip("\n"), *callback_declarations,
             FEDERATE_HEADER_END]),
        f"{FOLDER}{FEDERATE}.cpp": "\n".join(
            [CALLBACKS + FEDERATE_SOURCE.lstrip("\n"),
             *grouped(callbacks, _callback_definition, rule), END]),
    }
