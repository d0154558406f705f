#!/usr/bin/env bash
# Draws the sample video beside this script: a sun that rises over the sea, with the time in the
# picture. Needs ffmpeg and the DejaVu fonts.
#
#   make_sample.sh [OUTPUT]
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
output=${1:-$here/sunrise.mp4}
font=/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf

readonly SECONDS_LONG=12 RATE=25
readonly COMMON="r=$RATE:d=$SECONDS_LONG"

# A disc of a radius in pixels, soft at its edge out to the second radius.
disc() {
    local size=$1 colour=$2 inner=$3 outer=$4 strength=$5
    echo "color=c=$colour:s=${size}x$size:$COMMON:r=1,trim=end_frame=1,format=rgba," \
         "geq=r='r(X,Y)':g='g(X,Y)':b='b(X,Y)':a='$strength*pow(clip(($outer-hypot(X-$size/2,Y-$size/2))/($outer-$inner),0,1),2)'," \
         "loop=loop=-1:size=1,setpts=N/$RATE/TB"
}

# A row of hills or waves as a silhouette: transparent above a sum of sines, 2560 pixels wide so
# that it can drift; each wavelength divides 1280, so that the drift has no seam.
ridge() {
    local colour=$1 height=$2 base=$3 wave=$4
    echo "color=c=$colour:s=2560x$height:r=1,trim=end_frame=1,format=rgba," \
         "geq=r='r(X,Y)':g='g(X,Y)':b='b(X,Y)':a='255*clip(Y-($base+$wave),0,1)'," \
         "loop=loop=-1:size=1,setpts=N/$RATE/TB"
}

sky="gradients=s=1280x720:c0=0x1b2a5c:c1=0xf7a66b:x0=640:y0=0:x1=640:y1=520:nb_colors=2:speed=0.00001:$COMMON"
glow=$(disc 900 0xffc978 20 440 190)
sun=$(disc 200 0xfff0c0 84 88 255)
far=$(ridge 0x5a4a80 240 60 "34*sin(2*PI*X/640)+16*sin(2*PI*X/256+1)+8*sin(2*PI*X/160+2)")
near=$(ridge 0x33305f 200 60 "26*sin(2*PI*X/1280+2)+18*sin(2*PI*X/320)+6*sin(2*PI*X/128)")
wave1=$(ridge 0x2f5f8f 200 14 "7*sin(2*PI*X/160)")
wave2=$(ridge 0x24507f 160 14 "9*sin(2*PI*X/256+1)")
wave3=$(ridge 0x183a63 110 14 "11*sin(2*PI*X/320+2)")

graph="$sky[sky];$glow[glow];$sun[sun];$far[far];$near[near];$wave1[w1];$wave2[w2];$wave3[w3]"
graph+=";[sky][glow]overlay=x='190+20*t':y='80-24*t':shortest=1[a]"
graph+=";[a][sun]overlay=x='540+20*t':y='430-24*t':shortest=1[b]"
graph+=";[b][far]overlay=x='-8*t':y=350:shortest=1[c]"
graph+=";[c][near]overlay=x='-20*t':y=430:shortest=1[d]"
graph+=";[d][w1]overlay=x='-640+30*t':y='548+3*sin(t*1.6)':shortest=1[e]"
graph+=";[e][w2]overlay=x='-40*t':y='588+4*sin(t*1.3+1)':shortest=1[f]"
graph+=";[f][w3]overlay=x='-640+50*t':y='634+5*sin(t+2)':shortest=1[g]"
graph+=";[g]drawtext=fontfile=$font:text='%{eif\:t\:d\:2}.%{eif\:mod(n\,$RATE)*40\:d\:3} s'"
graph+=":x=48:y=636:fontsize=44:fontcolor=white@0.9"
graph+=",drawtext=fontfile=$font:text='frame %{n}':x=w-tw-48:y=644:fontsize=32:fontcolor=white@0.7"
graph+=",format=yuv420p[v]"

# A soft chord that fades in and out.
chord="aevalsrc='0.05*(sin(2*PI*220*t)+sin(2*PI*277.18*t)+sin(2*PI*329.63*t))*(1+0.3*sin(2*PI*0.5*t))'"
chord+=":s=44100:d=$SECONDS_LONG,afade=in:d=2,afade=out:st=$((SECONDS_LONG - 2)):d=2"

# Never a half-written file: beside first, then in place.
work=$(mktemp -d "$(dirname "$output")/.sunrise.XXXXXX")
trap 'rm -rf "$work"' EXIT
ffmpeg -hide_banner -loglevel error -nostdin -y -f lavfi -i "$chord" -filter_complex "$graph" \
    -map '[v]' -map 0:a -t "$SECONDS_LONG" -map_metadata -1 -fflags +bitexact -flags +bitexact \
    -c:v libx264 -preset slow -crf 25 -threads 1 -g 100 -bf 3 \
    -colorspace smpte170m -color_primaries smpte170m -color_trc smpte170m -color_range tv \
    -c:a aac -b:a 48k -movflags +faststart "$work/made.mp4"
mv "$work/made.mp4" "$output"
