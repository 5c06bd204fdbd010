#!/usr/bin/env python3
"""Compares the two ambassadors' headers with the rows of services and callbacks: operations, their
order, parameters and results, and each exception list with the ladder behind it. The compiler
can't see the latter: an exception of a ladder that a list lacks would end the federate's process.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "gen/generator"))
sys.dont_write_bytecode = True
import rows  # noqa: E402

PUBLIC_NAMES = {"getTransportationTypeHandle": "getTransportationType",
                "getTransportationTypeName": "getTransportationName"}

# What the interface asks for in place of the bridge's result.
OUT_PARAMETERS = {
    "attributeOwnershipDivestitureIfWanted":
        ("void", ["AttributeHandleSet& theDivestedAttributes"]),
    "queryGALT": ("bool", ["LogicalTime& theTime"]),
    "queryLITS": ("bool", ["LogicalTime& theTime"]),
    "queryLogicalTime": ("void", ["LogicalTime& theTime"]),
    "queryLookahead": ("void", ["LogicalTimeInterval& theInterval"]),
    "getTimeFactory": ("std::auto_ptr<LogicalTimeFactory>", []),
}
DECODED = ("Federate ObjectClass InteractionClass ObjectInstance Attribute Parameter Dimension "
           "MessageRetraction Region").split()

# Runs of exceptions that stand in another order in the interface's list than in the ladder.
REORDERED = {
    ("ErrorReadingMIM", "CouldNotOpenMIM", "DesignatorIsHLAstandardMIM"):
        ("DesignatorIsHLAstandardMIM", "ErrorReadingMIM", "CouldNotOpenMIM"),
    ("FederateAlreadyExecutionMember", "SaveInProgress", "RestoreInProgress"):
        ("SaveInProgress", "RestoreInProgress", "FederateAlreadyExecutionMember"),
}

# Callback parameters that no service has.
CALLBACK_TYPES = {"SPFR": "SynchronizationPointFailureReason", "SFR": "SaveFailureReason",
                  "RFR": "RestoreFailureReason",
                  "FHSSPX": "FederateHandleSaveStatusPairVector const&",
                  "FRSX": "FederateRestoreStatusVector const&",
                  "FEIS": "FederationExecutionInformationVector const&"}


def plain(text):
    return text.replace("rti1516e::", "")


def declared(header, tails):
    """Operations of a header: (result, name, parameters, list)."""
    text = re.sub(r"//.*", "", (ROOT / "api/RTI" / header).read_text())
    operation = re.compile(
        r"virtual ([\w:<> ]+?) (\w+)\(([^()]*(?:\(\)[^()]*)*)\)( const)?"
        r"(?: RTI_THROW\(\s*\(\s*(.*?)\)\))? = 0;")
    for match in operation.finditer(re.sub(r"\s+", " ", text)):
        result, name, parameters, _, throws = match.groups()
        throws = [tails.get(word, [word]) for word in re.split(r",\s*", throws or "") if word]
        parameters = re.sub(r" = [^,]+", "", parameters)
        yield (result, name, [part.strip() for part in parameters.split(",") if part.strip()],
               [word for part in throws for word in part])


def expected_service(service, member_tail):
    name = PUBLIC_NAMES.get(service.name, service.name)
    parameters = [f"{plain(rows.TYPES[f.code].parameter)} {f.name}" for f in service.fields]
    result = plain(rows.RESULTS[service.result].cpp)
    if name == "createFederationExecution" and len(parameters) == 4:
        name = "createFederationExecutionWithMIM"
    elif name == "subscribeInteractionClassWithRegions":
        parameters[1:] = reversed(parameters[1:])
    elif name == "deleteRegion":
        parameters = ["RegionHandle const& theRegion"]
    elif name in OUT_PARAMETERS:
        result, more = OUT_PARAMETERS[name]
        parameters += more
    throws = list(service.ladder) or list(member_tail)
    for ladder, listed in REORDERED.items():
        for start in range(len(throws)):
            if tuple(throws[start:start + 3]) == ladder:
                throws[start:start + 3] = listed
    return result, name, parameters, throws


def expected_services(services, tails):
    expected = [expected_service(service, tails["MemberTail"]) for service in services]
    join = next(i for i, row in enumerate(expected) if row[1] == "joinFederationExecution")
    expected[join:join + 2] = reversed(expected[join:join + 2])
    return expected + [
        (f"{kind}Handle", f"decode{kind}Handle", ["VariableLengthData const& encodedValue"],
         ["CouldNotDecode", *tails["MemberTail"]]) for kind in DECODED]


def expected_callback(callback):
    parameters = []
    for field in callback.fields:
        kind = plain(rows.TYPES[field.code].parameter or CALLBACK_TYPES.get(field.code, ""))
        if field.code == "FASRI":
            kind = callback.decoder(field).removeprefix("Java")
        if field.by_value:
            kind = kind.replace(" const&", "")
        parameters.append(f"{kind} {field.name}")
    return "void", callback.name, parameters, []


def differences(what, expected, actual):
    for number, (left, right) in enumerate(zip(expected, actual)):
        if left != right:
            yield f"{what} {number}: the row says\n   {left}\nthe header\n   {right}"
    if len(expected) != len(actual):
        yield f"{len(expected)} {what}s in the rows, {len(actual)} in the header"


def main():
    services, tails = rows.read_services()
    in_header = {f"RTI_{name[:-4].upper()}_TAIL": rungs for name, rungs in tails.items()}
    faults = list(differences("service", expected_services(services, tails),
                              list(declared("RTIambassador.h", in_header))))
    # The native method table has the callbacks in another order than the class.
    faults += differences("callback", sorted(map(expected_callback, rows.read_callbacks())),
                          sorted(declared("FederateAmbassador.h", {})))
    for fault in faults:
        print(fault)
    print(f"{len(faults)} differences")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
