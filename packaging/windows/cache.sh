# The toolkit, the database library and the test library for Windows: built once from Debian's own source packages into
# a folder outside the repository and found there again. To be sourced after packaging/debian/setup.sh:
#
#   source packaging/windows/cache.sh
#   cache_is_there || fill_cache
#
# Each part lies in a folder of its own that is named after the source's version and the recipe's digest, and it comes
# to stand there only when it is whole: a build that was broken off leaves nothing that the next one would take.
#
# shellcheck shell=bash

windows_packaging="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"

windows_cache="${SEIKAHYOU_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/seikahyou/windows}"

# What the operators' windows need of the toolkit, and no more.
toolkit_options=(
  -DCMAKE_BUILD_TYPE=Release
  -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake -DQT_QMAKE_TARGET_MKSPEC=win32-g++
  -DBUILD_SHARED_LIBS=OFF -DFEATURE_static_runtime=ON -DFEATURE_pkg_config=OFF
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
  -DFEATURE_network=OFF -DFEATURE_sql=OFF -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF
  -DFEATURE_dbus=OFF -DINPUT_dbus=no -DINPUT_opengl=no -DFEATURE_vulkan=OFF
  # Without direct2d the DirectWrite fonts go missing at the link; its newer version is not needed.
  -DFEATURE_tabletevent=OFF -DFEATURE_direct2d1_1=OFF -DFEATURE_androiddeployqt=OFF -DFEATURE_qmake=OFF
  -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF -DFEATURE_system_freetype=OFF
  -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_doubleconversion=OFF
  -DFEATURE_system_libb2=OFF -DFEATURE_icu=OFF -DFEATURE_glib=OFF -DFEATURE_zstd=OFF
)

database_flags=(-O2 -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA=1)

spreadsheet_flags=(-O2)

digest() { sha256sum | cut -c 1-12; }

# The version of the compiler is part of every recipe: objects of two of them are not linked together.
compiler_version() { dpkg-query -W -f '${Version}' g++-mingw-w64-x86-64-posix 2>/dev/null || true; }

toolkit_folder() {
  local version
  version="$(dpkg-query -W -f '${Version}' qt6-base-dev 2>/dev/null)" || true
  echo "$windows_cache/toolkit-${version}-$({ compiler_version; cat "$windows_packaging/toolchain.cmake"; echo "${toolkit_options[@]}"; } | digest)"
}

database_folder() {
  local version
  version="$(dpkg-query -W -f '${Version}' libsqlite3-dev 2>/dev/null)" || true
  echo "$windows_cache/sqlite-${version}-$({ compiler_version; echo "${database_flags[@]}"; } | digest)"
}

spreadsheet_folder() {
  local version
  version="$(dpkg-query -W -f '${Version}' libxlsxwriter-dev 2>/dev/null)" || true
  echo "$windows_cache/xlsxwriter-${version}-$({ compiler_version; echo "${spreadsheet_flags[@]}"; } | digest)"
}

test_library_folder() {
  local version
  version="$(dpkg-query -W -f '${Version}' libgtest-dev 2>/dev/null)" || true
  echo "$windows_cache/googletest-${version}-$(compiler_version | digest)"
}

cache_is_there() {
  [[ -d "$(toolkit_folder)" && -d "$(database_folder)" && -d "$(spreadsheet_folder)" && -d "$(test_library_folder)" ]]
}

# The lines that ask for the sources of what the machine itself takes from Debian: from where its own packages come.
source_lines() {
  apt-get indextargets \
    --format 'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Created-By: Packages' 'Origin: Debian' 'Component: main' | sort -u
}

# source_package NAME FOLDER: unpacks Debian's source of a package into FOLDER. The lists of source packages are kept
# beside the cache, so that the machine's own list of sources stays as it is.
source_package() {
  local name="$1" folder="$2" apt="$windows_cache/apt"
  mkdir -p "$apt/lists/partial" "$apt/archives/partial" "$folder.download"
  source_lines >"$apt/sources.list"
  if [[ ! -s "$apt/sources.list" ]]; then
    echo "apt がパッケージの一覧を持っていません。root で apt-get update を実行してください / apt has no lists of Debian's packages; run apt-get update as root." >&2
    return 1
  fi
  local -a own=(-q -o "Dir::Etc::sourcelist=$apt/sources.list" -o Dir::Etc::sourceparts=/dev/null
    -o "Dir::State::lists=$apt/lists" -o "Dir::Cache=$apt" -o Acquire::Retries=3 -o APT::Sandbox::User=root)
  apt-get "${own[@]}" update
  (cd "$folder.download" && apt-get "${own[@]}" source --download-only "$name")
  dpkg-source --no-check -x "$folder.download"/*.dsc "$folder"
  rm -rf "$folder.download"
}

# build_part FOLDER FUNCTION: FUNCTION builds in the folder $work and installs into the folder $target, which takes its
# place only when all went well.
build_part() {
  local folder="$1" function="$2"
  [[ -d "$folder" ]] && return 0
  local work="$folder.work"
  local target="$work/installed"
  rm -rf "$work"
  mkdir -p "$work" "$target"
  "$function"
  mv "$target" "$folder"
  rm -rf "$work"
}

build_toolkit() {
  source_package qt6-base "$work/source"
  cmake -S "$work/source" -B "$work/build" -G Ninja --toolchain "$windows_packaging/toolchain.cmake" \
    "-DCMAKE_INSTALL_PREFIX=$target" "${toolkit_options[@]}"
  cmake --build "$work/build"
  cmake --install "$work/build" >/dev/null
  # What the zip must carry beside a program that has the toolkit inside.
  cp -r "$work/source/LICENSES" "$target/licences"
  cp "$work/source/debian/copyright" "$target/licences/debian-copyright.txt"
}

build_database() {
  source_package sqlite3 "$work/source"
  (cd "$work/source" && ./configure --disable-tcl --disable-readline >/dev/null && make sqlite3.c sqlite3.h >/dev/null)
  mkdir -p "$target/include" "$target/lib"
  x86_64-w64-mingw32-gcc-posix "${database_flags[@]}" -c "$work/source/sqlite3.c" -o "$work/sqlite3.o"
  x86_64-w64-mingw32-ar rcs "$target/lib/libsqlite3.a" "$work/sqlite3.o"
  cp "$work/source/sqlite3.h" "$target/include/"
  cp "$work/source/debian/copyright" "$target/debian-copyright.txt"
}

# The library for spreadsheets. The compression that it needs comes as Debian's own package for this target.
build_spreadsheets() {
  local file cc=x86_64-w64-mingw32-gcc-posix
  local -a objects
  source_package libxlsxwriter "$work/source"
  mkdir -p "$target/include" "$target/lib" "$work/x"
  for file in "$work"/source/src/*.c "$work"/source/third_party/minizip/{ioapi,zip,iowin32}.c \
    "$work"/source/third_party/{tmpfileplus/tmpfileplus,md5/md5}.c; do
    "$cc" "${spreadsheet_flags[@]}" -I "$work/source/include" -c "$file" -o "$work/x/$(basename "$file" .c).o"
  done
  objects=("$work"/x/*.o)
  x86_64-w64-mingw32-ar rcs "$target/lib/libxlsxwriter.a" "${objects[@]}"
  cp /usr/x86_64-w64-mingw32/lib/libz.a "$target/lib/"
  cp -r "$work"/source/include/* "$target/include/"
  cp "$work/source/debian/copyright" "$target/xlsxwriter-copyright.txt"
  cp /usr/share/doc/libz-mingw-w64-dev/copyright "$target/zlib-copyright.txt"
}

build_test_library() {
  cmake -S /usr/src/googletest -B "$work/build" -G Ninja --toolchain "$windows_packaging/toolchain.cmake" \
    -DCMAKE_BUILD_TYPE=Release "-DCMAKE_INSTALL_PREFIX=$target"
  cmake --build "$work/build"
  cmake --install "$work/build" >/dev/null
}

fill_cache() {
  mkdir -p "$windows_cache"
  build_part "$(database_folder)" build_database
  build_part "$(spreadsheet_folder)" build_spreadsheets
  build_part "$(test_library_folder)" build_test_library
  build_part "$(toolkit_folder)" build_toolkit
  rm -rf "$windows_cache/apt"
}
