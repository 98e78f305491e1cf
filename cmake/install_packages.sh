# Installs what the build needs and the machine lacks, on Debian 12: as root, or by sudo.
# Sourced by demo and check, after a list of `more_packages`.

packages="cmake ninja-build g++ g++-multilib googletest libstb-dev graphviz ${more_packages-}"

missing=
for package in $packages; do
  state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$state" = installed ] || missing="$missing $package"
done
if [ -n "$missing" ]; then
  echo "Installing:$missing"
  as_root=
  [ "$(id -u)" -eq 0 ] || as_root=sudo
  $as_root apt-get update -qq
  # shellcheck disable=SC2086
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    $missing >/dev/null
fi
