#!/usr/bin/env bash
# Synchronises the texts in the sources with the catalogues, translations/*.ts.
#   scripts/translations.sh           updates the catalogues: adds new texts, without translations,
#                                     and removes those that no longer exist
#   scripts/translations.sh --check   fails if that would change a catalogue
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

# Debian's lupdate on PATH is a wrapper that may have no target.
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

# The texts of the window. The command lines are in English only, because scripts rely on their
# texts.
LC_ALL=C find app batch imaging profiles qtav series ui utils video \
    \( -name '*.ui' -o -name '*.cpp' -o -name '*.h' \) ! -path app/CommandLineProcessor.cpp \
    -exec grep -lE '\<tr\(|\<translate\(|QT_TR|_TR_|<ui version' {} + | LC_ALL=C sort >"$work/sources"

# update FILE: treats a message of lupdate as an error, because such a text would not be translated.
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
