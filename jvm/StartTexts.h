// The texts of start-up, each in one place: the library shows them, the check tool knows them
// again. %s stands for what is only known then.
#ifndef jvm_StartTexts_h
#define jvm_StartTexts_h

namespace tarn1516e {
namespace text {

// ---- Failures, on the standard error stream and in the exception. As they were first written:
// some end in a line end, and one names LD_LIBRARY_PATH on every platform

char const noLibraryFile[] = "Failed to find path to tarn1516e library\n";
char const noVm[] = "Failed to find JVM on %s and unable to locate Tarn installation\n%s: %s";
char const noVmInHome[] = "Failed to find JVM in Tarn installation\n";
char const vmNotLoaded[] = "Failed to dlopen JVM at '%s', dlerror: %s\n";
char const noEntryPoint[] = "Failed to find %s, dlerror: %s\n";
char const notChecked[] = "Cannot check for existing JVM. Error: %s\n";
char const notCreated[] = "Cannot create JVM. Error: %s\n";
char const notAttached[] = "Cannot attach to existing JVM. Error: %s\n";
char const noClasses[] = "Tarn failed to load %s classes in %s JVM.\nCLASSPATH: %s";
char const noConstructor[] =
      "Cannot locate constructor for Java class skerry.tarn1516e.RTIambassadorC2007";
char const noObject[] = "Cannot create RTIambassador object. Constructor returned NULL\n";

// ---- On the standard error stream alone

char const noMethod[] = "Cannot locate %s.\n"; // and the process ends
char const noNativesClass[] = "The file tarn1516e.jar can not be found in the CLASSPATH.\n";
char const nativesRefused[] = "Failed to register native functions.\n";

// ---- The trace. Each line begins with the prefix

char const traceVariable[] = "TARN1516E_TRACE_LOAD";
char const tracePrefix[] = "TARN1516E_TRACE_LOAD: ";
char const vmOnLibraryPath[] = "JVM was available on library path";
char const vmOfHome[] = "Using bundled JVM in '%s'";
char const creating[] = "Attempting to create new JVM";
char const created[] = "Created new JVM";
char const attaching[] = "Attempting to attach to existing JVM";
char const attached[] = "Attached to existing JVM";
char const locatingAdapter[] = "Locating adapter classes";
char const coreNotLocated[] = "Failed to locate core classes";
char const adapterNotLocated[] = "Failed to locate adapter classes";

} // namespace text
} // namespace tarn1516e

#endif
