#!/usr/bin/env bash
# Makes the three scene-preview clips with the ffmpeg command-line tool, from
# its synthetic sources only:
#   1low.kvf     a parking lot, still but for one car crossing slowly
#   1medium.kvf  a street with a few cars and walkers
#   1high.kvf    a busy crossing: fast traffic over moving fine texture,
#                sensor noise everywhere
# Every movement repeats exactly over the clip's length, so the last frame
# leads into the first without a jump when the clip loops.
# It also makes short.kvf, three small frames for the library's tests, which
# have to loop through many clip ends quickly.
#
# Usage: tools/clips/make-clips.sh [output-dir [test-clip-dir]]
#        (defaults: data/ and tests/vexplay/data/)
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
out=${1:-$here/../../data}
testout=${2:-$here/../../tests/vexplay/data}
mkdir -p "$out" "$testout"

W=640
H=360
FPS=25
T=8                       # seconds; every motion has this period
FRAMES=$((FPS * T))

command -v ffmpeg >/dev/null || { echo "make-clips.sh: ffmpeg not found" >&2; exit 1; }

# Seen from above: a car pointing right, body colour $1, size $2x$3.
car_top() {
  local c=$1 w=$2 h=$3
  printf "color=c=%s:s=%dx%d:r=%d" "$c" "$w" "$h" "$FPS"
  printf ",drawbox=x=%d:y=%d:w=%d:h=%d:c=0x1c2430:t=fill" $((w * 60 / 100)) 3 $((w * 14 / 100)) $((h - 6))
  printf ",drawbox=x=%d:y=%d:w=%d:h=%d:c=0x1c2430:t=fill" $((w * 12 / 100)) 4 $((w * 9 / 100)) $((h - 8))
  printf ",drawbox=x=%d:y=0:w=3:h=4:c=0xfff0b0:t=fill,drawbox=x=%d:y=%d:w=3:h=4:c=0xfff0b0:t=fill" \
    $((w - 3)) $((w - 3)) $((h - 4))
}

# Seen from the side: a car with two windows and dark wheels.
car_side() {
  local c=$1 w=$2 h=$3
  printf "color=c=%s:s=%dx%d:r=%d" "$c" "$w" "$h" "$FPS"
  printf ",drawbox=x=0:y=0:w=%d:h=%d:c=0x9fb8cf:t=fill" "$w" $((h * 40 / 100))
  printf ",drawbox=x=%d:y=0:w=%d:h=%d:c=%s:t=fill" $((w * 18 / 100)) $((w * 64 / 100)) $((h * 12 / 100)) "$c"
  printf ",drawbox=x=%d:y=%d:w=%d:h=%d:c=%s:t=fill" $((w * 48 / 100)) $((h * 10 / 100)) 3 $((h * 30 / 100)) "$c"
  printf ",drawbox=x=0:y=0:w=%d:h=%d:c=0x8ca0b4:t=fill" $((w * 18 / 100)) $((h * 40 / 100))
  printf ",drawbox=x=%d:y=0:w=%d:h=%d:c=0x8ca0b4:t=fill" $((w * 82 / 100)) $((w * 18 / 100)) $((h * 40 / 100))
  printf ",drawbox=x=%d:y=%d:w=%d:h=%d:c=0x111111:t=fill" $((w * 14 / 100)) $((h * 75 / 100)) $((w * 16 / 100)) $((h * 25 / 100))
  printf ",drawbox=x=%d:y=%d:w=%d:h=%d:c=0x111111:t=fill" $((w * 70 / 100)) $((h * 75 / 100)) $((w * 16 / 100)) $((h * 25 / 100))
}

# A walker: head and coat.
walker() {
  local c=$1
  printf "color=c=0x3a3a3a:s=8x22:r=%d" "$FPS"
  printf ",drawbox=x=1:y=0:w=6:h=6:c=0xe0b090:t=fill,drawbox=x=0:y=6:w=8:h=10:c=%s:t=fill" "$c"
}

# Positions that wrap round once every T/k seconds (k whole), so frame T*FPS
# equals frame 0. Arguments: start offset, laps per clip.
right() { printf "'mod(%d+(W+w)*%d*t/%d,W+w)-w'" "$1" "$2" "$T"; }
left()  { printf "'W-mod(%d+(W+w)*%d*t/%d,W+w)'" "$1" "$2" "$T"; }
down()  { printf "'mod(%d+(H+h)*%d*t/%d,H+h)-h'" "$1" "$2" "$T"; }
up()    { printf "'H-mod(%d+(H+h)*%d*t/%d,H+h)'" "$1" "$2" "$T"; }

# encode <name> <filtergraph ending in [v]> <crf> [extra x264 options...]
encode() {
  local name=$1 graph=$2 crf=$3 frames=$FRAMES dir=$out
  shift 3
  if [ "$name" = short.kvf ]; then frames=3; dir=$testout; fi
  ffmpeg -hide_banner -loglevel error -y \
    -filter_complex "$graph" -map '[v]' -frames:v "$frames" -r "$FPS" \
    -c:v libx264 -preset slow -tune film -crf "$crf" -pix_fmt yuv420p \
    -g $((FPS * 2)) -keyint_min $((FPS * 2)) -sc_threshold 0 -threads 1 "$@" \
    -map_metadata -1 -fflags +bitexact -flags:v +bitexact \
    -f matroska "$dir/$name"
  printf '%-12s %7d bytes\n' "$name" "$(stat -c %s "$dir/$name")"
}

# --- low: a parking lot ------------------------------------------------------
low() {
  local g bg x i col
  bg="color=c=0x4b4e53:s=${W}x${H}:r=$FPS,noise=alls=3:all_seed=11"
  bg+=",drawbox=x=0:y=0:w=$W:h=14:c=0x3d6633:t=fill,drawbox=x=0:y=$((H - 14)):w=$W:h=14:c=0x3d6633:t=fill"
  bg+=",drawbox=x=0:y=14:w=$W:h=3:c=0xb0b0a8:t=fill,drawbox=x=0:y=$((H - 17)):w=$W:h=3:c=0xb0b0a8:t=fill"
  for i in $(seq 0 8); do
    x=$((25 + 70 * i))
    bg+=",drawbox=x=$x:y=17:w=3:h=100:c=0xe8e8e0:t=fill"
    bg+=",drawbox=x=$x:y=$((H - 117)):w=3:h=100:c=0xe8e8e0:t=fill"
  done
  # dashed centre line of the aisle
  for i in $(seq 0 15); do
    bg+=",drawbox=x=$((10 + 40 * i)):y=179:w=20:h=2:c=0xd8c040:t=fill"
  done
  # parked cars, nose towards the aisle
  local parked=(0xd6d6d2 0x1f3a6b - 0x8c1c1c 0xa0a4a8 - 0x202020 0x2f5d3a
                0xa0a4a8 - 0x6b1f5a 0xd6d6d2 0x202020 0x1f3a6b - 0x8c6a1c)
  local k=0 row y
  for row in top bottom; do
    for i in $(seq 0 7); do
      col=${parked[$k]}; k=$((k + 1))
      [ "$col" = - ] && continue
      x=$((25 + 70 * i + 15))
      if [ $row = top ]; then y=27; else y=$((H - 107)); fi
      bg+=",drawbox=x=$x:y=$y:w=40:h=80:c=$col:t=fill"
      if [ $row = top ]; then
        bg+=",drawbox=x=$((x + 4)):y=$((y + 52)):w=32:h=12:c=0x1c2430:t=fill"
        bg+=",drawbox=x=$((x + 5)):y=$((y + 10)):w=30:h=7:c=0x1c2430:t=fill"
      else
        bg+=",drawbox=x=$((x + 4)):y=$((y + 16)):w=32:h=12:c=0x1c2430:t=fill"
        bg+=",drawbox=x=$((x + 5)):y=$((y + 63)):w=30:h=7:c=0x1c2430:t=fill"
      fi
    done
  done
  g="$bg[bg];$(car_top 0xc8c8c0 76 36)[car];"
  g+="[bg][car]overlay=x=$(right 0 1):y=156[v]"
  encode 1low.kvf "$g" 27
}

# --- medium: a street ----------------------------------------------------------
medium() {
  local g bg i x h c
  bg="color=c=0x8fb4d8:s=${W}x${H}:r=$FPS"
  # houses along the far side, windows in a grid
  local houses=("0 70 150 0xa0705a" "150 110 110 0xc8b89a" "260 60 180 0x7a8088"
                "440 90 130 0xb08a6a" "530 110 160 0x9a9088")
  for h in "${houses[@]}"; do
    set -- $h
    bg+=",drawbox=x=$1:y=$((200 - $3)):w=$2:h=$3:c=$4:t=fill"
    for x in $(seq $(($1 + 8)) 22 $(($1 + $2 - 16))); do
      for i in $(seq $((200 - $3 + 10)) 26 $((200 - 24))); do
        bg+=",drawbox=x=$x:y=$i:w=12:h=14:c=0x304050:t=fill"
      done
    done
  done
  bg+=",drawbox=x=0:y=200:w=$W:h=28:c=0xa8a8a0:t=fill,drawbox=x=0:y=228:w=$W:h=102:c=0x45474b:t=fill"
  bg+=",drawbox=x=0:y=330:w=$W:h=30:c=0xa8a8a0:t=fill"
  for i in $(seq 0 10); do
    bg+=",drawbox=x=$((5 + 60 * i)):y=278:w=32:h=3:c=0xeeeeee:t=fill"
  done
  bg+=",noise=alls=5:all_seed=23"
  g="$bg,noise=alls=5:allf=t:all_seed=5[bg];"
  g+="$(car_side 0x9c2a2a 84 34)[c1];$(car_side 0x2a4e9c 90 36)[c2];"
  g+="$(car_side 0xd0d0cc 80 32)[c3];$(car_side 0x2e2e30 96 38)[c4];"
  g+="$(walker 0x6a4a8a)[p1];$(walker 0x2f6a4a)[p2];$(walker 0xa06a2a)[p3];"
  g+="[bg][c1]overlay=x=$(right 0 1):y=236[a];"
  g+="[a][c2]overlay=x=$(right 360 1):y=234[a];"
  g+="[a][c3]overlay=x=$(left 100 2):y=288[a];"
  g+="[a][c4]overlay=x=$(left 480 1):y=284[a];"
  g+="[a][p1]overlay=x=$(right 50 1):y=203[a];"
  g+="[a][p2]overlay=x=$(left 300 1):y=206[a];"
  g+="[a][p3]overlay=x=$(right 420 1):y=334[v]"
  encode 1medium.kvf "$g" 25
}

# --- high: a busy crossing -----------------------------------------------------
high() {
  local g bg lanes i
  # foliage and crowds: fine texture that never stands still
  bg="color=c=black:s=${W}x${H}:r=$FPS,format=yuv420p,geq="
  bg+="lum='100+40*sin(0.9*X+2.5*sin(0.07*Y+2*PI*T/$T))*cos(0.7*Y+2*PI*3*T/$T)+25*sin(0.31*(X+Y)-2*PI*2*T/$T)':"
  bg+="cb='108+12*sin(0.09*X+2*PI*T/$T)':cr='112+10*cos(0.08*Y-2*PI*2*T/$T)'"
  # two roads crossing, fine-grained asphalt
  bg+=",drawbox=x=0:y=112:w=$W:h=136:c=0x3c3e42:t=fill,drawbox=x=252:y=0:w=136:h=$H:c=0x3c3e42:t=fill"
  for i in $(seq 0 14); do
    bg+=",drawbox=x=$((4 + 44 * i)):y=179:w=24:h=2:c=0xe8e8e8:t=fill"
  done
  for i in $(seq 0 8); do
    bg+=",drawbox=x=319:y=$((4 + 44 * i)):w=2:h=24:c=0xe8e8e8:t=fill"
  done
  for i in $(seq 0 9); do
    bg+=",drawbox=x=$((256 + 13 * i)):y=96:w=7:h=14:c=0xf0f0f0:t=fill,drawbox=x=$((256 + 13 * i)):y=250:w=7:h=14:c=0xf0f0f0:t=fill"
  done
  g="$bg,noise=alls=10:allf=t:all_seed=7[bg];"
  # cars: colour, size, direction, start, laps, lane
  local cars=(
    "0xb02020 56 26 right 0 2 118" "0x2040b0 60 26 right 240 2 118" "0xe0e0e0 52 24 right 470 2 118"
    "0x303030 64 28 right 120 3 150" "0xd0a020 56 26 right 430 3 150"
    "0x20a060 58 26 left 60 2 184" "0x8080a0 56 26 left 300 2 184" "0xa03080 60 28 left 520 2 184"
    "0xe06020 54 24 left 0 3 216" "0x4060d0 62 26 left 350 3 216"
    "0xf0f0f0 26 54 down 0 2 258" "0x902020 26 58 down 200 2 258"
    "0x208080 26 56 down 100 3 290" "0xc0c040 26 52 up 30 2 326" "0x404040 28 60 up 230 2 326"
    "0x6030a0 26 54 up 150 3 356")
  local n=0 car last=bg dir
  for car in "${cars[@]}"; do
    set -- $car
    n=$((n + 1))
    case $4 in
      right|left) g+="$(car_top "$1" "$2" "$3")[k$n];"
                  [ "$4" = left ] && g+="[k$n]hflip[k$n];"
                  g+="[$last][k$n]overlay=x=$($4 "$5" "$6"):y=$7[o$n];" ;;
      down|up)    g+="$(car_top "$1" "$3" "$2"),transpose=$([ "$4" = down ] && echo 1 || echo 2)[k$n];"
                  g+="[$last][k$n]overlay=x=$7:y=$($4 "$5" "$6")[o$n];" ;;
    esac
    last=o$n
  done
  # walkers crossing on the zebras, both ways
  for i in 1 2 3 4 5 6; do
    g+="$(walker 0x$((20 + 13 * i))4060)[w$i];"
    dir=right; [ $((i % 2)) = 0 ] && dir=left
    g+="[$last][w$i]overlay=x=$($dir $((i * 97)) 1):y=$([ $i -le 3 ] && echo 92 || echo 250)[q$i];"
    last=q$i
  done
  g+="[$last]null[v]"
  encode 1high.kvf "$g" 28 -maxrate 900k -bufsize 1800k
}

# --- short: the tests' clip -------------------------------------------------
short() {
  encode short.kvf "testsrc2=s=160x90:r=$FPS[v]" 30
}

low
medium
high
short
