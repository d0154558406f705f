#!/usr/bin/env bash
# Makes the videos that the benchmarks run on, about 300 MB, in three minutes on two idle cores.
#
#   make_bench_media.sh [FOLDER]     default: build/bench-media in the project's folder
#
# Each shows a detailed picture that is panned over, a test pattern moving in front of it, and new
# noise in every frame, so that decoding costs as much as with a camera's video. Key frames are at
# fixed distances, so that positions can be chosen that are equally far behind one. Existing videos
# are kept. Needs Debian's ffmpeg with libx264 and libx265.
set -euo pipefail

here=$(cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")" && pwd)
folder=${1:-$here/../../build/bench-media}
mkdir -p "$folder"
folder=$(cd -- "$folder" && pwd)

# Unfinished files have another name, so that an interrupted run leaves nothing that looks complete.
work=$(mktemp -d "$folder/.making.XXXXXX")
trap 'rm -rf -- "$work"' EXIT

rate=25
ffmpeg=(ffmpeg -nostdin -hide_banner -loglevel error -y)

# scene WIDTH HEIGHT: the filter graph of the picture, without an end.
scene() {
    local width=$1 height=$2 small=$(($1 / 4 * 2))x$(($2 / 4 * 2))
    printf '%s' \
        "mandelbrot=size=$((width * 3 / 2))x$((height * 3 / 2)):rate=1:start_scale=0.004:end_scale=0.004," \
        "format=yuv420p,trim=end_frame=1,loop=loop=-1:size=1:start=0,setpts=N/$rate/TB,fps=$rate," \
        "crop=$width:$height:x='(iw-ow)/2*(1+sin(t/2))':y='(ih-oh)/2*(1+cos(t/3))'[back];" \
        "testsrc2=size=$small:rate=$rate,format=yuv420p[front];" \
        "[back][front]overlay=x='W/4+W/8*sin(t)':y='H/4+H/8*cos(t)':eof_action=endall," \
        "noise=alls=10:allf=t,setparams=colorspace=bt709:color_primaries=bt709:color_trc=bt709:range=tv"
}

# missing NAME…: whether any of these videos has not been made yet.
missing() {
    local name
    for name in "$@"; do
        [[ -s $folder/$name ]] || return 0
    done
    return 1
}

# publish NAME…: moves finished videos from the work folder to their place.
publish() {
    local name
    for name in "$@"; do
        mv -f -- "$work/$name" "$folder/$name"
        printf '%s\t%s bytes\n' "$name" "$(stat -c %s "$folder/$name")"
    done
}

# h264 GOP: the encoder's options for key frames exactly GOP frames apart.
h264() {
    printf '%s\n' -c:v libx264 -preset veryfast -profile:v high -bf 3 -b:v 8M -maxrate 12M \
        -bufsize 16M -g "$1" -keyint_min "$1" -sc_threshold 0
}

mapfile -t gop250 < <(h264 250)
mapfile -t gop30 < <(h264 30)
sound=(-c:a aac -b:a 128k)
tone="sine=frequency=220:sample_rate=48000"

if missing 1080p_h264_gop250.mp4 1080p_h264_gop30.mp4; then
    # One picture source for both, because making it costs as much as encoding it.
    "${ffmpeg[@]}" -filter_complex "$(scene 1920 1080),split[a][b];$tone,asplit[c][d]" \
        -map '[a]' -map '[c]' "${gop250[@]}" "${sound[@]}" -t 60 "$work/1080p_h264_gop250.mp4" \
        -map '[b]' -map '[d]' "${gop30[@]}" "${sound[@]}" -t 60 "$work/1080p_h264_gop30.mp4"
    publish 1080p_h264_gop250.mp4 1080p_h264_gop30.mp4
fi

if missing 1080p30_h264_gop30.mp4; then
    # The same pictures shown faster, to get a minute at the frame rate of most cameras.
    "${ffmpeg[@]}" -itsscale 0.8333333333 -stream_loop 1 -i "$folder/1080p_h264_gop30.mp4" \
        -f lavfi -i "$tone" -map 0:v -map 1 -c:v copy "${sound[@]}" -t 60 \
        "$work/1080p30_h264_gop30.mp4"
    publish 1080p30_h264_gop30.mp4
fi

if missing 2160p_hevc_gop120.mp4; then
    "${ffmpeg[@]}" -filter_complex "$(scene 3840 2160)[v];$tone[a]" -map '[v]' -map '[a]' \
        -c:v libx265 -preset ultrafast -b:v 20M -tag:v hvc1 \
        -x265-params log-level=error:keyint=120:min-keyint=120:scenecut=0:open-gop=0:bframes=3 \
        "${sound[@]}" -t 20 "$work/2160p_hevc_gop120.mp4"
    publish 2160p_hevc_gop120.mp4
fi

if missing 720p_mpeg2.ts; then
    "${ffmpeg[@]}" -filter_complex "$(scene 1280 720)[v];$tone,asetnsamples=1152[a]" -map '[v]' -map '[a]' \
        -c:v mpeg2video -b:v 12M -maxrate 18M -bufsize 4M -g 15 -bf 2 -sc_threshold 1000000000 \
        -c:a mp2 -b:a 192k -t 60 "$work/720p_mpeg2.ts"
    publish 720p_mpeg2.ts
fi

if missing 180p_h264_gop25.mp4; then
    "${ffmpeg[@]}" -filter_complex "$(scene 320 180)[v]" -map '[v]' \
        -c:v libx264 -preset veryfast -crf 23 -bf 2 -g 25 -keyint_min 25 -sc_threshold 0 \
        -t 20 "$work/180p_h264_gop25.mp4"
    publish 180p_h264_gop25.mp4
fi

# still VIDEO FORMAT NAME: one frame of a video as uncompressed pixels in the given format.
still() {
    local video=$1 format=$2 name=$3
    missing "$name" || return 0
    "${ffmpeg[@]}" -ss 5 -i "$folder/$video" -map 0:v -frames:v 1 -pix_fmt "$format" \
        -c:v rawvideo -f nut "$work/$name"
    publish "$name"
}

# hdr_still VIDEO TRANSFER NAME: the same with ten bits, tagged as high dynamic range.
hdr_still() {
    local video=$1 transfer=$2 name=$3
    missing "$name" || return 0
    "${ffmpeg[@]}" -ss 5 -i "$folder/$video" -map 0:v -frames:v 1 -pix_fmt yuv420p10le \
        -vf "setparams=colorspace=bt2020nc:color_primaries=bt2020:color_trc=$transfer:range=tv" \
        -colorspace bt2020nc -color_primaries bt2020 -color_trc "$transfer" -color_range tv \
        -c:v ffv1 "$work/$name"
    publish "$name"
}

if missing 1080i_mpeg2.ts; then
    # Fields of 50 moments per second, as in broadcasts.
    "${ffmpeg[@]}" -filter_complex "$(scene 1920 1080),setpts=PTS/2,fps=50,tinterlace=interleave_top,fieldorder=tff[v]" \
        -map '[v]' -c:v mpeg2video -flags +ilme+ildct -b:v 20M -maxrate 25M -bufsize 8M -g 12 -bf 2 \
        -t 4 "$work/1080i_mpeg2.ts"
    publish 1080i_mpeg2.ts
fi

for format in yuv420p nv12 yuv420p10le; do
    still 1080p_h264_gop250.mp4 "$format" "1080p_$format.nut"
    still 2160p_hevc_gop120.mp4 "$format" "2160p_$format.nut"
done
for transfer in smpte2084 arib-std-b67; do
    hdr_still 1080p_h264_gop250.mp4 "$transfer" "1080p_$transfer.mkv"
    hdr_still 2160p_hevc_gop120.mp4 "$transfer" "2160p_$transfer.mkv"
done
