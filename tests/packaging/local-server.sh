#!/bin/bash
# local-server: starting, stopping, doing either twice, and failing in one line.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
server=$packaging/local-server

status_of() {
    "$server" status "$1" || true
}

checking "a folder that is not there is a stopped server"
same "status" stopped "$(status_of "$work/db")"
"$server" stop "$work/db"

checking "start makes the data, waits until the server answers and prints its socket"
socket=$("$server" start "$work/db")
same "socket" "$work/db/mysql.sock" "$socket"
same "answer" 1 "$(sql mysql "SELECT 1")"
same "status" "running $socket" "$(status_of "$work/db")"
same "asked for its socket" "$socket" "$("$server" socket "$work/db")"

checking "no TCP, utf8mb4, closed to other accounts of the machine, nothing beside the data"
same "networking" "ON utf8mb4 utf8mb4_general_ci" "$(sql mysql "SELECT CONCAT_WS(' ',@@skip_networking,@@character_set_server,@@collation_server)")"
same "mode of the folder" 700 "$(stat -c %a "$work/db")"
same "unfinished data" "" "$(find "$work/db" -maxdepth 1 -name 'data.*')"
same "temporary tables" "$work/db/tmp" "$(sql mysql "SELECT @@tmpdir")"
same "test database" 0 "$(sql mysql "SELECT COUNT(*) FROM information_schema.SCHEMATA WHERE SCHEMA_NAME='test'")"

checking "a second start finds it running"
pid=$(cat "$work/db/server.pid")
same "socket" "$socket" "$("$server" start "$work/db")"
same "process" "$pid" "$(cat "$work/db/server.pid")"

checking "stop ends the process and leaves no socket, a second stop does nothing"
sql mysql "CREATE DATABASE keep; CREATE TABLE keep.t (x INT); INSERT INTO keep.t VALUES (7)"
"$server" stop "$work/db"
[ ! -e "/proc/$pid/exe" ] || wrong "process $pid still runs"
[ ! -e "$socket" ] || wrong "the socket is still there"
same "status" stopped "$(status_of "$work/db")"
"$server" stop "$work/db"

checking "the data survives, also kill -9 of the server"
"$server" start "$work/db" >/dev/null
same "row" 7 "$(sql keep "SELECT x FROM t")"
sql keep "INSERT INTO t VALUES (8)"
kill -KILL "$(cat "$work/db/server.pid")"
"$server" start "$work/db" >/dev/null
same "rows" 15 "$(sql keep "SELECT SUM(x) FROM t")"

checking "a pid file of another process is not taken for the server"
"$server" stop "$work/db"
sleep 60 &
echo $! >"$work/db/server.pid"
same "status" stopped "$(status_of "$work/db")"
"$server" stop "$work/db"
kill -0 $! || wrong "stop ended a process that is not the server"
kill $!

checking "data files left unfinished are thrown away"
mkdir -p "$work/db2/data.new.1/mysql"
"$server" start "$work/db2" --fast >/dev/null
same "unfinished data" "" "$(find "$work/db2" -maxdepth 1 -name 'data.*')"
"$server" stop "$work/db2"

checking "two starts at once are one server"
"$server" start "$work/db2" --fast >"$work/one" & first=$!
"$server" start "$work/db2" --fast >"$work/two" & second=$!
wait $first && wait $second
same "socket" "$(cat "$work/one")" "$(cat "$work/two")"
"$server" stop "$work/db2"

checking "a folder too deep for a socket gets a short one"
deep=$work/$(printf 'deep%.0s' {1..30})/db
short=$("$server" start "$deep" --fast)
[ ${#short} -le 100 ] || wrong "socket path of ${#short} characters"
same "status" "running $short" "$(status_of "$deep")"
"$server" stop "$deep"
[ ! -e "${short%/*}" ] || wrong "the folder of the short socket is still there"

checking "failures are told in one line"
refused "cannot make the folder" "$server" start /proc/nowhere/db
refused "usage" "$server" start
refused "usage" "$server" begin "$work/db"
refused "usage" "$server" start "$work/db" --slow
mkdir "$work/broken" && mkdir "$work/broken/data" && echo nonsense >"$work/broken/data/ibdata1"
refused "the server did not start: " "$server" start "$work/broken"
same "status" stopped "$(status_of "$work/broken")"

if [ "$(id -u)" = 0 ] && getent passwd nobody >/dev/null; then
    checking "an account without rights runs one too"
    chmod 711 "$work"
    mkdir -m 777 "$work/open"
    as_nobody=(setpriv --reuid=nobody --regid=nogroup --clear-groups env -u XDG_RUNTIME_DIR HOME=/nonexistent)
    if "${as_nobody[@]}" test -x "$server"; then
        socket=$("${as_nobody[@]}" "$server" start "$work/open/db" --fast)
        same "status" "running $socket" "$("${as_nobody[@]}" "$server" status "$work/open/db")"
        same "owner" nobody "$(stat -c %U "$work/open/db/data")"
        "${as_nobody[@]}" "$server" stop "$work/open/db"
    fi
fi
