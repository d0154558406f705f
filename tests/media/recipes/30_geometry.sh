# How a picture lies, what its pixels look like and how large it is.

# turned FILE SIZE STORING A B C D: pictures stored through the filter STORING, and the display
# matrix that undoes it.
turned() {
    local file=$1 size=$2 storing=$3
    shift 3
    encode_filtered "$file" "$size" 25 50 "$storing" "${X264[@]}" -x264-params keyint=25:bframes=2
    tool mp4_matrix "$file" "$@"
}

sample turned_90.mp4 turned 160x120 transpose=cclock 0 1 -1 0
sample turned_180.mp4 turned 160x120 hflip,vflip -1 0 0 -1
sample turned_270.mp4 turned 160x120 transpose=clock 0 -1 1 0
sample mirrored_left_right.mp4 turned 160x120 hflip -1 0 0 1
sample mirrored_up_down.mp4 turned 160x120 vflip 1 0 0 -1
sample transposed.mp4 turned 160x120 transpose=cclock_flip 0 1 1 0
sample anti_transposed.mp4 turned 160x120 transpose=clock_flip 0 -1 -1 0
sample turned_90_anamorphic.mp4 turned 320x240 transpose=cclock,setsar=3/2 0 1 -1 0

sample anamorphic_pal.mpg encode_filtered 720x576 25 25 setsar=16/15 -c:v mpeg2video -q:v 4 -g 12
sample anamorphic_ntsc.mp4 encode_filtered 720x480 30000/1001 30 setsar=8/9 "${X264[@]}" \
    -x264-params keyint=15:bframes=2
sample anamorphic_4_3.mkv encode_filtered 120x120 25 25 setsar=4/3 "${X264[@]}"

# What lies beside the picture is stored with it, and not to be shown.
readonly BESIDE="pad=352:256:20:8:red"

# cropped FILE FILTER ARG…: the stream says so, on all four sides, and the container states the size
# that is left, as an encoder that crops would write it.
cropped() {
    local file=$1 filter=$2 whole=${1%.*}.mkv
    shift 2
    encode_filtered "$whole" 320x240 25 25 "$BESIDE" "$@" \
        -bsf:v "$filter=crop_left=20:crop_right=12:crop_top=8:crop_bottom=8"
    ff -flags unaligned -i "$whole" -c copy "${EXACT[@]}" "$file"
}
sample h264_cropped.mp4 cropped h264_metadata "${X264[@]}" -x264-params keyint=10:bframes=2
sample hevc_cropped.mp4 cropped hevc_metadata "${X265[@]}" -tag:v hvc1 \
    -x265-params "$X265_PARAMS:keyint=10"

# clean_aperture FILE: the file says so, as cameras and capture cards write it: 320x240, its middle 4
# to the right of the stored one's.
clean_aperture() {
    encode_filtered "$1" 320x240 25 25 "$BESIDE" "${X264[@]}" -x264-params keyint=10:bframes=2
    tool mp4_add_boxes "$1" \
        clap:0000014000000001000000f00000000100000004000000010000000000000001
}
sample h264_clean_aperture.mp4 clean_aperture
sample h264_clean_aperture.mov clean_aperture

interlaced() {
    local file=$1 size=$2
    shift 2
    ff -f lavfi -i "$(interlaced_pictures "$size" 25)" -frames:v 50 "${EXACT[@]}" \
        -flags +ildct+ilme -top 1 "$@" "$file"
}

sample h264_interlaced.mp4 interlaced 160x120 "${X264[@]}" -x264-params keyint=25:tff=1:bframes=2
sample mpeg2_interlaced.ts interlaced 160x120 -c:v mpeg2video -q:v 4 -g 12 -bf 2

sample odd_size_420.mkv encode 321x241 25 20 -c:v ffv1 -pix_fmt yuv420p
sample odd_size_444.mkv encode 321x241 25 20 -c:v ffv1 -pix_fmt yuv444p
sample odd_size_444.mp4 encode 321x241 25 20 "${X264[@]}" -pix_fmt yuv444p
sample odd_size.webm encode 321x241 25 20 -c:v libvpx-vp9 "${VPX[@]}" -pix_fmt yuv420p
sample odd_size.gif encode 321x241 25 20
sample odd_size_small.mkv encode 175x99 25 20 -c:v ffv1 -pix_fmt yuv420p
sample odd_size_small.webm encode 175x99 25 20 -c:v libvpx "${VPX[@]}"

sample h264_2160p.mp4 encode 3840x2160 30 12 "${X264[@]}" -preset ultrafast \
    -x264-params keyint=6
sample hevc_2160p.mp4 encode 3840x2160 30 8 "${X265[@]}" -tag:v hvc1 \
    -x265-params "$X265_PARAMS:keyint=4"
