// Guards at the crossings between the federate's code and the VM. On x86-64 and arm64 the VM
// leaves the floating-point control state alone, so there is nothing to save or restore; the
// guards mark the places for a platform where there is.
#ifndef jvm_FpuGuards_h
#define jvm_FpuGuards_h

namespace tarn1516e {

// Around a service: the federate's state comes back after the VM ran.
class ProtectFPU {
public:
   ProtectFPU() {}
   ~ProtectFPU() {}
};

// Around a callback: the federate runs under the state wanted.
class EnsureFPU {
public:
   explicit EnsureFPU(int) {}
   ~EnsureFPU() {}
};

// Around the start of the VM.
class DefaultFPU {
public:
   DefaultFPU() {}
   ~DefaultFPU() {}
};

} // namespace tarn1516e

#endif
