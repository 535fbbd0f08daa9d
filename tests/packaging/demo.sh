#!/bin/bash
# The small stall: every figure follows from the others.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
start_server
"$packaging/create-account-set" --socket "$socket" --database D --demo

checking "it is a stall worth looking at"
none "too little of it" D "SELECT * FROM (SELECT
    (SELECT COUNT(*) FROM Sal_List) tickets, (SELECT COUNT(*) FROM PRD_List WHERE bolCheckOut='0') lots,
    (SELECT COUNT(*) FROM CheckOut) settlements, (SELECT COUNT(DISTINCT SaleDate) FROM Sal_List) days) t
    WHERE tickets NOT BETWEEN 150 AND 250 OR lots<12 OR settlements<4 OR days<14"
none "kind missing" D "SELECT * FROM (SELECT
    (SELECT COUNT(*) FROM PRD_List WHERE bolCheckOut='0' AND PRDNo_S<>'') shortcut,
    (SELECT COUNT(*) FROM PRD_List WHERE bolCheckOut='0' AND bolFixed='1') locked,
    (SELECT COUNT(*) FROM PRD_List WHERE bolCheckOut='0' AND bolPack='1' AND PackNo<>'') deposit,
    (SELECT COUNT(*) FROM PRD_List WHERE bolCheckOut='0' AND VerifyID<>'') code,
    (SELECT COUNT(*) FROM PRD_List WHERE bolCheckOut='0' AND Num_Sal=0) sold_out,
    (SELECT COUNT(*) FROM (SELECT s.ID FROM Sal_List s JOIN PRD_List p ON p.ID=s.ID WHERE p.bolCheckOut='0'
        GROUP BY s.ID HAVING SUM(s.Suttle<>0)>0 AND SUM(s.Suttle=0)>0) m) mixed,
    (SELECT COUNT(*) FROM Sal_List WHERE SaleType=1 AND bolReturn='1') collected,
    (SELECT COUNT(*) FROM Sal_List WHERE SaleType=1 AND bolReturn='0') owed,
    (SELECT COUNT(*) FROM Cust_List WHERE bolControl='1') limited, (SELECT COUNT(*) FROM Cust_List WHERE bolControl='0') unlimited,
    (SELECT COUNT(*) FROM CustDebit WHERE DebitAmount>0) advances, (SELECT COUNT(*) FROM EStore_List) changes,
    (SELECT COUNT(*) FROM Fee_List) fees, (SELECT COUNT(*) FROM Foregift_RTN) returned) t
    WHERE LEAST(shortcut,locked,deposit,code,sold_out,mixed,collected,owed,limited,unlimited,advances,changes,fees,returned)=0 OR mixed<2"

checking "nothing lies in the future, nothing is older than three weeks"
none "date" D "SELECT d FROM (SELECT SaleDate d FROM Sal_List UNION SELECT ReturnDate FROM Sal_List WHERE ReturnDate<>'' UNION SELECT CustInDate FROM PRD_List
    UNION SELECT CheckDate FROM CheckOut UNION SELECT DebitDate FROM CustDebit UNION SELECT EStoreDate FROM EStore_List UNION SELECT PackDate FROM Pack_List
    UNION SELECT RForegiftDate FROM Foregift_RTN UNION SELECT FeeDate FROM Fee_List) t
    WHERE d NOT REGEXP '^[0-9]{4}-[0-9]{2}-[0-9]{2}\$' OR d>CURDATE() OR d<CURDATE()-INTERVAL 21 DAY"

checking "tickets: amounts from quantity and price, total from its parts, one decimal"
none "Amount" D "SELECT SalNo FROM Sal_List WHERE Amount<>ROUND(IF(Suttle<>0,Suttle,Num)*UPR,1)"
none "PackAmount, ForegiftAmount" D "SELECT SalNo FROM Sal_List WHERE PackAmount<>ROUND(Num*PerPack,1) OR ForegiftAmount<>ROUND(Num*PerForegift,1)"
none "TotalAmount" D "SELECT SalNo FROM Sal_List WHERE TotalAmount<>Amount+PackAmount+ForegiftAmount OR TotalAmount<>ROUND(TotalAmount,1) OR TotalAmount<=0"

checking "tickets: copies from the lot, a known salesman and cashier, a buyer on credit, a deposit where it is due"
none "copy" D "SELECT s.SalNo FROM Sal_List s LEFT JOIN PRD_List p ON p.ID=s.ID WHERE p.ID IS NULL OR s.PRDNo<>p.PRDNo OR s.PRDName<>p.PRDName OR s.CustName<>p.CustName OR s.Store<>p.Store OR s.PArea<>p.PArea"
none "code tables" D "SELECT SalNo FROM Sal_List WHERE SalesID NOT IN (SELECT SalesID FROM Sales) OR Receiver NOT IN (SELECT UserID FROM User_List)
    OR (Vendee<>'' AND Vendee NOT IN (SELECT CustName FROM Cust_List))"
none "credit without a buyer" D "SELECT SalNo FROM Sal_List WHERE SaleType=1 AND Vendee=''"
none "collection" D "SELECT SalNo FROM Sal_List WHERE (bolReturn='1' AND (SaleType<>1 OR ReturnDate<SaleDate)) OR (bolReturn='0' AND ReturnDate<>'')"
none "deposit" D "SELECT s.SalNo FROM Sal_List s JOIN PRD_List p ON p.ID=s.ID WHERE (p.bolPack='1') <> (s.PerForegift>0)"
none "sold before it came" D "SELECT s.SalNo FROM Sal_List s JOIN PRD_List p ON p.ID=s.ID WHERE CONCAT(s.SaleDate,s.SaleTime)<CONCAT(p.CustInDate,p.CustInTime)"

checking "no buyer owes more than his limit"
none "over the limit" D "SELECT c.CustName FROM Cust_List c JOIN Sal_List s ON s.Vendee=c.CustName WHERE c.bolControl='1' AND s.SaleType=1 AND s.bolReturn='0' GROUP BY c.CustName, c.CreditMoney HAVING SUM(s.TotalAmount)>c.CreditMoney"

checking "stock: what is left is what came less what went, never below nothing"
none "Num_Sal" D "SELECT p.ID FROM PRD_List p WHERE p.Num_Sal<0 OR p.Num_Sal<>p.Num
    + IFNULL((SELECT SUM(Num) FROM EStore_List e WHERE e.ID=p.ID AND e.EStoreType='0'),0) - IFNULL((SELECT SUM(Num) FROM EStore_List e WHERE e.ID=p.ID AND e.EStoreType='1'),0)
    - IFNULL((SELECT SUM(Num) FROM EStore_List e WHERE e.ID=p.ID AND e.EStoreType='2'),0) - IFNULL((SELECT SUM(Num) FROM Sal_List s WHERE s.ID=p.ID),0)"
none "open number used twice" D "SELECT PRDNo FROM PRD_List WHERE bolCheckOut='0' GROUP BY PRDNo HAVING COUNT(*)>1"
none "open shortcut used twice" D "SELECT PRDNo_S FROM PRD_List WHERE bolCheckOut='0' AND PRDNo_S<>'' GROUP BY PRDNo_S HAVING COUNT(*)>1"
none "lot's codes" D "SELECT ID FROM PRD_List WHERE PRDNo<>CONCAT(PID,'-',CustID) OR Store NOT IN (SELECT Store FROM Store) OR PID NOT IN (SELECT SortID FROM PRD_Sort)
    OR (PackNo<>'' AND PackNo NOT IN (SELECT PackNo FROM DFN_Pack)) OR LEFT(ID,8)<>REPLACE(CustFInDate,'-','')"
none "a locked lot is carried forward with its rest" D "SELECT o.ID FROM PRD_List o JOIN PRD_List n ON n.PRDNo=o.PRDNo AND n.bolCheckOut='0' WHERE o.bolCheckOut='1' AND o.bolFixed='1' AND n.Num<>o.Num_Sal"

checking "settlements: sums of their tickets and advances, fees from their rates, net of all lines"
none "sums" D "SELECT c.CheckNo FROM CheckOut c JOIN PRD_List p ON p.ID=c.ID WHERE c.Num<>(SELECT SUM(Num) FROM Sal_List s WHERE s.ID=c.ID)
    OR c.Amount<>(SELECT SUM(Amount) FROM Sal_List s WHERE s.ID=c.ID) OR c.ListNum<>(SELECT COUNT(*) FROM Sal_List s WHERE s.ID=c.ID)
    OR c.Suttle<>(SELECT SUM(Suttle)+p.MPercent*SUM(IF(Suttle=0,Num,0)) FROM Sal_List s WHERE s.ID=c.ID)
    OR c.LExpendPrice<>IFNULL((SELECT SUM(DebitAmount) FROM CustDebit d WHERE d.ID=c.ID),0)"
none "fees" D "SELECT CheckNo FROM CheckOut WHERE (Per_LManage<>'' AND LManagePrice<>ROUND(Per_LManage*1000*Amount/100000,1)) OR (Per_LElect<>'' AND LElectPrice<>ROUND(Per_LElect*1000*Amount/100000,1))
    OR (Per_LUnload<>'' AND LUnloadPrice<>ROUND(Per_LUnload*Suttle/1000,1)) OR (Per_LSani<>'' AND LSanitationPrice<>ROUND(Per_LSani*Suttle/1000,1))"
none "net" D "SELECT CheckNo FROM CheckOut WHERE LTotalPrice<>LManagePrice+LPackPrice+LUnloadPrice+LExpendPrice+LSanitationPrice+LElectPrice+LRecoupPrice+LChillPrice+LFieldPrice+LOtherPrice
    OR GTotalPrice<>Amount-LTotalPrice OR GTotalPrice<=0 OR GTotalPrice<>ROUND(GTotalPrice,1)"
none "lots, tickets and advances carry it" D "SELECT x.ID FROM (SELECT ID,bolCheckOut,CheckNo,'' CheckDate,0 dated FROM PRD_List UNION ALL SELECT ID,bolCheckOut,CheckNo,CheckDate,1 FROM Sal_List UNION ALL SELECT ID,bolCheckOut,CheckNo,CheckDate,1 FROM CustDebit) x
    LEFT JOIN CheckOut c ON c.ID=x.ID WHERE x.bolCheckOut<>IF(c.ID IS NULL,'0','1') OR x.CheckNo<>IFNULL(c.CheckNo,'') OR (dated=1 AND x.CheckDate<>IFNULL(c.CheckDate,''))"
none "sold or advanced after it" D "SELECT c.CheckNo FROM CheckOut c WHERE c.CheckDate<(SELECT MAX(SaleDate) FROM Sal_List s WHERE s.ID=c.ID) OR c.CheckDate<(SELECT MAX(DebitDate) FROM CustDebit d WHERE d.ID=c.ID)"
none "intake advance without its row" D "SELECT ID FROM PRD_List p WHERE DebitPrice<>IFNULL((SELECT SUM(DebitPrice) FROM CustDebit d WHERE d.ID=p.ID),0)"

checking "crates: counters from tickets and ledger, deposits given back once"
none "counter" D "SELECT PackNo FROM DFN_Pack k WHERE Num_PACK<>IFNULL((SELECT SUM(s.Num) FROM Sal_List s JOIN PRD_List p ON p.ID=s.ID WHERE p.PackNo=k.PackNo AND s.PerForegift>0),0)
    OR Num_Back<>IFNULL((SELECT SUM(Num) FROM Pack_List l WHERE l.PackNo=k.PackNo AND PackType='1'),0) OR Num_LST<>IFNULL((SELECT SUM(Num) FROM Pack_List l WHERE l.PackNo=k.PackNo AND PackType='2'),0)
    OR Num_PUR<>IF(PackStyle='0',IFNULL((SELECT SUM(Num) FROM Pack_List l WHERE l.PackNo=k.PackNo AND PackType='0'),0),0)
    OR Num_RTN<>IF(PackStyle='0',IFNULL((SELECT SUM(Num) FROM Pack_List l WHERE l.PackNo=k.PackNo AND PackType='3'),0),0)
    OR Num_Loan<>IF(PackStyle='1',IFNULL((SELECT SUM(Num) FROM Pack_List l WHERE l.PackNo=k.PackNo AND PackType='4'),0),0) OR Num_RTN>Num_Back OR Num_Back>Num_PACK"
none "deposit flag" D "SELECT s.SalNo FROM Sal_List s WHERE bForegiftRTN<>(SELECT COUNT(*) FROM Foregift_RTN f WHERE f.SalNo=s.SalNo)+(SELECT COUNT(*) FROM Pack_List l WHERE l.SalNo=s.SalNo)"
none "line number used twice" D "SELECT PackDate FROM Pack_List GROUP BY PackDate, PackNo, ITM HAVING COUNT(*)>1"

checking "numbers run without a gap, and the counters stand at the last one used"
none "ticket numbers" D "SELECT Receiver, SaleDate FROM Sal_List GROUP BY Receiver, SaleDate HAVING MAX(SUBSTRING(SalNo,9)+0)<>COUNT(*) OR MIN(LEFT(SalNo,8))<>CONCAT(Receiver,DATE_FORMAT(SaleDate,'%y%m%d'))
    OR MAX(LEFT(SalNo,8))<>CONCAT(Receiver,DATE_FORMAT(SaleDate,'%y%m%d')) OR COUNT(*)<>(SELECT SUM(CurrNumber) FROM Count_Bill WHERE TID='01' AND UID=Receiver AND CurrDate=SaleDate)"
none "ticket times run with the numbers" D "SELECT a.SalNo FROM Sal_List a JOIN Sal_List b ON b.Receiver=a.Receiver AND b.SaleDate=a.SaleDate AND b.SalNo>a.SalNo AND b.SaleTime<a.SaleTime"
none "settlement numbers" D "SELECT Receiver, CheckDate FROM CheckOut GROUP BY Receiver, CheckDate HAVING MAX(SUBSTRING(CheckNo,9)+0)<>COUNT(*) OR MIN(LEFT(CheckNo,8))<>CONCAT(Receiver,DATE_FORMAT(CheckDate,'%y%m%d'))
    OR COUNT(*)<>(SELECT SUM(CurrNumber) FROM Count_Bill WHERE TID='03' AND UID=Receiver AND CurrDate=CheckDate)"
none "lot numbers" D "SELECT CustFInDate FROM PRD_List GROUP BY CustFInDate HAVING MAX(SUBSTRING(ID,9)+0)<>COUNT(*) OR COUNT(*)<>(SELECT SUM(CurrNumber) FROM Count_Bill WHERE TID='C01' AND UID='' AND CurrDate=CustFInDate)"
none "owner numbers" D "SELECT SortID FROM PRD_Sort t WHERE CurrNumber<>(SELECT MAX(CustID+0) FROM PRD_List p WHERE p.PID=t.SortID)"
none "expense numbers" D "SELECT FeeDate FROM Fee_List GROUP BY FeeDate HAVING COUNT(DISTINCT FeeNo)<>(SELECT SUM(CurrNumber) FROM Count_Bill WHERE TID='FL' AND UID='03' AND CurrDate=FeeDate)"
same "counters for bills that are not there" 0 "$(sql D "SELECT COUNT(*) FROM Count_Bill WHERE (TID='01' AND CurrDate NOT IN (SELECT SaleDate FROM Sal_List)) OR (TID='03' AND CurrDate NOT IN (SELECT CheckDate FROM CheckOut))")"

checking "three users: owner, cashier, bookkeeper"
same "users" "01管理员1 02收银员2 03会计3" "$(sql D "SELECT GROUP_CONCAT(UserID,UserName,UserPWD ORDER BY UserID SEPARATOR ' ') FROM User_List")"
none "right to something that is not in the menu" D "SELECT MenuName FROM User_Menu WHERE MenuName NOT IN (SELECT MenuName FROM Menu_List)"
none "right of the owner missing" D "SELECT MenuName FROM Menu_List WHERE MenuName NOT IN (SELECT MenuName FROM User_Menu WHERE UserID='01')"
same "the cashier has the till" "menuSale menuRptSaleDetail menuESale menuForegift menuRptForegift" \
    "$(sql D "SELECT GROUP_CONCAT(m.MenuName ORDER BY m.MenuID SEPARATOR ' ') FROM User_Menu u JOIN Menu_List m ON m.MenuName=u.MenuName WHERE u.UserID='02'")"
none "the bookkeeper has all the cashier has not, and nothing else" D "SELECT m.MenuName FROM Menu_List m
    WHERE (SELECT COUNT(*) FROM User_Menu u WHERE u.MenuName=m.MenuName AND u.UserID IN ('02','03'))<>1"
same "right given twice" 88/88 "$(sql D "SELECT COUNT(DISTINCT UserID,MenuName) FROM User_Menu")/$(sql D "SELECT COUNT(*) FROM User_Menu")"
same "whose tickets the owner, the cashier and the bookkeeper see and adjust" "0111 0200 0311" \
    "$(sql D "SELECT GROUP_CONCAT(UserID,bolSearch,bolEdit ORDER BY UserID SEPARATOR ' ') FROM User_List")"

checking "it is the same stall each time"
"$packaging/create-account-set" --socket "$socket" --database D2 --demo
for table in $(sql D "SHOW TABLES"); do
    same "$table" "$(sql D "CHECKSUM TABLE $table" | cut -f2)" "$(sql D2 "CHECKSUM TABLE $table" | cut -f2)"
done
