# Shared by the cases: a server, the program, real keys, and what came of them. Run by run-case.
set -euo pipefail
root=$E2E_ROOT work=$E2E_WORK
packaging=$root/packaging
program=$work/果品\ 档口
pictures=$work/kept
database=Orvane_PUB
patience=${E2E_PATIENCE:-20} # seconds that anything may take
program_pid= socket= picture_number=0

clean_up() {
    local status=$?
    trap '' EXIT INT TERM HUP
    if [ $status != 0 ]; then
        picture at-the-end || true
        "$root/tests/e2e/screen" texts >"$pictures/texts.txt" 2>&1 || true
    fi
    [ -z "$program_pid" ] || kill -KILL "$program_pid" 2>/dev/null || true
    [ ! -d "$work/db" ] || "$packaging/local-server" stop "$work/db" || true
    [ $status = 0 ] && echo "passed" || echo "FAILED"
    exit $status
}
trap clean_up EXIT
trap 'exit 143' TERM INT HUP

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

# until_true WHAT COMMAND...: the command succeeds within the time.
until_true() {
    local what=$1 deadline=$((SECONDS + patience))
    shift
    until "$@"; do
        [ $SECONDS -lt $deadline ] || wrong "$what: not within $patience seconds"
        sleep 0.05
    done
}

# Into the folder that is kept when the case fails.
picture() {
    picture_number=$((picture_number + 1))
    scrot --silent "$pictures/$(printf %02d $picture_number)-$1.png"
}

# The server and the account set

# start_server [CREATE-ACCOUNT-SET OPTION...]: with user 01, 管理员, password 1.
start_server() {
    socket=$("$packaging/local-server" start "$work/db" --fast)
    "$packaging/create-account-set" --socket "$socket" --database "$database" "$@"
    [ -e "$program/Data/Data.ini" ] || connect_as root
}

# connect_as USER [PASSWORD]: what the program logs on to the server with.
connect_as() {
    ORVANE_DB_PASSWORD=${2-} "$packaging/connection-ini" --ini "$program/Data/Data.ini" --socket "$socket" --user "$1" \
        --database "$database"
}

# sql STATEMENTS: rows with tabs, no headings.
sql() {
    mariadb --no-defaults --socket="$socket" --user=root --default-character-set=utf8mb4 --batch --raw \
        --skip-column-names "$database" -e "$1"
}

has_value() {
    [ "$(sql "$2")" = "$1" ]
}

# value_comes EXPECTED SELECT: the one value, as soon as it stands there.
value_comes() {
    local deadline=$((SECONDS + patience))
    until has_value "$1" "$2"; do
        [ $SECONDS -lt $deadline ] || wrong "$2: expected <$1>, found <$(sql "$2")>"
        sleep 0.05
    done
}

# The program

start_program() {
    "$program/orvane" >"$pictures/program.log" 2>&1 &
    program_pid=$!
}

is_gone() {
    ! kill -0 "$program_pid" 2>/dev/null
}

lives() {
    kill -0 "$program_pid" 2>/dev/null || wrong "the program ended: $(tail -n 1 "$pictures/program.log")"
}

# ends_with CODE: the process ends by itself.
ends_with() {
    until_true "the end of the program" is_gone
    local code=0
    wait "$program_pid" || code=$?
    program_pid=
    same "exit code" "$1" "$code"
}

# What the screen shows

screen() {
    "$root/tests/e2e/screen" "$@" 2>/dev/null
}

shows() {
    screen windows | grep -qxF -- "$1"
}

shows_not() {
    ! shows "$1"
}

window_goes() {
    until_true "the end of the window $1" shows_not "$1"
}

# The window manager has given it the keyboard, so that the next key goes there.
# Behind its own title the main window bears that of an open list.
is_in_front() {
    local title
    title=$(xdotool getactivewindow getwindowname 2>/dev/null) && [[ $title = "$1" || $title = "$1 - ["*] ]]
}

in_front() {
    until_true "$1 in front" is_in_front "$1"
}

# box_comes WORDS: a message box that holds the words stands in front. Fails on a box of other words.
box_comes() {
    until_true "a box with <$1>" box_stands
    local words
    words=$(screen box)
    [[ $words == *"$1"* ]] || wrong "the box says <$words>, not <$1>"
}

box_stands() {
    is_in_front 系统提示 && [ -n "$(screen box)" ]
}

box_goes() {
    until_true "the end of the box" no_box
}

no_box() {
    [ -z "$(screen box)" ] && ! is_in_front 系统提示
}

# field_shows TEXT: a field or label of a window that shows.
field_shows() {
    screen texts | grep -qxF -- "$1"
}

# Keys, to whatever has the keyboard

press() {
    xdotool key --clearmodifiers -- "$@"
}

type_text() {
    xdotool type --delay 8 -- "$1"
}

# enter TEXT...: each text and Enter behind it. An empty one is Enter alone.
enter() {
    local text
    for text in "$@"; do
        [ -z "$text" ] || type_text "$text"
        press Return
    done
}

# hold KEY SECONDS: down, and up again.
hold() {
    xdotool keydown "$1"
    sleep "$2"
    xdotool keyup "$1"
}

# What many cases begin and end with

log_on() {
    in_front 用户登录
    press Down Return
    enter "${1:-1}"
}

main_window=Orvane水果销售管理系统通用版

open_main_window() {
    start_program
    log_on
    in_front "$main_window"
    value_comes 1 "SELECT COUNT(*) FROM User_Status"
    until_true "the menus" menus_are_there
}

menus_are_there() {
    field_shows '管理员[01]'
}

# choose_menu MENU ENTRY WINDOW: both counted from 1, until the window has the keyboard.
choose_menu() {
    in_front "$main_window"
    press "alt+$1"
    until_true "menu $1" menu_is_open
    local i
    for ((i = 0; i < $2; ++i)); do press Down; done
    press Return
    in_front "$3"
}

menu_is_open() {
    screen menu | grep -q .
}

close_window() {
    in_front "$1"
    press alt+c
    window_goes "$1"
    in_front "$main_window"
}

# book_in PID CUSTID PIECES KILOGRAMS: an open lot, PID-CUSTID.
book_in() {
    sql "INSERT INTO PRD_List (ID,PID,CustID,PRDNo,PRDName,Num,Num_Sal,PType,MPercent,CustInDate,CustFInDate,CustInTime,
        Store,PArea,CustName,Receiver) VALUES (CONCAT(DATE_FORMAT(NOW(),'%Y%m%d'),'$2'),'$1','$2','$1-$2','红富士苹果',$3,$3,
        '箱',$4,CURDATE(),CURDATE(),'05:00:00','一号库','烟台','王老板','01')"
}

leave_program() {
    in_front "$main_window"
    press ctrl+q
    box_comes 真的要退出系统吗？
    press Return
    ends_with 0
}
