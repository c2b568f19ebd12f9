# Sourced by run and test: installs the Debian packages that are missing.

packages_build="g++ cmake make ninja-build pkg-config libcairo2-dev libpango1.0-dev libsdl2-dev libpugixml-dev fonts-dejavu-core fonts-wqy-microhei"
packages_tests="libgtest-dev xvfb libx11-dev libxtst-dev libxfixes-dev"
packages_bench="libbenchmark-dev libtinyxml2-dev"
packages_tidy="clang clang-tidy clang-format"

# install_packages SET...: each SET names one of the lists above.
install_packages() {
    missing=""
    for set in "$@"; do
        eval "list=\$packages_$set"
        for package in $list; do
            dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
        done
    done
    [ -n "$missing" ] || return 0
    as_root=""
    [ "$(id -u)" = 0 ] || as_root="sudo"
    export DEBIAN_FRONTEND=noninteractive
    $as_root apt-get update
    # shellcheck disable=SC2086
    $as_root apt-get install -y --no-install-recommends $missing
}
