#!/bin/sh
# Installs the packages in a bare Debian 12, builds and runs other people's programs against them, and
# removes them: amd64 alone, then both architectures. On demand: as root, with lintian and debootstrap.
# Usage: debian_packages.sh PACKAGES_DIR
set -eu
programs=$(dirname "$(realpath "$0")")/install
lintian --allow-root --fail-on error "$1"/*.deb

root=$(mktemp -d)
trap 'rm -r --one-file-system "$root"' EXIT
debootstrap --variant=minbase bookworm "$root" >/dev/null
cp -r "$programs" "$root/programs"
mkdir "$root/packages"
cp "$1"/*.deb "$root/packages"
hwcaps=
! grep -q ' avx2 .* bmi2 ' /proc/cpuinfo || hwcaps=glibc-hwcaps/x86-64-v3/

cat >"$root/trial" <<'END'
set -eu
export PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C DEBIAN_FRONTEND=noninteractive
hwcaps=$1
fail() { echo "$1" >&2; exit 1; }
run() { [ "$("$@")" = right ] || fail "wrong result: $*"; }
apt() { apt-get -qq -y --no-install-recommends "$@" >/log 2>&1 || fail "$(cat /log)"; }
dpkg --add-architecture i386
apt update
apt install g++ g++-multilib cmake ninja-build pkg-config libc6-dev:i386

state() {
  dpkg-query -W
  find / -xdev -path /var -prune -o -type f -print | sort
}
build_and_run() {  # build_and_run TRIPLET OPTIONS LEVEL
  rm -rf /build
  cmake -S /programs -B /build -G Ninja -DCMAKE_C_FLAGS="$2" -DCMAKE_CXX_FLAGS="$2" >/log 2>&1 &&
    cmake --build /build >/log 2>&1 || fail "$(cat /log)"
  export PKG_CONFIG_LIBDIR=/usr/lib/$1/pkgconfig
  # shellcheck disable=SC2046
  gcc /programs/main.c $(pkg-config --cflags --libs zulgens8 zulcore) -o /build/by_pkg_config
  # shellcheck disable=SC2086
  gcc $2 /programs/main.c -lzulgens8 -lzulcore -o /build/by_hand
  for program in c cpp c_static cpp_static by_pkg_config by_hand; do run "/build/$program"; done
  LD_DEBUG=libs /build/by_hand 2>&1 | grep -q "calling init: .*/$1/$3libzulgens8.so.6.1$" ||
    fail "not the library of $1/$3"
}

state >/var/before
apt install /packages/*_amd64.deb
build_and_run x86_64-linux-gnu "" "$hwcaps"
(export GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX2 && build_and_run x86_64-linux-gnu "" "")
apt install /packages/*.deb
build_and_run x86_64-linux-gnu "" "$hwcaps"
build_and_run i386-linux-gnu -m32 ""
apt purge libzulcore6.1:amd64
build_and_run i386-linux-gnu -m32 ""
apt purge libzulcore6.1:i386
rm -r /build
state >/var/after
diff /var/before /var/after || fail "something stayed"
echo "Packages installed, used and removed"
END
chroot "$root" /usr/bin/env -i /bin/sh /trial "$hwcaps"
