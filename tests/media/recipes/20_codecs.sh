# The other codecs, each in the container that people find it in.

x265() {
    local file=$1 size=$2 frames=$3 params=$4
    shift 4
    encode "$file" "$size" 25 "$frames" "${X265[@]}" -tag:v hvc1 \
        -x265-params "$X265_PARAMS:$params" "$@"
}

sample hevc_8bit.mp4 x265 160x120 75 keyint=25:open-gop=0:bframes=3
sample hevc_10bit.mkv x265 320x240 75 keyint=25:open-gop=0:bframes=3 -pix_fmt yuv420p10le
sample hevc_open_gop.mp4 x265 160x120 75 keyint=25:open-gop=1:bframes=3:scenecut=0

# x265_layered FILE FRAMES PARAMS: in two temporal sub-layers. x265 takes their number from 3.6 on,
# before that it takes only whether there shall be any.
x265_layered() {
    local file=$1 frames=$2 params=$3 layers=2 complaints
    complaints=$(ffmpeg -hide_banner -nostdin -v warning -f lavfi -i color=s=64x64 -frames:v 1 \
        -c:v libx265 -x265-params "$X265_PARAMS:temporal-layers=$layers" -f null - 2>&1)
    [[ $complaints != *'Invalid value for temporal-layers'* ]] || layers=1
    x265 "$file" 160x120 "$frames" "$params:temporal-layers=$layers"
}

sample hevc_temporal_layers.mp4 x265_layered 75 keyint=25:open-gop=0:bframes=3

sample vp8.webm encode 160x120 25 75 -c:v libvpx "${VPX[@]}" -g 25 -auto-alt-ref 1 -lag-in-frames 16
sample vp9.webm encode 160x120 25 75 -c:v libvpx-vp9 "${VPX[@]}" -pix_fmt yuv420p -g 25
sample vp9.mp4 encode 160x120 30 60 -c:v libvpx-vp9 "${VPX[@]}" -pix_fmt yuv420p -g 30
sample vp9_10bit.webm encode 160x120 25 50 -c:v libvpx-vp9 "${VPX[@]}" -pix_fmt yuv420p10le -g 25 \
    -profile:v 2
sample av1.mp4 encode 160x120 25 50 -c:v libaom-av1 -cpu-used 8 -usage realtime -b:v 400k \
    -pix_fmt yuv420p -g 25
sample av1.webm encode 160x120 25 50 -c:v libsvtav1 -preset 10 -crf 35 -pix_fmt yuv420p -g 25 \
    -svtav1-params lp=1

# with_alpha FILE ARG…: below the number the left half is transparent, the right one half so.
with_alpha() {
    local file=$1
    shift
    local mask="color=s=160x120:r=25:c=white,format=gray"
    mask+=",drawbox=x=0:y=60:w=80:h=60:c=black:t=fill"
    mask+=",drawbox=x=80:y=60:w=80:h=60:c=0x808080:t=fill"
    encode_filtered "$file" 160x120 25 50 "null[opaque];$mask[mask];[opaque][mask]alphamerge" "$@"
}

sample vp8_alpha.webm with_alpha -c:v libvpx -pix_fmt yuva420p -auto-alt-ref 0 "${VPX[@]}" -g 25
sample vp9_alpha.webm with_alpha -c:v libvpx-vp9 -pix_fmt yuva420p -auto-alt-ref 0 "${VPX[@]}" -g 25
sample prores_alpha.mov with_alpha -c:v prores_ks -profile:v 4444 -pix_fmt yuva444p10le

# packed_bframes FILE: the encoder leaves two chunks empty at the front and loses B-frames at the
# end. So more is encoded than wanted, the chunks are numbered anew, and the last one taken is the
# empty picture that ends a pack.
packed_bframes() {
    encode "$1.all.avi" 160x120 25 80 -c:v libxvid -vtag XVID -q:v 4 -g 25 -bf 2
    ff -i "$1.all.avi" -c copy -bsf:v setts=ts=N -frames:v 75 -map_metadata -1 -fflags +bitexact "$1"
}

# The clock of a broadcast does not start at 0.
sample mpeg2.ts encode 160x120 25 75 -c:v mpeg2video -q:v 4 -g 12 -bf 2 -output_ts_offset 600
sample mpeg2.mpg encode 320x240 25 75 -c:v mpeg2video -q:v 4 -g 12 -bf 2
sample mpeg2_ntsc.mpg encode 320x240 30000/1001 60 -c:v mpeg2video -q:v 4 -g 15 -bf 2
sample mpeg1.mpg encode 320x240 25 50 -c:v mpeg1video -q:v 4 -g 12 -bf 2
sample h264.ts encode 160x120 25 75 "${X264[@]}" -x264-params keyint=25:bframes=3 \
    -output_ts_offset 95000
# Groups of a second, then one of 20 seconds, as a camera makes when nothing moves.
sample h264_2fps.ts encode 160x120 2 120 "${X264[@]}" -x264-params keyint=250:scenecut=0:bframes=2 \
    -force_key_frames 'expr:not(mod(n,2))*(lte(n,60)+gte(n,100))'
sample h264_5994fps.ts encode 160x120 60000/1001 120 "${X264[@]}" \
    -x264-params keyint=60:bframes=2
sample hevc.ts encode 160x120 25 50 "${X265[@]}" \
    -x265-params "$X265_PARAMS:keyint=25:open-gop=0:bframes=3"

sample mpeg4_bframes.avi encode 160x120 25 75 -c:v mpeg4 -vtag DX50 -q:v 4 -g 25 -bf 2
sample mpeg4_packed_bframes.avi packed_bframes
sample h264_bframes.avi encode 160x120 25 75 "${X264[@]}" -x264-params keyint=25:bframes=3
sample mpeg4.mp4 encode 160x120 25 50 -c:v mpeg4 -q:v 4 -g 25 -bf 2
sample msmpeg4.avi encode 320x240 25 50 -c:v msmpeg4 -q:v 4 -g 25
sample mjpeg.avi encode 160x120 25 50 -c:v mjpeg -q:v 4 -pix_fmt yuvj420p
sample theora.ogv encode 160x120 25 75 -c:v libtheora -q:v 7 -g 25 -pix_fmt yuv420p
sample wmv2.wmv encode 160x120 25 75 -c:v wmv2 -q:v 4 -g 25
sample flv1.flv encode 160x120 25 75 -c:v flv -q:v 4 -g 25
sample h264_bframes.flv encode 320x240 25 75 "${X264[@]}" -x264-params keyint=25:bframes=2
sample dv.avi encode 720x576 25 15 -c:v dvvideo -pix_fmt yuv420p
sample dv.dv encode 720x576 25 15 -c:v dvvideo -pix_fmt yuv420p
sample prores.mov encode 160x120 25 25 -c:v prores_ks -profile:v standard -pix_fmt yuv422p10le
sample animated.gif encode 160x120 25 40
sample ffv1.mkv encode 160x120 25 25 -c:v ffv1 -g 1 -pix_fmt yuv420p

sample raw.h264 encode 320x240 25 75 "${X264[@]}" -x264-params keyint=25:bframes=3
sample raw.hevc encode 160x120 25 50 "${X265[@]}" \
    -x265-params "$X265_PARAMS:keyint=25:open-gop=0:bframes=3"
sample raw.m2v encode 160x120 25 50 -c:v mpeg2video -q:v 4 -g 12 -bf 2
