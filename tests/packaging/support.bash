# Shared by the tests of this folder: a server of their own, checks that say what they check.
set -euo pipefail
export LC_ALL=C.UTF-8

root=$(cd -P -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
packaging=$root/packaging
work=$(mktemp -d)
unset ORVANE_DB_PASSWORD ORVANE_APP_PASSWORD MYSQL_PWD

clean_up() {
    local status=$?
    trap - EXIT
    [ ! -d "$work/db" ] || "$packaging/local-server" stop "$work/db" || true
    rm -rf -- "$work"
    [ $status = 0 ] && echo "passed" || echo "FAILED"
    exit $status
}
trap clean_up EXIT

checking() {
    echo "- $*"
}

wrong() {
    echo "  wrong: $*" >&2
    exit 1
}

# same WHAT EXPECTED ACTUAL
same() {
    [ "$2" = "$3" ] || wrong "$1: expected <$2>, found <$3>"
}

# refused WORDS COMMAND...: the command fails and says the words in one line.
refused() {
    local words=$1
    shift
    if "$@" >"$work/refused" 2>&1; then
        wrong "not refused: $*"
    fi
    grep -qF -- "$words" "$work/refused" || wrong "refused with other words: $(cat "$work/refused")"
    same "number of lines said" 1 "$(wc -l <"$work/refused")"
}

start_server() {
    socket=$("$packaging/local-server" start "$work/db" --fast)
}

# sql DATABASE STATEMENTS: rows with tabs, no headings.
sql() {
    mariadb --no-defaults --socket="$socket" --user=root --default-character-set=utf8mb4 --batch --raw \
        --skip-column-names "$1" -e "$2"
}

# none WHAT DATABASE SELECT: the select finds no row.
none() {
    local rows
    rows=$(sql "$2" "$3")
    [ -z "$rows" ] || wrong "$1: $(head -n 3 <<<"$rows")"
}
