"""The rows of services and callbacks: the types that they are made of, and their reader."""

import re
from collections import namedtuple
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
ROWS = ROOT / "gen" / "rows"
EXCEPTION_HEADER = ROOT / "api" / "RTI" / "Exception.h"

# One argument type. `name`: the letters in Java names. `parameter`: the C++ parameter of a
# service. `decoder`: the class that reads it in a callback, or None.
Type = namedtuple("Type", "name parameter decoder")

TYPES = {
    "S": Type("S", "std::wstring const&", "JavaString"),
    "S{}": Type("S", "std::set<std::wstring> const&", "JavaSetOfString"),
    "URL": Type("URL", "std::wstring const&", None),
    "URLX": Type("URLX", "std::vector<std::wstring> const&", None),
    "BX": Type("BX", "rti1516e::VariableLengthData const&", "JavaByteArray"),
    "Z": Type("Z", "bool", None),
    "D": Type("D", "double", None),
    "OCH": Type("OCH", "rti1516e::ObjectClassHandle", "JavaObjectClassHandle"),
    "ICH": Type("ICH", "rti1516e::InteractionClassHandle", "JavaInteractionClassHandle"),
    "OIH": Type("OIH", "rti1516e::ObjectInstanceHandle", "JavaObjectInstanceHandle"),
    "AH": Type("AH", "rti1516e::AttributeHandle", "JavaAttributeHandle"),
    "PH": Type("PH", "rti1516e::ParameterHandle", None),
    "FH": Type("FH", "rti1516e::FederateHandle", "JavaFederateHandle"),
    "DH": Type("DH", "rti1516e::DimensionHandle", None),
    "RH": Type("RH", "rti1516e::RegionHandle", None),
    "AHS": Type("AHS", "rti1516e::AttributeHandleSet const&", "JavaAttributeHandleSet"),
    "DHS": Type("DHS", "rti1516e::DimensionHandleSet const&", None),
    "RHS": Type("RHS", "rti1516e::RegionHandleSet const&", None),
    "FHS": Type("FHS", "rti1516e::FederateHandleSet const&", "JavaFederateHandleSet"),
    "AHVM": Type("AHVM", "rti1516e::AttributeHandleValueMap const&", "JavaAttributeHandleValueMap"),
    "PHVM": Type("PHVM", "rti1516e::ParameterHandleValueMap const&", "JavaParameterHandleValueMap"),
    "ASRSPL": Type(
        "ASRSPL", "rti1516e::AttributeHandleSetRegionHandleSetPairVector const&", None),
    "RB": Type("RB", "rti1516e::RangeBounds const&", None),
    "LT": Type("LT", "rti1516e::LogicalTime const&", "JavaLogicalTime"),
    "LTI": Type("LTI", "rti1516e::LogicalTimeInterval const&", None),
    "MRH": Type("MRH", "rti1516e::MessageRetractionHandle", "JavaMessageRetractionHandle"),
    "TTH": Type("TTH", "rti1516e::TransportationType", "JavaTransportationTypeHandle"),
    "OT": Type("OT", "rti1516e::OrderType", "JavaOrderType"),
    "RA": Type("RA", "rti1516e::ResignAction", None),
    "SG": Type("SG", "rti1516e::ServiceGroup", None),
    "CM": Type("CM", "rti1516e::CallbackModel", None),
    "FA": Type("FA", "rti1516e::FederateAmbassador&", None),
    # Callbacks only.
    "FASRI": Type("FASRI", None, "JavaSupplemental{kind}Info"),
    "SPFR": Type("SPFR", None, "JavaSynchronizationPointFailureReason"),
    "SFR": Type("SFR", None, "JavaSaveFailureReason"),
    "RFR": Type("RFR", None, "JavaRestoreFailureReason"),
    "FHSSPX": Type("FHSSPX", None, "JavaFederateHandleSaveStatusPairArray"),
    "FRSX": Type("FRSX", None, "JavaFederateRestoreStatusArray"),
    "FEIS": Type("FEIS", None, "JavaFederationExecutionInformationSet"),
}

# One result of a service. `jni`: the return part of the Java signature. `cpp`: the C++ result.
# `convert`: the function that makes it of the Java answer.
Result = namedtuple("Result", "jni cpp convert")

RESULTS = {
    None: Result("V", "void", None),
    "Z": Result("Z", "bool", "returnBoolean"),
    "J": Result("J", "unsigned long", "returnLong"),
    "D": Result("D", "double", "returnDouble"),
    "S": Result("Ljava/lang/String;", "std::wstring", "returnString"),
    "FH": Result("I", "rti1516e::FederateHandle", "returnFederateHandle"),
    "OCH": Result("I", "rti1516e::ObjectClassHandle", "returnObjectClassHandle"),
    "OIH": Result("I", "rti1516e::ObjectInstanceHandle", "returnObjectInstanceHandle"),
    "ICH": Result("I", "rti1516e::InteractionClassHandle", "returnInteractionClassHandle"),
    "AH": Result("I", "rti1516e::AttributeHandle", "returnAttributeHandle"),
    "PH": Result("I", "rti1516e::ParameterHandle", "returnParameterHandle"),
    "DH": Result("I", "rti1516e::DimensionHandle", "returnDimensionHandle"),
    "RH": Result("I", "rti1516e::RegionHandle", "returnRegionHandle"),
    "OT": Result("I", "rti1516e::OrderType", "returnOrderType"),
    "TTH": Result("I", "rti1516e::TransportationType", "returnTransportationType"),
    "RA": Result("I", "rti1516e::ResignAction", "returnResignAction"),
    "RB": Result("[J", "rti1516e::RangeBounds", "returnRangeBounds"),
    "AHS": Result(
        "[I", "std::unique_ptr<rti1516e::AttributeHandleSet>", "returnAttributeHandleSet"),
    "DHS": Result("[I", "rti1516e::DimensionHandleSet", "returnDimensionHandleSet"),
    "MRH": Result("[B", "rti1516e::MessageRetractionHandle", "returnMessageRetractionReturn"),
    "LT": Result("[B", "std::unique_ptr<rti1516e::LogicalTime>", "returnLogicalTime"),
    "LTI": Result(
        "[B", "std::unique_ptr<rti1516e::LogicalTimeInterval>", "returnLogicalTimeInterval"),
    "LT?": Result("[B", "TimeQueryReturn", "returnTimeQueryReturn"),
}

Field = namedtuple("Field", "code name by_value")


class Row:
    """A service or a callback."""

    def __init__(self, name, fields):
        self.name = name
        self.fields = fields
        self.codes = [TYPES[field.code].name for field in fields]
        self.java_name = "_".join([name] + self.codes)


class Service(Row):
    def __init__(self, name, fields, result, step, group):
        super().__init__(name, fields)
        self.result = result
        self.step = step
        self.group = group
        self.rungs = []  # as the row has them, tails by name
        self.ladder = []  # tails expanded

    @property
    def signature(self):
        return "(" + ("[B" if self.fields else "") + ")" + RESULTS[self.result].jni

    @property
    def method_id(self):
        return "_id" + self.java_name[0].upper() + self.java_name[1:]


class Callback(Row):
    def __init__(self, name, fields, group):
        super().__init__(name, fields)
        self.native_name = self.java_name + "_Native"
        self.group = group

    def decoder(self, field):
        kinds = {"ref": "Reflect", "rec": "Receive", "rem": "Remove"}
        return TYPES[field.code].decoder.format(kind=kinds.get(self.name[:3]))


def _statements(path):
    """Yields (group, first line with its continuations, indented lines)."""
    group, head, body = None, None, []
    for line in path.read_text().splitlines():
        if line.startswith("# ") and not line.endswith((".", ":")):
            if head:
                yield group, head, body
                head = None
            group = line[2:]
        elif line.startswith("#") or not line.strip():
            continue
        elif line.startswith("      "):
            head += " " + line.strip()
        elif line.startswith("   "):
            body.append(line.strip())
        else:
            if head:
                yield group, head, body
            head, body = line, []
    if head:
        yield group, head, body


def _fields(text):
    fields = []
    for part in filter(None, (part.strip() for part in text.split(","))):
        code, name = part.split()
        fields.append(Field(code.rstrip("*"), name, code.endswith("*")))
        if fields[-1].code not in TYPES:
            raise ValueError(f"unknown type code {code} in '{text}'")
    return fields


def read_services(path=ROWS / "services.rows"):
    """The services in order, and the tails by name."""
    services, tails = [], {}
    row = re.compile(r"service (\w+) ?(.*?)(?: ?-> (\S+))?(?: then (\w+))?$")
    for group, head, body in _statements(path):
        rungs = " ".join(body).split()
        if head.startswith("tail "):
            tails[head.split()[1]] = rungs
            continue
        name, fields, result, step = row.fullmatch(head).groups()
        service = Service(name, _fields(fields), result, step, group)
        service.rungs = rungs
        service.ladder = [name for rung in rungs for name in tails.get(rung, [rung])]
        services.append(service)
    return services, tails


def read_callbacks(path=ROWS / "callbacks.rows"):
    """The callbacks in the order of the native method table."""
    row = re.compile(r"callback (\w+) ?(.*)$")
    return [
        Callback(match[1], _fields(match[2]), group)
        for group, match in ((g, row.fullmatch(head)) for g, head, _ in _statements(path))
    ]


def read_exceptions(path=EXCEPTION_HEADER):
    """The exception class names, from the list that declares them."""
    return re.findall(r"^ *X\((\w+)\)", path.read_text(), re.MULTILINE)
