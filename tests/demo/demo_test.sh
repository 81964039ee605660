#!/bin/bash
# What ./demo does with good and bad files, options and displays: exit codes and error lines.
# Usage: demo_test.sh ROOT
set -u
root=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
unset DISPLAY
passed=0 failed=0

# expect NAME STATUS TEXT COMMAND...: the command ends with STATUS and writes a line with TEXT.
expect() {
  local name=$1 status=$2 text=$3
  shift 3
  "$@" >"$folder/log" 2>&1
  local got=$?
  if [ $got -eq "$status" ] && grep -qF -- "$text" "$folder/log"; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "FAILED $name: exit status $got, expected $status with \"$text\":"
    tail -n 5 "$folder/log"
  fi
}

# picture FILE: a PNG of the window's size that shows more than a flat colour would take.
picture() {
  [ "$(od -An -tx1 -N8 "$1" | tr -d ' \n')" = 89504e470d0a1a0a ] &&
    [ "$(od -An -tx1 -j16 -N8 "$1" | tr -d ' \n')" = 00000280000001e0 ] &&
    [ "$(stat -c %s "$1")" -gt "$2" ] && echo "picture is good"
}

cd "$folder" || exit 1
demo=$root/demo
expect "the bundled scene is drawn" 0 "M3G File Version 1.0" "$demo" --frames 30 --out bundled.png
expect "its picture has the window's size" 0 "picture is good" picture bundled.png 50000
cp "$root/samples/external.m3g" "$root/samples/tiles.png" .
expect "names in a file are looked up beside it" 0 "External Reference: tiles.png" \
  env -C / "$demo" "$folder/external.m3g" --time 0 --out "$folder/external.png"
expect "its picture is written where it was asked for" 0 "picture is good" picture external.png 2000
cp "$root/samples/tiles.png" picture.png
"$demo" picture.png --out image.png >/dev/null 2>&1
expect "an image alone is shown" 0 "picture is good" picture image.png 500
expect "help is given" 0 "usage: demo [FILE]" "$demo" --help
expect "an unknown option is refused" 2 "viewer: unknown option --frame" "$demo" --frame 3
expect "a bad number is refused" 2 \
  "viewer: --frames needs a whole number of at least 1, not x" "$demo" --frames x
expect "a missing file is told" 1 "viewer: $folder/none.m3g: cannot be read" "$demo" none.m3g
head -c 3000 "$root/samples/showpiece.m3g" >cut.m3g
expect "a truncated file is told" 1 "viewer: $folder/cut.m3g: " "$demo" cut.m3g --frames 1
cp "$root/samples/tiles.png" image.m3g
expect "an image with a wrong name is told" 1 \
  "M3gObjectInputStream::processHeader: M3G identifier incorrect" "$demo" image.m3g
cp "$root/samples/cube.m3g" scene.png
expect "a scene with an image's name is told" 1 \
  "Loader::readPNG: External reference is not PNG" "$demo" scene.png
expect "a missing display is told" 1 "viewer: no OpenGL on the display \":4711\"" \
  env DISPLAY=:4711 "$demo" --frames 1
echo "demo: $passed passed, $failed failed"
[ $failed -eq 0 ]
