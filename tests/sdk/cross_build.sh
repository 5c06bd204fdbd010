#!/usr/bin/env bash
# Compiles and links the libraries, the tools and the examples for arm64, with the cross compiler of
# Debian's g++-aarch64-linux-gnu, and looks at what came out. Arguments: a folder to build in, and the
# settings of the SDK's tests.
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
# The binary interface does not depend on the processor.
python3 -B "$source/tests/sdk/interface.py" "$2" "$build/home/lib/linux-aarch64-gnu" \
   aarch64-linux-gnu-{g++,nm,readelf} || faults=1
exit $faults
