#!/bin/bash
# The tables of a new account set: names, columns, types, defaults, keys, and that lookups use an index.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
start_server
"$packaging/create-account-set" --socket "$socket" --database S

# NAME: COLUMN... where a sign tells the type: # number, % integer, nothing text.
expected="
User_List: UserID UserName UserPWD UserIP bolIP bolSearch bolEdit
User_Menu: UserID MenuName
Menu_List: MenuID MenuName MenuText
User_Status: UserID CheckID LogDate LogTime
ErrInfo: ErrUserName ErrDescription ErrSource ErrDate ErrTime
Sys_Define: CompName DepartName PrintType %Orientation bolVerify Deadline Control_Sale CheckOutStyle PRD_Order bolShowEStore
DFN_Paper: PaperID PaperName #LeftArea #TopArea PrintStyle
DFN_Round: CountID bolRound
DFN_CheckFee: FeeID CountID
DFN_SaleType: TypeID TypeName
DFN_CheckOutLabel: LabelID Caption
DFN_RptTitle: RptName RptTitle
DFN_RptCol: RptName ColID ColName ColWidth ColAlign ColStatus %ColOrder TempStatus %TempOrder
DRptFont: #FontSize
Count_Bill: TID UID CurrDate %CurrNumber
Store: Store
Sales: SalesID SalesName
PRD_Sort: SortID SortName %CurrNumber
Fee_Type: FeeID FeeName
Cust_List: CustName CustAddress CustCharge CustTel CustFax CustMobile #CreditMoney bolControl
PRD_List: ID PID CustID PRDNo PRDNo_S PRDName #Num #Num_Sal PType #MPercent CustInDate CustFInDate CustInTime Store PArea bolPack #PerForegift PackNo CustName CardNO VerifyID Address Tel Fax Mobile #DebitPrice Memo bolFixed Receiver EReceiver EDate ETime bolCheckOut CheckNo
EStore_List: %ITM EStoreDate ID PRDNo PRDName CustName EStoreType #Num Memo
Sal_List: SalNo ListNo %ITM ID PRDNo PRDName CustName Store PArea Vendee SaleDate FSaleDate SaleTime #Num #Suttle #UPR #PerPack #PackAmount #PerForegift #ForegiftAmount #Amount #TotalAmount Receiver SalesID %SaleType bForegiftRTN bolCheckOut CheckDate CheckNo bolReturn ReturnDate EReceiver EDate ETime
Sal_List_B: SalNo ListNo %ITM ID PRDNo PRDName CustName Store PArea Vendee SaleDate FSaleDate SaleTime #Num #Suttle #UPR #PerPack #PackAmount #PerForegift #ForegiftAmount #Amount #TotalAmount Receiver SalesID %SaleType bForegiftRTN bolCheckOut CheckDate CheckNo bolReturn ReturnDate EReceiver EDate ETime
Foregift_RTN: RForegiftDate SalNo PRDNo PRDName CustName SaleDate #Num #PerForegift #ForegiftAmount #Num_R #ForegiftAmount_R Memo
DFN_Pack: PackNo PackName PackStyle #Num_BGN #Num_PUR #Num_PACK #Num_Back #Num_LST #Num_RTN #Num_Loan
DFN_Pack_B: PackNo PackName PackStyle #Num_BGN #Num_PUR #Num_PACK #Num_Back #Num_LST #Num_RTN #Num_Loan CheckDate %CheckITM
Pack_List: %ITM PackDate PackNo PackName PackType SalNo #Num #PerForegift #ForegiftAmount Memo bolCheck CheckDate
CheckOut: ID CheckNo CheckDate PRDNo PRDName #Num #Suttle #Amount #ListNum CustName Store #LManagePrice #LPackPrice #LUnloadPrice #LExpendPrice #LSanitationPrice #LElectPrice #LRecoupPrice #LChillPrice #LFieldPrice #LOtherPrice #LTotalPrice #GTotalPrice CheckUser PayUser Receiver Per_LManage Per_LElect Per_LUnload Per_LSani
CheckOut_B: ID CheckNo CheckDate PRDNo PRDName #Num #Suttle #Amount #ListNum CustName Store #LManagePrice #LPackPrice #LUnloadPrice #LExpendPrice #LSanitationPrice #LElectPrice #LRecoupPrice #LChillPrice #LFieldPrice #LOtherPrice #LTotalPrice #GTotalPrice CheckUser PayUser Receiver Per_LManage Per_LElect Per_LUnload Per_LSani
CustDebit: ID PRDNo CustName PRDName Store #DebitAmount #DebitPrice DebitDate Receiver Memo bolCheckOut CheckDate CheckNo
Fee_List: FeeNo FeeDate %ITM FeeID FeeName DSC #Amount
"

checking "tables and columns, spelled exactly, in their order and of their kind"
found=$(sql S "SET SESSION group_concat_max_len=10000; SELECT CONCAT(TABLE_NAME, ': ', GROUP_CONCAT(CONCAT(
    CASE WHEN COLUMN_TYPE='decimal(20,6)' THEN '#' WHEN DATA_TYPE='int' THEN '%' WHEN DATA_TYPE='varchar' THEN '' ELSE '?' END,
    COLUMN_NAME) ORDER BY ORDINAL_POSITION SEPARATOR ' ')) FROM information_schema.COLUMNS WHERE TABLE_SCHEMA='S' GROUP BY TABLE_NAME" | sort)
diff <(grep . <<<"$expected" | sort) <(echo "$found") || wrong "tables or columns differ"

checking "every table is InnoDB and compares without regard to case and trailing blanks"
none "other engine or collation" S "SELECT TABLE_NAME FROM information_schema.TABLES WHERE TABLE_SCHEMA='S'
    AND (ENGINE<>'InnoDB' OR TABLE_COLLATION<>'utf8mb4_general_ci')"
none "text of another collation" S "SELECT TABLE_NAME, COLUMN_NAME FROM information_schema.COLUMNS WHERE TABLE_SCHEMA='S'
    AND DATA_TYPE='varchar' AND COLLATION_NAME<>'utf8mb4_general_ci'"
same "user found by other case and trailing blanks" 1 "$(sql S "INSERT INTO Sales VALUES ('a1','李'); SELECT COUNT(*) FROM Sales WHERE SalesID='A1  '")"
same "leading blanks count" 0 "$(sql S "SELECT COUNT(*) FROM Sales WHERE SalesID=' a1'")"

checking "no column is null, and each has a default: empty, 0 or the flag 0"
none "nullable column, or one without such a default" S "SELECT TABLE_NAME, COLUMN_NAME, COLUMN_DEFAULT FROM information_schema.COLUMNS
    WHERE TABLE_SCHEMA='S' AND (IS_NULLABLE='YES' OR COLUMN_DEFAULT IS NULL OR NOT (
    (DATA_TYPE='varchar' AND COLUMN_DEFAULT IN ('''''', '''0''')) OR (DATA_TYPE='int' AND COLUMN_DEFAULT='0')
    OR (DATA_TYPE='decimal' AND COLUMN_DEFAULT+0=0)))"
zero="bolIP bolSearch bolEdit PrintType bolVerify Control_Sale CheckOutStyle bolShowEStore PrintStyle bolRound ColAlign ColStatus TempStatus bolControl bolPack bolFixed bolCheckOut bForegiftRTN bolReturn bolCheck PackStyle PackType EStoreType"
same "flags without the default 0" "" "$(sql S "SELECT DISTINCT COLUMN_NAME FROM information_schema.COLUMNS WHERE TABLE_SCHEMA='S'
    AND FIND_IN_SET(COLUMN_NAME, '${zero// /,}') AND COLUMN_DEFAULT<>'''0'''")"

checking "dates and times are text of their width, names and remarks have room for Chinese"
none "date or time of another width" S "SELECT TABLE_NAME, COLUMN_NAME, COLUMN_TYPE FROM information_schema.COLUMNS WHERE TABLE_SCHEMA='S' AND
    ((COLUMN_NAME LIKE '%Date' AND COLUMN_TYPE<>'varchar(10)') OR (COLUMN_NAME LIKE '%Time' AND COLUMN_TYPE<>'varchar(8)'))"
none "narrow column" S "SELECT TABLE_NAME, COLUMN_NAME, COLUMN_TYPE FROM information_schema.COLUMNS WHERE TABLE_SCHEMA='S' AND
    ((COLUMN_NAME LIKE '%Name' AND CHARACTER_MAXIMUM_LENGTH<50) OR (COLUMN_NAME='Memo' AND CHARACTER_MAXIMUM_LENGTH<255)
    OR (COLUMN_NAME='ErrDescription' AND CHARACTER_MAXIMUM_LENGTH<500) OR (COLUMN_NAME IN ('Vendee','Store','PArea') AND CHARACTER_MAXIMUM_LENGTH<50))"

checking "unique keys stand on the keys of the windows and nowhere else"
same "unique keys" "CheckOut CheckNo
Count_Bill TID,CurrDate,UID
Cust_List CustName
DFN_CheckFee FeeID
DFN_CheckOutLabel LabelID
DFN_Pack PackNo
DFN_Paper PaperID
DFN_Round CountID
DFN_RptCol RptName,ColID
DFN_RptTitle RptName
Fee_Type FeeID
Menu_List MenuName
PRD_List ID
PRD_Sort SortID
Sal_List SalNo
Sales SalesID
Store Store
User_List UserID" "$(sql S "SELECT CONCAT(TABLE_NAME, ' ', GROUP_CONCAT(COLUMN_NAME ORDER BY SEQ_IN_INDEX)) FROM information_schema.STATISTICS
    WHERE TABLE_SCHEMA='S' AND NON_UNIQUE=0 GROUP BY TABLE_NAME, INDEX_NAME" | sort)"

checking "a number keeps what was typed and sums exactly"
same "sum" 0.300000 "$(sql S "INSERT INTO Fee_List (FeeNo, Amount) VALUES ('a',0.1),('a',0.2); SELECT SUM(Amount) FROM Fee_List; DELETE FROM Fee_List")"
same "three places" 10.125000 "$(sql S "INSERT INTO Fee_List (FeeNo, Amount) VALUES ('a',10.125); SELECT Amount FROM Fee_List; DELETE FROM Fee_List")"

checking "a correction moves stock and quantity in one statement, left to right"
same "70 of 100 corrected to 80" "50 80" "$(sql S "SET SESSION sql_mode=''; INSERT INTO PRD_List (ID, Num, Num_Sal) VALUES ('x',100,70);
    UPDATE PRD_List SET Num_Sal=Num_Sal-Num+80,Num=80 WHERE ID='x'; SELECT CONCAT(Num_Sal DIV 1, ' ', Num DIV 1) FROM PRD_List; DELETE FROM PRD_List")"

checking "the conditions of tills, lists and reports find an index when there are many tickets"
sql S "INSERT INTO Sal_List (SalNo, ListNo, ID, PRDNo, Vendee, SaleDate, ReturnDate, Receiver, SalesID, Store, SaleType, bolReturn, bolCheckOut, bForegiftRTN, ForegiftAmount)
    SELECT CONCAT('02', LPAD(seq,9,'0')), seq, CONCAT('L', seq DIV 40), CONCAT('A-', seq DIV 40), CONCAT('买', seq % 300), CONCAT('D', seq DIV 100),
    IF(seq % 3 = 0, CONCAT('D', seq DIV 100), ''), CONCAT('0', seq % 5), CONCAT('1', seq % 7), CONCAT('S', seq % 4), seq % 3 = 0, IF(seq % 3 = 0 AND seq < 19000, '1', '0'),
    IF(seq < 19000, '1', '0'), IF(seq < 19000, '1', '0'), seq % 2 FROM seq_1_to_20000;
  INSERT INTO PRD_List (ID, PRDNo, PRDNo_S, bolCheckOut) SELECT CONCAT('L',seq), CONCAT('A-',seq), IF(seq % 5, '', seq), IF(seq < 1900, '1', '0') FROM seq_1_to_2000;
  INSERT INTO EStore_List (ID, EStoreDate, PRDNo, EStoreType) SELECT CONCAT('L',seq DIV 3), CONCAT('D',seq DIV 10), 'A-1', seq % 3 FROM seq_1_to_2000;
  INSERT INTO CustDebit (ID, DebitDate, bolCheckOut) SELECT CONCAT('L',seq DIV 2), CONCAT('D',seq DIV 10), IF(seq<1900,'1','0') FROM seq_1_to_2000;
  INSERT INTO CheckOut (CheckNo, ID, CheckDate, Store) SELECT seq, CONCAT('L',seq), CONCAT('D',seq DIV 10), 'S1' FROM seq_1_to_2000;
  INSERT INTO CheckOut_B (CheckNo, CheckDate) SELECT seq, CONCAT('D',seq DIV 10) FROM seq_1_to_2000;
  INSERT INTO Sal_List_B (SalNo, ID, SaleDate) SELECT seq, seq, CONCAT('D',seq DIV 10) FROM seq_1_to_2000;
  INSERT INTO Pack_List (PackNo, PackDate, ITM, bolCheck) SELECT CONCAT('K',seq % 40), CONCAT('D',seq DIV 10), 1, IF(seq<1900,'1','0') FROM seq_1_to_2000;
  INSERT INTO DFN_Pack_B (PackNo, CheckDate) SELECT 'K', CONCAT('D',seq) FROM seq_1_to_2000;
  INSERT INTO Foregift_RTN (SalNo, RForegiftDate) SELECT seq, CONCAT('D',seq DIV 10) FROM seq_1_to_2000;
  INSERT INTO Fee_List (FeeNo, FeeDate, FeeID) SELECT seq DIV 3, CONCAT('D',seq DIV 10), seq % 4 FROM seq_1_to_2000;
  INSERT INTO Count_Bill (TID, UID, CurrDate) SELECT '01', '02', CONCAT('D',seq) FROM seq_1_to_2000;
  INSERT INTO Count_Bill (TID, CurrDate) SELECT 'C01', CONCAT('D',seq) FROM seq_1_to_2000;
  INSERT INTO Cust_List (CustName, bolControl) SELECT CONCAT('买',seq), seq % 2 FROM seq_1_to_2000;
  ANALYZE TABLE Cust_List, Sal_List, PRD_List, EStore_List, CustDebit, CheckOut, CheckOut_B, Sal_List_B, Pack_List, DFN_Pack_B, Foregift_RTN, Fee_List, Count_Bill" >/dev/null
# TABLE | FIELDS | CONDITION | its index | how many rows at most the server may expect to look at
while IFS='|' read -r table fields where index most; do
    [ -n "$table" ] || continue
    plan=$(sql S "EXPLAIN SELECT $fields FROM $table WHERE $where")
    IFS=$'\t' read -r _ _ _ type _ key _ _ rows extra <<<"$plan"
    # Found by its key, and then not of that kind: nothing left to read.
    [[ $extra != *"after reading const tables"* ]] || continue
    [ "$key" = "$index" ] || wrong "$table WHERE $where uses the index $key, not $index: $plan"
    case $type in ALL | index) wrong "$table WHERE $where reads everything: $plan" ;; esac
    [ "$rows" -le "${most:-200}" ] || wrong "$table WHERE $where looks at $rows rows: $plan"
    case $fields in SUM*) [[ $extra == *"Using index"* ]] || wrong "$table WHERE $where leaves the index: $plan" ;; esac
done <<'END'
PRD_List|PRDNo|(PRDNo='A-1950' Or PRDNo_S='A-1950') And bolCheckOut='0'|PRDNo,PRDNo_S
PRD_List|PRDNo|PRDNo='A-1950' And VerifyID='1' And bolCheckOut='0'|PRDNo
PRD_List|PRDNo|PRDNo_S='1950' And bolCheckOut='0' And PRDNo<>'A-1'|PRDNo_S
PRD_List|PRDNo,Num|bolCheckOut='0' Order By ID Desc|bolCheckOut
PRD_List|PRDNo|ID='L1950' And bolCheckOut='0'|PRIMARY
EStore_List|SUM(Num)|ID='L7' And EStoreType='1'|ID
EStore_List|ITM|EStoreDate='D7' And PRDNo='A-1' Order By ITM DESC|EStoreDate
Sal_List|SUM(Num)|ID='L7'|ID
Sal_List|SUM(Num)|ID='L7' And Suttle=0|ID
Sal_List|SUM(Suttle)|ID='L7'|ID
Sal_List|SUM(Amount)|ID='L7'|ID
Sal_List|SUM(Num)|ID='L7' And SaleDate='D2'|ID
Sal_List|Count(*)|ID='L7'|ID
Cust_List|CreditMoney|CustName='买3' And bolControl='1'|PRIMARY
Sal_List|SUM(TotalAmount)|Vendee='买3' And SaleType='1' And bolReturn='0'|Vendee
Sal_List|SUM(TotalAmount)|Vendee='买3' And SaleType='1' And bolReturn='1' And (ReturnDate>='D1' And ReturnDate<='D2')|Vendee
Sal_List|SUM(TotalAmount)|SaleType='1' And bolReturn='0'|SaleType|1000
Sal_List|SUM(TotalAmount)|(ReturnDate>='D190' And ReturnDate<='D191') And bolReturn='1'|ReturnDate
Sal_List|SUM(ForegiftAmount)|bForegiftRTN='0' And ForegiftAmount>0|bForegiftRTN|1500
Sal_List|SUM(Amount)|bolCheckOut='0'|bolCheckOut|2500
Sal_List|PRDNo,ID|PRDNo='A-480' And bolCheckOut='0'|bolCheckOut
Sal_List|PRDNo|SalNo='02000000007'|PRIMARY
Sal_List|PRDNo|(SalNo='02000000007' Or ListNo='02000000007') And bForegiftRTN='0'|PRIMARY,ListNo
Sal_List|SalNo|(SaleDate>='D150' And SaleDate<='D150') Order By SalNo|SaleDate
Sal_List|Amount|SaleDate='D150' And PRDName='苹果'|SaleDate
Sal_List|Amount|(SaleDate>='D150' And SaleDate<='D150') And Receiver='01'|Receiver
Sal_List|Amount|(SaleDate>='D150' And SaleDate<='D150') And SalesID='11'|SalesID
Sal_List|Amount|(SaleDate>='D150' And SaleDate<='D150') And Store='S1'|Store
Sal_List_B|SalNo|(SaleDate>='D150' And SaleDate<='D150')|SaleDate
CustDebit|SUM(DebitAmount)|ID='L7'|ID
CustDebit|SUM(DebitAmount)|bolCheckOut='0'|bolCheckOut
CustDebit|DebitAmount|(DebitDate>='D150' And DebitDate<='D150')|DebitDate
CheckOut|PRDNo|CheckNo='77'|PRIMARY
CheckOut|Amount|Store='S1' And CheckDate='D7'|CheckDate
CheckOut_B|Amount|(CheckDate>='D7' And CheckDate<='D7')|CheckDate
Pack_List|ITM|PackDate='D7' And PackNo='K1' Order By ITM DESC|PackDate
Pack_List|Num|PackNo='K1' And bolCheck='0'|PackNo
DFN_Pack_B|Num_BGN|CheckDate='D7' And PackNo='K' And CheckITM='0'|CheckDate
Foregift_RTN|SalNo|SalNo='7'|SalNo
Foregift_RTN|SalNo|(RForegiftDate>='D7' And RForegiftDate<='D7') Order By RForegiftDate|RForegiftDate
Fee_List|FeeDate|FeeNo='7'|FeeNo
Fee_List|SUM(Amount)|(FeeDate>='D7' And FeeDate<='D7') And FeeID='1'|FeeDate
Count_Bill|CurrNumber|CurrDate='D7' And TID='01' And UID='02'|PRIMARY
Count_Bill|CurrNumber|CurrDate='D7' And TID='C01'|PRIMARY
User_Status|CheckID|UserID='01'|UserID
END
