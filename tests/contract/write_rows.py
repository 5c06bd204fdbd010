#!/usr/bin/env python3
"""Writes what the contract tests need of the rows: services and callbacks as tables, a federate
ambassador that records every callback, and a Java class that lacks one method.

   write_rows.py FOLDER
"""

import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "gen/generator"))
import rows  # noqa: E402

HEAD = """// Written by tests/contract/write_rows.py.
#include "tests/contract/Rows.h"

using namespace rti1516e;

namespace contract {
"""

# Where the public operation is not the service's name with the fields in their order; a number
# stands for the field of that position.
PUBLIC = {
    "createFederationExecution_S_URLX_URL_S":
        "rti.createFederationExecutionWithMIM({0}, {1}, {2}, {3})",
    "getTransportationTypeHandle_S": "rti.getTransportationType({0})",
    "getTransportationTypeName_TTH": "rti.getTransportationName({0})",
    "subscribeInteractionClassWithRegions_ICH_Z_RHS":
        "rti.subscribeInteractionClassWithRegions({0}, {2}, {1})",
}

# Where a result comes by a parameter; this one already holds something.
ASSIGNED = {
    "attributeOwnershipDivestitureIfWanted_OIH_AHS":
        "AttributeHandleSet out{{handle<AttributeHandle>(99)}};\n"
        "   rti.attributeOwnershipDivestitureIfWanted({0}, {1}, out);\n"
        "   return show(out);",
    "queryGALT": 'std::string const valid = show(rti.queryGALT(time));\n'
                 '   return valid + " " + show(time);',
    "queryLITS": 'std::string const valid = show(rti.queryLITS(time));\n'
                 '   return valid + " " + show(time);',
    "queryLogicalTime": "rti.queryLogicalTime(time);\n   return show(time);",
    "queryLookahead": "rti.queryLookahead(interval);\n   return show(interval);",
}

INFO = {"ref": "ReflectInfo", "rec": "ReceiveInfo", "rem": "RemoveInfo"}


def code_of(row, field):
    if field.code == "FASRI":
        return INFO[row.name[:3]]
    return "SX" if field.code == "S{}" else field.code


def argument(row, position, field):
    code = code_of(row, field)
    if code == "FA":
        return f"fields.federateAmbassador({position})"
    return ("*" if code in ("LT", "LTI") else "") + f"fields.at<{code}>({position})"


def call(service):
    arguments = [argument(service, i, field) for i, field in enumerate(service.fields)]
    name = service.java_name
    if name in ASSIGNED:
        return ASSIGNED[name].format(*arguments)
    public = PUBLIC.get(name, "rti." + service.name + "("
                        + ", ".join("{%d}" % i for i in range(len(arguments))) + ")")
    public = public.format(*arguments)
    return f"return show({public});" if service.result else f'{public};\n   return "";'


def service_rows(services):
    out = [HEAD]
    for i, service in enumerate(services):
        out.append(f"static std::string call{i}(\n      RTIambassador& rti, Fields& fields, "
                   "LogicalTime& time, LogicalTimeInterval& interval)\n{")
        out.append("   (void)fields, (void)time, (void)interval;")
        out.append(f"   {call(service)}\n}}\n")
    out.append("std::vector<ServiceRow> const& serviceRows()\n{")
    out.append("   static std::vector<ServiceRow> const rows{")
    for i, service in enumerate(services):
        ladder = ", ".join(f'"{rung}"' for rung in service.ladder)
        # The public form of the last row answers with a factory.
        result = "factory" if service.java_name == "getTimeFactory" else service.result or ""
        out.append(f'      {{"{service.java_name}", "{service.signature}", '
                   f'"{result}", {{{ladder}}}, call{i}}},')
    out.append("   };\n   return rows;\n}\n\n} // namespace contract\n")
    return "\n".join(out)


def callback_rows(callbacks):
    out = [HEAD]
    for i, callback in enumerate(callbacks):
        shown = ", ".join(
            f"show(fields.at<{code_of(callback, field)}>({j}))"
            for j, field in enumerate(callback.fields))
        out.append(f"static Texts arguments{i}(Fields& fields)\n{{")
        out.append(f"   (void)fields;\n   return {{{shown}}};\n}}\n")
    out.append("std::vector<CallbackRow> const& callbackRows()\n{")
    out.append("   static std::vector<CallbackRow> const rows{")
    for i, callback in enumerate(callbacks):
        has_time = "true" if "LT" in callback.codes else "false"
        out.append(f'      {{"{callback.java_name}", {has_time}, arguments{i}}},')
    out.append("   };\n   return rows;\n}\n\n} // namespace contract\n")
    return "\n".join(out)


BY_REFERENCE = {"S", "SX", "BX", "AHS", "FHS", "AHVM", "PHVM", "FHSSPX", "FRSX", "FEIS"}


def parameter(callback, field, name):
    code = code_of(callback, field)
    if code == "LT":
        return f"LogicalTime const& {name}"
    by_reference = code in BY_REFERENCE and not field.by_value
    return f"{code}::Native" + (" const& " if by_reference else " ") + name


def recorder(callbacks):
    out = [HEAD.replace("{\n", "{\n\nnamespace {\n").rstrip(),
           "\nclass Recorder : public FederateAmbassador {", "public:",
           "   explicit Recorder(CallbackRecord& record) : _record(record) {}\n"]
    for callback in callbacks:
        names = [f"value{i}" for i in range(len(callback.fields))]
        parameters = ", ".join(map(parameter, [callback] * len(names), callback.fields, names))
        shown = ", ".join(f"show({name})" for name in names)
        out.append(f"   void {callback.name}({parameters}) override\n   {{")
        out.append(f'      _record.add("{callback.java_name}", {{{shown}}});\n   }}\n')
    out.append("private:\n   CallbackRecord& _record;\n};\n\n} // namespace\n")
    out.append("std::unique_ptr<FederateAmbassador> makeRecorder(CallbackRecord& record)\n{")
    out.append("   return std::make_unique<Recorder>(record);\n}\n\n} // namespace contract\n")
    return "\n".join(out)


def class_without_method():
    """The stand-in's ambassador, with a method under another name."""
    source = ROOT / "standin/generated/skerry/tarn1516e/RTIambassadorC2007.java"
    text = source.read_text()
    if text.count("void retract_MRH(") != 1:
        sys.exit(f"no method retract_MRH in {source.name}")
    return text.replace("void retract_MRH(", "void retractNot_MRH(")


def main():
    folder = Path(sys.argv[1])
    services, _ = rows.read_services()
    callbacks = rows.read_callbacks()
    texts = {
        "ServiceRows.cpp": service_rows(services),
        "CallbackRows.cpp": callback_rows(callbacks),
        "Recorder.cpp": recorder(callbacks),
        "RTIambassadorC2007.java": class_without_method(),
    }
    for name, text in texts.items():
        (folder / name).write_text(text)


if __name__ == "__main__":
    main()
