#!/usr/bin/env bash
# check-consumer.sh PREFIX SCRATCH: proves that an installation is whole. Compiles each installed
# header alone, then builds and runs a program against the CMake package and against the pkg-config
# file. PREFIX is an absolute path; SCRATCH a folder that may be made.

source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

prefix=$1
scratch=$2
mkdir -p "$scratch"
multiarch=$(gcc -print-multiarch)
export PKG_CONFIG_PATH="$prefix/lib/pkgconfig:$prefix/lib/$multiarch/pkgconfig"
# pkg-config escapes blanks in its answers for the shell to take out again.
cflags=() libs=() libdir=
eval "cflags=($(pkg-config --cflags vantrel))"
eval "libs=($(pkg-config --libs vantrel))"
eval "libdir=$(pkg-config --variable=libdir vantrel)"

check_headers() {
    cd "$prefix/include/vantrel"
    find . -name '*.h' -print0 | xargs -0 -P "$JOBS" -I{} \
        g++ -std=c++20 -Wall -Wextra -Werror -fsyntax-only "${cflags[@]}" -x c++ -include {} /dev/null
}

check_headers_are_gathered() {
    local header
    while IFS= read -r header; do
        grep -qxF "#include \"$header\"" "$prefix/include/vantrel/Vantrel.h" ||
            { echo "Vantrel.h doesn't include $header"; return 1; }
    done < <(cd "$prefix/include/vantrel" && find . -mindepth 2 -name '*.h' -printf '%P\n')
}

check_library() {
    local library
    library=$(find "$prefix" -name 'libvantrel.so' -print -quit)
    readelf -d "$library" | grep 'SONAME.*\[libvantrel\.so\.1\]' ||
        { echo "$library has no proper SONAME"; return 1; }
    if nm -DC --defined-only "$library" | grep -E ' [TWVu] (std|vantrel::AppendNumber)'; then
        echo "$library exports what is not its own"
        return 1
    fi
}

build_with_cmake() {
    cmake -S tests/consumer -B "$scratch/cmake" -DCMAKE_PREFIX_PATH="$prefix" &&
        cmake --build "$scratch/cmake" && "$scratch/cmake/consumer"
}

build_with_pkg_config() {
    g++ -std=c++20 "${cflags[@]}" tests/consumer/*.cpp -o "$scratch/consumer" "${libs[@]}" \
        "-Wl,-rpath,$libdir" && "$scratch/consumer"
}

step "Run the installed command" "$prefix/bin/vantrel" --version
step "Compile each installed header alone" check_headers
step "Find all installed headers in Vantrel.h" check_headers_are_gathered
step "Look at the installed library" check_library
step "Build and run a program with CMake's find_package" build_with_cmake
step "Build and run a program with pkg-config" build_with_pkg_config
