#!/bin/bash
# ./run vnc: only this machine reaches the display, wherever the checkout lies; otherwise it stays closed.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
odd=$work/果品\ 档口
mkdir "$odd" && cp -r "$root/run" "$packaging" "$odd"
door=$odd/packaging/vnc-door
port=$((20000 + $$ % 20000))

# What the kernel says of the port: address and state of its listeners.
listening() {
    grep -hoiE " [0-9A-F]+:$(printf %04X "$1") [0-9A-F]+:0000 0A" /proc/net/tcp /proc/net/tcp6 | cut -d: -f1 | xargs
}

checking "a port that is none, or taken, is refused before anything is built"
for bad in 0 65536 99999 123456 x -1 5.9 ' '; do
    refused "a number from 1 to 65535, not '$bad'" "$odd/run" vnc "$bad"
done
python3 -c "
import socket, time
s = socket.socket(); s.bind(('127.0.0.1', $port)); s.listen(); print('up', flush=True); time.sleep(60)" >"$work/up" &
taker=$!
until [ -s "$work/up" ]; do sleep 0.02; done
refused "something on this machine listens on port $port already" "$odd/run" vnc $port
refused "something on this machine listens on port $port already" "$door" $port touch "$work/ran"
kill $taker
wait $taker 2>/dev/null || true
[ ! -e "$odd/build" ] && [ ! -e "$work/ran" ] || wrong "something was begun"

checking "a display shown from a folder with a blank listens on 127.0.0.1 alone, and answers there"
# shellcheck disable=SC2016
"$odd/packaging/with-display" "$door" $port bash -c '
    head -c 3 "/dev/tcp/127.0.0.1/$2" 2>/dev/null || { exec 3<>"/dev/tcp/127.0.0.1/$2" && head -c 3 <&3; }
    touch "$1/shown"; until [ -e "$1/done" ]; do sleep 0.05; done' - "$work" $port >"$work/said" &
shower=$!
until [ -e "$work/shown" ]; do kill -0 $shower 2>/dev/null || wrong "it ended"; sleep 0.05; done
same "listeners" 0100007F "$(listening $port)"
for address in $(hostname -I 2>/dev/null); do
    ! (exec 3<>"/dev/tcp/$address/$port") 2>/dev/null || wrong "$address answers"
done
touch "$work/done"
wait $shower
grep -q "^Open a VNC viewer on 127.0.0.1:$port" "$work/said" && grep -q RFB "$work/said" || wrong "$(cat "$work/said")"
same "listeners afterwards" "" "$(listening $port)"

checking "a server of displays that opens the port to other machines is closed again before anything is shown"
cat >"$work/wide-open" <<'END'
#!/usr/bin/python3
import os, socket, sys, time
family = socket.AF_INET6 if os.environ.get("WIDE") == "6" else socket.AF_INET
s = socket.socket(family)
s.bind(("::" if family == socket.AF_INET6 else "0.0.0.0", int(sys.argv[sys.argv.index("-rfbport") + 1])))
s.listen()
time.sleep(60)
END
chmod +x "$work/wide-open"
for family in 4 6; do
    WIDE=$family ORVANE_VNC_SERVER=$work/wide-open refused "would be open to other machines" "$door" $port touch "$work/ran"
    [ ! -e "$work/ran" ] || wrong "the command ran"
    same "listeners" "" "$(listening $port)"
done

checking "one that does not start is told"
ORVANE_VNC_SERVER=/bin/false refused "does not open" "$door" $port touch "$work/ran"
[ ! -e "$work/ran" ] || wrong "the command ran"
