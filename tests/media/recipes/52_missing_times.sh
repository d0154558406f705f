# Files whose packets lack times, or whose flags and times are not to be trusted.

# from_xvid FILE: an AVI as libxvid writes it with packed B-frames: two empty chunks behind the
# first picture, P and B in one chunk, an empty picture at the end of each pack. The index calls the
# empty picture that ends a key frame's pack a key frame too. The last B-frames that the encoder is
# given are lost, so that the copy ends with a pack before.
from_xvid() {
    encode "$1.all.avi" 320x240 25 255 -c:v libxvid -vtag XVID -q:v 8 -g 60 -bf 2
    ff -i "$1.all.avi" -c copy -frames:v 250 -map_metadata -1 -fflags +bitexact "$1"
}
sample mpeg4_xvid_packed.avi from_xvid

# The same pictures in the order of decoding, one a chunk, as editors unpack them.
unpacked() {
    ff -i "$2" -c copy -bsf:v setts=ts=N,mpeg4_unpack_bframes -map_metadata -1 -fflags +bitexact "$1"
}
derived mpeg4_xvid_unpacked.avi mpeg4_xvid_packed.avi unpacked

# as_vfw FILE SOURCE TAG: an AVI's packets in Matroska as muxers put them there for years, with nothing
# but their decoding times. FFmpeg does that only for codecs for which Matroska has no name of its own.
as_vfw() {
    local file=$1 source=$2 tag=$3
    ff -c:v wmv2 -i "$source" -c copy -map_metadata -1 -fflags +bitexact -write_crc32 0 "$file"
    LC_ALL=C sed -i "s/WMV2/$tag/" "$file"
}
derived mpeg4_vfw.mkv mpeg4_bframes.avi as_vfw XVID
derived mpeg4_vfw_unpacked.mkv mpeg4_xvid_unpacked.avi as_vfw XVID
derived mpeg4_vfw_packed.mkv mpeg4_xvid_packed.avi as_vfw XVID
derived h264_vfw.mkv h264_bframes.avi as_vfw H264

# small_pictures FILE FRAMES ARG…: of so few bytes that several begin in one pack of a program
# stream. Only the first of them has a time there, so that most key packets have none.
small_pictures() {
    local file=$1 frames=$2
    shift 2
    encode "$file" 128x96 25 "$frames" -q:v 10 -g 12 "$@"
}
sample mpeg2_untimed_keys.mpg small_pictures 250 -c:v mpeg2video -bf 2 -f mpeg
sample mpeg2_untimed_keys.vob small_pictures 250 -c:v mpeg2video -bf 2 -f vob
sample mpeg2_untimed_keys_svcd.mpg small_pictures 250 -c:v mpeg2video -bf 2 -f svcd
sample mpeg2_untimed_no_bframes.vob small_pictures 250 -c:v mpeg2video -f vob
sample mpeg1_untimed_keys.mpg small_pictures 125 -c:v mpeg1video -bf 2 -f mpeg
sample mpeg1_untimed_keys_vcd.mpg small_pictures 125 -c:v mpeg1video -bf 2 -f vcd
sample mpeg1_untimed_no_bframes.mpg small_pictures 125 -c:v mpeg1video -f mpeg

small_pictures_with_sound() {
    ff -f lavfi -i "$(pictures 128x96 25)" -f lavfi -i "$(sound 10)" -map 0 -map 1 -frames:v 250 \
        "${EXACT[@]}" -q:v 10 -g 12 -bf 2 -c:v mpeg2video -c:a mp2 -b:a 64k -f vob "$1"
}
sample mpeg2_untimed_keys_sound.vob small_pictures_with_sound

# The clock of 33 bits starts again from 0 after 95443.7 seconds, and 0.8 seconds into the file.
sample h264_clock_wraps.ts encode 160x120 25 75 "${X264[@]}" -x264-params keyint=25:bframes=3 \
    -output_ts_offset 95441.5
sample mpeg2_clock_wraps.ts encode 160x120 25 75 -c:v mpeg2video -q:v 8 -g 12 -bf 2 \
    -output_ts_offset 95441.5

# Without its list of key frames an MP4 says that every frame is one.
all_flagged_key() {
    tool mp4_hide "$2" "$1" stss
}
derived h264_all_flagged_key.mp4 h264_bframes.mp4 all_flagged_key
misflagged h264_all_flagged_key.mp4

# As cameras record: key frames are followed by frames that need the group before.
sample h264_open_gop.mov encode 160x120 25 125 "${X264[@]}" \
    -x264-params keyint=25:scenecut=0:open-gop=1:bframes=3
sample mpeg2_open_gop.mov encode 160x120 25 125 -c:v mpeg2video -q:v 8 -g 15 -bf 2

# A picture is refreshed stripe by stripe, for four seconds; none but the first is whole at once.
sample h264_long_refresh.mp4 encode 160x120 25 250 "${X264[@]}" \
    -x264-params intra-refresh=1:keyint=100:bframes=0
sample h264_long_refresh.mkv encode 160x120 25 250 "${X264[@]}" \
    -x264-params intra-refresh=1:keyint=100:bframes=2
sample h264_long_refresh.ts encode 160x120 25 250 "${X264[@]}" \
    -x264-params intra-refresh=1:keyint=100:bframes=0
