# Sourced by the audio tests: a deck on a screen of its own, with a home of its own.
# Arguments: the build folder. Gives $home, $build, start_deck, press, finish; exits 77 where a tool is missing.
set -eu
build=$1
for tool in xdotool xvfb-run cmp; do command -v $tool >/dev/null || { echo "skipped: no $tool"; exit 77; }; done
if [ -z "${ORVANTA_INSIDE:-}" ]; then
  # Without -noreset the server starts afresh when its last client goes, and refuses the next for a moment.
  ORVANTA_INSIDE=1 exec xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" "$0" "$@"
fi
home=$(mktemp -d)
chmod 700 "$home"
export LSAN_OPTIONS=suppressions=$(cd "$(dirname "$0")/.." && pwd)/lsan.supp
export XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data XDG_RUNTIME_DIR=$home
pids=""
# What a deck that is ending still writes must not come back behind the broom.
trap 'kill $pids 2>/dev/null || true; wait $pids 2>/dev/null || true; rm -rf "$home" 2>/dev/null || { sleep 1; rm -rf "$home"; }' EXIT
data=$home/data/orvanta
drive=$build/share/orvanta/demo

# A drive of its own, so that tests can run side by side.
mkdir -p "$home/drive"
cp "$drive"/*.bin "$drive"/*.cue "$home/drive/"

fail() { echo "FAILED: $*"; [ -f "$home/log" ] && tail -20 "$home/log"; exit 1; }

# until_true SECONDS COMMAND...
until_true() {
  tries=$(($1 * 20)); shift
  while ! "$@" >/dev/null 2>&1; do
    tries=$((tries - 1)); [ $tries -gt 0 ] || fail "waited in vain for: $*"
    sleep 0.05
  done
}

start_deck() {
  until_true 15 xdotool getdisplaygeometry
  "$build/bin/lxinit" "$data" "$home/drive"
  ORVANTA_LOG=sound,device,cddb "$build/bin/orvanlx" "$@" 2>"$home/log" &
  deck=$!
  pids="$pids $deck"
  window=$(xdotool search --sync --onlyvisible --name '^Orvanta LX$' | head -1)
}

# A sound server of our own, with one sink that sounds nowhere.
# start_server [OPTION]: norewinds=0 for one that takes back what was not heard yet.
start_server() {
  for tool in pulseaudio parec pactl; do command -v $tool >/dev/null || { echo "skipped: no $tool"; exit 77; }; done
  export PULSE_SERVER=unix:$home/pulse.socket
  pulseaudio -n --daemonize=no --exit-idle-time=-1 --use-pid-file=no --load="module-native-protocol-unix socket=$home/pulse.socket auth-anonymous=1" \
    --load="module-null-sink sink_name=speakers ${1:-norewinds=1}" >"$home/pulse.log" 2>&1 &
  server=$!
  pids="$pids $server"
  until_true 10 pactl info
}

press() { xdotool windowfocus --sync "$window" key "$1"; }

finish() {
  press Escape
  code=0
  wait $deck || code=$?
  [ $code -eq 0 ] || fail "the deck ended with $code"
}
