-- Fills a fresh account set with the business of a stall that writes 700 tickets a day:
-- @tickets = 10000 is two weeks of it, @tickets = 1000000 four years. What is open at the end is the
-- same for both: 500 lots, and the last week's credit. What lies behind it grows with @tickets.
--
-- Everything follows from the numbers of lots and tickets, so two runs of one day make the same rows.
-- Days count back from today; the last ticket is yesterday's. @tickets is a multiple of 16, from 8000.

SET NAMES utf8mb4;
SET SESSION sql_mode = '';
-- An empty table is then filled in one go, its indexes built by sorting.
SET unique_checks = 0, foreign_key_checks = 0;

SET @perDay = 700, @perLot = 16, @open = 500;
SET @lots = @tickets DIV @perLot;
SET @days = (@tickets + @perDay - 1) DIV @perDay;
SET @start = CURDATE() - INTERVAL @days DAY;
-- 500 lots are sold side by side: block after block of 500 lots with 16 tickets each.
SET @block = @open * @perLot;

UPDATE Sys_Define SET CompName = '青禾果品代销行', Control_Sale = '1', Deadline = '23:59:59';
UPDATE DFN_Round SET bolRound = '1';

INSERT INTO User_List (UserID, UserName, UserPWD, bolSearch, bolEdit) VALUES
  ('02', '收银员甲', '2', '0', '0'), ('03', '收银员乙', '3', '0', '0'), ('04', '收银员丙', '4', '0', '0');
INSERT INTO Store (Store) VALUES ('一号库'), ('二号库'), ('冷库'), ('门口档');
INSERT INTO Sales (SalesID, SalesName)
  SELECT 10 + seq, CONCAT('业务员', seq) FROM seq_1_to_10;
INSERT INTO PRD_Sort (SortID, SortName, CurrNumber)
  SELECT CHAR(65 + seq), ELT(1 + seq, '苹果', '雪梨', '蜜橘', '香蕉', '葡萄', '哈密瓜', '猕猴桃', '芒果', '石榴', '柚子'), 999
  FROM seq_0_to_9;
INSERT INTO Fee_Type (FeeID, FeeName) VALUES ('01', '市场租金'), ('02', '水电费'), ('03', '装卸工资');
INSERT INTO DFN_Pack (PackNo, PackName, PackStyle, Num_BGN) VALUES ('K1', '大胶筐', '1', 3000), ('K2', '小胶筐', '1', 8000);
INSERT INTO Cust_List (CustName, CustAddress, CustCharge, CustMobile, CreditMoney, bolControl)
  SELECT CONCAT('果品店', LPAD(seq, 3, '0')), CONCAT('文昌路', seq, '号'), '店主', CONCAT('136', 10000000 + seq), 900000, '1'
  FROM seq_1_to_293;

-- Lots. A block's lots arrive within the eleven days before its first sale, so no two share an ID. A
-- number comes back after 10000 lots, as numbers do; the last 500 lots are open, the others were settled
-- twelve or thirteen days after the first sale of their block.
CREATE TEMPORARY TABLE fill_lot (
  Lot INT NOT NULL PRIMARY KEY, InBlock INT NOT NULL, FirstDay INT NOT NULL, LotDate DATE NOT NULL, ID VARCHAR(30) NOT NULL,
  PRDNo VARCHAR(50) NOT NULL, Store VARCHAR(60) NOT NULL, CustName VARCHAR(60) NOT NULL, PerForegift INT NOT NULL,
  bolCheckOut INT NOT NULL, CheckDate VARCHAR(10) NOT NULL, CheckNo VARCHAR(30) NOT NULL
) DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

INSERT INTO fill_lot
  SELECT Lot, InBlock, FirstDay, LotDate, CONCAT(DATE_FORMAT(LotDate, '%Y%m%d'), LPAD(InBlock DIV 11 + 1, 3, '0')),
    CONCAT(CHAR(65 + Lot % 10), '-', LPAD((Lot DIV 10) % 1000, 3, '0')),
    ELT(1 + Lot % 4, '一号库', '二号库', '冷库', '门口档'), CONCAT('货主', LPAD(Lot % 240, 3, '0')), IF(Lot % 2 = 0, 5, 0),
    Settled, IF(Settled, CheckDate, ''), IF(Settled, CONCAT('01', DATE_FORMAT(CheckDate, '%y%m%d'), LPAD(InBlock DIV 2 + 1, 3, '0')), '')
  FROM (SELECT Lot, InBlock, FirstDay, @start + INTERVAL FirstDay - InBlock % 11 DAY LotDate, Lot < @lots - @open Settled,
      @start + INTERVAL FirstDay + 12 + Lot % 2 DAY CheckDate
    FROM (SELECT CAST(seq AS SIGNED) Lot, CAST(seq % @open AS SIGNED) InBlock,
        CAST((seq DIV @open) * @block DIV @perDay AS SIGNED) FirstDay
      FROM seq_0_to_9999999 WHERE seq < @lots) n) d;

INSERT INTO PRD_List (ID, PID, CustID, PRDNo, PRDNo_S, PRDName, Num, PType, MPercent, CustInDate, CustFInDate, CustInTime,
    Store, PArea, bolPack, PerForegift, PackNo, CustName, VerifyID, Mobile, bolFixed, Receiver, bolCheckOut, CheckNo)
  SELECT ID, LEFT(PRDNo, 1), SUBSTRING(PRDNo, 3), PRDNo, IF(Lot % 5 = 0, 1000 + InBlock, ''), s.SortName, 1000, '件', 18,
    LotDate, LotDate, SEC_TO_TIME(50000 + InBlock), Store, '山东栖霞', IF(PerForegift > 0, '1', '0'), PerForegift,
    IF(PerForegift > 0, IF(Lot % 4 = 0, 'K1', 'K2'), ''), CustName, LPAD(InBlock, 4, '0'), CONCAT('135', 10000000 + Lot % 240),
    IF(Lot % 9 = 0, '1', '0'), '01', bolCheckOut, CheckNo
  FROM fill_lot JOIN PRD_Sort s ON s.SortID = LEFT(PRDNo, 1) ORDER BY Lot;

-- Stock changes: 0 added to every second lot, 1 moved out of every fifth, 2 lost from every fourth.
INSERT INTO EStore_List (ITM, EStoreDate, ID, PRDNo, PRDName, CustName, EStoreType, Num, Memo)
  SELECT 1 + l.InBlock DIV 11, l.LotDate + INTERVAL 1 DAY, l.ID, l.PRDNo, p.PRDName, l.CustName, c.EStoreType, c.Num, c.Memo
  FROM fill_lot l JOIN PRD_List p ON p.ID = l.ID
    JOIN (SELECT 2 Step, '0' EStoreType, 20 Num, '第二车' Memo UNION ALL SELECT 5, '1', 10, '转档' UNION ALL SELECT 4, '2', 3, '碰伤') c
      ON l.Lot % c.Step = 0
  ORDER BY l.Lot;

-- Tickets: four cashiers by turns of the day, every third ticket with a buyer on credit, collected after
-- a week.
CREATE TEMPORARY TABLE fill_ticket (
  Ticket INT NOT NULL PRIMARY KEY, Lot INT NOT NULL, SaleDate DATE NOT NULL, OnDay INT NOT NULL, UID VARCHAR(2) NOT NULL,
  Vendee VARCHAR(60) NOT NULL, Num INT NOT NULL, Suttle INT NOT NULL, UPR DECIMAL(6,2) NOT NULL, Amount DECIMAL(10,2) NOT NULL,
  SaleType INT NOT NULL, bForegiftRTN INT NOT NULL, bolReturn INT NOT NULL
) DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

INSERT INTO fill_ticket
  SELECT Ticket, Lot, @start + INTERVAL DayNo DAY, OnDay, CONCAT('0', 1 + OnDay DIV (@perDay DIV 4)),
    IF(HasVendee, CONCAT('果品店', LPAD(1 + Ticket % 293, 3, '0')), ''), Num, Suttle, UPR,
    IF(Suttle = 0, Num, Suttle) * UPR, OnCredit, Ticket % 10 < 8 AND DayNo < @days - 3, OnCredit AND DayNo < @days - 7
  FROM (SELECT Ticket, Lot, DayNo, OnDay, Num, IF(ByWeight, 18 * Num, 0) Suttle, IF(ByWeight, 3.5, 40 + (Ticket % 97) / 2) UPR,
      HasVendee, HasVendee AND Ticket % 3 = 0 OnCredit
    FROM (SELECT seq Ticket, (seq DIV @block) * @open + (seq % @block) % LEAST(@open, @lots - (seq DIV @block) * @open) Lot,
        seq DIV @perDay DayNo, seq % @perDay OnDay, 1 + seq % 12 Num, seq % 4 = 0 ByWeight, seq % 5 < 3 HasVendee
      FROM seq_0_to_9999999 WHERE seq < @tickets) n) d;

INSERT INTO Sal_List (SalNo, ListNo, ITM, ID, PRDNo, PRDName, CustName, Store, PArea, Vendee, SaleDate, FSaleDate, SaleTime,
    Num, Suttle, UPR, PerPack, PackAmount, PerForegift, ForegiftAmount, Amount, TotalAmount, Receiver, SalesID, SaleType,
    bForegiftRTN, bolReturn, ReturnDate, bolCheckOut, CheckDate, CheckNo)
  SELECT CONCAT(t.UID, DATE_FORMAT(t.SaleDate, '%y%m%d'), LPAD(1 + t.OnDay % (@perDay DIV 4), 3, '0')),
    LPAD(t.Ticket % 1000000, 6, '0'), 1 + t.Ticket % 3, l.ID, l.PRDNo, p.PRDName, l.CustName, l.Store, p.PArea, t.Vendee,
    t.SaleDate, t.SaleDate, SEC_TO_TIME(14400 + 60 * t.OnDay), t.Num, t.Suttle, t.UPR, 0.5, t.Num * 0.5, l.PerForegift,
    t.Num * l.PerForegift, t.Amount, t.Amount + t.Num * 0.5 + t.Num * l.PerForegift, t.UID, 11 + t.Ticket % 10, t.SaleType,
    IF(l.PerForegift > 0, t.bForegiftRTN, 0), t.bolReturn, IF(t.bolReturn, t.SaleDate + INTERVAL 7 DAY, ''),
    l.bolCheckOut, l.CheckDate, l.CheckNo
  FROM fill_ticket t JOIN fill_lot l ON l.Lot = t.Lot JOIN PRD_List p ON p.ID = l.ID ORDER BY t.Ticket;

-- One ticket in a hundred was corrected.
INSERT INTO Sal_List_B (SalNo, ListNo, ITM, ID, PRDNo, PRDName, CustName, Store, PArea, Vendee, SaleDate, FSaleDate, SaleTime,
    Num, Suttle, UPR, PerPack, PackAmount, PerForegift, ForegiftAmount, Amount, TotalAmount, Receiver, SalesID, SaleType,
    EReceiver, EDate, ETime)
  SELECT SalNo, ListNo, ITM, ID, PRDNo, PRDName, CustName, Store, PArea, Vendee, SaleDate, FSaleDate, SaleTime, Num + 1, Suttle,
    UPR, PerPack, PackAmount, PerForegift, ForegiftAmount, Amount, TotalAmount, Receiver, SalesID, SaleType, '01', SaleDate,
    '16:40:00'
  FROM Sal_List WHERE ListNo LIKE '%00' ORDER BY SaleDate, SaleTime;

-- Deposits that came back, half over the till and half through the crate ledger.
INSERT INTO Foregift_RTN (RForegiftDate, SalNo, PRDNo, PRDName, CustName, SaleDate, Num, PerForegift, ForegiftAmount, Num_R,
    ForegiftAmount_R)
  SELECT SaleDate + INTERVAL 2 DAY, SalNo, PRDNo, PRDName, CustName, SaleDate, Num, PerForegift, ForegiftAmount, Num, ForegiftAmount
  FROM Sal_List WHERE bForegiftRTN = '1' AND ListNo % 4 < 2 ORDER BY SaleDate, SaleTime;
INSERT INTO Pack_List (ITM, PackDate, PackNo, PackName, PackType, SalNo, Num, PerForegift, ForegiftAmount)
  SELECT 1 + s.ListNo % 200, s.SaleDate + INTERVAL 2 DAY, k.PackNo, k.PackName, '1', s.SalNo, s.Num, s.PerForegift, s.ForegiftAmount
  FROM Sal_List s JOIN PRD_List p ON p.ID = s.ID JOIN DFN_Pack k ON k.PackNo = p.PackNo
  WHERE s.bForegiftRTN = '1' AND s.ListNo % 4 >= 2 ORDER BY s.SaleDate, s.SaleTime;
UPDATE DFN_Pack SET Num_PACK = (SELECT SUM(s.Num) FROM Sal_List s JOIN PRD_List p ON p.ID = s.ID
  WHERE p.PackNo = DFN_Pack.PackNo And s.PerForegift > 0);

-- Advances for every fourth lot.
INSERT INTO CustDebit (ID, PRDNo, CustName, PRDName, Store, DebitAmount, DebitDate, Receiver, Memo, bolCheckOut, CheckDate, CheckNo)
  SELECT l.ID, l.PRDNo, l.CustName, p.PRDName, l.Store, 300, l.LotDate + INTERVAL 1 DAY, '01', '现金', l.bolCheckOut, l.CheckDate,
    l.CheckNo
  FROM fill_lot l JOIN PRD_List p ON p.ID = l.ID WHERE l.Lot % 4 = 0 ORDER BY l.Lot;

INSERT INTO CheckOut (ID, CheckNo, CheckDate, PRDNo, PRDName, Num, Suttle, Amount, ListNum, CustName, Store, LManagePrice,
    LUnloadPrice, LExpendPrice, CheckUser, PayUser, Receiver, Per_LManage, Per_LUnload)
  SELECT l.ID, l.CheckNo, l.CheckDate, l.PRDNo, MIN(s.PRDName), SUM(s.Num), 18 * SUM(IF(s.Suttle = 0, s.Num, 0)) + SUM(s.Suttle),
    SUM(s.Amount), COUNT(*), l.CustName, l.Store, ROUND(SUM(s.Amount) * 0.06, 1), ROUND(SUM(s.Num) * 18 * 0.03, 1),
    IF(l.Lot % 4 = 0, 300, 0), '管理员', '管理员', '01', '6', '30'
  FROM fill_lot l JOIN Sal_List s ON s.ID = l.ID WHERE l.bolCheckOut = 1 GROUP BY l.Lot ORDER BY l.Lot;
UPDATE CheckOut SET LTotalPrice = LManagePrice + LUnloadPrice + LExpendPrice, GTotalPrice = Amount - LTotalPrice;
INSERT INTO CheckOut_B SELECT * FROM CheckOut WHERE CheckNo LIKE '%00';

UPDATE PRD_List p LEFT JOIN (SELECT ID, SUM(IF(EStoreType = '0', Num, -Num)) Num FROM EStore_List GROUP BY ID) e ON e.ID = p.ID
    LEFT JOIN (SELECT ID, SUM(Num) Num FROM Sal_List GROUP BY ID) s ON s.ID = p.ID
  SET p.Num_Sal = p.Num + IFNULL(e.Num, 0) - IFNULL(s.Num, 0);

-- Three expenses a day, and the bill counters.
INSERT INTO Fee_List (FeeNo, FeeDate, ITM, FeeID, FeeName, DSC, Amount)
  SELECT CONCAT('01', DATE_FORMAT(@start + INTERVAL d.seq DAY, '%y%m%d'), '001'), @start + INTERVAL d.seq DAY, f.FeeID - 1, f.FeeID,
    f.FeeName, '', 100 + d.seq % 50
  FROM seq_0_to_99999 d JOIN Fee_Type f WHERE d.seq < @days ORDER BY d.seq, f.FeeID;
INSERT INTO Count_Bill (TID, UID, CurrDate, CurrNumber)
  SELECT '01', Receiver, SaleDate, COUNT(*) FROM Sal_List GROUP BY Receiver, SaleDate;
INSERT INTO Count_Bill (TID, UID, CurrDate, CurrNumber)
  SELECT '03', '01', CheckDate, MAX(CAST(SUBSTRING(CheckNo, 9) AS UNSIGNED)) FROM CheckOut GROUP BY CheckDate;
INSERT INTO Count_Bill (TID, UID, CurrDate, CurrNumber)
  SELECT 'FL', '01', FeeDate, 1 FROM Fee_List GROUP BY FeeDate;
INSERT INTO Count_Bill (TID, UID, CurrDate, CurrNumber)
  SELECT 'C01', '', CustFInDate, MAX(CAST(SUBSTRING(ID, 9) AS UNSIGNED)) FROM PRD_List GROUP BY CustFInDate;

DROP TEMPORARY TABLE fill_lot, fill_ticket;

ANALYZE TABLE User_List, User_Menu, Menu_List, Sys_Define, DFN_Round, Count_Bill, Store, Sales, PRD_Sort, Cust_List, PRD_List,
  EStore_List, Sal_List, Sal_List_B, Foregift_RTN, DFN_Pack, Pack_List, CheckOut, CheckOut_B, CustDebit, Fee_List;
