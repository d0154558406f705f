#!/usr/bin/env bash
# Installs a build into a folder, moves the folder elsewhere, and fails unless the programs run
# there and find their files, and the files for desktops, shells and `man` are valid.
#   check_install.sh CMAKE BUILD VIDEO PRINT_GUIDE PRINT_LANGUAGES
set -euo pipefail
cmake=$1 build=$2 video=$3 print_guide=$4 print_languages=$5

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
status=0
complain() {
    printf '%s\n' "$*" >&2
    status=1
}

"$cmake" --install "$build" --prefix "$work/first" >"$work/log" || {
    cat "$work/log" >&2
    exit 1
}
# A space is a common problem for scripts that call the programs.
moved="$work/moved elsewhere"
mv "$work/first" "$moved"
share=$moved/share

! grep -rlF "$work/first" "$moved" >&2 || complain "these files name the folder of the installation"

# --- the programs
for arguments in "--count 2" "--count 1 --sheet" "--count 1 --deinterlace on"; do
    # shellcheck disable=SC2086
    "$moved/bin/stills" "$video" $arguments -o "$work/stills" --quiet || complain "stills $arguments fails"
done
(($(find "$work/stills" -name '*.jpg' | wc -l) >= 3)) || complain "stills made too few pictures"
mkdir "$work/older"
"$moved/bin/morvantile-cli" "$video" "$work/older" --count 2 || complain "morvantile-cli fails"
(($(find "$work/older" -name '*.jpeg' | wc -l) == 2)) || complain "morvantile-cli made no two pictures"
cp "$print_guide" "$moved/bin/"
guide=$("$moved/bin/PrintGuide")
[[ $guide == "file://$share/morvantile/user-guide/user-guide.html" ]] ||
    complain "the guide is looked for at $guide"
cp "$print_languages" "$moved/bin/"
languages=$("$moved/bin/PrintLanguages")
[[ $languages == "ar de en es fr ja zh_CN: Schnappschuss aufnehmen" ]] ||
    complain "the catalogues are not found: $languages"

# --- what describes them
for page in morvantile morvantile-cli stills; do
    # Only the system's pages are looked for, not those beside this one.
    mandoc -T lint "$share/man/man1/$page.1" | grep -v 'referenced manual not found' >&2 &&
        complain "$page.1 is not as it should be"
done
desktop-file-validate "$share/applications/morvantile.desktop" >&2 ||
    complain "the desktop entry is not as it should be"
appstreamcli validate --no-net "$share"/metainfo/*.xml >"$work/log" || {
    cat "$work/log" >&2
    complain "the metainfo is not as it should be"
}

# --- completions
"$moved/bin/morvantile-cli" --help | grep -oE '^  [^ ].*' | grep -oE -- '(^|[ ,])--?[a-z-]+' |
    tr -d ' ,' >"$work/options"
(($(wc -l <"$work/options") >= 15)) || complain "the help of morvantile-cli has too few options"
fish=$share/fish/vendor_completions.d/morvantile-cli.fish
while read -r option; do
    grep -qF -- "$option" "$share/bash-completion/completions/morvantile-cli" ||
        complain "bash does not complete morvantile-cli $option"
    grep -qE -- "[{,'*)]$option[]+=,}[]" "$share/zsh/site-functions/_morvantile-cli" ||
        complain "zsh does not complete morvantile-cli $option"
    case $option in
    --*) grep -qE -- " -l ${option#--} " "$fish" ;;
    *) grep -qE -- " -s ${option#-} " "$fish" ;;
    esac || complain "fish does not complete morvantile-cli $option"
done <"$work/options"
for file in "$share"/bash-completion/completions/*; do
    bash -n "$file" || complain "bash does not understand $file"
done

# --- icons
count=0
for icon in "$share"/icons/hicolor/*/apps/morvantile.png; do
    folder=$(basename "$(dirname "$(dirname "$icon")")")
    size=${folder%%x*}
    [[ $folder != *@2 ]] || size=$((size * 2))
    read -r width height < <(od -An -tu4 --endian=big -j16 -N8 "$icon")
    [[ $width == "$size" && $height == "$size" ]] || complain "$icon is $width x $height"
    count=$((count + 1))
done
((count == 14)) || complain "there are $count icons, not 14"
exit "$status"
