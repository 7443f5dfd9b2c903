#!/usr/bin/env bash
# Tries the packages as whoever unpacks them would: outside the tree, without any of its paths, on a
# Wine prefix that knows nothing of the build. check.sh VERSION; needs build/package/*.zip and
# try_programs of the 64-bit build.
set -u
version=$1
root=$(cd "$(dirname "$0")/.." && pwd)
work=$root/build/package/check
passed=0
failed=0

verdict() {  # NAME RESULT
    if [ "$2" = 0 ]; then
        passed=$((passed + 1))
        echo "ok     $1"
    else
        failed=$((failed + 1))
        echo "FAILED $1"
        [ -s "$work/log" ] && tail -n 25 "$work/log"
    fi
}

try() {  # NAME COMMAND...: the command succeeds
    local name=$1
    shift
    "$@" >"$work/log" 2>&1
    verdict "$name" $?
}

refuses() {  # NAME TEXT COMMAND...: the command fails, and its output has the text
    local name=$1 text=$2
    shift 2
    if "$@" >"$work/log" 2>&1; then
        verdict "$name: it went through" 1
    else
        tr -s ' \n' ' ' <"$work/log" | grep -qF "$text"
        verdict "$name" $?
    fi
}

windows_path() { echo "Z:${1//\//\\}"; }

folder() { echo "$work/QVControls-$version-mingw$1"; }

triple() { [ "$1" = 64 ] && echo x86_64-w64-mingw32 || echo i686-w64-mingw32; }

# configure BITS PACKAGE_BITS BUILD_FOLDER OPTION...
configure() {
    local compiler build=$3 package
    compiler=$(triple "$1")-g++-posix
    package=$(folder "$2")
    shift 3
    cmake -S "$package/examples" -B "$build" -G Ninja -DCMAKE_SYSTEM_NAME=Windows \
        -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH="$package" "$@"
}

# In a folder of its own and with nothing set but what a new user has.
bare() {
    env -u WINEPATH QV_BARE=1 QV_WINEPREFIX="$work/prefix" "$root/cmake/wine-run" "$@"
}

rm -rf "$work"
mkdir -p "$work"
for bits in 64 32; do
    try "unpacking, $bits bits" cmake -E chdir "$work" cmake -E tar xf "../QVControls-$version-mingw$bits.zip"
    try "finding the package, $bits bits" configure $bits $bits "$work/examples$bits"
    try "building the examples, $bits bits" cmake --build "$work/examples$bits" -j "$(nproc)"
done

# --- What does not fit says what to do

refuses "a package of the other width" "Unpack QVControls-$version-mingw64.zip" \
    configure 64 32 "$work/mixed"
refuses "headers of the other width" "mingw32.zip" \
    i686-w64-mingw32-g++-posix -fsyntax-only -I"$(folder 64)/include/qvcontrols" \
    -I"$(folder 64)/include/qvafx" "$root/examples/tree.cpp"
compile() {  # OPTION...: an example with a message map, for its syntax
    x86_64-w64-mingw32-g++-posix -fsyntax-only -I"$(folder 64)/include/qvcontrols" \
        -I"$(folder 64)/include/qvafx" "$@" "$root/examples/text.cpp"
}
refuses "a Unicode build" "activeCodePage" compile -DUNICODE -D_UNICODE
refuses "an older standard" "need C++17" compile -std=c++14
refuses "other classes of the standard library" "_GLIBCXX_DEBUG" compile -D_GLIBCXX_DEBUG
try "no warnings from the headers" compile -std=c++17 -D_AFXDLL -D_MBCS -Wall -Wextra -Wpedantic \
    -Wshadow -Wconversion -Werror

# --- Without CMake

flags() {
    PKG_CONFIG_LIBDIR="$(folder 64)/lib/pkgconfig" pkg-config "$@" qvcontrols
}
pkg_config_build() {
    # shellcheck disable=SC2046
    x86_64-w64-mingw32-g++-posix -std=c++17 $(flags --cflags) "$root/examples/tree.cpp" -o "$1" $(flags --libs)
}
if command -v pkg-config >/dev/null; then
    mkdir -p "$work/pc"
    try "building with pkg-config" pkg_config_build "$work/pc/tree_pc.exe"
    cp "$(folder 64)"/bin/*.dll "$work/pc/"
fi

# --- In a folder whose path has more than letters

odd_folder() {
    local package="$work/My päckages ソ/QVControls"
    mkdir -p "$package" && cp -a "$(folder 64)/." "$package" &&
        cmake -S "$package/examples" -B "$package build" -G Ninja -DCMAKE_SYSTEM_NAME=Windows \
            -DCMAKE_CXX_COMPILER=x86_64-w64-mingw32-g++-posix -DCMAKE_PREFIX_PATH="$package" &&
        cmake --build "$package build" --target tree
}
try "a folder with blanks and other letters" odd_folder

try "the vcpkg port" cmake -DWORK="$work/vcpkg" -DVERSION="$version" -P "$root/packaging/vcpkg/check.cmake"

# --- Started

mkdir -p "$work/pictures"
cp "$root/build/win64/bin/try_programs.exe" "$work/"
try "the examples and the inventory run" bare "$work/try_programs.exe" "$(windows_path "$work/pictures")" \
    "$work"/examples64/*.exe "$work"/pc/*.exe "$(folder 64)/bin/inventory.exe"
cat "$work/log"

# The loader, not the program, tells of a DLL that is not there; it names it.
mkdir -p "$work/alone"
cp "$work/examples64/tree.exe" "$(folder 64)"/bin/*.dll "$work/alone/"
rm "$work/alone/libstdc++-6.dll"
refuses "a runtime DLL that is missing" "libstdc++-6.dll" \
    env WINEDEBUG=err+module QV_BARE=1 QV_WINEPREFIX="$work/prefix" "$root/cmake/wine-run" "$work/alone/tree.exe"

# --- The first program that a reader sees is one of them

readme_program() {
    diff <(sed -n '/^## A program that uses/,/^## Further/p' "$(folder 64)/README.md" | grep '^    ' | sed 's/^    //') \
        <(grep . "$(folder 64)/examples/tree.cpp")
}
try "the program in the README" readme_program

# --- What the pages name is there

dead_links() {  # each link of a page to a file that the package does not have
    local page link
    find "$(folder 64)" -name '*.md' | while read -r page; do
        grep -o '](\([^)#:]*\)[)#]' "$page" | sed 's/^](//; s/.$//' | sort -u | while read -r link; do
            [ -z "$link" ] || [ -e "$(dirname "$page")/$link" ] || echo "$page: $link"
        done
    done
}
links_lead() {
    dead_links
    [ -z "$(dead_links)" ]
}
try "links between the pages" links_lead

echo "package: $passed passed, $failed failed"
[ $failed = 0 ]
