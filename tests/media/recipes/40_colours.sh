# Flat colours, coded without loss, for comparing with what the standards' formulas give. Below the
# number lie two rows of four patches.

# One patch a line: Y' Cb Cr as 8-bit codes. A 10-bit file has 4 times the code and 1 more. The
# same codes are used in limited and in full range.
readonly PATCHES="
    16 128 128
    235 128 128
    60 128 128
    120 100 160
    120 160 100
    150 100 110
    100 150 150
    81 90 240"

# patch_codes PLANE DEPTH: an expression of that plane's code (1: Y', 2: Cb, 3: Cr) at each place
# of a grid of four by two.
patch_codes() {
    awk -v plane="$1" -v depth="$2" '
        NF { printf "%seq(X+4*Y,%d)*%d", n ? "+" : "", n,
                    depth == 8 ? $plane : 4 * $plane + 1; n++ }' <<<"$PATCHES"
}

# patches FILE SIZE DEPTH ARG…: 5 frames; ARG… are the encoder and the tags of matrix and range.
patches() {
    local file=$1 size=$2 depth=$3
    shift 3
    local layout=yuv420p whole=yuv444p
    ((depth == 8)) || { layout=yuv420p10le && whole=yuv444p10le; }
    local below=${size%x*}:$((${size#*x} - $(strip_height "$size")))
    local graph="color=s=4x2:r=25,format=$whole"
    graph+=",geq=lum='$(patch_codes 1 "$depth")':cb='$(patch_codes 2 "$depth")'"
    graph+=":cr='$(patch_codes 3 "$depth")',scale=$below:flags=neighbor[patches]"
    graph+=";$(numbers "$size" 25),format=$whole[number]"
    graph+=";[number][patches]vstack,format=$layout,setsar=1"
    ff -f lavfi -i "$graph" -frames:v 5 "${EXACT[@]}" "$@" "$file"
}

readonly LOSSLESS_8BIT=(-c:v libx264 -preset veryfast -qp 0)
readonly LOSSLESS_10BIT=(-c:v ffv1)

# matrix_samples NAME MATRIX PRIMARIES TRANSFER: limited and full range in both depths.
matrix_samples() {
    local name=$1 range
    local tags=(-colorspace "$2" -color_primaries "$3" -color_trc "$4")
    for range in limited full; do
        tags+=(-color_range "$([[ $range == full ]] && echo pc || echo tv)")
        sample "colour_${name}_${range}_8bit.mp4" patches 320x240 8 "${LOSSLESS_8BIT[@]}" \
            "${tags[@]}"
        sample "colour_${name}_${range}_10bit.mkv" patches 320x240 10 "${LOSSLESS_10BIT[@]}" \
            "${tags[@]}"
    done
}

matrix_samples bt601 smpte170m smpte170m smpte170m
matrix_samples bt709 bt709 bt709 bt709
matrix_samples bt2020 bt2020nc bt2020 bt2020-10

# Without tags the matrix goes by the size: BT.601 below 720 lines, BT.709 from there up.
sample colour_untagged_sd_8bit.mp4 patches 320x240 8 "${LOSSLESS_8BIT[@]}"
sample colour_untagged_sd_10bit.mkv patches 320x240 10 "${LOSSLESS_10BIT[@]}"
sample colour_untagged_hd_8bit.mp4 patches 1280x720 8 "${LOSSLESS_8BIT[@]}"
sample colour_untagged_hd_10bit.mkv patches 1280x720 10 "${LOSSLESS_10BIT[@]}"

sample h264_full_range.mp4 encode_filtered 320x240 25 50 scale=out_range=full,format=yuv420p \
    -color_range pc "${X264[@]}" -x264-params keyint=25:bframes=2
