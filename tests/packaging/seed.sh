#!/bin/bash
# The rows of a new account set.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
start_server
"$packaging/create-account-set" --socket "$socket" --database S

# That these are the entries of the menu bar is tested where the menu bar is known.
entries=$(sql S "SELECT COUNT(*) FROM Menu_List")

checking "how many rows each table starts with"
same "rows" "CheckOut 0
CheckOut_B 0
Count_Bill 0
CustDebit 0
Cust_List 0
DFN_CheckFee 2
DFN_CheckOutLabel 9
DFN_Pack 0
DFN_Pack_B 0
DFN_Paper 6
DFN_Round 2
DFN_RptCol 258
DFN_RptTitle 19
DFN_SaleType 2
DRptFont 1
EStore_List 0
ErrInfo 0
Fee_List 0
Fee_Type 0
Foregift_RTN 0
Menu_List $entries
PRD_List 0
PRD_Sort 0
Pack_List 0
Sal_List 0
Sal_List_B 0
Sales 0
Store 0
Sys_Define 1
User_List 1
User_Menu $entries
User_Status 0" "$(for table in $(sql S "SHOW TABLES"); do echo "$table $(sql S "SELECT COUNT(*) FROM $table")"; done | LC_ALL=C sort)"

checking "settings: sort order with its leading blank, landscape reports, no cut-off, nothing printed"
same "Sys_Define" "||0|2|0|00:00:00|0|0| Order By ID Desc|0" "$(sql S "SELECT CONCAT_WS('|',CompName,DepartName,PrintType,Orientation,bolVerify,Deadline,Control_Sale,CheckOutStyle,PRD_Order,bolShowEStore) FROM Sys_Define")"
same "DFN_Paper" "P01商品登记单0 P02库存变更单0 P03收款清单0 P04预支款登记单0 P05结算清单0 P06报表2" "$(sql S "SELECT GROUP_CONCAT(PaperID,PaperName,PrintStyle ORDER BY PaperID SEPARATOR ' ') FROM DFN_Paper WHERE LeftArea=0 AND TopArea=0")"
same "DFN_Round, DFN_CheckFee" "C010 C020 F010 F020" "$(sql S "SELECT GROUP_CONCAT(x ORDER BY x SEPARATOR ' ') FROM (SELECT CONCAT(CountID,bolRound) x FROM DFN_Round UNION SELECT CONCAT(FeeID,CountID) FROM DFN_CheckFee) t")"
same "DFN_SaleType" "0现金 1赊销" "$(sql S "SELECT GROUP_CONCAT(TypeID,TypeName ORDER BY TypeID SEPARATOR ' ') FROM DFN_SaleType")"
same "DFN_CheckOutLabel" "L0管理费|L1服务费|L2包装使用费|L3装卸费|L5卫生费|L6代扣税|L7冷藏费|L8邮电费|L9其  他" "$(sql S "SELECT GROUP_CONCAT(LabelID,Caption ORDER BY LabelID SEPARATOR '|') FROM DFN_CheckOutLabel")"
same "DRptFont" 9 "$(sql S "SELECT FontSize DIV 1 FROM DRptFont")"

checking "the first user has every right, and a password to log on with"
same "User_List" "01|管理员|1||0|1|1" "$(sql S "SELECT CONCAT_WS('|',UserID,UserName,UserPWD,UserIP,bolIP,bolSearch,bolEdit) FROM User_List")"
none "right missing" S "SELECT m.MenuName FROM Menu_List m LEFT JOIN User_Menu u ON u.MenuName=m.MenuName AND u.UserID='01' WHERE u.UserID IS NULL"

checking "menu entries: ids without a gap, captions all different, help left out"
same "ids" "$entries 01 $entries" "$(sql S "SELECT CONCAT_WS(' ',COUNT(DISTINCT MenuID),MIN(MenuID),MAX(MenuID)) FROM Menu_List WHERE MenuID REGEXP '^[0-9]{2}\$'")"
same "captions" "$entries" "$(sql S "SELECT COUNT(DISTINCT MenuText) FROM Menu_List")"
none "help needs a right" S "SELECT MenuName FROM Menu_List WHERE MenuName IN ('menuHelp','menuAbout')"

checking "report columns: every definition complete, wide enough, on its paper"
same "definitions" 26 "$(sql S "SELECT COUNT(DISTINCT RptName) FROM DFN_RptCol")"
none "gap in the column ids" S "SELECT RptName FROM DFN_RptCol GROUP BY RptName HAVING MAX(ColID)<>COUNT(*) OR MIN(ColID)<>'01'"
none "hidden or moved column" S "SELECT RptName, ColID FROM DFN_RptCol WHERE ColStatus<>'1' OR TempStatus<>'1' OR ColOrder<>ColID OR TempOrder<>ColID"
none "odd width or alignment" S "SELECT RptName, ColID FROM DFN_RptCol WHERE ColWidth % 15 <> 0 OR ColAlign NOT IN ('0','1','2')"
none "too wide for the paper" S "SELECT RptName, SUM(ColWidth) FROM DFN_RptCol GROUP BY RptName HAVING SUM(ColWidth)>16300"
# 180 twips a Chinese character, 90 a blank, as the list font draws them.
none "heading cut off" S "SELECT RptName, ColName FROM DFN_RptCol WHERE ColWidth < 180*CHAR_LENGTH(REPLACE(ColName,' ','')) + 90"
same "definitions without rows" "" "$(sql S "SELECT RptName FROM DFN_RptCol WHERE RptName IN ('RptCheque','RptSales','RptFee','RptAmount')")"
same "widths of the settlement report" 15930 "$(sql S "SELECT SUM(ColWidth) DIV 1 FROM DFN_RptCol WHERE RptName='RptCheckOutDetail'")"

checking "fee captions of the settlement head their columns in both settlement reports"
none "other caption" S "SELECT l.LabelID FROM DFN_CheckOutLabel l
    LEFT JOIN DFN_RptCol a ON a.RptName='RptCheckOutDetail' AND a.ColID=LPAD(SUBSTRING(l.LabelID,2)+6,2,'0')
    LEFT JOIN DFN_RptCol b ON b.RptName='RptCheckOutDescribe' AND b.ColID=LPAD(SUBSTRING(l.LabelID,2)+3,2,'0')
    WHERE NOT (a.ColName<=>l.Caption AND b.ColName<=>l.Caption)"
