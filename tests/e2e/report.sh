#!/bin/bash
# From the menu to a report, and from there to a spreadsheet and to paper.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
start_server

# A folder that was made for the first document is told in a box of its own.
no_box_after_another() {
    no_box || { press Return && sleep 0.3 && no_box; }
}

book_in A 001 100 15
sql "INSERT INTO Sal_List (SalNo,ID,PRDNo,PRDName,CustName,SaleDate,Num,Suttle,UPR,Amount,PackAmount,TotalAmount,Receiver)
    VALUES ('01260101001','x','A-001','红富士苹果','王老板',CURDATE(),10,0,3.25,32.5,5,37.5,'01'),
    ('01260101002','x','A-001','红富士苹果','王老板',CURDATE(),4,0,3.25,13,2,15,'01')"
open_main_window

checking "the menu asks for the conditions, Enter held on them asks once"
choose_menu 3 2 查询条件
hold Return 2
in_front 查询条件
press alt+s
until_true "the report" field_shows 收银情况明细表
until_true "its day" field_shows "$(date +%Y-%m-%d)"
until_true "its total" field_shows 52.5
in_front "$main_window"
picture report

checking "the menus wait while the report stands"
press alt+1
until_true "menu 1" menu_is_open
press Down Return
box_comes 请先关闭上一窗口后再重新打开本菜单，谢谢！
press Return
box_goes

checking "as a spreadsheet"
press ctrl+t
in_front 导出报表到Excel
type_text "$work/home/report.xls"
press Return
until_true "the end of the export" is_in_front 软件操作提示
press Return
in_front 导出报表到Excel
same "its kind" d0cf11e0 "$(head -c 4 "$work/home/report.xls" | od -An -tx1 | tr -d ' ')"
close_window 导出报表到Excel

checking "on paper: a file where there is no printer"
press ctrl+p
box_comes PDF
press Return
until_true "one document" test -n "$(find "$program/单据PDF" -name '*.pdf')"
until_true "no box" no_box_after_another
in_front "$main_window"

checking "the server goes away: a box, and the program can still be left"
press ctrl+f
in_front 查询条件
"$packaging/local-server" stop "$work/db"
press alt+s
box_comes 请
picture no-server
press Return
lives
