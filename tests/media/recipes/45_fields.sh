# Interlaced video as cameras, recorders and broadcasters write it, and film stored as such. A
# detailed picture moves, and a test pattern in front of it the other way; each interlaced sample is
# made of a video beside it that has its moments as whole pictures.

# moving_scene SIZE RATE: moments without a number, RATE in a second, moving at a speed that does
# not depend on RATE.
moving_scene() {
    local size=$1 rate=$2 width=${1%x*} height=${1#*x}
    echo "mandelbrot=s=$((width * 3 / 2))x$((height * 3 / 2)):r=1:start_scale=0.004:end_scale=0.004," \
        "format=yuv420p,trim=end_frame=1,loop=loop=-1:size=1:start=0,setpts=N/($rate)/TB,fps=$rate," \
        "crop=$width:$height:x='(iw-ow)/2*(1+sin(1.6*t))':y='(ih-oh)/2*(1+cos(0.9*t))',gblur=sigma=0.9,setsar=1[back];" \
        "testsrc2=s=$((width / 4 * 2))x$((height / 4 * 2)):r=$rate,format=yuv420p[front];" \
        "[back][front]overlay=x='W/4-W/8*sin(3*t)':y='H/4+H/8*cos(2*t)':eof_action=endall"
}

# numbered SIZE RATE FILTERS: whatever FILTERS make of moments, with the number of each picture.
numbered() {
    local size=$1 rate=$2 filters=$3
    echo "$filters[scene];$(numbers "$size" "$rate")[number];" \
        "[scene][number]overlay=format=yuv420"
}

# moments FILE SIZE RATE FRAMES: the whole pictures.
moments() {
    ff -f lavfi -i "$(moving_scene "$2" "$3")" -frames:v "$4" "${EXACT[@]}" -c:v ffv1 -g 1 \
        -pix_fmt yuv420p "$1"
}
sample moments_50.mkv moments 352x288 50 50
sample moments_5994.mkv moments 352x240 60000/1001 40
sample moments_pal.mkv moments 720x576 50 24
sample moments_ntsc.mkv moments 720x480 60000/1001 24
sample moments_film.mkv moments 352x240 24000/1001 24
sample moments_1080.mkv moments 1920x1080 50 8

# fields FILE SIZE RATE FRAMES ORDER ARG…: two moments in each picture, the upper or the lower
# lines (tff, bff) for the first one. RATE is that of the pictures.
fields() {
    local file=$1 size=$2 rate=$3 frames=$4 order=$5 interleave=top top=1
    shift 5
    [[ $order == tff ]] || { interleave=bottom top=0; }
    ff -f lavfi -i "$(numbered "$size" "$rate" "$(moving_scene "$size" "$rate*2"),tinterlace=interleave_$interleave"),setfield=$order" \
        -frames:v "$frames" "${EXACT[@]}" -top $top -flags:v +ilme+ildct+bitexact "$@" "$file"
}
readonly MPEG2_FIELDS=(-c:v mpeg2video -q:v 3 -g 12 -bf 2)
sample fields_mpeg2_tff.ts fields 352x288 25 25 tff "${MPEG2_FIELDS[@]}"
sample fields_mpeg2_bff.mpg fields 352x288 25 25 bff "${MPEG2_FIELDS[@]}"
sample fields_mpeg2_ntsc.mpg fields 352x240 30000/1001 20 tff "${MPEG2_FIELDS[@]}"
sample fields_h264_tff.mp4 fields 352x288 25 25 tff "${X264[@]}" -crf 18 \
    -x264-params keyint=12:tff=1:bframes=2
sample fields_h264_bff.ts fields 352x288 25 25 bff "${X264[@]}" -crf 18 \
    -x264-params keyint=12:bff=1:bframes=2
sample fields_dv_pal.avi fields 720x576 25 12 bff -c:v dvvideo -pix_fmt yuv420p
sample fields_dv_ntsc.avi fields 720x480 30000/1001 12 bff -c:v dvvideo -pix_fmt yuv411p
sample fields_1080.ts fields 1920x1080 25 4 tff "${X264[@]}" -crf 18 \
    -x264-params keyint=12:tff=1:bframes=2

# segmented FILE SIZE RATE FRAMES ARG…: whole pictures, stored as two fields.
segmented() {
    local file=$1 size=$2 rate=$3 frames=$4
    shift 4
    ff -f lavfi -i "$(numbered "$size" "$rate" "$(moving_scene "$size" "$rate")"),setfield=tff" \
        -frames:v "$frames" "${EXACT[@]}" -top 1 -flags:v +ilme+ildct+bitexact "$@" "$file"
}
sample segmented_mpeg2.ts segmented 352x288 25 25 "${MPEG2_FIELDS[@]}"
sample segmented_h264.mp4 segmented 352x288 25 25 "${X264[@]}" -crf 18 \
    -x264-params keyint=12:tff=1:bframes=2
sample segmented_1080.ts segmented 1920x1080 25 4 "${X264[@]}" -crf 18 \
    -x264-params keyint=12:tff=1:bframes=2

# film_fields FILE SIZE FRAMES ARG…: pictures of film, with their numbers, for three fields and two
# in turn.
film_fields() {
    local file=$1 size=$2 frames=$3 rate=24000/1001
    shift 3
    ff -f lavfi -i "$(numbered "$size" "$rate" "$(moving_scene "$size" "$rate")"),telecine=first_field=top:pattern=23,setfield=tff" \
        -frames:v "$frames" "${EXACT[@]}" -top 1 -flags:v +ilme+ildct+bitexact "$@" "$file"
}
sample telecine_mpeg2.ts film_fields 352x240 25 "${MPEG2_FIELDS[@]}"
sample telecine_h264.mp4 film_fields 352x240 25 "${X264[@]}" -crf 18 \
    -x264-params keyint=12:tff=1:bframes=2

# film_repeating FILE SIZE FRAMES: the same film with whole pictures alone, of which every other
# one says that its first field is shown once more.
film_repeating() {
    local file=$1 size=$2 frames=$3
    ff -f lavfi -i "$(numbered "$size" 24000/1001 "$(moving_scene "$size" 24000/1001)")" \
        -frames:v "$frames" "${EXACT[@]}" -c:v mpeg2video -q:v 3 -g 12 -bf 0 "$file.m2v"
    tool repeat_fields "$file.m2v"
    ff -i "$file.m2v" -c copy -bsf:v "setts=ts=N*1001/24000/TB" -fflags +bitexact "$file"
}
sample telecine_by_flags.mkv film_repeating 352x240 24

# coded_fields FILE KIND FRAMES: frames coded as two fields each, of the kinds of h264_fields.pl, without
# a container.
coded_fields() {
    local file=$1 kind=$2 frames=$3
    mkdir "$file.fields"
    tool h264_fields "$kind" "$frames" "$file.fields"
    seq -f "$file.fields/%g.h264" 0 $((frames - 1)) | xargs -d '\n' cat >"$file"
}

# single_fields FILE KIND FRAMES GROUP: the same, each field in a packet of its own with its own time.
single_fields() {
    local file=$1 kind=$2 frames=$3 group=$4
    coded_fields "$file.h264" "$kind" "$frames"
    timed_fields "$file" "$group" 'floor(N/2)' 'mod(N,2)/2' -i "$file.h264"
}

# paired_fields FILE KIND FRAMES GROUP: the same, both fields of a frame in one packet.
paired_fields() {
    local file=$1 kind=$2 frames=$3 group=$4
    mkdir "$file.fields"
    tool h264_fields "$kind" "$frames" "$file.fields"
    timed_fields "$file" "$group" N 0 -f image2 -c:v h264 -start_number 0 -i "$file.fields/%d.h264"
}

# timed_fields FILE GROUP PLACE LATER ARG…: copies packets with their times; PLACE is that of their
# frame in the order of decoding, and LATER how many frames they are shown later than that.
timed_fields() {
    local file=$1 group=$2 place=$3 later=$4
    local in_group="mod($place,$group)"
    local reordered="gt($in_group,0)*(2*mod($in_group,2)-1)"
    # Of a frame. In FFmpeg 5, times are in the container's units here, although TB is the input's.
    local length='(1/25/TB)'
    [[ $(ffmpeg -version) != "ffmpeg version 5."* ]] || length=3600
    shift 4
    ff "$@" -c copy -map_metadata -1 -fflags +bitexact \
        -bsf:v "setts=dts='round(($place+$later)*$length)':pts='round(($place+$later+1+$reordered)*$length)'" \
        "$file"
}
sample h264_fields_single.ts single_fields IDR 78 13
sample h264_fields_single.m2ts single_fields OPEN 79 79
sample h264_fields_paired.ts paired_fields IDR 78 13
sample h264_fields_paired.m2ts paired_fields OPEN 79 79
sample h264_fields.h264 coded_fields IDR 78
# Second fields are shown with the first ones, and are no frames.
for name in h264_fields{_single.ts,_single.m2ts,_paired.ts,_paired.m2ts,.h264}; do
    misflagged "$name"
done
