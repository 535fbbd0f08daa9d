#!/bin/bash
# Log on, sell one ticket, leave: what the till writes, prints to a file and leaves behind.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
start_server
sql "UPDATE DFN_Paper SET PrintStyle='2' WHERE PaperID='P03'"
sql "INSERT INTO Sales VALUES ('07','张三')"
book_in A 001 100 15

checking "the logon stands in the middle of the screen, where the window manager puts a window"
start_program
in_front 用户登录
eval "$(xdotool getactivewindow getwindowgeometry --shell)"
[ $((X + WIDTH / 2 - 1366 / 2)) -lt 100 ] && [ "$X" -gt 300 ] && [ "$Y" -gt 200 ] || wrong "it stands at $X, $Y"

checking "a wrong password is refused in a box, the right one opens the main window"
log_on 2
box_comes 用户名与密码不匹配！
press Return
box_goes
in_front 用户登录
press BackSpace
enter 1
in_front "$main_window"
value_comes "01" "SELECT UserID FROM User_Status"

checking "one ticket by the piece: 10 at 3.25, packing 0.5"
choose_menu 3 1 收银开票
enter '' A-001 '' 10 '' 3.25 0.5 '' '' 07
until_true "the total" field_shows ¥37.5
same "written before the last key" 0 "$(sql "SELECT COUNT(*) FROM Sal_List")"
press Return
press Return
box_comes "没有打印机接收的单据存为 PDF 文件，放在这个文件夹里："
press Return
box_goes
value_comes "A-001|10|32.5|37.5|0|01" "SELECT CONCAT_WS('|',PRDNo,Num+0e0,Amount+0e0,TotalAmount+0e0,SaleType,Receiver) FROM Sal_List"
same "stock" 90 "$(sql "SELECT Num_Sal+0e0 FROM PRD_List")"
same "documents" 1 "$(find "$program/单据PDF" -name '*.pdf' | wc -l)"
same "errors" 0 "$(sql "SELECT COUNT(*) FROM ErrInfo")"
in_front 收银开票
until_true "the batch" field_shows ¥37.5
close_window 收银开票

checking "Ctrl+Q asks, Enter leaves, and nobody is logged on any more"
leave_program
same "logged on" 0 "$(sql "SELECT COUNT(*) FROM User_Status")"
same "said by the program" "" "$(grep -vE '^QStandardPaths|^orvane [0-9.]+$' "$pictures/program.log" || true)"
