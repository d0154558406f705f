# What recorders, broadcasts and browsers leave behind.

# Half of the length that the file has, as in a recording that was appended to; or twice.
stated() {
    tool scale_duration "$2" "$1" "$3"
}
derived duration_too_short.mkv h264_bframes.mkv stated 0.5
derived duration_too_long.mkv h264_bframes.mkv stated 2
derived duration_too_short.avi mpeg4_bframes.avi stated 0.5
derived duration_too_long.avi mpeg4_bframes.avi stated 2

# An edit list would state the length once more.
stated_by_headers() {
    encode "$1.true.mp4" 160x120 25 100 "${X264[@]}" -x264-params keyint=25:bframes=0 \
        -use_editlist 0
    stated "$1" "$1.true.mp4" "$2"
}
sample duration_too_short.mp4 stated_by_headers 0.5
sample duration_too_long.mp4 stated_by_headers 2

# size_change FILE ARG…: at frame 50 of 100 the pictures become smaller. Each half is a file of its
# own first; the second one's numbers follow the first one's.
size_change() {
    local file=$1
    shift
    local small="testsrc2=s=176x144:r=25,format=yuv444p,setsar=1[scene];"
    small+="$(numbers 176x144 25 50)[number];[scene][number]overlay=format=yuv444"
    encode "$file.1.ts" 160x120 25 50 "$@"
    ff -f lavfi -i "$small" -frames:v 50 "${EXACT[@]}" "$@" "$file.2.ts"
    printf "file '%s'\n" "$file.1.ts" "$file.2.ts" >"$file.list"
    ff -f concat -safe 0 -i "$file.list" -c copy -fflags +bitexact "$file"
}
sample size_change_h264.ts size_change "${X264[@]}" -x264-params keyint=25:bframes=3
sample size_change_mpeg2.ts size_change -c:v mpeg2video -q:v 6 -g 12 -bf 2

# A live recording in fragments, with sound.
sample fragmented_with_sound.mp4 with_sound 0 0 aac \
    -movflags +frag_keyframe+empty_moov+delay_moov -min_frag_duration 1000000

# The segments of an adaptive stream, one behind the other.
dash_segments() {
    local file=$1 folder=$1.dash
    mkdir "$folder"
    encode "$folder/stream.mpd" 160x120 25 100 "${X264[@]}" -x264-params keyint=25:bframes=2 \
        -f dash -seg_duration 1 -init_seg_name init.m4s \
        -media_seg_name 'segment$Number%05d$.m4s'
    cat "$folder/init.m4s" "$folder"/segment*.m4s >"$file"
}
sample dash_segments.mp4 dash_segments

# Times of frames that come when they are ready: 33 ms apart, some of them left out.
readonly UNSTEADY='floor(N/6)*330+mod(N,6)*33+33*gte(mod(N,6),3)+66*gte(mod(N,6),5)'

# A browser writes as the frames come: no length, no index, clusters of unknown size, few key frames.
browser_recording() {
    encode_filtered - 160x120 25 150 "settb=1/1000,setpts='$UNSTEADY'" -vsync passthrough \
        -enc_time_base 1/1000 -c:v libvpx "${VPX[@]}" -g 100 -auto-alt-ref 0 \
        -f webm -live 1 -cluster_time_limit 1000 >"$1.known.webm"
    tool webm_patch "$1.known.webm" "$1" unknown-sizes
}
sample browser_recording.webm browser_recording

meeting() {
    ff -f lavfi -i "$(pictures 160x120 25 "settb=1/1000,setpts='$UNSTEADY'")" \
        -f lavfi -i "$(sound 8)" -map 0 -map 1 -frames:v 150 -vsync passthrough \
        -enc_time_base:v 1/1000 "${EXACT[@]}" "${X264[@]}" -x264-params keyint=100:bframes=0 \
        -video_track_timescale 1000 -c:a aac -b:a 64k "$1"
}
sample meeting.mp4 meeting

# A phone held upright; the first frames are hidden by an edit list.
phone() {
    encode_filtered "$1.all.mp4" 160x120 25 100 transpose=cclock "${X265[@]}" -tag:v hvc1 \
        -x265-params "$X265_PARAMS:keyint=30:open-gop=0:bframes=3"
    cut_at_front "$1" "$1.all.mp4"
    tool mp4_matrix "$1" 0 1 -1 0
}
sample phone.mp4 phone

# The recorder died in the middle of writing frame 75: no length, no index.
died_recording() {
    encode - 160x120 25 100 "${X264[@]}" -x264-params keyint=25:scenecut=0:bframes=2 \
        -f matroska >"$1.all.mkv"
    local at
    at=$(ffprobe -v error -show_entries packet=pos -of csv=p=0 "$1.all.mkv" | sed -n 76p)
    head -c $((at + 500)) "$1.all.mkv" >"$1"
}
sample recorder_died.mkv died_recording
