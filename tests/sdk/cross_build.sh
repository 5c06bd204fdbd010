#!/usr/bin/env bash
# Compiles and links the libraries, the check and the examples for arm64, with the cross compiler of
# Debian's g++-aarch64-linux-gnu, and looks at what came out. Argument: a folder to build in.
set -euo pipefail
build=$1
source=$(cd "$(dirname "$0")/../.." && pwd)

cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTARN_TESTS=OFF \
   -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR=aarch64 \
   -DCMAKE_CXX_COMPILER=aarch64-linux-gnu-g++ -DTARN_WERROR=ON \
   -DCMAKE_FIND_ROOT_PATH_MODE_PROGRAM=NEVER
cmake --build "$build"

faults=0
for file in "$build"/home/lib/linux-aarch64-gnu/lib{rti,fedtime}1516e.so \
   "$build/home/bin/tarn1516e-check" "$build/examples/demo"; do
   if ! readelf -h "$file" | grep -q 'Machine:.*AArch64'; then
      echo "$file is not for arm64"
      faults=1
   fi
done
# What it exports must not depend on the processor, but for how size_t and va_list are spelled.
for library in rti1516e fedtime1516e; do
   if ! diff <(LC_ALL=C sort "$source/tests/sdk/exports-$library.txt") \
      <(aarch64-linux-gnu-nm -D --defined-only --format=posix \
         "$build/home/lib/linux-aarch64-gnu/lib$library.so" | cut -d' ' -f1 | LC_ALL=C sort); then
      echo "lib$library.so exports something else than on x86-64"
      faults=1
   fi
done
exit $faults
