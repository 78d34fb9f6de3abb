#!/usr/bin/env bash
# Opens the example dialog in a real window under Xvfb, takes a picture of the X screen while
# it is up, and checks that a person would see a dialog in it.
# Usage: sdl_smoke.sh PLATFORMDEMO XWDCHECK WORKDIR
set -euo pipefail
demo=$1 check=$2 work=$3
mkdir -p "$work"
# The desktop's libraries (D-Bus, X) keep memory until exit that is not ours to free; the
# headless tests check our own code for leaks.
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"
command -v xvfb-run >/dev/null || { echo "xvfb-run missing: run scripts/setup"; exit 1; }
xvfb-run -a -s "-screen 0 1024x768x24" bash -c "
  '$demo' --hold 4000 > '$work/demo.out' 2>&1 &
  pid=\$!
  sleep 2
  xwd -root -silent > '$work/screen.xwd'
  wait \$pid
"
grep -q cancelled "$work/demo.out"
"$check" "$work/screen.xwd"
