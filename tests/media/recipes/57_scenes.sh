# Cuts between scenes.

# Frames 0 to 49 show the moving scene, 50 to 99 a dark one, those from 100 on a bright one. No key
# frame marks a cut, and movement in the first scene is none.
three_scenes() {
    local dark bright
    dark="drawbox=y=ih/6:h=ih:color=navy:t=fill:enable='between(n,50,99)'"
    bright="drawbox=y=ih/6:h=ih:color=wheat:t=fill:enable='gte(n,100)'"
    encode_filtered "$1" 320x240 25 150 "$dark,$bright" "${X264[@]}" \
        -x264-params keyint=60:scenecut=0:bframes=2
}
sample three_scenes.mp4 three_scenes
