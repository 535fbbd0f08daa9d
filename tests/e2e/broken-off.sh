#!/bin/bash
# A window closed in the middle of its work, the program closed in the middle, the server gone.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
start_server
sql "INSERT INTO Sales VALUES ('07','张三')"
book_in A 001 100 15

nothing_is_sold() {
    same "tickets" 0 "$(sql "SELECT COUNT(*) FROM Sal_List")"
    same "stock" 100 "$(sql "SELECT Num_Sal+0e0 FROM PRD_List")"
}

half_a_ticket() {
    choose_menu 3 1 收银开票
    enter '' A-001 '' 10
    until_true "the lot" field_shows 红富士苹果
}

checking "the till closed by the window manager with half a ticket in it: nothing stored, the menus work"
open_main_window
half_a_ticket
press alt+F4
window_goes 收银开票
nothing_is_sold

checking "the main window closed while the till is open: asks, and takes the till with it"
half_a_ticket
xdotool search --name "^$main_window" windowactivate --sync
in_front "$main_window"
press alt+F4
box_comes 真的要退出系统吗？
press Return
ends_with 0
nothing_is_sold
same "logged on" 0 "$(sql "SELECT COUNT(*) FROM User_Status")"
same "errors" 0 "$(sql "SELECT COUNT(*) FROM ErrInfo")"

checking "the server gone under a ticket: a box says so, the ticket stays on the screen, the program lives"
open_main_window
half_a_ticket
kill -KILL "$(cat "$work/db/server.pid")"
# Whichever field asks the server first.
for text in '' 3.25 0.5 '' '' 07 '' ''; do
    enter "$text"
    sleep 0.3
    ! box_stands || break
done
box_comes erver
lives
press Return
box_goes
lives
field_shows 红富士苹果 || wrong "the ticket is gone from the screen"

checking "and can be closed"
in_front 收银开票
press alt+F4
window_goes 收银开票
in_front "$main_window"
press ctrl+q
box_comes 真的要退出系统吗？
press Return
for _ in 1 2 3; do # what cannot be taken back on the server is told
    until_true "the end, or a box" eval 'is_gone || box_stands'
    is_gone || press Return
done
until_true "the end of the program" is_gone
wait "$program_pid" || wrong "it ended with code $?"
program_pid=
"$packaging/local-server" start "$work/db" --fast >/dev/null
nothing_is_sold
