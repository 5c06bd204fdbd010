// The stand-in's script, in a Java VM. What fails in Java is a std::runtime_error here.
#include "tests/support/JavaSide.h"

#include <cstring>
#include <dlfcn.h>
#include <jni.h>
#include <stdexcept>

namespace java {

namespace {

std::string const text = "Ljava/lang/String;";

// The calling thread's environment. The library opens the VM for all to see.
JNIEnv* environment()
{
   typedef jint (*GetCreated)(JavaVM**, jsize, jsize*);
   GetCreated const getCreated =
         reinterpret_cast<GetCreated>(dlsym(RTLD_DEFAULT, "JNI_GetCreatedJavaVMs"));
   JavaVM* vm = nullptr;
   jsize count = 0;
   if (getCreated == nullptr || getCreated(&vm, 1, &count) != JNI_OK || count != 1) {
      throw std::runtime_error("no Java VM in this process");
   }
   void* env = nullptr;
   vm->AttachCurrentThread(&env, nullptr);
   return static_cast<JNIEnv*>(env);
}

// One visit to Java: what it makes is released at its end.
class Visit {
public:
   Visit() : env(environment()) {}

   template <class T>
   T checked(T value) const
   {
      if (env->ExceptionCheck()) {
         env->ExceptionDescribe();
         env->ExceptionClear();
         throw std::runtime_error("an exception in Java");
      }
      return value;
   }

   jvalue string(std::wstring const& content) const
   {
      std::vector<jchar> const units(content.begin(), content.end());
      return object(env->NewString(units.data(), static_cast<jsize>(units.size())));
   }

   jvalue string(std::string const& content) const
   {
      return string(std::wstring(content.begin(), content.end()));
   }

   template <class Array, class Element, class Content>
   jvalue array(Array (JNIEnv::*make)(jsize),
         void (JNIEnv::*set)(Array, jsize, jsize, Element const*), Content const& content) const
   {
      std::vector<Element> const elements(content.begin(), content.end());
      jsize const size = static_cast<jsize>(elements.size());
      Array const made = checked((env->*make)(size));
      (env->*set)(made, 0, size, elements.data());
      return object(made);
   }

   jvalue bytes(std::string const& content) const
   {
      return array(&JNIEnv::NewByteArray, &JNIEnv::SetByteArrayRegion, content);
   }

   static jvalue object(jobject reference)
   {
      jvalue value;
      value.l = reference;
      return value;
   }

   static jvalue flag(bool on)
   {
      jvalue value;
      value.z = on ? JNI_TRUE : JNI_FALSE;
      return value;
   }

   static jvalue integer(jint number)
   {
      jvalue value;
      value.i = number;
      return value;
   }

   // Calls a method of the script. A number that it answers is the reference's place in memory.
   jvalue call(char const* method, std::string const& signature,
         std::vector<jvalue> const& arguments) const
   {
      jclass const script = checked(env->FindClass("skerry/tarn1516e/standin/Script"));
      jmethodID const id = checked(env->GetStaticMethodID(script, method, signature.c_str()));
      jvalue answer = object(nullptr);
      switch (signature.back()) {
      case 'V':
         env->CallStaticVoidMethodA(script, id, arguments.data());
         break;
      case 'I':
         answer.i = env->CallStaticIntMethodA(script, id, arguments.data());
         break;
      default:
         answer.l = env->CallStaticObjectMethodA(script, id, arguments.data());
      }
      return checked(answer);
   }

   std::wstring content(jvalue string) const
   {
      jstring const reference = static_cast<jstring>(string.l);
      std::vector<jchar> units(static_cast<std::size_t>(env->GetStringLength(reference)));
      env->GetStringRegion(reference, 0, static_cast<jsize>(units.size()), units.data());
      return std::wstring(units.begin(), units.end());
   }

private:
   LocalFrame _frame;

public:
   JNIEnv* const env;
};

jvalue valueOf(Visit const& java, Answer const& answer)
{
   std::vector<std::int64_t> const& numbers = answer.numbers;
   jvalue value;
   switch (answer.type) {
   case 'S':
      return java.string(answer.text);
   case 'B':
      return java.bytes(answer.bytes);
   case 'i':
      return java.array(&JNIEnv::NewIntArray, &JNIEnv::SetIntArrayRegion, numbers);
   case 'j':
      return java.array(&JNIEnv::NewLongArray, &JNIEnv::SetLongArrayRegion, numbers);
   case 'Z':
      return Visit::flag(numbers.at(0) != 0);
   default: // the rest lies in the number's low bits
      std::memcpy(&value, &numbers.at(0), sizeof value);
      return value;
   }
}

} // namespace

void reset(bool scripted)
{
   Visit const java;
   java.call("reset", "()V", {});
   java.call("scriptAll", "(Z)V", {Visit::flag(scripted)});
   java.call("record", "(Z)V", {Visit::flag(true)});
}

void answer(std::string const& method, Answer const& answer)
{
   struct {
      char type;
      char const* method;
      std::string signature;
   } const kinds[] = {{'I', "answerInt", "I"}, {'J', "answerLong", "J"}, {'D', "answerDouble", "D"},
         {'Z', "answerBoolean", "Z"}, {'S', "answerString", text}, {'B', "answerBytes", "[B"},
         {'i', "answerInts", "[I"}, {'j', "answerLongs", "[J"}};
   Visit const java;
   jvalue const name = java.string(method);
   jvalue const once = Visit::flag(false);
   for (auto const& kind : kinds) {
      if (kind.type == answer.type) {
         java.call(kind.method, "(" + text + kind.signature + "Z)V",
               {name, valueOf(java, answer), once});
         return;
      }
   }
   if (answer.type == 'V') {
      java.call("answerDefault", "(" + text + "Z)V", {name, once});
   } else {
      jvalue const message = answer.type == 'X' ? java.string(answer.text) : Visit::object(nullptr);
      java.call("answerThrow", "(" + text + text + text + "Z)V",
            {name, java.string(answer.bytes), message, once});
   }
}

std::vector<Call> takeCalls()
{
   std::vector<Call> calls;
   Visit const java;
   jint const count = java.call("totalCalls", "()I", {}).i;
   for (jint i = 0; i < count; ++i) {
      jvalue const name = java.call("calledMethod", "(I)" + text, {Visit::integer(i)});
      std::wstring const wide = java.content(name);
      jbyteArray const body =
            static_cast<jbyteArray>(java.call("lastBody", "(" + text + ")[B", {name}).l);
      std::string bytes;
      if (body != nullptr) {
         jsize const size = java.env->GetArrayLength(body);
         bytes.resize(static_cast<std::size_t>(size));
         java.env->GetByteArrayRegion(body, 0, size, reinterpret_cast<jbyte*>(&bytes[0]));
      }
      calls.push_back({std::string(wide.begin(), wide.end()), body != nullptr, bytes});
   }
   java.call("forgetCalls", "()V", {});
   return calls;
}

std::wstring fire(std::string const& native, std::string const& frame, bool onNewThread) noexcept
{
   Visit const java;
   jvalue const thrown = java.call(onNewThread ? "fireOnNewThread" : "fire",
         "(" + text + "[B)" + text, {java.string(native), java.bytes(frame)});
   return thrown.l == nullptr ? std::wstring() : java.content(thrown);
}

int heldReferences()
{
   return 0; // not told; the VM's own checks warn of too many
}

void callUnchecked()
{
   Visit const java;
   jclass const type = java.checked(java.env->FindClass("java/lang/String"));
   jmethodID const id =
         java.checked(java.env->GetStaticMethodID(type, "valueOf", "(Z)Ljava/lang/String;"));
   jobject const string = java.env->CallStaticObjectMethod(type, id, JNI_TRUE);
   java.env->GetStringLength(static_cast<jstring>(string));
}

LocalFrame::LocalFrame()
{
   environment()->PushLocalFrame(16);
}

LocalFrame::~LocalFrame()
{
   environment()->PopLocalFrame(nullptr);
}

} // namespace java
