"""Writes the public ambassador's class: every operation with the interface's exception list, as one
forward to the bridge object or one decoding of a handle."""

from codes import RESULTS
from layout import GLUE, NOTE, WIDTH, call, fold, grouped, rule
from rows import parameter

NAME = "RTIambassadorAdapter"
FOLDER = "bridge/generated/"
FROM_ROWS = NOTE.format("gen/rows/services.rows")

TAILS = {"CommonTail": "RTI_COMMON_TAIL", "MemberTail": "RTI_MEMBER_TAIL"}

HEADER = """
// The ambassador that a federate holds. It keeps the exception lists of the interface in force,
// fits a few signatures to the bridge object's, and decodes handles.
#ifndef bridge_generated_RTIambassadorAdapter_h
#define bridge_generated_RTIambassadorAdapter_h

#include <RTI/RTIambassador.h>

#include <memory>

namespace tarn1516e {

class RTIambassadorC;

// The class is made of the interface's names throughout.
using namespace rti1516e;

// Each service is one forward. An exception that its list names passes unchanged; any other ends
// the process. Overrides may not list more than the interface does, so that the compiler compares
// the lists with it.
class RTIambassadorAdapter : public RTIambassador {
public:
   // Brings up the VM at the first construction of the process.
   RTIambassadorAdapter();

   ~RTIambassadorAdapter() override;
"""

HEADER_END = """
private:
   RTIambassadorAdapter(RTIambassadorAdapter const&) = delete;
   RTIambassadorAdapter& operator=(RTIambassadorAdapter const&) = delete;

   std::unique_ptr<RTIambassadorC> _rti;
};

} // namespace tarn1516e

#endif
"""

SOURCE = """
#include "bridge/generated/RTIambassadorAdapter.h"

#include "api/HandleFriends.h"
#include "bridge/Answers.h"
#include "gen/cpp_generated/RTIambassadorC.h"
#include <RTI/LogicalTimeFactory.h>

namespace tarn1516e {

RTIambassadorAdapter::RTIambassadorAdapter() : _rti(new RTIambassadorC) {}

RTIambassadorAdapter::~RTIambassadorAdapter() {}
"""


def exception_list(operation):
    return ", ".join(TAILS.get(name, name) for name in operation.throws)


def head(operation, class_name="", indent=0, end=""):
    """An operation's declaration, or with a class name the head of its definition."""
    parameters = [f"{parameter(field)} {field.name}" for field in operation.fields]
    if operation.out:
        parameters.append(" ".join(operation.out))
    scope = class_name + "::" if class_name else ""
    text = fold(call(f"{operation.result} {scope}{operation.name}(", parameters,
                     ") const" if operation.is_const else ")"), indent)
    throws = f"RTI_THROW(({exception_list(operation)})){end}"
    if len(text.splitlines()[-1]) + 1 + len(throws) <= WIDTH:
        return f"{text} {throws}"
    return f"{text}\n{fold(throws, indent + 6)}"


def _body(operation):
    names = [field.name for field in operation.fields]
    service = operation.service
    if service is None:
        return f"return make{operation.result}({', '.join(names)});"
    forward = call(f"_rti->{service.name}(", [field.name for field in service.fields], ")")
    public = RESULTS[service.result].public
    if public:
        return public.body.format(out=operation.out and operation.out[1], call=forward)
    return (f"return{GLUE}" if service.result else "") + forward + ";"


def _definition(operation):
    return f"{head(operation, NAME)}\n{{\n{fold(_body(operation), 3)}\n}}\n"


def _source(operations):
    return "\n".join([FROM_ROWS + SOURCE.lstrip("\n"), *grouped(operations, _definition, rule),
                      "} // namespace tarn1516e\n"])


def _header(operations):
    declarations = grouped(
        operations, lambda operation: head(operation, indent=3, end=" override;"),
        lambda group: f"\n   // {group}\n")
    return "\n".join([FROM_ROWS + HEADER.strip("\n"), *declarations]) + "\n" + HEADER_END


def files(operations):
    """The generated files: text by path."""
    return {
        f"{FOLDER}{NAME}.h": _header(operations),
        f"{FOLDER}{NAME}.cpp": _source(operations),
    }
