#!/usr/bin/env bash
# Renders the drawings beside it into the pictures that are built into the program, into the icon of
# its bundle, and into further sizes that desktops have icons in. To be run by hand after a drawing
# changed; takes Debian's librsvg2-bin, pngquant, optipng, icnsutils and imagemagick.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"
images=../Images
packaging=../../packaging

# render_icon SIZE FILE
render_icon() {
    local size=$1 icon=$2
    rsvg-convert --width "$size" --height "$size" MVIcon.svg --output "$icon"
    # 256 colours are enough for the gradients; the small ones stay as they are.
    ((size < 128)) || pngquant --force --speed 1 --strip --output "$icon" 256 "$icon"
    optipng -quiet -o5 -strip all "$icon"
}

for size in 16 24 32 48 64 128 256 512 1024; do
    render_icon "$size" "$images/MVIcon$size.png"
done
for size in 22 36 72 96 192; do
    render_icon "$size" "$packaging/icons/morvantile-$size.png"
done

png2icns $packaging/morvantile.icns $images/MVIcon{16,32,48,128,256,512,1024}.png >/dev/null

rsvg-convert watermarkBackground.svg | convert - -quality 85 -strip $images/watermarkBackground.jpg
