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

# patches FILE SIZE DEPTH FILTER ARG…: 5 frames through FILTER and the encoder ARG….
patches() {
    local file=$1 size=$2 depth=$3 filter=$4
    shift 4
    local layout=yuv420p whole=yuv444p
    ((depth == 8)) || { layout=yuv420p10le && whole=yuv444p10le; }
    local below=${size%x*}:$((${size#*x} - $(strip_height "$size")))
    local graph="color=s=4x2:r=25,format=$whole"
    graph+=",geq=lum='$(patch_codes 1 "$depth")':cb='$(patch_codes 2 "$depth")'"
    graph+=":cr='$(patch_codes 3 "$depth")',scale=$below:flags=neighbor[patches]"
    graph+=";$(numbers "$size" 25),format=$whole[number]"
    graph+=";[number][patches]vstack,format=$layout,setsar=1,$filter"
    ff -f lavfi -i "$graph" -frames:v 5 "${EXACT[@]}" "$@" "$file"
}

readonly LOSSLESS_8BIT=(-c:v libx264 -preset veryfast -qp 0)
readonly LOSSLESS_10BIT=(-c:v ffv1)

# tagged_patches FILE DEPTH MATRIX PRIMARIES TRANSFER RANGE ARG…: with the encoder ARG…. Both the
# pictures and the encoder are tagged: FFmpeg from 7 on converts codes that come with other tags than
# the encoder's, and before that no tags go from the one to the other.
tagged_patches() {
    local file=$1 depth=$2 matrix=$3 primaries=$4 transfer=$5 range=$6
    shift 6
    patches "$file" 320x240 "$depth" \
        "setparams=colorspace=$matrix:color_primaries=$primaries:color_trc=$transfer:range=$range" \
        "$@" -colorspace "$matrix" -color_primaries "$primaries" -color_trc "$transfer" \
        -color_range "$range"
}

# matrix_samples NAME MATRIX PRIMARIES TRANSFER: limited and full range in both depths.
matrix_samples() {
    local name=$1 tags=("$2" "$3" "$4") range
    for range in tv pc; do
        local extent=limited
        [[ $range == tv ]] || extent=full
        sample "colour_${name}_${extent}_8bit.mp4" \
            tagged_patches 8 "${tags[@]}" "$range" "${LOSSLESS_8BIT[@]}"
        sample "colour_${name}_${extent}_10bit.mkv" \
            tagged_patches 10 "${tags[@]}" "$range" "${LOSSLESS_10BIT[@]}"
    done
}

matrix_samples bt601 smpte170m smpte170m smpte170m
matrix_samples bt709 bt709 bt709 bt709
matrix_samples bt2020 bt2020nc bt2020 bt2020-10

# untagged_10bit FILE SIZE: FFmpeg writes a range into every MKV that it encodes, into NUT it writes
# none, and a copy says no more than its source.
untagged_10bit() {
    local file=$1 bare=${1%.*}.nut
    patches "$bare" "$2" 10 null "${LOSSLESS_10BIT[@]}"
    ff -i "$bare" -c copy "${EXACT[@]}" "$file"
}

# Without tags the matrix goes by the size: BT.709 from 1280 columns or 577 lines up, else BT.601.
sample colour_untagged_sd_8bit.mp4 patches 320x240 8 null "${LOSSLESS_8BIT[@]}"
sample colour_untagged_sd_10bit.mkv untagged_10bit 320x240
sample colour_untagged_hd_8bit.mp4 patches 1280x720 8 null "${LOSSLESS_8BIT[@]}"
sample colour_untagged_hd_10bit.mkv untagged_10bit 1280x720

sample h264_full_range.mp4 encode_filtered 320x240 25 50 scale=out_range=full,format=yuv420p \
    -color_range pc "${X264[@]}" -x264-params keyint=25:bframes=2

# --- high dynamic range and wide gamut ------------------------------------------------------

readonly HDR_X265="lossless=1:$X265_PARAMS"
readonly MASTER_DISPLAY="G(13250,34500)B(7500,3000)R(34000,16000)WP(15635,16450)L(40000000,50)"

# pq_from_encoder FILE [PARAMETERS]: as x265 writes it, with what it knows of the light in the stream.
pq_from_encoder() {
    tagged_patches "$1" 10 bt2020nc bt2020 smpte2084 tv -c:v libx265 -preset ultrafast -tag:v hvc1 \
        -x265-params "$HDR_X265:${2-}hdr10=1:repeat-headers=1:master-display=$MASTER_DISPLAY:max-cll=600,200"
}

# pq_from_boxes FILE: a stream that says nothing; all stands in the boxes of its container: colr
# (nclx with 9, 16, 9 and limited range), mdcv (4000 cd/m²) and clli (none).
pq_from_boxes() {
    patches "$1" 320x240 10 null -c:v libx265 -preset ultrafast -tag:v hvc1 \
        -x265-params "$HDR_X265"
    tool mp4_add_boxes "$1" colr:6e636c7800090010000900 \
        mdcv:33c286c41d4c0bb884d03e803d13404202625a0000000032 clli:00000000
}

# with_dolby_vision FILE BOX: as a phone writes it, but for the instructions themselves, which nothing
# here carries out: the container says that there are some.
with_dolby_vision() {
    pq_from_encoder "$1"
    tool mp4_add_boxes "$1" "$2$(printf '00%.0s' {1..19})"
}

# with_hdr10_plus FILE: HDR10 with instructions beside it, as x265 writes them where it is built for
# that.
with_hdr10_plus() {
    local plain=${1%.*}.mp4 raw=${1%.*}.hevc
    pq_from_encoder "$plain" bframes=0:
    ff -i "$plain" -c copy "$raw"
    tool hevc_add_hdr10_plus "$raw"
    ff -framerate 25 -i "$raw" -c copy "${EXACT[@]}" "$1"
}

sample colour_pq_sei.mp4 pq_from_encoder
# Its profile 8 has a base layer of HDR10, its profile 5 none that others could show.
sample colour_dolby_vision.mp4 with_dolby_vision dvvC:0100100d10
sample colour_dolby_vision_alone.mp4 with_dolby_vision dvcC:01000a0d00
sample colour_hdr10_plus.mkv with_hdr10_plus
sample colour_pq_boxes.mp4 pq_from_boxes
sample colour_pq_plain.mkv tagged_patches 10 bt2020nc bt2020 smpte2084 tv "${LOSSLESS_10BIT[@]}"
sample colour_hlg.mkv tagged_patches 10 bt2020nc bt2020 arib-std-b67 tv "${LOSSLESS_10BIT[@]}"
sample colour_p3.mp4 tagged_patches 8 bt709 smpte432 bt709 tv "${LOSSLESS_8BIT[@]}"

# Cropped high definition that says nothing of its colours.
sample colour_untagged_cropped.mp4 patches 1280x528 8 null "${LOSSLESS_8BIT[@]}"
