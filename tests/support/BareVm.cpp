#include "tests/support/BareVm.h"

#if ENTRY_POINTS > 0

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <thread>

namespace {

bare::State kept;
std::string const adapterClass = "skerry/tarn1516e/RTIambassadorC2007";

int setting(char const* variable)
{
   char const* const value = std::getenv(variable);
   return value != nullptr ? std::atoi(value) : 0;
}

bool const tells = std::getenv("VM_TELLS") != nullptr;
bool const alwaysThrows = std::getenv("VM_THROWS") != nullptr;

void tell(char const* what, long value)
{
   if (tells) {
      std::printf("%s %ld\n", what, value);
      std::fflush(stdout);
   }
}

bool isLacking(char const* name)
{
   char const* const lacking = std::getenv("VM_LACKS");
   return lacking != nullptr && std::strstr(name, lacking) != nullptr;
}

// What a reference leads to. The elements of an array lie at `data`, which is its own as a rule.
struct Object {
   std::string name;        // of a class, or of an exception's class
   std::vector<jchar> text; // of a string, or of an exception's message
   bool hasText = false;
   std::vector<char> elements;
   char* data = nullptr;
   jsize length = 0;
};

struct Method {
   std::string name;
   std::string signature;
};

template <class Reference>
Reference as(Object* object)
{
   return reinterpret_cast<Reference>(object);
}

Object& at(jobject reference)
{
   return *reinterpret_cast<Object*>(reference);
}

// Gives out a local reference.
template <class Reference>
Reference local(Object* object)
{
   kept.localReferences += object != nullptr;
   return as<Reference>(object);
}

std::mutex namesMutex; // start-up may come from several threads
std::map<std::string, Object> classes;
std::map<std::string, Method> methods;
std::map<std::string, std::vector<java::Answer>> answers;
std::vector<java::Call> calls;
Object thing, bodyArray, firedArray, result, raised;
bool isPending; // `raised`

std::wstring dotted(std::string const& name)
{
   std::wstring text(name.begin(), name.end());
   std::replace(text.begin(), text.end(), L'/', L'.');
   return text;
}

void setText(Object& object, std::wstring const& text)
{
   object.text.assign(text.begin(), text.end());
   object.hasText = true;
}

void raise(std::string const& className, std::wstring const& message, bool hasMessage)
{
   raised.name = className;
   setText(raised, message);
   raised.hasText = hasMessage;
   isPending = true;
}

std::wstring message()
{
   return std::wstring(raised.text.begin(), raised.text.end());
}

std::wstring toString()
{
   return dotted(raised.name) + (raised.hasText ? L": " + message() : L"");
}

template <class Element>
void setElements(Object& array, std::vector<std::int64_t> const& numbers)
{
   array.elements.resize(numbers.size() * sizeof(Element));
   array.data = array.elements.data();
   array.length = static_cast<jsize>(numbers.size());
   for (std::size_t i = 0; i < numbers.size(); ++i) {
      Element const element = static_cast<Element>(numbers[i]);
      std::memcpy(array.data + i * sizeof element, &element, sizeof element);
   }
}

// ---- Classes, methods, exceptions

jclass findClass(JNIEnv*, char const* name)
{
   isPending = isPending || isLacking(name);
   if (isPending) { // nothing is found until it is cleared
      return nullptr;
   }
   std::lock_guard<std::mutex> const lock(namesMutex);
   Object& type = classes[name];
   type.name = name;
   return local<jclass>(&type);
}

jmethodID getMethodId(JNIEnv*, jclass type, char const* name, char const* signature)
{
   if (isLacking(name)) {
      return nullptr;
   }
   std::lock_guard<std::mutex> const lock(namesMutex);
   if (at(type).name == adapterClass) {
      kept.methods[name] = signature;
   }
   Method& method = methods[std::string(name) + signature];
   method = {name, signature};
   return reinterpret_cast<jmethodID>(&method);
}

jthrowable exceptionOccurred(JNIEnv*)
{
   return isPending || alwaysThrows ? local<jthrowable>(&raised) : nullptr;
}

jboolean isInstanceOf(JNIEnv*, jobject object, jclass type)
{
   kept.compared.push_back(at(type).name);
   return at(object).name == at(type).name ? JNI_TRUE : JNI_FALSE;
}

jint throwNew(JNIEnv*, jclass type, char const* message)
{
   raise(at(type).name, std::wstring(message, message + std::strlen(message)), true);
   return JNI_OK;
}

// ---- Calls

// Keeps the call; gives the answer, or null for none.
java::Answer const* called(jobject object, jmethodID id, va_list arguments)
{
   static java::Answer answer;
   Method const& method = *reinterpret_cast<Method*>(id);
   bool const hasBody = method.signature[1] == '[';
   if (hasBody) {
      Object const& array = at(va_arg(arguments, jbyteArray));
      kept.bodySize = static_cast<std::size_t>(array.length);
   }
   if (kept.keepsCalls && &at(object) == &thing) {
      calls.push_back({method.name, hasBody, hasBody ? kept.lastBody() : ""});
   }
   if (answers.empty() || answers.count(method.name) == 0) {
      return nullptr;
   }
   std::vector<java::Answer>& waiting = answers[method.name];
   answer = waiting.front();
   waiting.erase(waiting.begin());
   if (waiting.empty()) {
      answers.erase(method.name);
   }
   if (answer.type == 'X' || answer.type == 'x') {
      raise(answer.bytes, answer.text, answer.type == 'X');
      return nullptr;
   }
   return answer.type == 'V' ? nullptr : &answer;
}

// A double's answer has its bits.
template <class Number>
Number calledForNumber(JNIEnv*, jobject object, jmethodID method, va_list arguments)
{
   java::Answer const* const answer = called(object, method, arguments);
   std::int64_t const bits = answer != nullptr ? answer->numbers.at(0) : 0;
   Number number = static_cast<Number>(bits);
   if (std::is_floating_point<Number>::value) {
      std::memcpy(&number, &bits, sizeof number);
   }
   return number;
}

// An exception's own methods, and those that answer with an object.
jobject calledForObject(JNIEnv*, jobject object, jmethodID id, va_list arguments)
{
   Method const& method = *reinterpret_cast<Method*>(id);
   if (&at(object) == &raised) {
      if (method.name == "getMessage" && !raised.hasText) {
         return nullptr;
      }
      setText(result, method.name == "getMessage" ? message() : toString());
      return local<jobject>(&result);
   }
   java::Answer const* const answer = called(object, id, arguments);
   if (answer == nullptr) {
      bool const isText = method.signature.find(")Ljava/lang/String;") != std::string::npos;
      setText(result, L"");
      return isText && !isPending ? local<jobject>(&result) : nullptr;
   }
   setText(result, answer->text);
   switch (answer->type) {
   case 'B':
      setElements<char>(result, {answer->bytes.begin(), answer->bytes.end()});
      break;
   case 'i':
      setElements<jint>(result, answer->numbers);
      break;
   case 'j':
      setElements<jlong>(result, answer->numbers);
   }
   return local<jobject>(&result);
}

// ---- Arrays and strings

jbyteArray newByteArray(JNIEnv*, jsize length)
{
   tell("NewByteArray", length);
   if (kept.body.size() < static_cast<std::size_t>(length)) {
      kept.body.resize(static_cast<std::size_t>(length));
   }
   bodyArray.data = &kept.body[0];
   bodyArray.length = length;
   std::memset(bodyArray.data, 0, static_cast<std::size_t>(length));
   return local<jbyteArray>(&bodyArray);
}

void* pin(JNIEnv*, jarray array, jboolean*)
{
   ++kept.pinned;
   return at(array).data;
}

void unpin(JNIEnv*, jarray array, void*, jint)
{
   --kept.pinned;
   if (tells) {
      char const* const data = at(array).data;
      std::printf("array %d %d %d %d\n", data[0], data[1], data[2], data[3]);
   }
}

template <class Array, class Element>
void region(JNIEnv*, Array array, jsize start, jsize length, Element* out)
{
   std::memcpy(out, at(array).data + static_cast<std::size_t>(start) * sizeof *out,
         static_cast<std::size_t>(length) * sizeof *out);
}

jint registerNatives(JNIEnv*, jclass, JNINativeMethod const* table, jint count)
{
   tell("RegisterNatives", count);
   for (jint i = 0; i != count; ++i) {
      kept.natives[std::string(table[i].name) + table[i].signature] = table[i].fnPtr;
   }
   return setting("VM_REGISTER");
}

JNINativeInterface_ functionsOfEnv()
{
   JNINativeInterface_ f = {};
   f.FindClass = findClass;
   f.GetMethodID = getMethodId;
   f.RegisterNatives = registerNatives;
   f.NewObjectV = [](JNIEnv*, jclass, jmethodID, va_list) {
      return std::getenv("VM_NULL") != nullptr ? nullptr : local<jobject>(&thing);
   };
   f.NewGlobalRef = [](JNIEnv*, jobject object) {
      ++kept.globalReferences;
      return object;
   };
   f.DeleteGlobalRef = [](JNIEnv*, jobject) { --kept.globalReferences; };
   f.DeleteLocalRef = [](JNIEnv*, jobject object) { kept.localReferences -= object != nullptr; };
   f.ExceptionOccurred = exceptionOccurred;
   f.ExceptionCheck = [](JNIEnv*) -> jboolean { return isPending; };
   f.ExceptionClear = [](JNIEnv*) { isPending = false; };
   f.ExceptionDescribe = [](JNIEnv*) {};
   f.IsInstanceOf = isInstanceOf;
   f.ThrowNew = throwNew;

   f.CallVoidMethodV = [](JNIEnv*, jobject object, jmethodID method, va_list arguments) {
      if (&at(object) == &raised) { // printStackTrace
         std::fprintf(stderr, "%ls\n", toString().c_str());
      } else {
         called(object, method, arguments);
      }
   };
   f.CallObjectMethodV = calledForObject;
   f.CallIntMethodV = calledForNumber<jint>;
   f.CallLongMethodV = calledForNumber<jlong>;
   f.CallBooleanMethodV = calledForNumber<jboolean>;
   f.CallDoubleMethodV = calledForNumber<jdouble>;

   f.NewByteArray = newByteArray;
   f.GetArrayLength = [](JNIEnv*, jarray array) { return at(array).length; };
   f.GetPrimitiveArrayCritical = pin;
   f.ReleasePrimitiveArrayCritical = unpin;
   f.GetByteArrayRegion = region<jbyteArray, jbyte>;
   f.GetLongArrayRegion = region<jlongArray, jlong>;
   f.GetStringLength = [](JNIEnv*, jstring text) {
      return static_cast<jsize>(at(text).text.size());
   };
   f.GetStringCritical = [](JNIEnv*, jstring text, jboolean*) -> jchar const* {
      ++kept.pinned;
      return at(text).text.data();
   };
   f.ReleaseStringCritical = [](JNIEnv*, jstring, jchar const*) { --kept.pinned; };
   return f;
}

JNINativeInterface_ const envFunctions = functionsOfEnv();
JNIEnv env = {&envFunctions};

jint attach(JavaVM*, void** found, void* arguments)
{
   tell(arguments == nullptr ? "AttachCurrentThread" : "AttachCurrentThread with arguments", 0);
   *found = &env;
   return tells ? setting("VM_ATTACH")
                : JNI_OK; // a look at the environment costs more than the rest
}

// Nobody detaches a thread or ends the VM.
JNIInvokeInterface_ const vmFunctions = {
      nullptr, nullptr, nullptr, nullptr, attach, nullptr, nullptr, nullptr};
JavaVM vm = {&vmFunctions};

} // namespace

namespace bare {

State& state()
{
   return kept;
}

jbyteArray arrayOver(char* bytes, std::size_t size)
{
   firedArray.data = bytes;
   firedArray.length = static_cast<jsize>(size);
   return as<jbyteArray>(&firedArray);
}

JNIEnv* environment()
{
   return &env;
}

} // namespace bare

namespace java {

void reset(bool)
{
   answers.clear();
   calls.clear();
   isPending = false;
   kept.compared.clear();
}

void answer(std::string const& method, Answer const& answer)
{
   answers[method].push_back(answer);
}

std::vector<Call> takeCalls()
{
   std::vector<Call> taken;
   taken.swap(calls);
   return taken;
}

std::wstring fire(std::string const& native, std::string const& frame, bool) noexcept
{
   typedef void (*Native)(JNIEnv*, jobject, jbyteArray);
   std::string bytes = frame;
   reinterpret_cast<Native>(kept.natives.at(native + "([B)V"))(
         &env, nullptr, bare::arrayOver(&bytes[0], bytes.size()));
   if (!isPending) {
      return L"";
   }
   isPending = false;
   return dotted(raised.name) + L"\n" + message();
}

int heldReferences()
{
   return kept.pinned + kept.localReferences + kept.globalReferences;
}

LocalFrame::LocalFrame() {}
LocalFrame::~LocalFrame() {}

} // namespace java

extern "C" JNIEXPORT jint JNICALL JNI_GetCreatedJavaVMs(JavaVM** vms, jsize size, jsize* count)
{
   tell("JNI_GetCreatedJavaVMs", size);
   *vms = &vm;
   *count = setting("VM_COUNT");
   return setting("VM_CHECK");
}

#if ENTRY_POINTS > 1

// Takes its time, so that a second thread can come.
extern "C" JNIEXPORT jint JNICALL JNI_CreateJavaVM(JavaVM** made, void** madeEnv, void* arguments)
{
   JavaVMInitArgs const& init = *static_cast<JavaVMInitArgs const*>(arguments);
   if (tells) {
      std::printf("JNI_CreateJavaVM version %x, ignoring what it does not know: %d\n",
            static_cast<unsigned>(init.version), init.ignoreUnrecognized);
      for (jint i = 0; i < init.nOptions; ++i) {
         std::printf("[%s]\n", init.options[i].optionString);
      }
      std::fflush(stdout);
   }
   std::this_thread::sleep_for(std::chrono::milliseconds(20));
   *made = &vm;
   *madeEnv = &env;
   return setting("VM_CREATE");
}

#endif
#endif
