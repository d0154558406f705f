# What containers do beside holding one video from 0 to its stated end.

# Four frames in 173 ms, shown for 40, 20, 80 and 33 ms.
variable_rate() {
    local file=$1
    shift
    local ms='floor(N/4)*173+40*gte(mod(N,4),1)+20*gte(mod(N,4),2)+80*gte(mod(N,4),3)'
    encode_filtered "$file" 160x120 25 60 "settb=1/1000,setpts='$ms'" "${X264[@]}" \
        -vsync passthrough -enc_time_base 1/1000 -x264-params keyint=20:bframes=2 "$@"
}

sample variable_rate.mkv variable_rate
sample variable_rate.mp4 variable_rate -video_track_timescale 1000

sample h264_23976fps.mkv encode 160x120 24000/1001 96 "${X264[@]}" \
    -x264-params keyint=24:bframes=2
sample h264_5994fps.mov encode 160x120 60000/1001 60 "${X264[@]}" \
    -x264-params keyint=30:bframes=2

# Begins with frame 35, ten frames behind a key frame.
derived edit_list.mp4 h264_bframes.mp4 cut_at_front

# The edit list hides the last pictures, some of which those before refer to.
cut_at_end() {
    tool mp4_cut_end "$2" "$1" "$3"
}
derived edit_list_end.mp4 h264_bframes.mp4 cut_at_end 1680
derived edit_list_end_open_gop.mp4 h264_open_gop_bframes.mp4 cut_at_end 2200

sample sound.mp4 with_sound 0 0 aac
sample sound_earlier.mp4 with_sound 0.48 0 aac
sample sound_earlier.mkv with_sound 0.48 0 mp2
sample sound_earlier.ts with_sound 0.48 0 mp2
sample sound_later.mp4 with_sound 0 0.48 aac
sample sound_later.mkv with_sound 0 0.48 mp2

sound_first() {
    ff -f lavfi -i "$(sound 2)" -f lavfi -i "$(pictures 160x120 25 trim=end_frame=50)" \
        -map 0 -map 1 "${EXACT[@]}" "${X264[@]}" -c:a mp2 "$1"
}
sample sound_first_stream.mkv sound_first

# Written to a pipe, a WebM cannot go back to fill in its duration and index.
through_pipe() {
    encode - 160x120 25 75 -c:v libvpx "${VPX[@]}" -g 25 -f webm >"$1"
}
sample no_duration.webm through_pipe
sample no_duration.flv encode 160x120 25 75 -c:v flv -q:v 4 -g 25 \
    -flvflags no_duration_filesize+no_metadata

derived no_cues.webm vp8.webm patched_webm without-cues
derived impossible_duration.webm vp8.webm patched_webm impossible-duration
patched_webm() {
    tool webm_patch "$2" "$1" "$3"
}

cover_picture() {
    ff -f lavfi -i testsrc2=s=200x200 -frames:v 1 "${EXACT[@]}" "$1"
}
sample cover.jpg cover_picture

# sound_with_cover FILE COVER ARG…: no video, but a picture that looks like one frame of one.
sound_with_cover() {
    local file=$1 cover=$2
    shift 2
    ff -f lavfi -i "$(sound 2)" -i "$cover" -map 0 -map 1 -c:v copy -disposition:v attached_pic \
        "${EXACT[@]}" "$@" "$file"
}
derived sound_with_cover.mp3 cover.jpg sound_with_cover -c:a libmp3lame -id3v2_version 3
derived sound_with_cover.m4a cover.jpg sound_with_cover -c:a aac
derived sound_with_cover.flac cover.jpg sound_with_cover -c:a flac

sound_only() {
    local file=$1
    shift
    ff -f lavfi -i "$(sound 2)" "${EXACT[@]}" "$@" "$file"
}
sample sound_only.mp3 sound_only -c:a libmp3lame
sample sound_only.mp4 sound_only -c:a aac
sample sound_only.wav sound_only

# A recording that was paused for a minute.
sound_with_gap() {
    ff -f lavfi -i "$(sound 2),asetpts=PTS+gte(T\\,1)*60/TB" "${EXACT[@]}" -c:a flac "$1"
}
sample sound_with_gap.mka sound_with_gap

# video_with_cover FILE COVER ARG…: sound is stream 0 and the video comes behind it.
video_with_cover() {
    local file=$1 cover=$2
    shift 2
    ff -f lavfi -i "$(pictures 160x120 25 trim=end_frame=50)" -f lavfi -i "$(sound 2)" \
        -i "$cover" -map 1 -map 0 -map 2 "${EXACT[@]}" "${X264[@]}" -c:v:1 copy \
        -disposition:v:1 attached_pic -c:a aac "$@" "$file"
}
derived cover_and_video.mp4 cover.jpg video_with_cover

video_with_attachment() {
    ff -f lavfi -i "$(pictures 160x120 25 trim=end_frame=50)" -f lavfi -i "$(sound 2)" \
        -attach "$2" -metadata:s:t mimetype=image/jpeg -metadata:s:t filename=cover.jpg \
        -map 1 -map 0 "${EXACT[@]}" "${X264[@]}" -c:a mp2 "$1"
}
derived cover_and_video.mkv cover.jpg video_with_attachment

two_videos() {
    local second="color=gray:s=160x120:r=25,format=yuv444p,setsar=1[scene];"
    second+="$(numbers 160x120 25 1000)[number];[scene][number]overlay=format=yuv444"
    ff -f lavfi -i "$(pictures 160x120 25)" -f lavfi -i "$second" \
        -map 0 -map 1 -frames:v 50 "${EXACT[@]}" "${X264[@]}" \
        -x264-params keyint=25:bframes=2 "$1"
}
sample two_videos.mkv two_videos
sample two_videos.mp4 two_videos

copied() {
    cp "$2" "$1"
}
derived 'two words.mp4' h264_baseline.mp4 copied
derived 'dots.in.the.name.mp4' h264_baseline.mp4 copied
derived "single ' and double \" quotes.mp4" h264_baseline.mp4 copied
derived 'Übergröße 映像 видео.mp4' h264_baseline.mp4 copied
derived '100% %d %03d.mp4' h264_baseline.mp4 copied
derived 'concat:colon|bar.mp4' h264_baseline.mp4 copied
derived '-dash first.mp4' h264_baseline.mp4 copied
derived 'UPPER CASE.MP4' h264_baseline.mp4 copied
derived wrong_extension.avi h264_baseline.mp4 copied
