# Videos that show one frame for seconds, and sound without pictures.

# screen_recording FILE ARG…: frames come only when something changes: five of them 100 ms apart,
# then one stands for 3, 10, 5 or 7 seconds.
screen_recording() {
    local file=$1 burst='mod(floor(N/5),4)'
    shift
    local ms="floor(N/20)*26600+mod(N,5)*100+3400*gte($burst,1)+10400*gte($burst,2)+5400*gte($burst,3)"
    encode_filtered "$file" 160x120 25 40 "settb=1/1000,setpts='$ms'" \
        -vsync passthrough -enc_time_base 1/1000 "$@"
}
sample screen_recording.mkv screen_recording "${X264[@]}" -x264-params keyint=250:bframes=2
sample screen_recording.mp4 screen_recording "${X264[@]}" -x264-params keyint=15:bframes=2 \
    -video_track_timescale 1000
sample screen_recording.webm screen_recording -c:v libvpx "${VPX[@]}" -g 12 -auto-alt-ref 0
sample screen_recording.gif screen_recording

# Sound from the start, pictures from 3 seconds on.
sample video_from_3s.mp4 with_sound 3 0 aac
sample video_from_3s.mkv with_sound 3 0 mp2
sample video_from_3s.ts with_sound 3 0 mp2

# Three seconds of pictures, thirteen of sound.
sound_goes_on() {
    local file=$1 codec=$2
    shift 2
    ff -f lavfi -i "$(pictures 160x120 25 trim=end_frame=75)" -f lavfi -i "$(sound 13)" \
        -map 0 -map 1 "${EXACT[@]}" "$@" -c:a "$codec" -b:a 64k "$file"
}
sample sound_goes_on.mp4 sound_goes_on aac "${X264[@]}" -x264-params keyint=25:bframes=2
sample sound_goes_on.mkv sound_goes_on mp2 "${X264[@]}" -x264-params keyint=25:bframes=2
sample sound_goes_on.ts sound_goes_on mp2 "${X264[@]}" -x264-params keyint=25:bframes=2
sample sound_goes_on.avi sound_goes_on mp2 -c:v mpeg4 -vtag DX50 -q:v 4 -g 25 -bf 2
