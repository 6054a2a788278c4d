#!/usr/bin/env bash
# Makes the Debian package and the portable archive of a build. Usage: make_packages.sh BUILD FOLDER CPACK
set -euo pipefail
rm -rf "$2"
mkdir -p "$2"
# The settings of the build, and quick compression: the test looks at what is inside.
exec "$3" --config "$1/CPackConfig.cmake" -B "$2" -G "DEB;TGZ" -D CPACK_DEBIAN_COMPRESSION_TYPE=gzip -D CPACK_THREADS=1
