# The Debian 12 packages that the house needs, by what they are needed for. Read by packaging/debian/setup.sh.
# shellcheck shell=bash disable=SC2034

# Compiling everything but the windows.
packages_build=(cmake ninja-build g++ libsqlite3-dev unixodbc-dev libxlsxwriter-dev)

# Compiling and showing the windows, with Japanese letters in them.
packages_window=(qt6-base-dev qt6-translations-l10n libgl-dev libopengl-dev libegl1 fontconfig fonts-ipafont-gothic)

# Showing the windows on a Wayland desktop that offers no X.
packages_wayland=(qt6-wayland)

# Building and running the tests; what is printed is read back, and spreadsheets are recalculated; those of other database
# engines need their drivers, a server and its client library.
packages_test=(libgtest-dev zlib1g-dev poppler-utils libreoffice-calc-nogui libsqliteodbc odbc-postgresql odbc-mdbtools postgresql libpq-dev)

# Compiling the Windows program: cross compiler, what unpacks and builds the toolkit's and the database's sources, the
# toolkit's own tools for this machine.
packages_windows=(libxlsxwriter-dev libz-mingw-w64-dev g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev
  mingw-w64-common binutils-mingw-w64-x86-64 qt6-base-dev-tools libgtest-dev libsqlite3-dev dpkg-dev tclsh make gcc
  git zip)

# Running it here and looking at it.
packages_wine=(wine64 libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1 libxxf86vm1
  fonts-wine fonts-ipafont-gothic xvfb xdotool xclip x11-utils imagemagick unzip poppler-utils libodbc2 libsqliteodbc)

# The sanitizer, fuzz and format runs.
packages_ci=(clang libclang-rt-14-dev clang-format)

# Measuring the other engines beside SQLite: their drivers, a server and its own client library.
packages_measure=(libsqliteodbc odbc-postgresql postgresql libpq-dev)

# Making the Debian package, looking into it and working it in a fresh system.
packages_debian=(dpkg-dev lintian debootstrap gzip)
