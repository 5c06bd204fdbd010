// Frames of callbacks that are fired to be measured.
#ifndef bench_bridge_Frames_h
#define bench_bridge_Frames_h

#include <cstddef>
#include <string>

// Attributes `first` to first + count - 1 with values of `size` bytes each, a tag of 4 bytes, and
// the producer.
std::string makeReflection(int handle, int first, int count, std::size_t size);

// A callback whose only field is a time of the floating-point kind.
std::string makeGrant(int handle, double time);

// A callback without a field.
std::string makeEmptyFrame(int handle);

#endif
