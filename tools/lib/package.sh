# The package of both builds.
# shellcheck shell=bash

# Where the zip is; the builds know the version.
package_path() {
  local version
  version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/i686/CMakeCache.txt")
  printf '%s\n' "$build/package/VORN32-${version:?}.zip"
}

# Installs what the builds i686 and x86_64 have built into a folder, makes the site of the documentation
# there, and writes all as a zip.
write_package() {
  local zip folder preset
  zip=$(package_path) || return 1
  folder=${zip%.zip}
  rm -rf "$build/package"
  for preset in i686 x86_64; do
    cmake --install "$build/$preset" --prefix "$folder" || return 1
  done
  /usr/bin/python3 "$root/tools/lib/site" "$folder/doc/html" || return 1
  python3 "$root/tools/lib/write_zip.py" "$folder" "$zip" || return 1
  rm -rf "$folder"
}

# Builds what the package holds and writes it.
make_package() {
  local preset
  for preset in i686 x86_64; do
    step "building the package's files of $preset" "$build/logs/package-$preset.log" \
      cmake_build "$preset" vorn_package_files
  done
  step "writing the package" "$build/logs/package.log" write_package
}

# Configures the tests of the package that was written.
configure_package_tests() {
  cmake -S "$root/tests/package" -B "$build/package-tests" -G Ninja -D VORN_PACKAGE="$(package_path)"
}
