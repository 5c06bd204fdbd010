#!/usr/bin/env python3
"""Writes the C++ that a list of names can't be: a call of every service of java.txt, and a federate
ambassador that keeps what comes by every operation of the interface's header.

   write_calls.py LIST FEDERATE_AMBASSADOR_HEADER OUTPUT
"""

import re
import sys
from pathlib import Path

# Where the public operation is not the method's name with its fields in their order; a number
# stands for the field of that position. Where a result comes by a parameter, that is told with the
# answer; a set already holds something.
PUBLIC = {
    "createFederationExecution_S_URLX_URL_S":
        "rti.createFederationExecutionWithMIM({0}, {1}, {2}, {3})",
    "getTransportationTypeHandle_S": "rti.getTransportationType({0})",
    "getTransportationTypeName_TTH": "rti.getTransportationName({0})",
    "subscribeInteractionClassWithRegions_ICH_Z_RHS":
        "rti.subscribeInteractionClassWithRegions({0}, {2}, {1})",
    "attributeOwnershipDivestitureIfWanted_OIH_AHS":
        "AttributeHandleSet out = AHS::samples()[0]; "
        "rti.attributeOwnershipDivestitureIfWanted({0}, {1}, out); return wire(out).bytes",
    "queryGALT": "bool const is = rti.queryGALT(time); return (wire(is) + wire(time)).bytes",
    "queryLITS": "bool const is = rti.queryLITS(time); return (wire(is) + wire(time)).bytes",
    "queryLogicalTime": "rti.queryLogicalTime(time); return wire(time).bytes",
    "queryLookahead": "rti.queryLookahead(interval); return wire(interval).bytes",
}

HEAD = """#include "tests/bridge/Rows.h"

using namespace rti1516e;

namespace net {
"""


def argument(position, code, name):
    if code == "FA":
        return f"fields.federateAmbassador({position})"
    if code == "S" and re.match("(reserve|release)Multiple", name):
        code = "SX"
    value = f"fields.at<{code}>({position}).get()"
    return "*" + value if code in ("LT", "LTI") else value


def service_call(name, result):
    service, *codes = name.split("_")
    arguments = [argument(i, code, name) for i, code in enumerate(codes)]
    call = PUBLIC.get(name, f"rti.{service}({', '.join('{%d}' % i for i in range(len(codes)))})")
    call = call.format(*arguments)
    if "return" not in call:
        call = f"return wire({call}).bytes" if result != "-" else call + '; return ""'
    return ("      [](RTIambassador& rti, Fields& fields, LogicalTime& time, "
            "LogicalTimeInterval& interval) -> std::string {\n"
            f"         (void)rti, (void)fields, (void)time, (void)interval; {call}; }},")


def recorder(header, natives):
    """Overloads differ in the number of their parameters, and so do the natives' names."""
    by_form = {(name.split("_")[0], name.count("_") - 1): name for name in natives}
    text = re.sub(r"\s+", " ", re.sub(r"//.*", "", header))
    for name, parameters in re.findall(r"virtual void (\w+)\(([^)]*)\)", text):
        names = [parameter.split()[-1] for parameter in parameters.split(",") if parameter]
        values = ", ".join(f"wire({name}).bytes" for name in names)
        yield (f"   void {name}({parameters}) override\n   {{\n      _record.add("
               f"\"{by_form.pop((name, len(names)))}\", {{{values}}});\n   }}\n")
    if by_form:
        sys.exit(f"no operations for {by_form}")


def main():
    rows, header = (Path(path).read_text() for path in sys.argv[1:3])
    services = re.findall(r"^service (\S+) \S+ (\S+)", rows, re.MULTILINE)
    natives = re.findall(r"^callback (\S+)", rows, re.MULTILINE)
    out = [HEAD, "std::vector<ServiceCall> serviceCalls()\n{\n   return {"]
    out += [service_call(*service) for service in services]
    out += ["   };\n}\n\nnamespace {\n\nclass Recorder : public FederateAmbassador {\npublic:",
            "   explicit Recorder(CallbackRecord& record) : _record(record) {}\n"]
    out += recorder(header, natives)
    out += ["private:\n   CallbackRecord& _record;\n};\n\n} // namespace\n",
            "std::unique_ptr<FederateAmbassador> makeRecorder(CallbackRecord& record)\n{",
            "   return std::make_unique<Recorder>(record);\n}\n\n} // namespace net\n"]
    Path(sys.argv[3]).write_text("\n".join(out))


if __name__ == "__main__":
    main()
