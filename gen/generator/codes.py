"""The one table of type codes: what each is called and how it is passed, in C++ and in Java."""

from collections import namedtuple

# One argument. `name`: the letters in Java names. `parameter`: the C++ parameter. `decoder`: the
# class that reads it in a callback, or None. `java`: its type beyond the bridge. `stream`: there
# the function that reads it in a body or writes it into a frame.
Type = namedtuple("Type", "name parameter decoder java stream")

INTEGER = ("int", "integer")
INTEGERS = ("Set<Integer>", "integers")
VALUES = ("Map<Integer, byte[]>", "values")

TYPES = {
    "S": Type("S", "std::wstring const&", "JavaString", "String", "string"),
    "S{}": Type("S", "std::set<std::wstring> const&", "JavaSetOfString", "Set<String>",
                "stringSet"),
    "URL": Type("URL", "std::wstring const&", None, "String", "string"),
    "URLX": Type("URLX", "std::vector<std::wstring> const&", None, "List<String>", "strings"),
    "BX": Type("BX", "rti1516e::VariableLengthData const&", "JavaByteArray", "byte[]", "bytes"),
    "Z": Type("Z", "bool", None, "boolean", "flag"),
    "D": Type("D", "double", None, "double", "real"),
    "OCH": Type("OCH", "rti1516e::ObjectClassHandle", "JavaObjectClassHandle", *INTEGER),
    "ICH": Type("ICH", "rti1516e::InteractionClassHandle", "JavaInteractionClassHandle", *INTEGER),
    "OIH": Type("OIH", "rti1516e::ObjectInstanceHandle", "JavaObjectInstanceHandle", *INTEGER),
    "AH": Type("AH", "rti1516e::AttributeHandle", "JavaAttributeHandle", *INTEGER),
    "PH": Type("PH", "rti1516e::ParameterHandle", None, *INTEGER),
    "FH": Type("FH", "rti1516e::FederateHandle", "JavaFederateHandle", *INTEGER),
    "DH": Type("DH", "rti1516e::DimensionHandle", None, *INTEGER),
    "RH": Type("RH", "rti1516e::RegionHandle", None, *INTEGER),
    "AHS": Type("AHS", "rti1516e::AttributeHandleSet const&", "JavaAttributeHandleSet", *INTEGERS),
    "DHS": Type("DHS", "rti1516e::DimensionHandleSet const&", None, *INTEGERS),
    "RHS": Type("RHS", "rti1516e::RegionHandleSet const&", None, *INTEGERS),
    "FHS": Type("FHS", "rti1516e::FederateHandleSet const&", "JavaFederateHandleSet", *INTEGERS),
    "AHVM": Type("AHVM", "rti1516e::AttributeHandleValueMap const&", "JavaAttributeHandleValueMap",
                 *VALUES),
    "PHVM": Type("PHVM", "rti1516e::ParameterHandleValueMap const&", "JavaParameterHandleValueMap",
                 *VALUES),
    "ASRSPL": Type("ASRSPL", "rti1516e::AttributeHandleSetRegionHandleSetPairVector const&", None,
                   "List<AttributeRegions>", "attributeRegions"),
    "RB": Type("RB", "rti1516e::RangeBounds const&", None, "Range", "range"),
    "LT": Type("LT", "rti1516e::LogicalTime const&", "JavaLogicalTime", "byte[]", "time"),
    "LTI": Type("LTI", "rti1516e::LogicalTimeInterval const&", None, "byte[]", "time"),
    "MRH": Type("MRH", "rti1516e::MessageRetractionHandle", "JavaMessageRetractionHandle", "int",
                "retraction"),
    "TTH": Type("TTH", "rti1516e::TransportationType", "JavaTransportationTypeHandle", *INTEGER),
    "OT": Type("OT", "rti1516e::OrderType", "JavaOrderType", *INTEGER),
    "RA": Type("RA", "rti1516e::ResignAction", None, *INTEGER),
    "SG": Type("SG", "rti1516e::ServiceGroup", None, *INTEGER),
    "CM": Type("CM", "rti1516e::CallbackModel", None, *INTEGER),
    "FA": Type("FA", "rti1516e::FederateAmbassador&", None, *INTEGER),
    # Callbacks only.
    "FASRI{Reflect}": Type("FASRI", "rti1516e::SupplementalReflectInfo",
                           "JavaSupplementalReflectInfo", "Supplement", "supplement"),
    "FASRI{Receive}": Type("FASRI", "rti1516e::SupplementalReceiveInfo",
                           "JavaSupplementalReceiveInfo", "Supplement", "supplement"),
    "FASRI{Remove}": Type("FASRI", "rti1516e::SupplementalRemoveInfo",
                          "JavaSupplementalRemoveInfo", "Supplement", "producer"),
    "SPFR": Type("SPFR", "rti1516e::SynchronizationPointFailureReason",
                 "JavaSynchronizationPointFailureReason", *INTEGER),
    "SFR": Type("SFR", "rti1516e::SaveFailureReason", "JavaSaveFailureReason", *INTEGER),
    "RFR": Type("RFR", "rti1516e::RestoreFailureReason", "JavaRestoreFailureReason", *INTEGER),
    "FHSSPX": Type("FHSSPX", "rti1516e::FederateHandleSaveStatusPairVector const&",
                   "JavaFederateHandleSaveStatusPairArray", "List<int[]>", "records"),
    "FRSX": Type("FRSX", "rti1516e::FederateRestoreStatusVector const&",
                 "JavaFederateRestoreStatusArray", "List<int[]>", "records"),
    "FEIS": Type("FEIS", "rti1516e::FederationExecutionInformationVector const&",
                 "JavaFederationExecutionInformationSet", "List<String[]>", "namePairs"),
}

# What a Java method can answer with, by the return part of its signature. `jni`: the type in C++.
# `call`: the function that calls such a method. `java`: the type in Java. `script`: the stand-in's
# answer of that type.
Answer = namedtuple("Answer", "jni call java script")

ANSWERS = {
    "V": Answer(None, "CallVoidMethod", "void", None),
    "I": Answer("jint", "CallIntMethod", "int", "asInt"),
    "J": Answer("jlong", "CallLongMethod", "long", "asLong"),
    "D": Answer("jdouble", "CallDoubleMethod", "double", "asDouble"),
    "Z": Answer("jboolean", "CallBooleanMethod", "boolean", "asBoolean"),
    "Ljava/lang/String;": Answer("jstring", "CallObjectMethod", "String", "asString"),
    "[B": Answer("jbyteArray", "CallObjectMethod", "byte[]", "asBytes"),
    "[I": Answer("jintArray", "CallObjectMethod", "int[]", "asInts"),
    "[J": Answer("jlongArray", "CallObjectMethod", "long[]", "asLongs"),
}

# What the public operation makes of the bridge's result where it does not just return it.
# `result`: its own result. `parameter`: the parameter that takes the rest, if any, called `out` in
# `body`.
Public = namedtuple("Public", "result parameter body")

# One result of a service. `signature`: the return part of the Java signature. `cpp`: the bridge's
# result. `convert`: the function that makes it of the Java answer.
Result = namedtuple("Result", "signature cpp convert public", defaults=(None,))

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
        "[I", "std::unique_ptr<rti1516e::AttributeHandleSet>", "returnAttributeHandleSet",
        Public("void", "rti1516e::AttributeHandleSet&", "{out} = *{call};")),
    "DHS": Result("[I", "rti1516e::DimensionHandleSet", "returnDimensionHandleSet"),
    "MRH": Result("[B", "rti1516e::MessageRetractionHandle", "returnMessageRetractionReturn"),
    "LT": Result(
        "[B", "std::unique_ptr<rti1516e::LogicalTime>", "returnLogicalTime",
        Public("void", "rti1516e::LogicalTime&", "assign({out}, {call});")),
    "LTI": Result(
        "[B", "std::unique_ptr<rti1516e::LogicalTimeInterval>", "returnLogicalTimeInterval",
        Public("void", "rti1516e::LogicalTimeInterval&", "assign({out}, {call});")),
    "LT?": Result(
        "[B", "TimeQueryReturn", "returnTimeQueryReturn",
        Public("bool", "rti1516e::LogicalTime&", "return assignIfAny({out}, {call});")),
    "LTF": Result(
        "Ljava/lang/String;", "std::wstring", "returnString",
        Public("std::auto_ptr<rti1516e::LogicalTimeFactory>", None,
               "return LogicalTimeFactoryFactory::makeLogicalTimeFactory({call});")),
}


def short(cpp_type):
    """The type where the interface's names are known."""
    return cpp_type.replace("rti1516e::", "")
