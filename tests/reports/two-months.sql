-- Two months of a stall, January and February 2026, with a case of each kind that the reports tell apart.

SET NAMES utf8mb4;

UPDATE Sys_Define SET CompName='青禾果品代销行';

-- 03 has sold nothing, 09 is no user any more.
INSERT INTO User_List (UserID, UserName, bolSearch, bolEdit) VALUES ('02', '收银员', '0', '0'), ('03', '会计', '1', '1');

-- 13 has sold nothing, 19 is no salesman any more; a name may hold the sign that parts it from the number.
INSERT INTO Sales VALUES ('11', '周建国'), ('12', '陈-强'), ('13', '何小梅');

-- No bananas were sold; tangerines are no sort.
INSERT INTO PRD_Sort (SortID, SortName) VALUES ('A', '苹果'), ('B', '雪梨'), ('D', '香蕉');

-- Nothing was sold from 冷库; 老库 is no place any more.
INSERT INTO Store VALUES ('一号库'), ('二号库'), ('冷库');

-- 03 has no expenses; those of 04 come to nothing; 09 is no type any more.
INSERT INTO Fee_Type VALUES ('01', '市场租金'), ('02', '水电费'), ('03', '装卸工资'), ('04', '押金往来');

-- 桥头水果摊 owes from before the two months, 金果园连锁 buys for cash only.
INSERT INTO Cust_List (CustName) VALUES ('鲜多多水果店'), ('老赵果蔬店'), ('桥头水果摊'), ('金果园连锁');

-- Lots: a settled one, its number given again, one without sales, one sold beyond its stock, one in tenths.
INSERT INTO PRD_List (ID, PID, CustID, PRDNo, PRDName, Num, CustInDate, Store, CustName, bolCheckOut, CheckNo) VALUES
  ('20260105001', 'A', '001', 'A-001', '苹果', 100,  '2026-01-05', '一号库', '刘守田', '1', '01260120001'),
  ('20260121001', 'A', '001', 'A-001', '苹果', 160,  '2026-01-21', '一号库', '高长顺', '0', ''),
  ('20260122001', 'B', '001', 'B-001', '雪梨', 80.5, '2026-01-22', '二号库', '孙玉梅', '0', ''),
  ('20260201001', 'B', '002', 'B-002', '雪梨', 20,   '2026-02-01', '老库',   '安建军', '0', ''),
  ('20260203001', 'C', '001', 'C-001', '蜜橘', 50,   '2026-02-03', '二号库', '向德明', '0', ''),
  ('20260204001', 'D', '001', 'D-001', '香蕉', 90,   '2026-02-04', '冷库',   '韦国强', '0', '');

INSERT INTO EStore_List (ITM, EStoreDate, ID, PRDNo, PRDName, CustName, EStoreType, Num, Memo) VALUES
  (1, '2026-01-06', '20260105001', 'A-001', '苹果', '刘守田', '0', 20,   '同车补到'),
  (2, '2026-01-23', '20260122001', 'B-001', '雪梨', '孙玉梅', '2', 1.25, '碰伤'),
  (1, '2026-01-23', '20260121001', 'A-001', '苹果', '高长顺', '0', 30,   '第二车'),
  (1, '2026-02-02', '20260121001', 'A-001', '苹果', '高长顺', '1', 15,   '转北区档口'),
  (1, '2026-03-01', '20260121001', 'A-001', '苹果', '高长顺', '9', 7,    '哪一种也不是');

-- Tickets. 01... of the first user, 02... of the cashier, 09... of one who has left.
INSERT INTO Sal_List (SalNo, ListNo, ID, PRDNo, PRDName, CustName, Store, Vendee, SaleDate, SaleTime, Num, Suttle, UPR,
    PackAmount, ForegiftAmount, Amount, TotalAmount, Receiver, SalesID, SaleType, bForegiftRTN, bolCheckOut, CheckDate,
    CheckNo, bolReturn, ReturnDate) VALUES
  ('01260106001', '0001', '20260105001', 'A-001', '苹果', '刘守田', '一号库', '金果园连锁',   '2026-01-06', '07:12:05', 60,   1200,   3.25, 30,   0,   3900,    3930,    '01', '11', 0, '0', '1', '2026-01-20', '01260120001', '0', ''),
  ('02260107001', '0002', '20260105001', 'A-001', '苹果', '刘守田', '一号库', '鲜多多水果店', '2026-01-07', '08:30:00', 60,   1180.5, 3.2,  30,   0,   3777.6,  3807.6,  '02', '12', 1, '0', '1', '2026-01-20', '01260120001', '1', '2026-02-10'),
  ('01260122001', '0003', '20260121001', 'A-001', '苹果', '高长顺', '一号库', '老赵果蔬店',   '2026-01-22', '06:58:41', 40,   800,    3.5,  20,   200, 2800,    3020,    '01', '11', 1, '0', '0', '',           '',            '0', ''),
  ('02260123001', '0004', '20260121001', 'A-001', '苹果', '高长顺', '一号库', '金果园连锁',   '2026-01-23', '09:05:00', 35,   702.3,  3.45, 17.5, 175, 2422.94, 2615.44, '02', '11', 0, '1', '0', '',           '',            '0', ''),
  ('02260123002', '0005', '20260122001', 'B-001', '雪梨', '孙玉梅', '二号库', '鲜多多水果店', '2026-01-23', '09:05:00', 30.5, 549,    2.8,  0,    0,   1537.2,  1537.2,  '02', '12', 1, '0', '0', '',           '',            '0', ''),
  ('01260202001', '0006', '20260201001', 'B-002', '雪梨', '安建军', '老库',   '金果园连锁',   '2026-02-02', '10:00:00', 25,   450,    2.75, 12.5, 0,   1237.5,  1250,    '01', '',   0, '0', '0', '',           '',            '0', ''),
  ('09260205001', '0007', '20260203001', 'C-001', '蜜橘', '向德明', '二号库', '老赵果蔬店',   '2026-02-05', '11:20:30', 10,   150,    4,    0,    50,  600,     650,     '09', '19', 0, '0', '0', '',           '',            '0', ''),
  ('02260205001', '0008', '20260203001', 'C-001', '蜜橘', '向德明', '二号库', '散客',         '2026-02-05', '11:21:00', 0.5,  7.5,    4.2,  0,    2.5, 31.5,    34,      '02', '12', 1, '0', '0', '',           '',            '1', '2026-02-28'),
  ('01251230001', '0000', '20251220001', 'A-009', '苹果', '刘守田', '一号库', '桥头水果摊',   '2025-12-30', '15:00:00', 8,    160,    3,    4,    0,   480,     484,     '01', '11', 1, '0', '1', '2025-12-31', '01251231001', '0', ''),
  ('01260301001', '0009', '20260121001', 'A-001', '苹果', '高长顺', '一号库', '鲜多多水果店', '2026-03-01', '07:00:00', 3,    60,     3.5,  0,    0,   210,     210,     '01', '11', 1, '0', '0', '',           '',            '0', '');

-- Twice the former words of one ticket.
INSERT INTO Sal_List_B (SalNo, ListNo, ID, PRDNo, PRDName, CustName, SaleDate, SaleTime, Num, Suttle, UPR, PackAmount,
    Amount, TotalAmount, Receiver, SalesID, EReceiver, EDate, ETime) VALUES
  ('01260122001', '0003', '20260121001', 'A-001', '苹果', '高长顺', '2026-01-22', '06:58:41', 45, 900, 3.5, 20, 3150, 3170, '01', '11', '01', '2026-01-22', '08:00:00'),
  ('01260122001', '0003', '20260121001', 'A-001', '苹果', '高长顺', '2026-01-22', '06:58:41', 44, 880, 3.5, 20, 3080, 3100, '01', '11', '01', '2026-01-22', '09:00:00');

INSERT INTO CheckOut (ID, CheckNo, CheckDate, PRDNo, PRDName, Num, Suttle, Amount, ListNum, CustName, Store, LManagePrice,
    LPackPrice, LUnloadPrice, LExpendPrice, LSanitationPrice, LElectPrice, LRecoupPrice, LChillPrice, LFieldPrice,
    LOtherPrice, LTotalPrice, GTotalPrice) VALUES
  ('20260105001', '01260120001', '2026-01-20', 'A-001', '苹果', 120, 2380.5, 7677.6, 2, '刘守田', '一号库', 383.88, 60, 24, 500, 12, 0, 5, 0, 3, 20, 1007.88, 6669.72),
  ('20251220001', '01260121001', '2026-01-21', 'A-009', '苹果', 8, 160, 480, 1, '刘守田', '老库', 24, 4, 1.6, 0, 0.8, 10, 0, 15, 0, 0, 55.4, 424.6);
INSERT INTO CheckOut_B (ID, CheckNo, CheckDate, PRDNo, PRDName, Amount, ListNum, CustName, Store, LManagePrice, LTotalPrice,
    GTotalPrice) VALUES
  ('20260105001', '01260120001', '2026-01-20', 'A-001', '苹果', 7677.6, 2, '刘守田', '一号库', 400, 1024, 6653.6);

INSERT INTO CustDebit (ID, PRDNo, CustName, PRDName, DebitAmount, DebitDate, Receiver, Memo, bolCheckOut, CheckNo) VALUES
  ('20260105001', 'A-001', '刘守田', '苹果', 500,    '2026-01-08', '01', '现金',     '1', '01260120001'),
  ('20260121001', 'A-001', '高长顺', '苹果', 800.55, '2026-01-24', '02', '',         '0', ''),
  ('20260121001', 'A-001', '高长顺', '苹果', 200,    '2026-02-03', '02', '第二次',   '0', ''),
  ('20260204001', 'D-001', '韦国强', '香蕉', 300,    '2026-02-05', '09', '离职的人', '0', '');

INSERT INTO Fee_List (FeeNo, FeeDate, ITM, FeeID, FeeName, DSC, Amount) VALUES
  ('01260131001', '2026-01-31', 1, '02', '水电费',   '冷库电费', 862.35),
  ('01260131001', '2026-01-31', 0, '01', '市场租金', '二月',     3000),
  ('02260210001', '2026-02-10', 0, '04', '押金往来', '收',       50),
  ('02260211001', '2026-02-11', 0, '04', '押金往来', '退',       -50),
  ('02260212001', '2026-02-12', 0, '09', '已删除',   '旧类别',   12);

INSERT INTO Foregift_RTN (RForegiftDate, SalNo, PRDNo, PRDName, CustName, SaleDate, Num, PerForegift, ForegiftAmount, Num_R,
    ForegiftAmount_R, Memo) VALUES
  ('2026-02-20', '02260205001', 'C-001', '蜜橘', '向德明', '2026-02-05', 0.5, 5, 2.5, 0.5, 2.5, ''),
  ('2026-02-01', '02260123001', 'A-001', '苹果', '高长顺', '2026-01-23', 35, 5, 175, 34, 170, '少一只');

INSERT INTO Pack_List (ITM, PackDate, PackNo, PackName, PackType, SalNo, Num, PerForegift, ForegiftAmount, Memo, bolCheck,
    CheckDate) VALUES
  (2, '2026-01-06', 'W1', '外来木箱', '2', '',            10, 0,   0,   '压坏', '1', '2026-01-15'),
  (1, '2026-01-06', 'W1', '外来木箱', '0', '',            60, 0,   0,   '',     '1', '2026-01-15'),
  (1, '2026-01-15', 'W1', '外来木箱', '3', '',            50, 0,   0,   '',     '1', '2026-01-15'),
  (1, '2026-02-06', 'K1', '大胶筐',   '1', '09260205001', 8,  5.25, 42, '',     '0', ''),
  (2, '2026-02-06', 'K1', '大胶筐',   '4', '',            30, 5,   150, '借北区', '0', ''),
  (3, '2026-02-06', 'K1', '大胶筐',   '5', '',            1,  0,   0,   '',     '0', '');
