# Picture and sound that can be told to be together or not.

# Each second's frames 12 to 16 of 25 are white below the number, and a tone of 1 kHz sounds
# with them: from 0.48 to 0.68 s.
flashes_and_beeps() {
    local file=$1 seconds=$2 flash beep
    flash="drawbox=y=ih/6:h=ih:color=white:t=fill:enable='between(mod(n,25),12,16)'"
    beep="0.5*sin(2*PI*1000*t)*between(mod(t,1),0.48,0.68)"
    ff -f lavfi -i "$(pictures 320x240 25 "$flash")" -f lavfi -i "aevalsrc='$beep':s=48000" \
        -map 0 -map 1 -t "$seconds" "${EXACT[@]}" "${X264[@]}" -x264-params keyint=50:bframes=2 \
        -c:a aac -b:a 128k "$file"
}
sample flashes_and_beeps.mp4 flashes_and_beeps 8

# Three seconds of pictures, of which one and a half have sound.
ending_early() {
    ff -f lavfi -i "$(pictures 320x240 25)" -f lavfi -i "$(sound 1.5)" -map 0 -map 1 \
        -frames:v 75 "${EXACT[@]}" "${X264[@]}" -x264-params keyint=25:bframes=2 -c:a aac "$1"
}
sample sound_ends_early.mp4 ending_early
