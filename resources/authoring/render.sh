#!/usr/bin/env bash
# Renders the drawings beside it into the pictures that are built into the program, and into the
# icon of its bundle. To be run by hand after a drawing changed; takes Debian's librsvg2-bin,
# pngquant, optipng, icnsutils and imagemagick.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"
images=../Images

for size in 16 24 32 48 64 128 256 512 1024; do
    icon=$images/MVIcon$size.png
    rsvg-convert --width "$size" --height "$size" MVIcon.svg --output "$icon"
    # 256 colours are enough for the gradients; the small ones stay as they are.
    ((size < 128)) || pngquant --force --speed 1 --strip --output "$icon" 256 "$icon"
    optipng -quiet -o5 -strip all "$icon"
done

png2icns ../../packaging/morvantile.icns $images/MVIcon{16,32,48,128,256,512,1024}.png >/dev/null

rsvg-convert watermarkBackground.svg | convert - -quality 85 -strip $images/watermarkBackground.jpg
