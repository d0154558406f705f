# H.264 in MP4: the ways in which key frames and references are laid out.

x264() {
    local file=$1 size=$2 rate=$3 frames=$4 params=$5
    shift 5
    encode "$file" "$size" "$rate" "$frames" "${X264[@]}" -x264-params "$params" "$@"
}

sample h264_bframes.mp4 x264 320x240 25 100 keyint=25:bframes=3:b-pyramid=normal
sample h264_gop250.mp4 x264 160x120 25 520 keyint=250:scenecut=0:bframes=3
sample h264_open_gop_bframes.mp4 x264 160x120 25 100 keyint=25:scenecut=0:open-gop=1:bframes=3
sample h264_intra_only.mp4 x264 160x120 25 50 keyint=1
sample h264_intra_refresh.mp4 x264 160x120 25 100 intra-refresh=1:keyint=25:bframes=0
sample h264_baseline.mp4 x264 160x120 25 50 keyint=25 -profile:v baseline
sample h264_one_frame.mp4 x264 160x120 25 1 keyint=1
sample h264_23976fps.mp4 x264 160x120 24000/1001 96 keyint=24:bframes=2
sample h264_5994fps.mp4 x264 160x120 60000/1001 120 keyint=60:bframes=2
sample h264_30fps.mp4 x264 160x120 30 90 keyint=30:bframes=2
sample h264_1fps.mp4 x264 160x120 1 20 keyint=5:bframes=2
sample h264_1080p.mp4 x264 1920x1080 30 60 keyint=30:bframes=3
sample h264_10bit.mp4 x264 160x120 25 50 keyint=25:bframes=2 -pix_fmt yuv420p10le
sample h264_422.mp4 x264 160x120 25 50 keyint=25:bframes=2 -pix_fmt yuv422p
sample h264_444.mp4 x264 160x120 25 50 keyint=25:bframes=2 -pix_fmt yuv444p
sample h264_fragmented.mp4 x264 160x120 25 75 keyint=25:bframes=2 \
    -movflags frag_keyframe+empty_moov+default_base_moof
