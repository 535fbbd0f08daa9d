#!/bin/bash
# A key held down, repeated by the display some thirty times a second, does what one press does.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
start_server
sql "INSERT INTO Cust_List (CustName) VALUES ('甲行'),('乙行'),('丙行'),('丁行'),('戊行'),('己行')"

# windows_opened COMMAND...: how many windows opened while the command ran.
windows_opened() {
    local spy before
    before=$(xprop -root _NET_CLIENT_LIST)
    xprop -root -spy _NET_CLIENT_LIST >"$work/windows" &
    spy=$!
    "$@"
    kill "$spy"
    wait "$spy" 2>/dev/null || true
    grep -o '0x[0-9a-f]*' "$work/windows" | sort -u | grep -cvxFf <(grep -o '0x[0-9a-f]*' <<<"$before") || true
}

is_locked() {
    [ "$(sql "SELECT COUNT(*) FROM information_schema.PROCESSLIST WHERE INFO='SELECT SLEEP(0.5)'")" = 1 ]
}

checking "a box that came after a wait is answered by the next Enter, however soon"
start_program
in_front 用户登录
press Down Return
type_text 2
for _ in 1 2 3; do
    # So long that the key is up again before the box stands.
    sql "LOCK TABLES User_List WRITE; SELECT SLEEP(0.5)" >/dev/null &
    until_true "the lock" is_locked
    press Return
    in_front 系统提示
    press Return # before another look at the screen, which takes longer than a cashier
    box_goes
    in_front 用户登录
done
press BackSpace
enter 1
in_front "$main_window"
until_true "the menus" menus_are_there

checking "Enter held in the window of a user: no box is answered, one user added at the most"
choose_menu 1 1 "$main_window"
until_true "the list" shows 数据列表
press ctrl+n
in_front 用户信息
enter 05 chen
opened=$(windows_opened hold Return 3)
[ "$opened" -le 1 ] || wrong "$opened boxes opened under one Enter"
if [ "$opened" = 1 ]; then
    box_comes ！
    press Return
    box_goes
fi
[[ $(sql "SELECT COUNT(*) FROM User_List") =~ ^[12]$ ]] || wrong "more than one user was added"
close_window 用户信息
press ctrl+F4
window_goes 数据列表

checking "Ctrl+D held in the list of buyers deletes the one that is selected"
choose_menu 1 6 "$main_window"
until_true "the list" shows 数据列表
until_true "the buyers" field_shows 甲行
press Down
press Down
xdotool keydown ctrl
hold d 3
xdotool keyup ctrl
same "buyers" 5 "$(sql "SELECT COUNT(*) FROM Cust_List")"
press ctrl+F4
window_goes 数据列表

leave_program
