#!/usr/bin/env bash
# Fails unless all files that name the release agree with CMakeLists.txt, and unless the Debian
# packages depend on what packages.txt lists for building and running.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

status=0
complain() {
    printf '%s\n' "$*" >&2
    status=1
}

version=$(sed -n 's/^project(Morvantile VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
date=$(sed -n 's/^set(MORVANTILE_RELEASE_DATE \([0-9-]*\))$/\1/p' CMakeLists.txt)
[[ -n $version && -n $date ]] || complain "CMakeLists.txt: no version or no date"

# expect FILE WANTED FOUND
expect() { [[ $3 == "$2" ]] || complain "$1: \"$3\", not \"$2\""; }

expect CHANGELOG.md "## [$version] - $date" "$(grep -m 1 '^## ' CHANGELOG.md)"
metainfo=packaging/example.morvantile.Morvantile.metainfo.xml
expect "$metainfo" "<release version=\"$version\" date=\"$date\">" \
    "$(grep -m 1 -o '<release .*>' "$metainfo")"
debian=packaging/debian/changelog
expect "$debian" "morvantile ($version) unstable; urgency=medium" "$(head -n 1 "$debian")"
expect "$debian" "$date" "$(date -u -d "$(sed -n 's/^ -- .*>  //p;T;q' "$debian")" +%F)"
recipe=packaging/appimage/AppImageBuilder.yml
expect "$recipe" "    version: $version" "$(grep -m 1 '^    version:' "$recipe")"
for page in packaging/man/*.1; do
    expect "$page" ".Dd $(LC_ALL=C date -d "$date" '+%B %-d, %Y')" "$(head -n 1 "$page")"
done

# The packages of [run] that end in -dev or -dev-tools, and the tools, are for building; the
# programs load the others by name. The compiler is part of every Debian build.
root=$PWD
source scripts/setup.sh
control=packaging/debian/control
# fields NAME: the packages named in these fields of control.
fields() {
    awk -v name="$1:" '$1 == name { on = 1; next } /^[^ ]/ { on = 0 } on { print $1 }' "$control" |
        tr -d ,
}
listed=$(packages_in run)
for package in $listed; do
    case $package in
    g++) continue ;;
    *-dev | *-dev-tools | cmake | ninja-build | pkgconf) field=Build-Depends ;;
    *) field=Depends ;;
    esac
    grep -qxF -- "$package" <(fields "$field") ||
        complain "$control: no $field on $package, which packages.txt lists"
done
for package in $(fields Build-Depends); do
    [[ $package == debhelper-compat ]] || grep -qxF -- "$package" <<<"$listed" ||
        complain "packages.txt: no $package, which $control builds with"
done
exit "$status"
