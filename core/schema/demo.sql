-- A small stall to try things on: two weeks of business up to today, every figure of which adds up.
--
-- Runs after seed.sql. Days count back from today, so the stall is never old. The lots, tickets
-- and settlements are listed in short form in temporary tables. The rows of the system are made
-- from them by the same arithmetic that the windows use.

SET NAMES utf8mb4;
SET @today = CURDATE();

UPDATE Sys_Define SET CompName='青禾果品代销行', DepartName='南区水果批发十二号档';

-- Beside the first user, who has all rights: a cashier, who has the till and sees and adjusts his own
-- tickets only, and a bookkeeper, who has everything but the till.
INSERT INTO User_List (UserID, UserName, UserPWD, UserIP, bolIP, bolSearch, bolEdit) VALUES
  ('02', '收银员', '2', '', '0', '0', '0'),
  ('03', '会计', '3', '', '0', '1', '1');

INSERT INTO User_Menu (UserID, MenuName)
  SELECT IF(MenuName IN ('menuSale', 'menuRptSaleDetail', 'menuESale', 'menuForegift', 'menuRptForegift'), '02', '03'),
    MenuName FROM Menu_List ORDER BY MenuID;

INSERT INTO Store (Store) VALUES ('一号库'), ('二号库'), ('冷库'), ('门口档');

INSERT INTO Sales (SalesID, SalesName) VALUES
  ('11', '周建国'), ('12', '李秀兰'), ('13', '陈志强'), ('14', '何小梅');

-- CurrNumber is the last owner number given under the sort.
INSERT INTO PRD_Sort (SortID, SortName, CurrNumber) VALUES
  ('A', '苹果', 4),
  ('B', '雪梨', 3),
  ('C', '蜜橘', 3),
  ('D', '香蕉', 3),
  ('E', '葡萄', 3),
  ('F', '哈密瓜', 2),
  ('G', '猕猴桃', 2);

INSERT INTO Fee_Type (FeeID, FeeName) VALUES
  ('01', '市场租金'), ('02', '水电费'), ('03', '装卸工资'), ('04', '办公杂费');

INSERT INTO Cust_List (CustName, CustAddress, CustCharge, CustTel, CustFax, CustMobile, CreditMoney, bolControl) VALUES
  ('鲜多多水果店', '文昌路18号', '郑小兰', '', '', '13600000201', 8000, '1'),
  ('老赵果蔬店', '东关菜场6号', '赵有福', '', '', '13600000202', 5000, '1'),
  ('城南生鲜超市', '南环路201号', '黎经理', '', '', '13600000203', 30000, '1'),
  ('学府路食堂', '学府路9号', '程师傅', '', '', '13600000204', 12000, '1'),
  ('金果园连锁', '人民路55号', '金小姐', '', '', '13600000205', 50000, '1'),
  ('桥头水果摊', '河西桥头', '阿勇', '', '', '13600000206', 2000, '1'),
  ('阿芳水果摊', '北门市场32号', '阿芳', '', '', '13600000207', 0, '0'),
  ('永兴批零部', '汽车站对面', '许永兴', '', '', '13600000208', 0, '0'),
  ('陈记果行', '解放街77号', '陈伯', '', '', '13600000209', 0, '0');

-- K crates are the stall's own, W crates come with the goods and go back.
INSERT INTO DFN_Pack (PackNo, PackName, PackStyle, Num_BGN) VALUES
  ('K1', '大胶筐', '1', 300),
  ('K2', '小胶筐', '1', 800),
  ('W1', '外来木箱', '0', 0);

-- Lots. Lot is a name for this file: A-002 was locked and carried forward, so it stands twice.
CREATE TEMPORARY TABLE demo_lot (
  Lot VARCHAR(20) NOT NULL PRIMARY KEY, Ago INT, Serial INT, Num INT, MPercent INT, Store VARCHAR(20),
  PArea VARCHAR(20), CustName VARCHAR(20), Mobile VARCHAR(20), PerForegift INT, PackNo VARCHAR(10),
  VerifyID VARCHAR(10), bolFixed INT, PRDNo_S VARCHAR(10), PerPack DECIMAL(20,6), DebitPrice INT, Memo VARCHAR(50)
) DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

INSERT INTO demo_lot VALUES
  ('A-001', 14, 1, 160, 20, '一号库', '山东栖霞', '刘守田', '13500000101', 0, '', '', 0, '', 0.5, 0, ''),
  ('B-001', 14, 2, 120, 18, '一号库', '河北泊头', '孙玉梅', '13500000102', 0, '', '', 0, '', 0.5, 0, ''),
  ('C-001', 13, 1, 200, 15, '二号库', '湖北宜昌', '向德明', '13500000103', 5, 'K2', '2580', 0, '', 0, 0, ''),
  ('D-001', 13, 2, 180, 13, '冷库', '广西浦北', '韦国强', '13500000104', 0, '', '', 0, '', 0, 0, ''),
  ('E-001', 12, 1, 90, 8, '冷库', '新疆吐鲁番', '买买提江', '13500000105', 10, 'W1', '6611', 0, '', 0.5, 0, ''),
  ('A-002', 12, 2, 220, 20, '一号库', '陕西洛川', '高长顺', '13500000106', 0, '', '', 1, '1', 0.5, 0, ''),
  ('F-001', 11, 1, 100, 25, '门口档', '甘肃民勤', '马文祥', '13500000107', 0, '', '', 0, '', 0, 300, '订金已付'),
  ('B-002', 8, 1, 140, 18, '一号库', '河北泊头', '孙玉梅', '13500000102', 0, '', '', 0, '12', 0.5, 500, '运费垫付'),
  ('C-002', 7, 1, 260, 15, '二号库', '湖北宜昌', '向德明', '13500000103', 5, 'K2', '2580', 0, '', 0, 0, ''),
  ('D-002', 6, 1, 240, 13, '冷库', '广西浦北', '韦国强', '13500000104', 0, '', '', 0, '7', 0, 0, ''),
  ('G-001', 6, 2, 60, 10, '冷库', '陕西眉县', '田改玲', '13500000108', 0, '', '', 0, '', 0.5, 0, ''),
  ('A-002/2', 5, 2, 72, 20, '一号库', '陕西洛川', '高长顺', '13500000106', 0, '', '', 1, '1', 0.5, 0, ''),
  ('E-002', 5, 1, 110, 8, '冷库', '新疆吐鲁番', '买买提江', '13500000105', 10, 'W1', '6611', 0, '', 0.5, 0, ''),
  ('A-003', 4, 1, 180, 20, '一号库', '山东栖霞', '刘守田', '13500000101', 0, '', '', 0, '3', 0.5, 0, ''),
  ('F-002', 4, 2, 80, 25, '门口档', '甘肃民勤', '马文祥', '13500000107', 0, '', '', 0, '', 0, 0, ''),
  ('C-003', 3, 1, 220, 15, '二号库', '江西南丰', '饶春生', '13500000109', 5, 'K2', '', 0, '', 0, 0, ''),
  ('B-003', 2, 1, 150, 18, '一号库', '河北赵县', '安建军', '13500000110', 0, '', '', 0, '', 0.5, 0, ''),
  ('D-003', 2, 2, 200, 13, '冷库', '云南河口', '盘金花', '13500000111', 0, '', '', 0, '', 0, 0, ''),
  ('E-003', 1, 1, 120, 8, '冷库', '云南宾川', '段玉林', '13500000112', 10, 'W1', '7304', 0, '9', 0.5, 0, ''),
  ('A-004', 1, 2, 260, 20, '一号库', '山东栖霞', '刘守田', '13500000101', 0, '', '', 1, '', 0.5, 0, ''),
  ('G-002', 0, 1, 90, 10, '冷库', '陕西眉县', '田改玲', '13500000108', 0, '', '', 0, '5', 0.5, 0, '');

INSERT INTO PRD_List (ID, PID, CustID, PRDNo, PRDNo_S, PRDName, Num, Num_Sal, PType, MPercent, CustInDate, CustFInDate,
    CustInTime, Store, PArea, bolPack, PerForegift, PackNo, CustName, VerifyID, Mobile, DebitPrice, Memo, bolFixed, Receiver)
  SELECT CONCAT(DATE_FORMAT(@today - INTERVAL Ago DAY, '%Y%m%d'), LPAD(Serial, 3, '0')), LEFT(Lot, 1), SUBSTRING(Lot, 3, 3),
    LEFT(Lot, 5), PRDNo_S, SortName, Num, Num, '件', MPercent, DATE_FORMAT(@today - INTERVAL Ago DAY, '%Y-%m-%d'),
    DATE_FORMAT(@today - INTERVAL Ago DAY, '%Y-%m-%d'), IF(Lot LIKE '%/%', '15:20:00', MAKETIME(0, 10 + 17 * Serial, 0)),
    Store, PArea, IF(PerForegift > 0, '1', '0'), PerForegift, PackNo, CustName, VerifyID, Mobile, DebitPrice, Memo,
    bolFixed, '01'
  FROM demo_lot JOIN PRD_Sort ON SortID = LEFT(Lot, 1);

-- Stock changes: 0 added, 1 moved out, 2 lost.
CREATE TEMPORARY TABLE demo_change (Ago INT, ITM INT, Lot VARCHAR(20), EStoreType INT, Num INT, Memo VARCHAR(50))
  DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

INSERT INTO demo_change VALUES
  (13, 1, 'A-001', 0, 20, '同车补到'),
  (10, 1, 'D-001', 2, 6, '压伤'),
  (9, 1, 'E-001', 2, 2, '掉粒'),
  (6, 1, 'C-002', 1, 20, '转北区档口'),
  (6, 1, 'B-002', 2, 4, '碰伤'),
  (5, 1, 'D-002', 0, 30, '第二车'),
  (3, 1, 'G-001', 2, 2, '软果'),
  (2, 1, 'A-003', 2, 3, '碰伤');

INSERT INTO EStore_List (ITM, EStoreDate, ID, PRDNo, PRDName, CustName, EStoreType, Num, Memo)
  SELECT c.ITM, DATE_FORMAT(@today - INTERVAL c.Ago DAY, '%Y-%m-%d'), p.ID, p.PRDNo, p.PRDName, p.CustName, c.EStoreType,
    c.Num, c.Memo
  FROM demo_change c JOIN demo_lot l ON l.Lot = c.Lot
    JOIN PRD_List p ON p.ID = CONCAT(DATE_FORMAT(@today - INTERVAL l.Ago DAY, '%Y%m%d'), LPAD(l.Serial, 3, '0'));

-- Tickets: days ago, time, user, serial of the day, place in the batch, lot, buyer, pieces, net weight
-- (0 when sold by the piece), price, 1 for credit, days ago when it was collected, salesman, paper slip.
CREATE TEMPORARY TABLE demo_ticket (
  Ago INT, SaleTime VARCHAR(8), UID VARCHAR(2), Serial INT, ITM INT, Lot VARCHAR(20), Vendee VARCHAR(20), Num INT,
  Suttle DECIMAL(20,6), UPR DECIMAL(20,6), SaleType INT, Returned INT, SalesID VARCHAR(10), ListNo VARCHAR(10)
) DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

INSERT INTO demo_ticket VALUES
  (14, '04:52:51', '02', 1, 1, 'A-001', '金果园连锁', 5, 0, 83, 1, 8, '12', '031206'),
  (14, '05:21:46', '02', 2, 2, 'B-001', '金果园连锁', 3, 0, 60, 1, 8, '14', ''),
  (14, '06:01:16', '02', 3, 3, 'A-001', '金果园连锁', 15, 0, 83.5, 1, 8, '12', ''),
  (14, '06:29:03', '01', 1, 1, 'A-001', '', 4, 0, 84.5, 0, NULL, '12', '031209'),
  (14, '06:46:20', '01', 2, 2, 'B-001', '', 12, 0, 62, 0, NULL, '11', '031210'),
  (14, '07:17:42', '01', 3, 3, 'A-001', '', 20, 0, 85, 0, NULL, '14', '031211'),
  (14, '07:37:00', '01', 4, 1, 'B-001', '金果园连锁', 12, 0, 61.5, 0, NULL, '14', '031212'),
  (13, '04:50:54', '02', 1, 1, 'D-001', '城南生鲜超市', 6, 0, 41.5, 1, 7, '14', '031213'),
  (13, '05:14:21', '02', 2, 2, 'C-001', '城南生鲜超市', 10, 149.3, 3, 1, 7, '13', '031214'),
  (13, '05:32:20', '02', 3, 3, 'D-001', '城南生鲜超市', 8, 0, 39.5, 1, 7, '12', '031215'),
  (13, '05:40:29', '02', 4, 1, 'D-001', '桥头水果摊', 8, 0, 41.5, 0, NULL, '12', ''),
  (13, '05:57:22', '02', 5, 1, 'C-001', '', 4, 0, 48, 0, NULL, '12', '031217'),
  (13, '06:14:19', '02', 6, 2, 'B-001', '', 10, 0, 62, 0, NULL, '11', '031218'),
  (13, '06:28:19', '02', 7, 3, 'B-001', '', 15, 0, 63, 0, NULL, '12', '031219'),
  (13, '06:37:19', '02', 8, 1, 'C-001', '', 5, 0, 47.5, 0, NULL, '14', '031220'),
  (13, '06:54:31', '02', 9, 2, 'C-001', '', 8, 0, 48.5, 0, NULL, '13', '031221'),
  (13, '07:05:13', '02', 10, 1, 'D-001', '金果园连锁', 5, 0, 41, 1, 8, '12', '031222'),
  (13, '07:20:38', '02', 11, 1, 'A-001', '', 12, 0, 84, 0, NULL, '12', '031223'),
  (13, '07:33:11', '02', 12, 2, 'A-001', '', 24, 0, 82, 0, NULL, '13', '031224'),
  (13, '07:42:03', '02', 13, 1, 'C-001', '', 8, 116.0, 3.3, 0, NULL, '12', '031225'),
  (13, '08:01:01', '02', 14, 2, 'C-001', '', 4, 0, 47, 0, NULL, '14', '031226'),
  (13, '08:21:08', '02', 15, 1, 'A-001', '金果园连锁', 6, 0, 85, 1, 8, '12', '031227'),
  (12, '04:51:45', '02', 1, 1, 'E-001', '城南生鲜超市', 15, 0, 96.5, 1, 7, '13', '031228'),
  (12, '05:04:32', '02', 2, 2, 'B-001', '城南生鲜超市', 8, 0, 62, 1, 7, '13', '031229'),
  (12, '05:14:03', '02', 3, 1, 'C-001', '学府路食堂', 4, 57.5, 3.1, 1, 3, '13', '031230'),
  (12, '05:28:08', '02', 4, 2, 'A-002', '学府路食堂', 10, 0, 78, 1, 3, '14', '031231'),
  (12, '05:45:49', '02', 5, 3, 'C-001', '学府路食堂', 4, 58.8, 3, 1, 3, '14', '031232'),
  (12, '05:53:55', '02', 6, 1, 'C-001', '城南生鲜超市', 3, 0, 48, 0, NULL, '11', '031233'),
  (12, '06:01:55', '02', 7, 1, 'A-001', '鲜多多水果店', 10, 0, 84, 1, 5, '14', '031234'),
  (12, '06:13:46', '02', 8, 2, 'D-001', '鲜多多水果店', 20, 0, 41.5, 1, 5, '13', '031235'),
  (12, '06:25:55', '02', 9, 1, 'A-001', '城南生鲜超市', 12, 0, 83.5, 1, 7, '12', '031236'),
  (12, '06:33:15', '02', 10, 2, 'C-001', '城南生鲜超市', 12, 0, 48, 1, 7, '14', '031237'),
  (12, '06:52:12', '02', 11, 3, 'A-002', '城南生鲜超市', 8, 0, 77, 1, 7, '14', '031238'),
  (12, '07:00:30', '02', 12, 1, 'E-001', '', 10, 0, 96, 0, NULL, '14', '031239'),
  (12, '07:14:41', '02', 13, 2, 'D-001', '', 10, 0, 41.5, 0, NULL, '12', '031240'),
  (12, '07:22:35', '02', 14, 3, 'D-001', '', 16, 0, 41.5, 0, NULL, '13', ''),
  (12, '07:31:11', '02', 15, 1, 'A-001', '', 6, 0, 84, 0, NULL, '13', ''),
  (12, '07:38:52', '02', 16, 2, 'B-001', '', 5, 0, 62, 0, NULL, '13', '031243'),
  (12, '07:57:44', '02', 17, 1, 'A-002', '', 16, 0, 79, 0, NULL, '12', '031244'),
  (11, '04:51:33', '01', 1, 1, 'C-001', '鲜多多水果店', 12, 0, 48.5, 1, 5, '14', '031245'),
  (11, '05:09:15', '02', 1, 1, 'C-001', '永兴批零部', 12, 0, 48, 1, 4, '13', ''),
  (11, '05:25:59', '02', 2, 2, 'A-002', '永兴批零部', 4, 0, 78.5, 1, 4, '14', '031247'),
  (11, '05:44:59', '02', 3, 1, 'F-001', '', 6, 149.0, 4.4, 0, NULL, '13', '031248'),
  (11, '06:05:52', '02', 4, 2, 'D-001', '', 10, 0, 41.5, 0, NULL, '11', '031249'),
  (11, '06:22:53', '02', 5, 3, 'A-001', '', 5, 0, 85, 0, NULL, '14', '031250'),
  (11, '06:35:56', '02', 6, 1, 'C-001', '', 24, 352.1, 3.2, 0, NULL, '13', ''),
  (11, '06:53:35', '02', 7, 2, 'A-002', '', 10, 0, 76, 0, NULL, '12', '031252'),
  (11, '07:07:10', '02', 8, 1, 'A-001', '', 4, 0, 82, 0, NULL, '13', ''),
  (11, '07:21:34', '02', 9, 2, 'B-001', '', 8, 0, 62, 0, NULL, '13', ''),
  (11, '07:30:49', '02', 10, 3, 'F-001', '', 4, 97.5, 4.4, 0, NULL, '14', '031255'),
  (11, '07:44:53', '02', 11, 1, 'C-001', '阿芳水果摊', 20, 0, 47, 1, 9, '11', '031256'),
  (11, '07:58:29', '02', 12, 1, 'E-001', '老赵果蔬店', 15, 0, 97, 1, 6, '11', '031257'),
  (11, '08:16:16', '02', 13, 2, 'D-001', '老赵果蔬店', 8, 0, 41.5, 1, 6, '14', '031258'),
  (11, '08:34:01', '02', 14, 1, 'F-001', '', 6, 0, 115, 0, NULL, '14', ''),
  (11, '08:48:33', '02', 15, 2, 'B-001', '', 8, 0, 60, 0, NULL, '14', '031260'),
  (11, '09:03:58', '02', 16, 1, 'A-001', '城南生鲜超市', 12, 0, 83, 1, 7, '14', '031261'),
  (10, '04:47:41', '02', 1, 1, 'C-001', '', 5, 0, 48.5, 0, NULL, '14', '031262'),
  (10, '04:55:42', '01', 1, 1, 'B-001', '金果园连锁', 8, 0, 62, 1, 8, '14', '031263'),
  (10, '05:17:26', '01', 2, 2, 'C-001', '金果园连锁', 5, 75.1, 3.1, 1, 8, '14', '031264'),
  (10, '05:28:55', '02', 2, 1, 'A-001', '城南生鲜超市', 6, 0, 83, 1, 7, '12', ''),
  (10, '05:44:04', '02', 3, 2, 'A-002', '城南生鲜超市', 6, 0, 78, 1, 7, '13', ''),
  (10, '06:02:59', '01', 3, 1, 'D-001', '桥头水果摊', 15, 0, 41, 1, 2, '12', '031267'),
  (10, '06:16:04', '01', 4, 2, 'A-001', '桥头水果摊', 12, 0, 84, 1, 2, '14', '031268'),
  (10, '06:24:31', '01', 5, 3, 'B-001', '桥头水果摊', 24, 0, 62, 0, NULL, '14', '031269'),
  (10, '06:46:33', '02', 4, 1, 'F-001', '', 6, 0, 114.5, 0, NULL, '13', '031270'),
  (10, '07:00:30', '02', 5, 1, 'D-001', '学府路食堂', 10, 0, 41.5, 0, NULL, '12', ''),
  (10, '07:19:02', '02', 6, 2, 'D-001', '学府路食堂', 6, 0, 39.5, 0, NULL, '13', ''),
  (10, '07:34:36', '02', 7, 1, 'A-002', '', 8, 0, 79, 0, NULL, '14', '031273'),
  (10, '07:46:04', '02', 8, 1, 'A-001', '', 6, 0, 83.5, 0, NULL, '12', ''),
  (10, '08:08:45', '02', 9, 2, 'E-001', '', 5, 0, 96, 0, NULL, '14', '031275'),
  (10, '08:24:34', '02', 10, 1, 'C-001', '陈记果行', 20, 0, 46, 0, NULL, '11', ''),
  (9, '04:48:43', '02', 1, 1, 'A-001', '', 15, 0, 83, 0, NULL, '13', '031277'),
  (9, '05:09:07', '02', 2, 2, 'E-001', '', 10, 0, 96, 0, NULL, '11', '031278'),
  (9, '05:22:40', '02', 3, 3, 'F-001', '', 3, 73.8, 4.6, 0, NULL, '13', ''),
  (9, '05:39:06', '02', 4, 1, 'B-001', '', 6, 0, 62, 0, NULL, '12', ''),
  (9, '05:52:44', '02', 5, 2, 'C-001', '', 3, 0, 48, 0, NULL, '11', ''),
  (9, '06:10:56', '02', 6, 1, 'A-002', '', 5, 0, 78.5, 0, NULL, '13', '031282'),
  (9, '06:27:53', '02', 7, 2, 'A-002', '', 10, 0, 77, 0, NULL, '12', ''),
  (9, '06:51:37', '02', 8, 1, 'D-001', '城南生鲜超市', 5, 0, 41.5, 1, 7, '13', '031284'),
  (9, '07:07:00', '02', 9, 2, 'C-001', '城南生鲜超市', 6, 0, 47, 1, 7, '14', '031285'),
  (9, '07:32:37', '02', 10, 1, 'F-001', '', 16, 382.8, 4.6, 0, NULL, '14', ''),
  (9, '07:57:52', '02', 11, 1, 'C-001', '鲜多多水果店', 3, 44.3, 3.2, 0, NULL, '11', '031287'),
  (9, '08:09:38', '02', 12, 2, 'D-001', '鲜多多水果店', 12, 0, 41.5, 0, NULL, '11', '031288'),
  (9, '08:32:17', '02', 13, 1, 'A-001', '', 6, 0, 84, 0, NULL, '14', '031289'),
  (9, '08:57:02', '02', 14, 2, 'C-001', '', 4, 0, 48.5, 0, NULL, '14', '031290'),
  (8, '05:00:51', '02', 1, 1, 'F-001', '金果园连锁', 8, 193.6, 4.4, 1, 2, '13', '031291'),
  (8, '05:21:58', '02', 2, 2, 'C-001', '金果园连锁', 8, 0, 49, 1, 2, '14', ''),
  (8, '05:40:45', '02', 3, 3, 'B-002', '金果园连锁', 20, 0, 60, 1, 2, '12', '031293'),
  (8, '05:57:10', '02', 4, 1, 'A-002', '城南生鲜超市', 3, 0, 78.5, 1, 7, '12', ''),
  (8, '06:08:15', '02', 5, 2, 'C-001', '城南生鲜超市', 8, 0, 47, 1, 7, '11', '031295'),
  (8, '06:29:36', '01', 1, 1, 'D-001', '鲜多多水果店', 12, 0, 42, 0, NULL, '12', ''),
  (8, '06:44:44', '02', 6, 1, 'D-001', '', 3, 0, 40.5, 0, NULL, '11', ''),
  (8, '07:10:41', '02', 7, 2, 'B-002', '', 16, 0, 60, 0, NULL, '11', '031298'),
  (8, '07:33:08', '02', 8, 1, 'F-001', '老赵果蔬店', 15, 359.3, 4.6, 1, 6, '11', '031299'),
  (8, '07:57:38', '02', 9, 2, 'C-001', '老赵果蔬店', 8, 115.2, 3.2, 1, 6, '14', '031300'),
  (8, '08:17:32', '02', 10, 3, 'E-001', '老赵果蔬店', 8, 0, 97, 1, 6, '14', '031301'),
  (8, '08:42:21', '02', 11, 1, 'A-002', '学府路食堂', 15, 0, 78.5, 1, 3, '12', '031302'),
  (7, '05:11:56', '02', 1, 1, 'D-001', '阿芳水果摊', 10, 0, 41.5, 1, NULL, '12', '031303'),
  (7, '05:40:58', '02', 2, 1, 'C-002', '', 24, 0, 46, 0, NULL, '12', '031304'),
  (7, '05:55:08', '02', 3, 1, 'F-001', '金果园连锁', 12, 296.1, 4.5, 0, NULL, '12', '031305'),
  (7, '06:20:43', '02', 4, 1, 'A-002', '学府路食堂', 16, 0, 78, 0, NULL, '14', '031306'),
  (7, '06:47:32', '02', 5, 2, 'C-002', '学府路食堂', 16, 0, 46.5, 0, NULL, '14', '031307'),
  (7, '07:17:51', '02', 6, 1, 'E-001', '鲜多多水果店', 8, 0, 96, 0, NULL, '14', '031308'),
  (7, '07:46:47', '02', 7, 2, 'D-001', '鲜多多水果店', 10, 0, 41, 0, NULL, '11', ''),
  (7, '08:13:17', '02', 8, 1, 'A-002', '', 12, 0, 78.5, 0, NULL, '11', '031310'),
  (7, '08:29:08', '02', 9, 2, 'B-002', '', 20, 0, 60, 0, NULL, '14', '031311'),
  (7, '08:42:40', '02', 10, 1, 'C-002', '', 6, 0, 46, 0, NULL, '11', '031312'),
  (6, '04:57:05', '02', 1, 1, 'F-001', '城南生鲜超市', 3, 74.0, 4.4, 1, 1, '14', '031313'),
  (6, '05:06:53', '02', 2, 2, 'D-002', '城南生鲜超市', 5, 0, 41.5, 1, 1, '11', '031314'),
  (6, '05:23:29', '02', 3, 1, 'E-001', '永兴批零部', 17, 0, 95.5, 1, 4, '14', '031315'),
  (6, '05:35:58', '02', 4, 1, 'C-002', '老赵果蔬店', 20, 0, 46, 0, NULL, '11', '031316'),
  (6, '06:00:50', '02', 5, 2, 'D-002', '老赵果蔬店', 24, 0, 41, 0, NULL, '13', ''),
  (6, '06:15:05', '02', 6, 1, 'B-002', '', 10, 0, 60, 0, NULL, '12', '031318'),
  (6, '06:35:15', '02', 7, 2, 'A-002', '', 10, 0, 79, 0, NULL, '14', ''),
  (6, '06:57:57', '02', 8, 3, 'C-002', '', 16, 0, 47, 0, NULL, '11', '031320'),
  (6, '07:21:07', '02', 9, 1, 'G-001', '金果园连锁', 3, 0, 87, 1, 2, '11', '031321'),
  (6, '07:32:20', '02', 10, 2, 'A-002', '金果园连锁', 3, 0, 78, 1, 2, '13', '031322'),
  (6, '07:44:53', '02', 11, 3, 'G-001', '金果园连锁', 5, 0, 89, 1, 2, '12', '031323'),
  (6, '08:01:54', '02', 12, 1, 'D-002', '', 10, 0, 40, 0, NULL, '13', '031324'),
  (6, '08:28:10', '02', 13, 2, 'F-001', '', 12, 0, 115, 0, NULL, '12', '031325'),
  (5, '05:01:22', '02', 1, 1, 'G-001', '城南生鲜超市', 12, 0, 87.5, 1, 1, '12', '031326'),
  (5, '05:15:39', '02', 2, 2, 'C-002', '城南生鲜超市', 24, 0, 46, 1, 1, '11', '031327'),
  (5, '05:47:57', '02', 3, 3, 'B-002', '城南生鲜超市', 10, 0, 60, 1, 1, '12', '031328'),
  (5, '06:08:24', '02', 4, 1, 'E-002', '永兴批零部', 8, 0, 99, 1, 4, '11', '031329'),
  (5, '06:23:37', '02', 5, 2, 'D-002', '永兴批零部', 8, 0, 42, 1, 4, '11', '031330'),
  (5, '06:46:46', '02', 6, 1, 'F-001', '鲜多多水果店', 4, 96.7, 4.6, 0, NULL, '14', ''),
  (5, '07:08:20', '01', 1, 1, 'D-002', '金果园连锁', 15, 0, 42, 0, NULL, '14', '031332'),
  (5, '07:22:13', '02', 7, 1, 'D-002', '阿芳水果摊', 10, 0, 41, 0, NULL, '14', '031333'),
  (5, '07:46:39', '02', 8, 2, 'E-002', '阿芳水果摊', 12, 0, 99, 0, NULL, '12', '031334'),
  (5, '08:05:21', '02', 9, 1, 'C-002', '阿芳水果摊', 4, 0, 46, 0, NULL, '14', '031335'),
  (5, '08:19:19', '02', 10, 1, 'A-002', '金果园连锁', 12, 0, 78.5, 0, NULL, '12', '031336'),
  (4, '04:49:15', '02', 1, 1, 'F-001', '城南生鲜超市', 5, 119.5, 4.5, 1, 1, '14', '031337'),
  (4, '05:06:19', '01', 1, 1, 'A-003', '城南生鲜超市', 8, 0, 85.5, 0, NULL, '13', ''),
  (4, '05:24:13', '01', 2, 2, 'B-002', '城南生鲜超市', 10, 0, 60, 0, NULL, '11', '031339'),
  (4, '05:36:36', '01', 3, 3, 'D-002', '城南生鲜超市', 20, 0, 42, 0, NULL, '13', '031340'),
  (4, '05:57:18', '02', 2, 1, 'F-002', '', 15, 0, 112, 0, NULL, '11', '031341'),
  (4, '06:13:45', '01', 4, 1, 'C-002', '', 12, 0, 46, 0, NULL, '11', ''),
  (4, '06:36:15', '01', 5, 2, 'C-002', '', 3, 0, 46, 0, NULL, '12', '031343'),
  (4, '06:56:25', '01', 6, 3, 'A-003', '', 6, 0, 84, 0, NULL, '14', '031344'),
  (4, '07:10:51', '02', 3, 1, 'E-002', '学府路食堂', 12, 0, 97.5, 1, 3, '11', '031345'),
  (4, '07:26:08', '02', 4, 1, 'A-002/2', '桥头水果摊', 8, 0, 74, 0, NULL, '13', '031346'),
  (4, '07:47:36', '02', 5, 2, 'A-003', '桥头水果摊', 8, 0, 85, 0, NULL, '14', ''),
  (4, '08:13:54', '02', 6, 1, 'D-002', '', 8, 0, 42, 0, NULL, '12', ''),
  (4, '08:35:14', '02', 7, 2, 'A-002/2', '', 10, 0, 77, 0, NULL, '12', '031349'),
  (3, '04:46:40', '02', 1, 1, 'A-003', '', 10, 0, 85, 0, NULL, '12', '031350'),
  (3, '05:05:45', '02', 2, 2, 'C-002', '', 12, 0, 46.5, 0, NULL, '11', '031351'),
  (3, '05:15:52', '02', 3, 3, 'C-003', '', 4, 0, 52, 0, NULL, '12', '031352'),
  (3, '05:37:56', '02', 4, 1, 'A-002/2', '城南生鲜超市', 5, 0, 76, 0, NULL, '13', '031353'),
  (3, '05:57:24', '02', 5, 1, 'D-002', '', 4, 0, 42, 0, NULL, '11', ''),
  (3, '06:11:53', '01', 1, 1, 'E-002', '鲜多多水果店', 12, 0, 96, 1, NULL, '13', '031355'),
  (3, '06:23:41', '02', 6, 1, 'B-002', '金果园连锁', 8, 0, 61, 1, 2, '11', '031356'),
  (3, '06:35:11', '02', 7, 2, 'F-002', '金果园连锁', 12, 293.4, 4.5, 1, 2, '14', '031357'),
  (3, '06:56:45', '02', 8, 1, 'B-002', '', 3, 0, 59.5, 0, NULL, '12', '031358'),
  (3, '07:10:57', '02', 9, 1, 'C-003', '城南生鲜超市', 5, 75.2, 3.4, 1, 1, '12', '031359'),
  (3, '07:27:15', '02', 10, 2, 'C-003', '城南生鲜超市', 10, 0, 51.5, 1, 1, '14', '031360'),
  (3, '07:41:04', '01', 2, 1, 'C-003', '陈记果行', 8, 0, 52.5, 0, NULL, '11', ''),
  (3, '07:54:55', '01', 3, 2, 'G-001', '陈记果行', 12, 0, 89, 0, NULL, '12', '031362'),
  (3, '08:17:39', '01', 4, 3, 'A-003', '陈记果行', 12, 0, 85.5, 0, NULL, '12', '031363'),
  (3, '08:32:33', '02', 11, 1, 'D-002', '城南生鲜超市', 12, 0, 43, 1, 1, '13', ''),
  (2, '04:42:28', '02', 1, 1, 'C-002', '鲜多多水果店', 6, 0, 47, 0, NULL, '12', '031365'),
  (2, '04:52:48', '02', 2, 1, 'D-003', '金果园连锁', 12, 0, 44, 1, NULL, '12', '031366'),
  (2, '05:00:49', '02', 3, 2, 'B-002', '金果园连锁', 10, 0, 58, 1, NULL, '13', ''),
  (2, '05:17:47', '02', 4, 1, 'D-002', '', 4, 0, 42, 0, NULL, '11', ''),
  (2, '05:30:46', '02', 5, 2, 'C-003', '', 15, 0, 52, 0, NULL, '13', '031369'),
  (2, '05:37:49', '02', 6, 3, 'E-002', '', 8, 0, 98, 0, NULL, '11', '031370'),
  (2, '05:46:06', '02', 7, 1, 'G-001', '老赵果蔬店', 8, 0, 88, 0, NULL, '14', '031371'),
  (2, '05:58:50', '02', 8, 2, 'A-003', '老赵果蔬店', 12, 0, 83, 0, NULL, '12', '031372'),
  (2, '06:14:09', '02', 9, 1, 'D-003', '', 10, 0, 44.5, 0, NULL, '12', ''),
  (2, '06:31:53', '02', 10, 2, 'D-002', '', 12, 0, 41.5, 0, NULL, '13', '031374'),
  (2, '06:42:19', '02', 11, 3, 'B-003', '', 12, 0, 65.5, 0, NULL, '14', '031375'),
  (2, '06:56:08', '02', 12, 1, 'F-002', '', 10, 0, 112, 0, NULL, '11', '031376'),
  (2, '07:02:38', '02', 13, 1, 'C-003', '学府路食堂', 6, 86.6, 3.6, 0, NULL, '11', '031377'),
  (2, '07:16:05', '02', 14, 1, 'B-003', '老赵果蔬店', 3, 0, 66, 0, NULL, '12', '031378'),
  (2, '07:23:17', '02', 15, 2, 'C-002', '老赵果蔬店', 12, 0, 45, 0, NULL, '13', '031379'),
  (2, '07:29:59', '01', 1, 1, 'C-003', '学府路食堂', 12, 176.4, 3.6, 1, NULL, '14', '031380'),
  (2, '07:38:46', '01', 2, 2, 'D-003', '学府路食堂', 8, 0, 44, 1, NULL, '11', '031381'),
  (2, '07:56:02', '01', 3, 3, 'B-003', '学府路食堂', 8, 0, 66, 1, NULL, '11', '031382'),
  (2, '08:04:27', '01', 4, 1, 'A-002/2', '金果园连锁', 8, 0, 76, 1, NULL, '12', ''),
  (2, '08:16:27', '01', 5, 2, 'D-003', '金果园连锁', 12, 0, 44.5, 1, NULL, '13', '031384'),
  (1, '04:36:37', '01', 1, 1, 'D-003', '陈记果行', 6, 0, 42, 1, NULL, '12', '031385'),
  (1, '04:45:13', '01', 2, 2, 'A-003', '陈记果行', 12, 0, 84.5, 1, NULL, '11', ''),
  (1, '04:57:03', '01', 3, 3, 'A-003', '陈记果行', 15, 0, 85, 1, NULL, '13', '031387'),
  (1, '05:05:31', '02', 1, 1, 'D-003', '阿芳水果摊', 8, 0, 44, 0, NULL, '12', '031388'),
  (1, '05:12:33', '02', 2, 1, 'D-003', '老赵果蔬店', 6, 0, 45, 1, NULL, '11', '031389'),
  (1, '05:24:56', '01', 4, 1, 'B-003', '', 20, 0, 66, 0, NULL, '12', '031390'),
  (1, '05:30:29', '01', 5, 2, 'E-002', '', 8, 0, 98.5, 0, NULL, '14', ''),
  (1, '05:36:34', '02', 3, 1, 'G-001', '', 18, 0, 89, 0, NULL, '13', ''),
  (1, '05:47:45', '02', 4, 2, 'E-003', '', 7, 0, 104, 0, NULL, '14', '031393'),
  (1, '05:53:06', '02', 5, 3, 'A-004', '', 10, 0, 86, 0, NULL, '14', ''),
  (1, '06:02:45', '02', 6, 1, 'A-004', '', 5, 0, 86, 0, NULL, '12', '031395'),
  (1, '06:11:59', '02', 7, 2, 'A-002/2', '', 10, 0, 75.5, 0, NULL, '14', '031396'),
  (1, '06:17:05', '02', 8, 1, 'A-003', '', 13, 0, 84, 0, NULL, '12', '031397'),
  (1, '06:25:26', '02', 9, 2, 'E-003', '', 24, 0, 105, 0, NULL, '13', ''),
  (1, '06:34:40', '02', 10, 3, 'B-003', '', 3, 0, 64, 0, NULL, '11', '031399'),
  (1, '06:46:56', '02', 11, 1, 'C-002', '', 12, 0, 46.5, 0, NULL, '13', '031400'),
  (1, '06:53:27', '02', 12, 1, 'D-002', '学府路食堂', 17, 0, 42, 0, NULL, '11', '031401'),
  (1, '07:03:05', '02', 13, 2, 'F-002', '学府路食堂', 10, 0, 111.5, 0, NULL, '14', '031402'),
  (1, '07:16:19', '01', 6, 1, 'A-004', '桥头水果摊', 16, 0, 85.5, 0, NULL, '12', '031403'),
  (1, '07:27:48', '02', 14, 1, 'B-002', '学府路食堂', 5, 0, 59.5, 1, NULL, '12', '031404'),
  (1, '07:37:49', '02', 15, 2, 'D-002', '学府路食堂', 16, 0, 43, 1, NULL, '13', ''),
  (1, '07:46:26', '02', 16, 1, 'D-002', '鲜多多水果店', 24, 0, 42.5, 1, NULL, '12', '031406'),
  (1, '07:53:42', '02', 17, 2, 'C-003', '鲜多多水果店', 12, 180.0, 3.7, 1, NULL, '12', '031407'),
  (1, '08:04:14', '02', 18, 3, 'C-002', '鲜多多水果店', 15, 0, 46.5, 1, NULL, '14', '031408'),
  (1, '08:16:48', '02', 19, 1, 'C-002', '永兴批零部', 4, 0, 46, 1, NULL, '13', ''),
  (1, '08:28:29', '02', 20, 2, 'C-003', '永兴批零部', 12, 173.5, 3.6, 1, NULL, '12', '031410'),
  (1, '08:41:35', '02', 21, 3, 'B-003', '永兴批零部', 6, 0, 64, 1, NULL, '12', '031411'),
  (0, '00:10:11', '02', 1, 1, 'C-003', '', 10, 146.3, 3.5, 0, NULL, '11', '031412'),
  (0, '00:20:10', '02', 2, 1, 'D-002', '桥头水果摊', 16, 0, 42, 0, NULL, '11', '031413'),
  (0, '00:29:44', '02', 3, 2, 'E-002', '桥头水果摊', 12, 0, 98.5, 0, NULL, '13', '031414'),
  (0, '00:39:52', '02', 4, 1, 'D-003', '永兴批零部', 11, 0, 43.5, 1, NULL, '13', '031415'),
  (0, '00:46:19', '02', 5, 2, 'A-002/2', '永兴批零部', 3, 0, 74, 1, NULL, '14', '031416'),
  (0, '00:51:50', '01', 1, 1, 'C-003', '老赵果蔬店', 10, 0, 52, 0, NULL, '12', ''),
  (0, '01:00:32', '01', 2, 2, 'A-004', '老赵果蔬店', 5, 0, 84, 0, NULL, '13', '031418');

INSERT INTO Sal_List (SalNo, ListNo, ITM, ID, PRDNo, PRDName, CustName, Store, PArea, Vendee, SaleDate, FSaleDate, SaleTime,
    Num, Suttle, UPR, PerPack, PackAmount, PerForegift, ForegiftAmount, Amount, Receiver, SalesID, SaleType, bolReturn,
    ReturnDate)
  SELECT CONCAT(t.UID, DATE_FORMAT(@today - INTERVAL t.Ago DAY, '%y%m%d'), LPAD(t.Serial, 3, '0')), t.ListNo, t.ITM, p.ID,
    p.PRDNo, p.PRDName, p.CustName, p.Store, p.PArea, t.Vendee, DATE_FORMAT(@today - INTERVAL t.Ago DAY, '%Y-%m-%d'),
    DATE_FORMAT(@today - INTERVAL t.Ago DAY, '%Y-%m-%d'), t.SaleTime, t.Num, t.Suttle, t.UPR, l.PerPack,
    ROUND(t.Num * l.PerPack, 1), l.PerForegift, t.Num * l.PerForegift,
    ROUND(IF(t.Suttle <> 0, t.Suttle, t.Num) * t.UPR, 1), t.UID, t.SalesID, t.SaleType, IF(t.Returned IS NULL, '0', '1'),
    IF(t.Returned IS NULL, '', DATE_FORMAT(@today - INTERVAL t.Returned DAY, '%Y-%m-%d'))
  FROM demo_ticket t JOIN demo_lot l ON l.Lot = t.Lot
    JOIN PRD_List p ON p.ID = CONCAT(DATE_FORMAT(@today - INTERVAL l.Ago DAY, '%Y%m%d'), LPAD(l.Serial, 3, '0'));

UPDATE Sal_List SET TotalAmount = Amount + PackAmount + ForegiftAmount;

UPDATE PRD_List SET Num_Sal = Num
  + IFNULL((SELECT SUM(IF(e.EStoreType = '0', e.Num, -e.Num)) FROM EStore_List e WHERE e.ID = PRD_List.ID), 0)
  - IFNULL((SELECT SUM(s.Num) FROM Sal_List s WHERE s.ID = PRD_List.ID), 0);

-- Two tickets were corrected: they had two pieces more.
CREATE TEMPORARY TABLE demo_corrected (Ago INT, UID VARCHAR(2), Serial INT)
  DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

INSERT INTO demo_corrected VALUES
  (10, '01', 1),
  (2, '02', 2);

INSERT INTO Sal_List_B (SalNo, ListNo, ITM, ID, PRDNo, PRDName, CustName, Store, PArea, Vendee, SaleDate, FSaleDate, SaleTime,
    Num, Suttle, UPR, PerPack, PackAmount, PerForegift, ForegiftAmount, Amount, TotalAmount, Receiver, SalesID, SaleType,
    bForegiftRTN, EReceiver, EDate, ETime)
  SELECT SalNo, ListNo, ITM, ID, PRDNo, PRDName, CustName, Store, PArea, Vendee, SaleDate, FSaleDate, SaleTime, Num + 2, Suttle,
    UPR, PerPack, ROUND((Num + 2) * PerPack, 1), PerForegift, (Num + 2) * PerForegift, ROUND((Num + 2) * UPR, 1),
    ROUND((Num + 2) * PerPack, 1) + (Num + 2) * PerForegift + ROUND((Num + 2) * UPR, 1), Receiver, SalesID, SaleType,
    bForegiftRTN, '01', SaleDate, '11:05:00'
  FROM demo_corrected c JOIN Sal_List ON SalNo = CONCAT(c.UID, DATE_FORMAT(@today - INTERVAL c.Ago DAY, '%y%m%d'), LPAD(c.Serial, 3, '0'));

UPDATE Sal_List SET EReceiver = '01', EDate = SaleDate, ETime = '11:05:00'
  WHERE SalNo IN (SELECT SalNo FROM Sal_List_B);

-- Advances to owners. Those booked at intake stand in DebitPrice and enter no sum.
CREATE TEMPORARY TABLE demo_advance (Ago INT, Lot VARCHAR(20), DebitAmount INT, Memo VARCHAR(50))
  DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

INSERT INTO demo_advance VALUES
  (12, 'A-001', 1000, '现金'),
  (11, 'C-001', 600, '司机代领'),
  (6, 'C-002', 1500, '现金'),
  (4, 'D-002', 2000, '转账'),
  (3, 'C-002', 800, '运费'),
  (2, 'E-002', 1200, '现金');

INSERT INTO CustDebit (ID, PRDNo, CustName, PRDName, Store, DebitAmount, DebitDate, Receiver, Memo)
  SELECT p.ID, p.PRDNo, p.CustName, p.PRDName, p.Store, d.DebitAmount,
    DATE_FORMAT(@today - INTERVAL d.Ago DAY, '%Y-%m-%d'), '03', d.Memo
  FROM demo_advance d JOIN demo_lot l ON l.Lot = d.Lot
    JOIN PRD_List p ON p.ID = CONCAT(DATE_FORMAT(@today - INTERVAL l.Ago DAY, '%Y%m%d'), LPAD(l.Serial, 3, '0'));

INSERT INTO CustDebit (ID, PRDNo, CustName, PRDName, Store, DebitPrice, DebitDate, Receiver)
  SELECT ID, PRDNo, CustName, PRDName, Store, DebitPrice, CustInDate, Receiver FROM PRD_List WHERE DebitPrice <> 0;

-- Crates: 0 in, 1 brought back by a buyer, 2 lost, 3 handed back, 4 lent out.
INSERT INTO Pack_List (ITM, PackDate, PackNo, PackName, PackType, Num, Memo)
  SELECT 1, DATE_FORMAT(@today - INTERVAL 13 DAY, '%Y-%m-%d'), PackNo, PackName, '4', 700, '借给老客户周转'
  FROM DFN_Pack WHERE PackNo = 'K2' UNION ALL
  SELECT 1, DATE_FORMAT(@today - INTERVAL 12 DAY, '%Y-%m-%d'), PackNo, PackName, '0', 320, '随货到'
  FROM DFN_Pack WHERE PackNo = 'W1' UNION ALL
  SELECT 2, DATE_FORMAT(@today - INTERVAL 12 DAY, '%Y-%m-%d'), PackNo, PackName, '2', 3, '到货时已破'
  FROM DFN_Pack WHERE PackNo = 'W1' UNION ALL
  SELECT 1, DATE_FORMAT(@today - INTERVAL 5 DAY, '%Y-%m-%d'), PackNo, PackName, '2', 2, '破损'
  FROM DFN_Pack WHERE PackNo = 'K2' UNION ALL
  SELECT 1, DATE_FORMAT(@today - INTERVAL 4 DAY, '%Y-%m-%d'), PackNo, PackName, '3', 15, '随车带回'
  FROM DFN_Pack WHERE PackNo = 'W1';

-- Deposits given back: over the till (Pieces brought back, all or fewer) or through the crate ledger.
CREATE TEMPORARY TABLE demo_return (Ago INT, UID VARCHAR(2), Serial INT, BackAgo INT, ByLedger INT, Pieces INT, ITM INT)
  DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

INSERT INTO demo_return VALUES
  (13, '02', 5, 11, 0, 4, 0),
  (8, '02', 2, 6, 0, 8, 0),
  (7, '02', 5, 5, 0, 15, 0),
  (6, '02', 8, 4, 0, 16, 0),
  (4, '01', 4, 2, 0, 12, 0),
  (2, '02', 5, 0, 0, 15, 0),
  (13, '02', 9, 10, 1, 8, 1),
  (12, '02', 1, 10, 1, 15, 1),
  (12, '02', 5, 9, 1, 4, 1),
  (12, '02', 12, 10, 1, 10, 2),
  (11, '02', 1, 8, 1, 12, 1),
  (11, '02', 12, 9, 1, 15, 1),
  (10, '01', 2, 7, 1, 5, 1),
  (9, '02', 2, 7, 1, 10, 1),
  (9, '02', 9, 6, 1, 6, 1),
  (8, '02', 9, 5, 1, 8, 2),
  (7, '02', 10, 4, 1, 6, 1),
  (5, '02', 4, 3, 1, 8, 1),
  (4, '02', 3, 2, 1, 12, 1),
  (3, '01', 1, 1, 1, 12, 1),
  (3, '02', 10, 0, 1, 10, 1),
  (2, '02', 13, 0, 1, 6, 2);

INSERT INTO Foregift_RTN (RForegiftDate, SalNo, PRDNo, PRDName, CustName, SaleDate, Num, PerForegift, ForegiftAmount, Num_R,
    ForegiftAmount_R, Memo)
  SELECT DATE_FORMAT(@today - INTERVAL r.BackAgo DAY, '%Y-%m-%d'), s.SalNo, s.PRDNo, s.PRDName, s.CustName, s.SaleDate, s.Num,
    s.PerForegift, s.ForegiftAmount, r.Pieces, r.Pieces * s.PerForegift, IF(r.Pieces < s.Num, '缺一只', '')
  FROM demo_return r JOIN Sal_List s ON s.SalNo = CONCAT(r.UID, DATE_FORMAT(@today - INTERVAL r.Ago DAY, '%y%m%d'), LPAD(r.Serial, 3, '0'))
  WHERE r.ByLedger = 0;

INSERT INTO Pack_List (ITM, PackDate, PackNo, PackName, PackType, SalNo, Num, PerForegift, ForegiftAmount)
  SELECT r.ITM, DATE_FORMAT(@today - INTERVAL r.BackAgo DAY, '%Y-%m-%d'), k.PackNo, k.PackName, '1', s.SalNo, s.Num,
    s.PerForegift, s.ForegiftAmount
  FROM demo_return r JOIN Sal_List s ON s.SalNo = CONCAT(r.UID, DATE_FORMAT(@today - INTERVAL r.Ago DAY, '%y%m%d'), LPAD(r.Serial, 3, '0'))
    JOIN PRD_List p ON p.ID = s.ID JOIN DFN_Pack k ON k.PackNo = p.PackNo
  WHERE r.ByLedger = 1;

UPDATE Sal_List SET bForegiftRTN = '1'
  WHERE SalNo IN (SELECT SalNo FROM Foregift_RTN) OR SalNo IN (SELECT SalNo FROM Pack_List WHERE SalNo <> '');

-- Only foreign crates count what comes in and what goes back. Only own ones are lent.
UPDATE DFN_Pack SET
  Num_PUR = IF(PackStyle = '0', IFNULL((SELECT SUM(l.Num) FROM Pack_List l WHERE l.PackNo = DFN_Pack.PackNo And l.PackType = '0'), 0), 0),
  Num_Back = IFNULL((SELECT SUM(l.Num) FROM Pack_List l WHERE l.PackNo = DFN_Pack.PackNo And l.PackType = '1'), 0),
  Num_LST = IFNULL((SELECT SUM(l.Num) FROM Pack_List l WHERE l.PackNo = DFN_Pack.PackNo And l.PackType = '2'), 0),
  Num_RTN = IF(PackStyle = '0', IFNULL((SELECT SUM(l.Num) FROM Pack_List l WHERE l.PackNo = DFN_Pack.PackNo And l.PackType = '3'), 0), 0),
  Num_Loan = IF(PackStyle = '1', IFNULL((SELECT SUM(l.Num) FROM Pack_List l WHERE l.PackNo = DFN_Pack.PackNo And l.PackType = '4'), 0), 0),
  Num_PACK = IFNULL((SELECT SUM(s.Num) FROM Sal_List s JOIN PRD_List p ON p.ID = s.ID
    WHERE p.PackNo = DFN_Pack.PackNo And s.PerForegift > 0), 0);

-- Settlements: user and serial of the day, lot, the rates as typed (percent, or yuan per tonne),
-- and the lines that are typed as amounts.
CREATE TEMPORARY TABLE demo_settlement (Ago INT, UID VARCHAR(2), Serial INT, Lot VARCHAR(20), Per_LManage VARCHAR(10),
  Per_LElect VARCHAR(10), Per_LUnload VARCHAR(10), Per_LSani VARCHAR(10), LPackPrice DECIMAL(20,6),
  LChillPrice DECIMAL(20,6), LOtherPrice DECIMAL(20,6), CheckUser VARCHAR(20), PayUser VARCHAR(20)
) DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

INSERT INTO demo_settlement VALUES
  (9, '01', 1, 'A-001', '6', '', '30', '5', 20, 0, 0, '王会计', '王会计'),
  (9, '01', 2, 'B-001', '6', '', '30', '5', 0, 0, 0, '王会计', '王会计'),
  (8, '01', 1, 'C-001', '5', '1', '30', '5', 0, 0, 12.5, '王会计', '王会计'),
  (7, '01', 1, 'D-001', '6', '', '25', '', 0, 90, 0, '王会计', '老板'),
  (6, '03', 1, 'E-001', '5', '', '40', '5', 0, 120, 0, '会计', '老板'),
  (5, '01', 1, 'A-002', '6', '', '30', '5', 30, 0, 0, '王会计', '王会计'),
  (4, '03', 1, 'F-001', '5.5', '0.5', '25', '', 0, 0, 8, '会计', '老板');

INSERT INTO CheckOut (ID, CheckNo, CheckDate, PRDNo, PRDName, Num, Suttle, Amount, ListNum, CustName, Store, LPackPrice,
    LExpendPrice, LChillPrice, LOtherPrice, CheckUser, PayUser, Receiver, Per_LManage, Per_LElect, Per_LUnload, Per_LSani)
  SELECT p.ID, CONCAT(c.UID, DATE_FORMAT(@today - INTERVAL c.Ago DAY, '%y%m%d'), LPAD(c.Serial, 3, '0')),
    DATE_FORMAT(@today - INTERVAL c.Ago DAY, '%Y-%m-%d'), p.PRDNo, p.PRDName, SUM(s.Num),
    p.MPercent * SUM(IF(s.Suttle = 0, s.Num, 0)) + SUM(s.Suttle), SUM(s.Amount), COUNT(*), p.CustName, p.Store, c.LPackPrice,
    IFNULL((SELECT SUM(d.DebitAmount) FROM CustDebit d WHERE d.ID = p.ID), 0), c.LChillPrice, c.LOtherPrice, c.CheckUser,
    c.PayUser, c.UID, c.Per_LManage, c.Per_LElect, c.Per_LUnload, c.Per_LSani
  FROM demo_settlement c JOIN demo_lot l ON l.Lot = c.Lot
    JOIN PRD_List p ON p.ID = CONCAT(DATE_FORMAT(@today - INTERVAL l.Ago DAY, '%Y%m%d'), LPAD(l.Serial, 3, '0'))
    JOIN Sal_List s ON s.ID = p.ID
  GROUP BY p.ID, p.MPercent, p.PRDNo, p.PRDName, p.CustName, p.Store, c.UID, c.Ago, c.Serial, c.LPackPrice, c.LChillPrice,
    c.LOtherPrice, c.CheckUser, c.PayUser, c.Per_LManage, c.Per_LElect, c.Per_LUnload, c.Per_LSani;

UPDATE CheckOut SET
  LManagePrice = ROUND(Amount * IF(Per_LManage = '', 0, CAST(Per_LManage AS DECIMAL(20,6))) / 100, 1),
  LElectPrice = ROUND(Amount * IF(Per_LElect = '', 0, CAST(Per_LElect AS DECIMAL(20,6))) / 100, 1),
  LUnloadPrice = ROUND(Suttle * IF(Per_LUnload = '', 0, CAST(Per_LUnload AS DECIMAL(20,6))) / 1000, 1),
  LSanitationPrice = ROUND(Suttle * IF(Per_LSani = '', 0, CAST(Per_LSani AS DECIMAL(20,6))) / 1000, 1);

UPDATE CheckOut SET LTotalPrice = LManagePrice + LPackPrice + LUnloadPrice + LExpendPrice + LSanitationPrice + LElectPrice
  + LRecoupPrice + LChillPrice + LFieldPrice + LOtherPrice;

UPDATE CheckOut SET GTotalPrice = Amount - LTotalPrice;

UPDATE PRD_List p JOIN CheckOut c ON c.ID = p.ID SET p.bolCheckOut = '1', p.CheckNo = c.CheckNo;

UPDATE Sal_List s JOIN CheckOut c ON c.ID = s.ID
  SET s.bolCheckOut = '1', s.CheckDate = c.CheckDate, s.CheckNo = c.CheckNo;

UPDATE CustDebit d JOIN CheckOut c ON c.ID = d.ID
  SET d.bolCheckOut = '1', d.CheckDate = c.CheckDate, d.CheckNo = c.CheckNo;

-- The stall's own expenses.
INSERT INTO Fee_List (FeeNo, FeeDate, ITM, FeeID, FeeName, DSC, Amount)
  SELECT CONCAT('03', DATE_FORMAT(@today - INTERVAL 10 DAY, '%y%m%d'), '001'),
    DATE_FORMAT(@today - INTERVAL 10 DAY, '%Y-%m-%d'), 0, FeeID, FeeName, '上月电费', 320.5 FROM Fee_Type WHERE FeeID = '02' UNION ALL
  SELECT CONCAT('03', DATE_FORMAT(@today - INTERVAL 10 DAY, '%y%m%d'), '001'),
    DATE_FORMAT(@today - INTERVAL 10 DAY, '%Y-%m-%d'), 1, FeeID, FeeName, '两人四天', 680 FROM Fee_Type WHERE FeeID = '03' UNION ALL
  SELECT CONCAT('03', DATE_FORMAT(@today - INTERVAL 3 DAY, '%y%m%d'), '001'),
    DATE_FORMAT(@today - INTERVAL 3 DAY, '%Y-%m-%d'), 0, FeeID, FeeName, '本月档口', 1500 FROM Fee_Type WHERE FeeID = '01' UNION ALL
  SELECT CONCAT('03', DATE_FORMAT(@today - INTERVAL 3 DAY, '%y%m%d'), '001'),
    DATE_FORMAT(@today - INTERVAL 3 DAY, '%Y-%m-%d'), 1, FeeID, FeeName, '票据纸', 86 FROM Fee_Type WHERE FeeID = '04';

-- Bill counters hold the last serial used.
INSERT INTO Count_Bill (TID, UID, CurrDate, CurrNumber)
  SELECT '01', Receiver, SaleDate, MAX(CAST(SUBSTRING(SalNo, 9) AS UNSIGNED)) FROM Sal_List GROUP BY Receiver, SaleDate;

INSERT INTO Count_Bill (TID, UID, CurrDate, CurrNumber)
  SELECT '03', Receiver, CheckDate, MAX(CAST(SUBSTRING(CheckNo, 9) AS UNSIGNED)) FROM CheckOut GROUP BY Receiver, CheckDate;

INSERT INTO Count_Bill (TID, UID, CurrDate, CurrNumber)
  SELECT 'FL', LEFT(FeeNo, 2), FeeDate, MAX(CAST(SUBSTRING(FeeNo, 9) AS UNSIGNED)) FROM Fee_List GROUP BY LEFT(FeeNo, 2), FeeDate;

INSERT INTO Count_Bill (TID, CurrDate, CurrNumber)
  SELECT 'C01', CustFInDate, MAX(CAST(SUBSTRING(ID, 9) AS UNSIGNED)) FROM PRD_List GROUP BY CustFInDate;

DROP TEMPORARY TABLE demo_lot, demo_change, demo_ticket, demo_corrected, demo_advance, demo_return, demo_settlement;
