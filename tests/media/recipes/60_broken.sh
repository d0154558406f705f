# Damaged files, and what is no video at all.

half_of() {
    head -c $(($(stat -c %s "$2") / 2)) "$2" >"$1"
}
index_first() {
    ff -i "$2" -c copy -movflags +faststart -fflags +bitexact "$1"
}
flipped() {
    tool flip_bits "$2" "$1" "$3"
}
remuxed() {
    ff -i "$2" -c copy -fflags +bitexact "$1"
}

derived h264_index_first.mp4 h264_bframes.mp4 index_first
derived h264_bframes.mkv h264_bframes.mp4 remuxed

derived truncated.mp4 h264_index_first.mp4 half_of
derived truncated_without_moov.mp4 h264_bframes.mp4 half_of
derived truncated.ts h264.ts half_of
derived truncated.mkv h264_bframes.mkv half_of
derived truncated.avi mpeg4_bframes.avi half_of

derived bit_flipped.mp4 h264_index_first.mp4 flipped 40
derived bit_flipped.ts h264.ts flipped 40
derived bit_flipped.mkv h264_bframes.mkv flipped 40

sample empty.mp4 touch
sample text.mp4 text
text() {
    printf 'This is no video.\n' >"$1"
}
sample random_bytes.mp4 random_bytes
random_bytes() {
    tool random_bytes 50000 >"$1"
}
sample folder.mp4 mkdir
