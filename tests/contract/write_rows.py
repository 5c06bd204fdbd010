#!/usr/bin/env python3
"""Writes what the contract tests need of the rows: services and callbacks as tables, a federate
ambassador that records every callback, and a Java class that lacks one method.

   write_rows.py FOLDER
"""

import re
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

# What takes a result that comes by a parameter; the set already holds something.
OUT = {
    "AttributeHandleSet&": "AttributeHandleSet out{handle<AttributeHandle>(99)}",
    "LogicalTime&": "LogicalTime& out = time",
    "LogicalTimeInterval&": "LogicalTimeInterval& out = interval",
}


def code_of(field):
    info = re.fullmatch(r"FASRI{(\w+)}", field.code)
    return info[1] + "Info" if info else field.code.replace("{}", "X")


def argument(position, field):
    code = code_of(field)
    if code == "FA":
        return f"fields.federateAmbassador({position})"
    return ("*" if code in ("LT", "LTI") else "") + f"fields.at<{code}>({position})"


def call(service):
    operation = service.operation
    arguments = [argument(service.fields.index(field), field) for field in operation.fields]
    out = ["out"] if operation.out else []
    public = f"rti.{operation.name}({', '.join(arguments + out)})"
    if not out:
        return f"return show({public});" if service.result else f'{public};\n   return "";'
    shown = "show(out)"
    if operation.result != "void":
        public, shown = f"std::string const valid = show({public})", 'valid + " " + show(out)'
    return f"{OUT[operation.out[0]]};\n   {public};\n   return {shown};"


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
        result = "factory" if service.result == "LTF" else service.result or ""
        out.append(f'      {{"{service.java_name}", "{service.signature}", '
                   f'"{result}", {{{ladder}}}, call{i}}},')
    out.append("   };\n   return rows;\n}\n\n} // namespace contract\n")
    return "\n".join(out)


def callback_rows(callbacks):
    out = [HEAD]
    for i, callback in enumerate(callbacks):
        shown = ", ".join(
            f"show(fields.at<{code_of(field)}>({j}))"
            for j, field in enumerate(callback.fields))
        out.append(f"static Texts arguments{i}(Fields& fields)\n{{")
        out.append(f"   (void)fields;\n   return {{{shown}}};\n}}\n")
    out.append("std::vector<CallbackRow> const& callbackRows()\n{")
    out.append("   static std::vector<CallbackRow> const rows{")
    for i, callback in enumerate(callbacks):
        has_time = "true" if "LT" in (field.code for field in callback.fields) else "false"
        out.append(f'      {{"{callback.java_name}", {has_time}, arguments{i}}},')
    out.append("   };\n   return rows;\n}\n\n} // namespace contract\n")
    return "\n".join(out)


def recorder(callbacks):
    out = [HEAD.replace("{\n", "{\n\nnamespace {\n").rstrip(),
           "\nclass Recorder : public FederateAmbassador {", "public:",
           "   explicit Recorder(CallbackRecord& record) : _record(record) {}\n"]
    for callback in callbacks:
        names = [f"value{i}" for i in range(len(callback.fields))]
        parameters = ", ".join(
            f"{rows.parameter(field)} {name}" for field, name in zip(callback.fields, names))
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
