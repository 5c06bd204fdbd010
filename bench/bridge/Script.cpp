// The stand-in's script face, called by name.
#include "bench/bridge/Script.h"

#include "bench/bridge/Partner.h"

#include <stdexcept>

namespace script {

namespace {

// One call of a static method of the script; what it makes is released with the object.
class Call {
public:
   Call(char const* method, char const* signature) : env(environment())
   {
      env->PushLocalFrame(16);
      type = env->FindClass("skerry/tarn1516e/standin/Script");
      id = type == nullptr ? nullptr : env->GetStaticMethodID(type, method, signature);
      check();
   }

   ~Call()
   {
      env->PopLocalFrame(nullptr);
   }

   template <class... Arguments>
   void run(Arguments... arguments) const
   {
      env->CallStaticVoidMethod(type, id, arguments...);
      check();
   }

   jstring text(std::string const& content) const
   {
      return env->NewStringUTF(content.c_str());
   }

   void check() const
   {
      if (env->ExceptionCheck()) {
         env->ExceptionDescribe();
         env->ExceptionClear();
         throw std::runtime_error("an exception in Java");
      }
   }

   JNIEnv* env;
   jclass type;
   jmethodID id;

private:
   Call(Call const&) = delete;
   Call& operator=(Call const&) = delete;
};

void switchOn(char const* what)
{
   Call(what, "(Z)V").run(JNI_TRUE);
}

} // namespace

void answerAtOnce()
{
   Call("reset", "()V").run();
   switchOn("scriptAll");
}

void record()
{
   switchOn("record");
}

std::string lastBody(std::string const& method)
{
   Call const call("lastBody", "(Ljava/lang/String;)[B");
   jbyteArray const array = static_cast<jbyteArray>(
         call.env->CallStaticObjectMethod(call.type, call.id, call.text(method)));
   call.check();
   if (array == nullptr) {
      throw std::runtime_error("Java was not called: " + method);
   }
   std::string bytes(static_cast<std::size_t>(call.env->GetArrayLength(array)), '\0');
   call.env->GetByteArrayRegion(
         array, 0, static_cast<jsize>(bytes.size()), reinterpret_cast<jbyte*>(&bytes[0]));
   return bytes;
}

void answerInt(std::string const& method, int value)
{
   Call const call("answerInt", "(Ljava/lang/String;IZ)V");
   call.run(call.text(method), jint(value), JNI_FALSE);
}

void throwAlways(std::string const& method, std::string const& className)
{
   Call const call("answerThrow", "(Ljava/lang/String;Ljava/lang/String;Ljava/lang/String;Z)V");
   call.run(call.text(method), call.text(className), call.text("refused"), JNI_TRUE);
}

} // namespace script
