"""Faults that the tests must catch. Each is what it is, one or more files, and pairs of old and new
text; an old text occurs once in each file."""

ENCODER_H = "gen/cpp/Encoder.h"
ENCODER = "gen/cpp/Encoder.cpp"
DECODER = "gen/cpp/Decoder.cpp"
SERVICES = "gen/cpp_generated/RTIambassadorC.cpp"
NATIVES = "gen/cpp_generated/FederateAmbassadorC.cpp"
BRIDGE = "gen/cpp/BridgeObject.cpp"
EXCEPTIONS = "bridge/JavaExceptions.cpp"

FAULTS = [
    # Sizes and orders on the way out.
    ("a string declares what it writes", ENCODER_H, [(
        "CppWrapper(JNIEnv*, std::wstring const& value) : _value(value) {}\n\n"
        "   unsigned long getEncodedSize() const\n   {\n      return 4 + 4 *",
        "CppWrapper(JNIEnv*, std::wstring const& value) : _value(value) {}\n\n"
        "   unsigned long getEncodedSize() const\n   {\n      return 4 + 2 *")]),
    ("a map's entry declares 4 bytes more", ENCODER_H, [(
        "_entries[_noted++] = &*entry;\n         _size += 8 +",
        "_entries[_noted++] = &*entry;\n         _size += 12 +")]),
    ("entries that a large map has no room to note are lost", ENCODER_H, [(
        "      _rest = entry;\n", "      _rest = value.end();\n")]),
    ("a character's low byte first", ENCODER_H, [(
        "static_cast<char>(character >> 8)", "static_cast<char>(character & 0xFF)"), (
        "static_cast<char>(character);", "static_cast<char>(character >> 8);")]),
    ("a double's low half first", ENCODER_H, [(
        "buffer.putInt(static_cast<int>(value >> 32));\n   buffer.putInt(static_cast<int>(value));",
        "buffer.putInt(static_cast<int>(value));\n   buffer.putInt(static_cast<int>(value >> 32));",
    )]),
    ("the upper bound first", ENCODER_H, [(
        "putLong(buffer, _value.getLowerBound());\n      putLong(buffer, _value.getUpperBound());",
        "putLong(buffer, _value.getUpperBound());\n      putLong(buffer, _value.getLowerBound());",
    )]),
    ("regions ahead of attributes", ENCODER_H, [(
        "Attributes(_env, pair.first).encode(buffer);\n"
        "         Regions(_env, pair.second).encode(buffer);",
        "Regions(_env, pair.second).encode(buffer);\n"
        "         Attributes(_env, pair.first).encode(buffer);")]),
    ("a handle with its high bit cut", ENCODER_H, [(
        "buffer.putInt(handleValue(this->_handle));",
        "buffer.putInt(0x7FFFFFFF & handleValue(this->_handle));")]),

    # Codes and results.
    ("the order types' codes unshifted", ENCODER, [(
        "   case RECEIVE:\n      return 0;", "   case RECEIVE:\n      return 1;")]),
    ("the service groups' codes unshifted", ENCODER, [("return group + 1;", "return group;")]),
    ("a resign action without a code", ENCODER, [("   case NO_ACTION:\n", "")]),
    ("transportation types exchanged in a result", ENCODER, [(
        "   case 1:\n      return RELIABLE;\n   case 2:\n      return BEST_EFFORT;",
        "   case 2:\n      return RELIABLE;\n   case 1:\n      return BEST_EFFORT;")]),
    ("range bounds exchanged in a result", ENCODER, [(
        "static_cast<unsigned long>(values[0]), static_cast<unsigned long>(values[1])",
        "static_cast<unsigned long>(values[1]), static_cast<unsigned long>(values[0])")]),
    ("a null retraction handle is read", ENCODER, [(
        "if (handle == nullptr) {", "if (false) {")]),
    ("handles from integers without their sign", "api/HandleFriends.h", [(
        "static_cast<long>(value)", "static_cast<long>(static_cast<unsigned>(value))")]),

    # Rows of services.
    ("another method", SERVICES, [(
        "_rtiObject, _idPublishInteractionClass_ICH, body",
        "_rtiObject, _idUnpublishInteractionClass_ICH, body")]),
    ("two fields exchanged", SERVICES, [(
        "   CppWrapper<AttributeHandle> wrappedAttribute(env, theAttribute);\n"
        "   jbyteArray const body = encodeBody(env, wrappedObject, wrappedAttribute);\n"
        "   jdouble",
        "   CppWrapper<AttributeHandle> wrappedAttribute(env, theAttribute);\n"
        "   jbyteArray const body = encodeBody(env, wrappedAttribute, wrappedObject);\n"
        "   jdouble")]),
    ("a rung missing", SERVICES, [(
        "Ladder<IllegalName, NameSetWasEmpty, CommonTail>", "Ladder<IllegalName, CommonTail>")]),
    ("another class on a rung", SERVICES, [(
        "Ladder<RestoreNotInProgress, MemberTail>", "Ladder<RestoreNotRequested, MemberTail>")]),
    ("a rung missing in the common tail", SERVICES, [(
        "Ladder<SaveInProgress, RestoreInProgress, FederateNotExecutionMember, NotConnected,",
        "Ladder<SaveInProgress, RestoreInProgress, FederateNotExecutionMember,")]),
    ("the callback models' codes exchanged", SERVICES, [(
        "2 - (theCallbackModel == HLA_EVOKED)", "1 + (theCallbackModel == HLA_EVOKED)")]),
    ("the ambassador stored behind the call", SERVICES, [(
        "   _helper.federateAmbassador = &theFederateAmbassador;\n", ""), (
        "         AlreadyConnected, CallNotAllowedFromWithinCallback, RTIinternalError>>(env);\n",
        "         AlreadyConnected, CallNotAllowedFromWithinCallback, RTIinternalError>>(env);\n"
        "   _helper.federateAmbassador = &theFederateAmbassador;\n")]),
    ("an array kept", SERVICES, [(
        "_idRetract_MRH, body);\n   env->DeleteLocalRef(body);", "_idRetract_MRH, body);")]),

    # Rows of callbacks.
    ("one native under the other's name", NATIVES, [(
        "federate.turnInteractionsOn(", "federate.turnInteractionsOff("), (
        "federate.turnInteractionsOff(theInteraction);\n   });\n}\n\n"
        "void Java_skerry_tarn1516e_FederateAmbassadorC2007_objectInstanceNameReservationSucceeded",
        "federate.turnInteractionsOn(theInteraction);\n   });\n}\n\n"
        "void Java_skerry_tarn1516e_FederateAmbassadorC2007_objectInstanceNameReservationSucceeded",
    )]),
    ("a frame left open", NATIVES, [(
        "   frame.close(TARN_HERE);\n   deliver(env, helper, [&](FederateAmbassador& federate) {\n"
        "      federate.federationRestored();",
        "   deliver(env, helper, [&](FederateAmbassador& federate) {\n"
        "      federate.federationRestored();")]),
    ("another last magic word", "gen/cpp/CallbackFrame.h", [("0x59585756", "0x59585755")]),
    ("unknown exceptions under another text", "gen/cpp/CallbackFrame.h", [(
        '"Unknown C++ exception"', '"unknown C++ exception"')]),

    # Decoders.
    ("a reflection tells of its regions", DECODER, [(
        "   bool const hasSentRegions = buffer.getInt() != 0;",
        "   bool const hasSentRegions = buffer.getInt() != 0;\n"
        "   info.hasSentRegions = hasSentRegions;")]),
    ("a flag is set by 1 alone", DECODER, [(
        "info.hasSentRegions = buffer.getInt() != 0;",
        "info.hasSentRegions = buffer.getInt() == 1;")]),
    ("the last code out of range", DECODER, [("code <= last", "code < last")]),
    ("one code too many", DECODER, [("code <= last", "code <= last + 1")]),
    ("the first of two values for a handle stays", DECODER, [(
        "return isTaken ? values.erase(place) : place;",
        "static_cast<void>(isTaken);\n   return place;")]),
    ("before and after exchanged in a restore's status", DECODER, [(
        "FederateRestoreStatus(before, after,", "FederateRestoreStatus(after, before,")]),

    # Exceptions, texts, and what an ambassador keeps.
    ("an exception without a message has none", EXCEPTIONS, [(
        "text = env->CallObjectMethod(exception, toString);",
        'text = env->NewStringUTF("");')]),
    ("an unknown exception's message without its class", EXCEPTIONS, [(
        'env->GetMethodID(type, "toString", "()Ljava/lang/String;"));',
        'env->GetMethodID(type, "getMessage", "()Ljava/lang/String;"));')]),
    ("another text for unknown exceptions", EXCEPTIONS, [(
        '"Unhandled exception"', '"Unhandled exception."')]),
    ("another text for a missing method", "jvm/StartTexts.h", [(
        "Cannot locate %s.\\n", "Cannot find %s.\\n")]),
    ("unknown exceptions pass when they are to be caught", BRIDGE, [(
        'std::getenv("TARN1516_DONTCATCHALL") == nullptr',
        'std::getenv("TARN1516_DONTCATCHALL") != nullptr')]),
    ("the end does not disconnect", BRIDGE, [(
        "   env->CallVoidMethod(_rtiObject, _idDisconnect);\n", "")]),
    ("the first handle is 0", "gen/cpp/HandleTable.cpp", [(
        "int nextHandle;", "int nextHandle = slots - 1;")]),
    ("divested attributes are added to the set", "bridge/generated/RTIambassadorAdapter.cpp", [(
        "theDivestedAttributes = *_rti->attributeOwnershipDivestitureIfWanted("
        "theObject, theAttributes);",
        "auto const divested = _rti->attributeOwnershipDivestitureIfWanted("
        "theObject, theAttributes);\n"
        "   theDivestedAttributes.insert(divested->begin(), divested->end());")]),
    ("an exception missing in the adapter's list",
     "bridge/generated/RTIambassadorAdapter.h bridge/generated/RTIambassadorAdapter.cpp", [(
        "RTI_THROW((IllegalName, NameSetWasEmpty, RTI_COMMON_TAIL))",
        "RTI_THROW((IllegalName, RTI_COMMON_TAIL))")]),
    ("no time, told as one", "bridge/Answers.h", [(
        "   return answer.first;", "   return true;")]),
]
