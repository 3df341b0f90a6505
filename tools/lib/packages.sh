# What each command needs from the system's package manager, and how it gets there.
# shellcheck shell=bash
# shellcheck disable=SC2034 # ensure reads the groups by their names

# Each group: the packages, and why they are needed.
native_packages=(cmake ninja-build g++ python3)
native_reason="to build"
cross_packages=(g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix)
cross_reason="to build Windows programs of both architectures"
wine_packages=(wine wine64 fonts-wine fonts-liberation xvfb xauth)
wine_reason="to run Windows programs, on a virtual display where there is none"
wine32_packages=(wine32:i386)
wine32_reason="to run 32-bit Windows programs"
picture_packages=(netpbm)
picture_reason="to make the library's pictures and to write pictures as PNG"
package_packages=(llvm)
package_reason="to make the import library for MSVC"
hosts_packages=(lld golang-go gnat-mingw-w64-i686-posix gnat-mingw-w64-x86-64-posix)
hosts_reason="to build hosts as other compilers and languages do"
# Debian's Python finds these, so what needs them is run by /usr/bin/python3.
site_packages=(python3 python3-markdown python3-pygments python3-jinja2 git)
site_reason="to make the site of the documentation"
browser_packages=(chromium chromium-driver python3-selenium)
browser_reason="to look at the site as its readers do"
test_packages=(clang clang-format clang-tidy libclang-rt-dev googletest shellcheck git binutils)
test_reason="to test and to check the source"
coverage_packages=(gcovr)
coverage_reason="to tell what the tests run"
bench_packages=(libbenchmark-dev)
bench_reason="to measure"

missing_of() {
  local package
  for package in "$@"; do
    dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
      printf '%s\n' "$package"
  done
}

apt() {
  apt-get -o DPkg::Lock::Timeout=600 -o Acquire::Retries=2 "$@"
}

# install LOG PACKAGE...: reads the lists and installs. One clone at a time, so that none reads lists
# that another is writing. The update's own exit status says little: one index that does not match
# fails it though all that is needed came; the installation after it is what counts. The 32-bit and
# the 64-bit Wine share libraries, whose versions must agree: where the machine's release has more
# than one source, all come from the release itself.
install() {
  local log=$1 release
  shift
  release=$(. /etc/os-release && printf '%s' "${VERSION_CODENAME:-}")
  mkdir -p "$build/logs"
  (
    flock 7
    apt update
    DEBIAN_FRONTEND=noninteractive \
      apt install -y --no-install-recommends ${release:+-t "$release"} "$@"
  ) 7>/tmp/vorn32-packages.lock >"$build/logs/$log" 2>&1
}

# ensure GROUP...: installs what is missing of the groups. Fails with a sentence when it cannot.
ensure() {
  local group missing=()
  for group in "$@"; do
    local list="${group}_packages[@]" reason="${group}_reason"
    local lacking
    mapfile -t lacking < <(missing_of "${!list}")
    [ "${#lacking[@]}" -gt 0 ] || continue
    say "installing ${!reason}: ${lacking[*]}"
    missing+=("${lacking[@]}")
  done
  [ "${#missing[@]}" -gt 0 ] || return 0
  command -v apt-get >/dev/null ||
    die "this machine has no apt-get; install what answers to these Debian packages: ${missing[*]}"
  [ "$(id -u)" -eq 0 ] ||
    die "packages are missing and only root can install them; run: sudo apt-get install ${missing[*]}"
  if ! install apt-install.log "${missing[@]}"; then
    tail -n 5 "$build/logs/apt-install.log" >&2
    die "the packages could not be installed (see $build/logs/apt-install.log); check the network, then run this again."
  fi
}

# Answers whether 32-bit Windows programs can run here, after trying to make it so.
ensure_wine32() {
  [ -z "$(missing_of "${wine32_packages[@]}")" ] && return 0
  if ! command -v apt-get >/dev/null || [ "$(id -u)" -ne 0 ]; then
    say "the 32-bit Wine is missing and only root can install it: dpkg --add-architecture i386, apt-get update, apt-get install ${wine32_packages[*]}"
    return 1
  fi
  say "installing ${wine32_reason}: ${wine32_packages[*]}"
  dpkg --add-architecture i386 && install apt-install-wine32.log "${wine32_packages[@]}"
}
