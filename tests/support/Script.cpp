#include "tests/support/Script.h"

#include <dlfcn.h>
#include <stdexcept>

namespace script {

namespace {

char const scriptClass[] = "skerry/tarn1516e/standin/Script";

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
   T checked(T result) const
   {
      check();
      return result;
   }

   void check() const
   {
      if (env->ExceptionCheck()) {
         env->ExceptionDescribe();
         env->ExceptionClear();
         throw std::runtime_error("an exception in Java");
      }
   }

   jstring string(std::wstring const& text) const
   {
      std::vector<jchar> const units(text.begin(), text.end());
      return checked(env->NewString(units.data(), static_cast<jsize>(units.size())));
   }

   jstring string(std::string const& text) const
   {
      return checked(env->NewStringUTF(text.c_str()));
   }

   std::wstring text(jobject object) const
   {
      jstring const string = static_cast<jstring>(object);
      std::vector<jchar> units(static_cast<std::size_t>(env->GetStringLength(string)));
      env->GetStringRegion(string, 0, static_cast<jsize>(units.size()), units.data());
      return std::wstring(units.begin(), units.end());
   }

   jbyteArray bytes(std::string const& content) const
   {
      jsize const size = static_cast<jsize>(content.size());
      jbyteArray const array = checked(env->NewByteArray(size));
      env->SetByteArrayRegion(array, 0, size, reinterpret_cast<jbyte const*>(content.data()));
      return array;
   }

   jclass type(char const* name) const
   {
      return checked(env->FindClass(name));
   }

   template <class... Arguments>
   void callVoid(char const* method, char const* signature, Arguments... arguments) const
   {
      jclass const script = type(scriptClass);
      jmethodID const id = checked(env->GetStaticMethodID(script, method, signature));
      env->CallStaticVoidMethod(script, id, arguments...);
      check();
   }

   template <class... Arguments>
   jint callInt(char const* method, char const* signature, Arguments... arguments) const
   {
      jclass const script = type(scriptClass);
      jmethodID const id = checked(env->GetStaticMethodID(script, method, signature));
      return checked(env->CallStaticIntMethod(script, id, arguments...));
   }

   template <class... Arguments>
   jobject callObject(char const* typeName, char const* method, char const* signature,
         Arguments... arguments) const
   {
      jclass const called = type(typeName);
      jmethodID const id = checked(env->GetStaticMethodID(called, method, signature));
      return checked(env->CallStaticObjectMethod(called, id, arguments...));
   }

private:
   LocalFrame _frame;

public:
   JNIEnv* const env;
};

jboolean flag(bool value)
{
   return value ? JNI_TRUE : JNI_FALSE;
}

// `type` is the value's in the Java signature.
template <class Value>
void answerBy(Visit const& java, char const* javaMethod, std::string const& type,
      std::string const& method, Value value, bool always)
{
   std::string const signature = "(Ljava/lang/String;" + type + "Z)V";
   java.callVoid(javaMethod, signature.c_str(), java.string(method), value, flag(always));
}

std::wstring fireBy(char const* way, std::string const& native, std::string const& frame)
{
   Visit java;
   jobject const thrown = java.callObject(scriptClass, way,
         "(Ljava/lang/String;[B)Ljava/lang/String;", java.string(native), java.bytes(frame));
   return thrown == nullptr ? std::wstring() : java.text(thrown);
}

} // namespace

LocalFrame::LocalFrame()
{
   environment()->PushLocalFrame(16);
}

LocalFrame::~LocalFrame()
{
   environment()->PopLocalFrame(nullptr);
}

void reset()
{
   Visit().callVoid("reset", "()V");
}

void scriptAll(bool on)
{
   Visit().callVoid("scriptAll", "(Z)V", flag(on));
}

void record(bool on)
{
   Visit().callVoid("record", "(Z)V", flag(on));
}

void forgetCalls()
{
   Visit().callVoid("forgetCalls", "()V");
}

void answerInt(std::string const& method, jint value, bool always)
{
   answerBy(Visit(), "answerInt", "I", method, value, always);
}

void answerLong(std::string const& method, jlong value, bool always)
{
   answerBy(Visit(), "answerLong", "J", method, value, always);
}

void answerDouble(std::string const& method, jdouble value, bool always)
{
   answerBy(Visit(), "answerDouble", "D", method, value, always);
}

void answerBoolean(std::string const& method, bool value, bool always)
{
   answerBy(Visit(), "answerBoolean", "Z", method, flag(value), always);
}

void answerString(std::string const& method, std::wstring const& value, bool always)
{
   Visit java;
   answerBy(java, "answerString", "Ljava/lang/String;", method, java.string(value), always);
}

void answerBytes(std::string const& method, std::string const& value, bool always)
{
   Visit java;
   answerBy(java, "answerBytes", "[B", method, java.bytes(value), always);
}

void answerInts(std::string const& method, std::vector<jint> const& value, bool always)
{
   Visit java;
   jsize const size = static_cast<jsize>(value.size());
   jintArray const array = java.checked(java.env->NewIntArray(size));
   java.env->SetIntArrayRegion(array, 0, size, value.data());
   answerBy(java, "answerInts", "[I", method, array, always);
}

void answerLongs(std::string const& method, std::vector<jlong> const& value, bool always)
{
   Visit java;
   jsize const size = static_cast<jsize>(value.size());
   jlongArray const array = java.checked(java.env->NewLongArray(size));
   java.env->SetLongArrayRegion(array, 0, size, value.data());
   answerBy(java, "answerLongs", "[J", method, array, always);
}

void answerDefault(std::string const& method, bool always)
{
   Visit java;
   java.callVoid("answerDefault", "(Ljava/lang/String;Z)V", java.string(method), flag(always));
}

void answerThrow(
      std::string const& method, std::string const& className, wchar_t const* message, bool always)
{
   Visit java;
   java.callVoid("answerThrow", "(Ljava/lang/String;Ljava/lang/String;Ljava/lang/String;Z)V",
         java.string(method), java.string(className),
         message == nullptr ? nullptr : java.string(std::wstring(message)), flag(always));
}

int totalCalls()
{
   return Visit().callInt("totalCalls", "()I");
}

std::string calledMethod(int index)
{
   Visit java;
   jobject const name =
         java.callObject(scriptClass, "calledMethod", "(I)Ljava/lang/String;", jint(index));
   std::wstring const text = name == nullptr ? L"" : java.text(name);
   return std::string(text.begin(), text.end());
}

Body lastBody(std::string const& method)
{
   Visit java;
   jbyteArray const array = static_cast<jbyteArray>(
         java.callObject(scriptClass, "lastBody", "(Ljava/lang/String;)[B", java.string(method)));
   if (array == nullptr) {
      return {false, ""};
   }
   std::string bytes(static_cast<std::size_t>(java.env->GetArrayLength(array)), '\0');
   java.env->GetByteArrayRegion(
         array, 0, static_cast<jsize>(bytes.size()), reinterpret_cast<jbyte*>(&bytes[0]));
   return {true, bytes};
}

std::wstring fire(std::string const& native, std::string const& frame)
{
   return fireBy("fire", native, frame);
}

std::wstring fireOnNewThread(std::string const& native, std::string const& frame)
{
   return fireBy("fireOnNewThread", native, frame);
}

void callUnchecked()
{
   Visit java;
   jclass const type = java.type("java/lang/String");
   jmethodID const id =
         java.checked(java.env->GetStaticMethodID(type, "valueOf", "(Z)Ljava/lang/String;"));
   jobject const text = java.env->CallStaticObjectMethod(type, id, JNI_TRUE);
   java.env->GetStringLength(static_cast<jstring>(text));
}

std::wstring property(std::string const& name)
{
   Visit java;
   return java.text(java.callObject("java/lang/System", "getProperty",
         "(Ljava/lang/String;)Ljava/lang/String;", java.string(name)));
}

} // namespace script
