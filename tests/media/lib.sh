# What every recipe builds on: the pictures, the sounds, and the bookkeeping of what is made.
# Sourced by make_samples.sh; expects OUT, the folder of the finished samples, and RECIPES_FILE, the
# file whose recipes are being declared.

# Two encoders at a time, one thread each: faster for such short videos than many threads for
# one, and the outcome does not depend on the machine.
readonly JOBS=2

# --- pictures -------------------------------------------------------------------------------

# numbers SIZE RATE [FIRST]: a filter source of frames that bear nothing but their number, counted
# from FIRST.
#
# The top sixth of a picture is two rows of 16 blocks. In the upper row the first block is white,
# the last one black; between them stand the 14 bits of the frame's number, white for 1, highest
# bit first. The lower row is the upper one's negative. So the rows confirm each other, and the
# outer blocks tell an upright picture from a turned or mirrored one.
numbers() {
    local size=$1 rate=$2 first=${3:-0}
    local bit="eq(X,0)+lt(X,15)*mod(floor((N+$first)*pow(2,X-14)),2)"
    echo "color=s=16x2:r=$rate,format=yuv444p,geq=lum='16+219*abs(Y-($bit))':cb=128:cr=128," \
         "scale=${size%x*}:$(strip_height "$size"):flags=neighbor+accurate_rnd+full_chroma_inp"
}

# strip_height SIZE: the height of the two rows; even, as subsampled chroma wants it.
strip_height() {
    echo $((${1#*x} / 12 * 2))
}

# pictures SIZE RATE [FILTERS]: a filter source of numbered frames over a moving scene.
# FILTERS are applied to the finished picture.
pictures() {
    local size=$1 rate=$2 filters=${3:-null}
    echo "testsrc2=s=$size:r=$rate,format=yuv444p,setsar=1[scene];$(numbers "$size" "$rate")" \
         "[number];[scene][number]overlay=format=yuv444,setsar=1,$filters"
}

# interlaced_pictures SIZE RATE: numbered frames whose two fields show different moments, the upper
# one first.
interlaced_pictures() {
    local size=$1 rate=$2
    echo "testsrc2=s=$size:r=$rate*2,format=yuv444p,tinterlace=interleave_top,setsar=1[scene];" \
         "$(numbers "$size" "$rate")[number];[scene][number]overlay=format=yuv444"
}

# sound SECONDS: a filter source of a quiet tone.
sound() {
    echo "sine=frequency=440:sample_rate=48000:duration=$1,volume=0.1"
}

# --- encoding -------------------------------------------------------------------------------

# ff ARG…: ffmpeg, silent unless it fails, and never endless.
ff() {
    SVT_LOG=1 timeout 120 ffmpeg -hide_banner -loglevel error -nostdin -y "$@"
}

# What every output needs for the same bytes on every run.
readonly EXACT=(-map_metadata -1 -fflags +bitexact -flags:v +bitexact -flags:a +bitexact -threads 1)

readonly X264=(-c:v libx264 -preset veryfast -crf 23 -pix_fmt yuv420p)
readonly X265=(-c:v libx265 -preset ultrafast -crf 23 -pix_fmt yuv420p)
# One encoder thread; the rest of a recipe's parameters follow after a colon.
readonly X265_PARAMS=log-level=error:pools=none:frame-threads=1:info=0
# Nothing is random in these encoders; deadlines that depend on the machine's speed are avoided.
readonly VPX=(-deadline good -cpu-used 5 -b:v 400k)

# encode OUTPUT SIZE RATE FRAMES ARG…: numbered frames through one encoder.
encode() {
    local output=$1 size=$2 rate=$3 frames=$4
    shift 4
    ff -f lavfi -i "$(pictures "$size" "$rate")" -frames:v "$frames" "${EXACT[@]}" "$@" "$output"
}

# encode_filtered OUTPUT SIZE RATE FRAMES FILTERS ARG…: the same with filters on the picture.
encode_filtered() {
    local output=$1 size=$2 rate=$3 frames=$4 filters=$5
    shift 5
    ff -f lavfi -i "$(pictures "$size" "$rate" "$filters")" -frames:v "$frames" \
        "${EXACT[@]}" "$@" "$output"
}

# with_sound FILE VIDEO_START SOUND_START SOUND_CODEC ARG…: starts in seconds.
with_sound() {
    local file=$1 video_start=$2 sound_start=$3 codec=$4
    shift 4
    ff -itsoffset "$video_start" -f lavfi -i "$(pictures 160x120 25)" \
        -itsoffset "$sound_start" -f lavfi -i "$(sound 3)" -map 0 -map 1 -frames:v 75 \
        -vsync passthrough \
        "${EXACT[@]}" "${X264[@]}" -x264-params keyint=25:bframes=2 \
        -c:a "$codec" -b:a 64k "$@" "$file"
}

# cut_at_front FILE SOURCE: from 1.4 seconds on, without encoding anew: what must be decoded before
# that is there, but an edit list hides it.
cut_at_front() {
    ff -ss 1.4 -i "$2" -c copy -map_metadata -1 -fflags +bitexact "$1"
}

# tool NAME ARG…: one of the small programs beside this file.
tool() {
    local name=$1
    shift
    perl "$MEDIA_DIR/tools/$name.pl" "$@"
}

# --- the set --------------------------------------------------------------------------------

NAMES=()             # every declared sample, in order
declare -A RECIPES=() # its command
declare -A ORIGINS=() # the file of recipes that declares it
declare -A NEEDS=()   # the sample that it is made from, if any
declare -A MISFLAGGED=() # set for samples whose container marks the wrong packets as key

# sample NAME COMMAND ARG…: declares a sample. `COMMAND FILE ARG…` makes it in FILE, whose
# extension is that of NAME.
sample() {
    local name=$1
    shift
    NAMES+=("$name")
    RECIPES[$name]=$(printf '%q ' "$@")
    ORIGINS[$name]=$RECIPES_FILE
}

# derived NAME SOURCE COMMAND ARG…: declares a sample that `COMMAND FILE SOURCE_FILE ARG…` makes
# out of another one, declared before.
derived() {
    local name=$1 source=$2 command=$3
    shift 3
    sample "$name" "$command" "$OUT/$source" "$@"
    NEEDS[$name]=$source
}

# misflagged NAME: declares that the sample's container marks packets as key that are none.
misflagged() {
    MISFLAGGED[$1]=1
}

# stamp_of NAME: changes whenever the sample might come out different.
stamp_of() {
    local name=$1 source=${NEEDS[$1]:-}
    {
        echo "${RECIPES[$name]}"
        grep -vE '^(sample|derived) ' "${ORIGINS[$name]}"
        [[ -z $source ]] || stamp_of "$source"
        echo "$TOOLCHAIN"
    } | sha256sum | cut -d ' ' -f 1
}

# toolchain: what all samples depend on beside their recipes.
toolchain() {
    ffmpeg -hide_banner -version | head -n 1
    cat "$MEDIA_DIR/lib.sh" "$MEDIA_DIR"/tools/*.pl | sha256sum
}

is_current() {
    local name=$1 stamp=$2
    [[ -e $OUT/$name && -f $OUT/.stamps/$name && $(<"$OUT/.stamps/$name") == "$stamp" ]]
}

# make_one NAME STAMP: makes a sample beside its place and moves it there when it is whole.
make_one() {
    local name=$1 stamp=$2
    local work=$OUT/.work/$name
    rm -rf "$work"
    mkdir -p "$work"
    local made="$work/made.${name##*.}" recipe
    read -ra recipe <<<"${RECIPES[$name]%% *}"
    # The recipe was quoted for the shell when it was declared.
    eval "set -- ${RECIPES[$name]}"
    shift
    "${recipe[0]}" "$made" "$@"
    [[ -e $made ]] || fail "$name: the recipe made nothing"
    if [[ -n ${MISFLAGGED[$name]:-} ]]; then
        list_decoded_key_frames "$made" >"$work/keyframes"
    else
        list_key_frames "$made" >"$work/keyframes"
    fi
    rm -rf "${OUT:?}/$name"
    mv "$made" "$OUT/$name"
    mv "$work/keyframes" "$OUT/.keyframes/$name"
    echo "$stamp" >"$OUT/.stamps/$name"
    rm -rf "$work"
    echo "made $name"
}

# list_key_frames FILE: the key frames of its video, as places in the order of showing, one a
# line; nothing for what has no video. A key frame that is never shown (before an edit list's
# start) has no place and is left out. They are those that the container marks, unless packets
# without a time leave their places unknown.
list_key_frames() {
    local file=$1 packets
    packets=$(main_video_packets "$file") || return 0
    [[ -n $packets ]] || return 0
    tool rank_key_packets <<<"$packets" || list_decoded_key_frames "$file"
}

# main_video_packets FILE: time and flags of the packets of its main video stream, one a line. One
# run of ffprobe, because starting it takes longer than the reading.
main_video_packets() {
    [[ -f $1 ]] || return 0
    ffprobe -v quiet -select_streams v -of csv "$1" -show_entries \
        packet=stream_index,pts,flags:stream=index:stream_disposition=attached_pic |
        awk -F , '$1 == "packet" { packets[$2] = packets[$2] $3 "," $4 "\n" }
                  $1 == "stream" && $3 == 0 && main == "" { main = $2 }
                  END { printf "%s", packets[main] }'
}

# list_decoded_key_frames FILE: the same as the decoder sees it.
list_decoded_key_frames() {
    local file=$1 stream
    stream=$(main_video_stream "$file")
    ffprobe -v quiet -select_streams "$stream" -show_entries frame=key_frame -of csv=p=0 "$file" |
        awk -F , '/^[01]/ { if ($1 == 1) print n + 0; n++ }'
}

# main_video_stream FILE: the number of its first video stream that is no attached picture.
main_video_stream() {
    [[ -f $1 ]] || return 0
    ffprobe -v quiet -select_streams v -show_entries stream=index:stream_disposition=attached_pic \
        -of compact=p=0:nk=1 "$1" | awk -F '|' '$2 == 0 { print $1; exit }'
}

fail() {
    echo "make_samples: $*" >&2
    exit 1
}
