-- The rows every new account set starts with.
--
-- The first user is 01 with the password 1 and all rights, and the company has no name yet:
-- packaging/create-account-set puts in what it was told.

SET NAMES utf8mb4;

-- PRD_Order keeps its leading blank: it is appended to a statement as it stands.
INSERT INTO Sys_Define (CompName, DepartName, PrintType, Orientation, bolVerify, Deadline, Control_Sale,
                        CheckOutStyle, PRD_Order, bolShowEStore) VALUES
  ('', '', '0', 2, '0', '00:00:00', '0', '0', ' Order By ID Desc', '0');

-- Nothing prints on saving until a site chooses its paper.
INSERT INTO DFN_Paper (PaperID, PaperName, LeftArea, TopArea, PrintStyle) VALUES
  ('P01', '商品登记单', 0, 0, '0'),
  ('P02', '库存变更单', 0, 0, '0'),
  ('P03', '收款清单', 0, 0, '0'),
  ('P04', '预支款登记单', 0, 0, '0'),
  ('P05', '结算清单', 0, 0, '0'),
  ('P06', '报表', 0, 0, '2');

INSERT INTO DFN_Round (CountID, bolRound) VALUES
  ('C01', '0'),
  ('C02', '0');

INSERT INTO DFN_CheckFee (FeeID, CountID) VALUES
  ('F01', '0'),
  ('F02', '0');

INSERT INTO DFN_SaleType (TypeID, TypeName) VALUES
  ('0', '现金'),
  ('1', '赊销');

-- No L4: that place on the settlement is the advances, whose caption is fixed.
INSERT INTO DFN_CheckOutLabel (LabelID, Caption) VALUES
  ('L0', '管理费'),
  ('L1', '服务费'),
  ('L2', '包装使用费'),
  ('L3', '装卸费'),
  ('L5', '卫生费'),
  ('L6', '代扣税'),
  ('L7', '冷藏费'),
  ('L8', '邮电费'),
  ('L9', '其  他');

INSERT INTO DRptFont (FontSize) VALUES
  (9);

-- The captions differ from each other: the rights window finds an entry by its caption.
INSERT INTO Menu_List (MenuID, MenuName, MenuText) VALUES
  ('01', 'menuUserList', '用户信息'),
  ('02', 'menuUserMenu', '用户权限'),
  ('03', 'menuStore', '仓位信息'),
  ('04', 'menuSales', '业务员信息'),
  ('05', 'menuPRDSort', '产品分类'),
  ('06', 'menuCustList', '客户信息'),
  ('07', 'menuChangePWD', '修改密码'),
  ('08', 'menuPRDList', '货源登记'),
  ('09', 'menuEStore', '库存变更'),
  ('10', 'menuRptEStore', '库存变更明细表'),
  ('11', 'menuRptCustSale', '销售统计'),
  ('12', 'menuPackSort', '箱筐分类'),
  ('13', 'menuPackList', '箱筐变更'),
  ('14', 'menuRptPackList', '箱筐变更明细表'),
  ('15', 'menuSale', '收银开票'),
  ('16', 'menuRptSaleDetail', '收银查帐'),
  ('17', 'menuESale', '收银调整'),
  ('18', 'menuForegift', '销售退箱'),
  ('19', 'menuRptForegift', '退箱明细表'),
  ('20', 'menuCheckOut', '客户结算'),
  ('21', 'menuRptCheckOutDetail', '结算查帐'),
  ('22', 'menuECheckOut', '结算调整'),
  ('23', 'menuDelCheckOut', '结算退回'),
  ('24', 'menuDebit', '客户预支'),
  ('25', 'menuCheckCheque', '应收款结算'),
  ('26', 'menuFeeType', '费用类别'),
  ('27', 'menuFee', '费用登记'),
  ('28', 'menuEditFee', '费用调整'),
  ('29', 'menuRptFee', '费用查询'),
  ('30', 'menuRptPRDDescribe', '产品销售统计表'),
  ('31', 'menuRptSaleDescribe', '收银情况统计表'),
  ('32', 'menuRptCheckOutDescribe', '结算情况统计表'),
  ('33', 'menuRptUnCheckOut', '待结算明细表'),
  ('34', 'menuRptDebit', '客户预支明细表'),
  ('35', 'menuRptCheque', '应收款收款表'),
  ('36', 'menuRptCheckCheque', '应收款结算表'),
  ('37', 'menuRptSales', '销售业绩表'),
  ('38', 'menuRptDaySale', '库存盘点日报表'),
  ('39', 'menuRptDayCust', '销售盘点表'),
  ('40', 'menuRptStoreDetail', '仓位销售明细表'),
  ('41', 'menuRptStoreDescribe', '仓位销售统计表'),
  ('42', 'menuRptAmount', '收支统计表'),
  ('43', 'menuBasePara', '基本设置'),
  ('44', 'menuDataClear', '数据清空');

INSERT INTO User_List (UserID, UserName, UserPWD, UserIP, bolIP, bolSearch, bolEdit) VALUES
  ('01', '管理员', '1', '', '0', '1', '1');

INSERT INTO User_Menu (UserID, MenuName)
  SELECT '01', MenuName FROM Menu_List Order By MenuID;
