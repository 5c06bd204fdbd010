// The codes of the enumerations, and the results of Java methods.
#include "gen/cpp/Encoder.h"

#include "jvm/Assert.h"
#include "jvm/JavaString.h"

using namespace rti1516e;

namespace tarn1516e {

int encodeOrderType(OrderType const& type)
{
   switch (type) {
   case RECEIVE:
      return 0;
   case TIMESTAMP:
      return 1;
   }
   TARN_ASSERT(false);
}

int encodeTransportationType(TransportationType const& type)
{
   switch (type) {
   case RELIABLE:
   case BEST_EFFORT:
      return type;
   }
   TARN_ASSERT(false);
}

int encodeResignAction(ResignAction action)
{
   switch (action) {
   case UNCONDITIONALLY_DIVEST_ATTRIBUTES:
   case DELETE_OBJECTS:
   case CANCEL_PENDING_OWNERSHIP_ACQUISITIONS:
   case DELETE_OBJECTS_THEN_DIVEST:
   case CANCEL_THEN_DELETE_THEN_DIVEST:
   case NO_ACTION:
      return action;
   }
   TARN_ASSERT(false);
}

int encodeServiceGroup(ServiceGroup const& group)
{
   switch (group) {
   case FEDERATION_MANAGEMENT:
   case DECLARATION_MANAGEMENT:
   case OBJECT_MANAGEMENT:
   case OWNERSHIP_MANAGEMENT:
   case TIME_MANAGEMENT:
   case DATA_DISTRIBUTION_MANAGEMENT:
   case SUPPORT_SERVICES:
      return group + 1;
   }
   TARN_ASSERT(false);
}

bool returnBoolean(JNIEnv*, int value)
{
   return value != 0;
}

unsigned long returnLong(JNIEnv*, long value)
{
   return static_cast<unsigned long>(value);
}

double returnDouble(JNIEnv*, double value)
{
   return value;
}

std::wstring returnString(JNIEnv* env, jstring text)
{
   std::wstring copy = copyString(env, text);
   env->DeleteLocalRef(text);
   return copy;
}

#define TARN_RETURN_HANDLE(H)                                                                      \
   H return ##H(JNIEnv*, int value)                                                                \
   {                                                                                               \
      return make##H(value);                                                                       \
   }

RTI_FOR_EACH_HANDLE(TARN_RETURN_HANDLE)

OrderType returnOrderType(JNIEnv*, int code)
{
   switch (code) {
   case 0:
      return RECEIVE;
   case 1:
      return TIMESTAMP;
   }
   TARN_ASSERT(false);
}

TransportationType returnTransportationType(JNIEnv*, int code)
{
   switch (code) {
   case 1:
      return RELIABLE;
   case 2:
      return BEST_EFFORT;
   }
   TARN_ASSERT(false);
}

ResignAction returnResignAction(JNIEnv*, int code)
{
   return static_cast<ResignAction>(code);
}

RangeBounds returnRangeBounds(JNIEnv* env, jlongArray bounds)
{
   jlong values[2];
   env->GetLongArrayRegion(bounds, 0, env->GetArrayLength(bounds), values);
   env->DeleteLocalRef(bounds);
   return RangeBounds(static_cast<unsigned long>(values[0]), static_cast<unsigned long>(values[1]));
}

namespace {

template <class Handle>
void fillHandleSet(
      JNIEnv* env, jintArray handles, Handle (*makeHandle)(int), std::set<Handle>& result)
{
   jsize const length = env->GetArrayLength(handles);
   void* const pinned = env->GetPrimitiveArrayCritical(handles, nullptr);
   jint const* const values = static_cast<jint const*>(pinned);
   for (jsize i = 0; i < length; ++i) {
      result.insert(makeHandle(values[i]));
   }
   env->ReleasePrimitiveArrayCritical(handles, pinned, 0);
   env->DeleteLocalRef(handles);
}

} // namespace

std::unique_ptr<AttributeHandleSet> returnAttributeHandleSet(JNIEnv* env, jintArray handles)
{
   std::unique_ptr<AttributeHandleSet> result(new AttributeHandleSet);
   fillHandleSet<AttributeHandle>(env, handles, makeAttributeHandle, *result);
   return result;
}

DimensionHandleSet returnDimensionHandleSet(JNIEnv* env, jintArray handles)
{
   DimensionHandleSet result;
   fillHandleSet<DimensionHandle>(env, handles, makeDimensionHandle, result);
   return result;
}

MessageRetractionHandle returnMessageRetractionReturn(JNIEnv* env, jbyteArray handle)
{
   if (handle == nullptr) {
      return MessageRetractionHandle();
   }
   jsize const length = env->GetArrayLength(handle);
   void* const pinned = env->GetPrimitiveArrayCritical(handle, nullptr);
   MessageRetractionHandle result = makeMessageRetractionHandle(
         VariableLengthData(pinned, static_cast<unsigned long>(length)));
   env->ReleasePrimitiveArrayCritical(handle, pinned, 0);
   env->DeleteLocalRef(handle);
   return result;
}

} // namespace tarn1516e
