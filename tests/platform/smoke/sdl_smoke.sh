#!/usr/bin/env bash
# Opens the example dialog in a real window under Xvfb, takes a picture of the X screen while
# it is up, and checks that a person would see a dialog in it.
# Usage: sdl_smoke.sh PLATFORMDEMO XWDCHECK WORKDIR
set -euo pipefail
demo=$1 check=$2 work=$3
mkdir -p "$work"
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
