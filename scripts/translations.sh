#!/usr/bin/env bash
# The texts in the sources and those in the catalogues, translations/*.ts.
#   scripts/translations.sh           brings the catalogues up to date: new texts come in, without a
#                                     translation, and those that are gone go
#   scripts/translations.sh --check   fails where that would change a catalogue
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

# Debian's lupdate on PATH is a switch that may point nowhere.
lupdate=
for candidate in /usr/lib/qt5/bin/lupdate /usr/lib/qt6/bin/lupdate lupdate-qt5 lupdate; do
    if command -v "$candidate" >/dev/null; then
        lupdate=$candidate
        break
    fi
done
[[ -n $lupdate ]] || {
    printf 'lupdate is missing: install qttools5-dev-tools\n' >&2
    exit 1
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# What the window shows. The command lines speak English: their texts are what scripts rely on.
LC_ALL=C find app batch imaging profiles qtav series ui utils video \
    \( -name '*.ui' -o -name '*.cpp' -o -name '*.h' \) ! -path app/CommandLineProcessor.cpp \
    -exec grep -lE '\<tr\(|\<translate\(|QT_TR|_TR_|<ui version' {} + | LC_ALL=C sort >"$work/sources"

# update FILE: what lupdate says is an error where a text would not be found when it is shown.
update() {
    "$lupdate" -silent -no-obsolete -locations none -disable-heuristic similartext \
        -disable-heuristic sametext -I . -I qtav/include "@$work/sources" -ts "$1" 2>"$work/warnings" || {
        cat "$work/warnings" >&2
        exit 1
    }
    if [[ -s $work/warnings ]]; then
        cat "$work/warnings" >&2
        exit 1
    fi
}

if [[ ${1-} != --check ]]; then
    for catalogue in translations/*.ts; do update "$catalogue"; done
    exit
fi

status=0
for catalogue in translations/*.ts; do
    copy=$work/$(basename "$catalogue")
    cp "$catalogue" "$copy"
    update "$copy"
    if ! diff -u "$catalogue" "$copy" >&2; then
        printf '%s is out of date: run scripts/translations.sh and translate what is new\n' \
            "$catalogue" >&2
        status=1
    fi
done
exit "$status"
