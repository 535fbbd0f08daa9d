#!/bin/bash
# server-lease: the first starts the server, the others share it, the last stops it, however they end.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
lease=$packaging/server-lease

# A workstation: notes that it runs with the server, then works until its file goes.
cat >"$work/station" <<'END'
#!/bin/bash
mariadb --no-defaults --socket="$ORVANE_SOCKET" --user=root -BN -e 'SELECT 1' >"$1.answer" && touch "$1"
while [ -e "$1" ]; do sleep 0.02; done
END
chmod +x "$work/station"

# until_true SECONDS COMMAND...
until_true() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $deadline ] || wrong "not within the time: $*"
        sleep 0.02
    done
}
running() { "$packaging/local-server" status "$work/db" >/dev/null; }
stopped() { ! running; }
# Jobs in the background of a script ignore INT. A workstation is started from a terminal and does not.
open_station() {
    env --default-signal=INT "$lease" "$work/db" -- "$work/station" "$work/$1" 2>"$work/$1.said" &
    until_true 60 test -e "$work/$1"
}

checking "the command's exit code comes back, and the server stops behind it"
status=0
"$lease" "$work/db" -- sh -c 'test -S "$ORVANE_SOCKET" && exit 7' || status=$?
same "exit code" 7 $status
stopped || wrong "the server still runs"

checking "a second one shares the server, the last to leave stops it"
open_station a; a=$!
pid=$(cat "$work/db/server.pid")
open_station b; b=$!
same "server" "$pid" "$(cat "$work/db/server.pid")"
rm "$work/a"; wait $a
running || wrong "stopped under the second one"
rm "$work/b"; wait $b
stopped || wrong "the last one left it running"

checking "one killed with -9 counts no more, and takes its command with it"
open_station a; a=$!
open_station b; b=$!
child=$(pgrep -P $a -f "$work/station")
kill -KILL $a
wait $a 2>/dev/null || true
until_true 10 test ! -e "/proc/$child/exe"
running || wrong "stopped under the other one"
rm -f "$work/b"; wait $b
stopped || wrong "the killed one kept it running"

checking "killed with -9 as the last one: the next one takes the server over and stops it"
rm -f "$work/a"
open_station a; a=$!
kill -KILL $a
wait $a 2>/dev/null || true
running || wrong "who stopped it?"
rm -f "$work/a"
open_station b; b=$!
rm "$work/b"; wait $b
stopped || wrong "still running"

checking "an interruption ends the command, then the server"
for signal in INT TERM HUP; do
    open_station a; a=$!
    child=$(pgrep -P $a -f "$work/station")
    kill -$signal $a
    status=0
    wait $a || status=$?
    [ $status != 0 ] || wrong "ended as if nothing had happened"
    [ ! -e "/proc/$child/exe" ] || wrong "the command still runs after $signal"
    stopped || wrong "the server still runs after $signal"
    rm -f "$work/a"
done

checking "many coming and going at once never find it stopped"
for i in 1 2 3 4 5 6 7 8; do
    "$lease" "$work/db" -- mariadb --no-defaults --socket="$work/db/mysql.sock" --user=root -BN -e "SELECT $i" >"$work/n$i" &
    pids[i]=$!
done
for i in 1 2 3 4 5 6 7 8; do
    wait "${pids[i]}" || wrong "number $i failed"
    same "answer" $i "$(cat "$work/n$i")"
done
stopped || wrong "still running"

checking "a server that cannot start is told in one line, and the command does not run"
mkdir -p "$work/broken/data" && echo nonsense >"$work/broken/data/ibdata1"
refused "the server did not start: " "$lease" "$work/broken" -- touch "$work/ran"
[ ! -e "$work/ran" ] || wrong "the command ran"
refused "usage" "$lease" "$work/db"
