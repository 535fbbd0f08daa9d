-- Tables and indexes of one account set.
--
-- Run over a utf8mb4 connection into an empty database, as packaging/create-account-set does.
-- A statement ends with a semicolon at the end of its line. No comment or text in it holds another.
--
-- Every table names its collation, because the server's default may be another: lookups rely on
-- comparison without regard to case and trailing blanks.
-- Dates are text yyyy-mm-dd and times text hh:mm:ss, compared as text, empty when there is none.
-- Flags are the texts 0 and 1. Money, weights and quantities are exact decimals.
-- Every column has a default and none is null: many inserts leave columns out, and a null then
-- arises only from a sum over nothing.
-- A primary key stands only where the windows find a row by that key. The others may hold
-- the same values twice (history, ledgers, sessions) and have plain indexes.

-- Users, rights, sessions

CREATE TABLE User_List (
  UserID    VARCHAR(30) NOT NULL DEFAULT '',
  UserName  VARCHAR(60) NOT NULL DEFAULT '',
  UserPWD   VARCHAR(60) NOT NULL DEFAULT '',
  UserIP    VARCHAR(50) NOT NULL DEFAULT '',
  bolIP     VARCHAR(1)  NOT NULL DEFAULT '0',
  bolSearch VARCHAR(1)  NOT NULL DEFAULT '0',
  bolEdit   VARCHAR(1)  NOT NULL DEFAULT '0',
  PRIMARY KEY (UserID),
  KEY UserName (UserName)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Not unique: two menu entries of one caption insert the same pair twice.
CREATE TABLE User_Menu (
  UserID   VARCHAR(30) NOT NULL DEFAULT '',
  MenuName VARCHAR(60) NOT NULL DEFAULT '',
  KEY UserID (UserID, MenuName)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- MenuID has two digits, so that 10 does not sort before 2.
CREATE TABLE Menu_List (
  MenuID   VARCHAR(4)  NOT NULL DEFAULT '',
  MenuName VARCHAR(60) NOT NULL DEFAULT '',
  MenuText VARCHAR(60) NOT NULL DEFAULT '',
  PRIMARY KEY (MenuName)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Not unique: two rows of one user can stand for a moment while one session displaces another.
CREATE TABLE User_Status (
  UserID  VARCHAR(30) NOT NULL DEFAULT '',
  CheckID VARCHAR(10) NOT NULL DEFAULT '',
  LogDate VARCHAR(10) NOT NULL DEFAULT '',
  LogTime VARCHAR(8)  NOT NULL DEFAULT '',
  KEY UserID (UserID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE ErrInfo (
  ErrUserName    VARCHAR(60)   NOT NULL DEFAULT '',
  ErrDescription VARCHAR(1000) NOT NULL DEFAULT '',
  ErrSource      VARCHAR(100)  NOT NULL DEFAULT '',
  ErrDate        VARCHAR(10)   NOT NULL DEFAULT '',
  ErrTime        VARCHAR(8)    NOT NULL DEFAULT ''
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Settings

-- Exactly one row. PRD_Order begins with a blank that must stay.
CREATE TABLE Sys_Define (
  CompName      VARCHAR(100) NOT NULL DEFAULT '',
  DepartName    VARCHAR(100) NOT NULL DEFAULT '',
  PrintType     VARCHAR(1)   NOT NULL DEFAULT '0',
  Orientation   INT          NOT NULL DEFAULT 0,
  bolVerify     VARCHAR(1)   NOT NULL DEFAULT '0',
  Deadline      VARCHAR(8)   NOT NULL DEFAULT '',
  Control_Sale  VARCHAR(1)   NOT NULL DEFAULT '0',
  CheckOutStyle VARCHAR(1)   NOT NULL DEFAULT '0',
  PRD_Order     VARCHAR(40)  NOT NULL DEFAULT '',
  bolShowEStore VARCHAR(1)   NOT NULL DEFAULT '0'
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Offsets in centimetres.
CREATE TABLE DFN_Paper (
  PaperID    VARCHAR(10)   NOT NULL DEFAULT '',
  PaperName  VARCHAR(60)   NOT NULL DEFAULT '',
  LeftArea   DECIMAL(20,6) NOT NULL DEFAULT 0,
  TopArea    DECIMAL(20,6) NOT NULL DEFAULT 0,
  PrintStyle VARCHAR(2)    NOT NULL DEFAULT '0',
  PRIMARY KEY (PaperID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE DFN_Round (
  CountID  VARCHAR(10) NOT NULL DEFAULT '',
  bolRound VARCHAR(1)  NOT NULL DEFAULT '0',
  PRIMARY KEY (CountID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE DFN_CheckFee (
  FeeID   VARCHAR(10) NOT NULL DEFAULT '',
  CountID VARCHAR(10) NOT NULL DEFAULT '0',
  PRIMARY KEY (FeeID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE DFN_SaleType (
  TypeID   VARCHAR(10) NOT NULL DEFAULT '',
  TypeName VARCHAR(60) NOT NULL DEFAULT ''
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE DFN_CheckOutLabel (
  LabelID VARCHAR(10) NOT NULL DEFAULT '',
  Caption VARCHAR(60) NOT NULL DEFAULT '',
  PRIMARY KEY (LabelID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE DFN_RptTitle (
  RptName  VARCHAR(60)  NOT NULL DEFAULT '',
  RptTitle VARCHAR(100) NOT NULL DEFAULT '',
  PRIMARY KEY (RptName)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- ColWidth in twips, as text: the column editor stores what was typed.
CREATE TABLE DFN_RptCol (
  RptName    VARCHAR(60) NOT NULL DEFAULT '',
  ColID      VARCHAR(4)  NOT NULL DEFAULT '',
  ColName    VARCHAR(60) NOT NULL DEFAULT '',
  ColWidth   VARCHAR(20) NOT NULL DEFAULT '',
  ColAlign   VARCHAR(2)  NOT NULL DEFAULT '0',
  ColStatus  VARCHAR(1)  NOT NULL DEFAULT '0',
  ColOrder   INT         NOT NULL DEFAULT 0,
  TempStatus VARCHAR(1)  NOT NULL DEFAULT '0',
  TempOrder  INT         NOT NULL DEFAULT 0,
  PRIMARY KEY (RptName, ColID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE DRptFont (
  FontSize DECIMAL(20,6) NOT NULL DEFAULT 0
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- The day stands before the user in the key: the lot counter is looked up without a user.
CREATE TABLE Count_Bill (
  TID        VARCHAR(10) NOT NULL DEFAULT '',
  UID        VARCHAR(30) NOT NULL DEFAULT '',
  CurrDate   VARCHAR(10) NOT NULL DEFAULT '',
  CurrNumber INT         NOT NULL DEFAULT 0,
  PRIMARY KEY (TID, CurrDate, UID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Code tables

CREATE TABLE Store (
  Store VARCHAR(60) NOT NULL DEFAULT '',
  PRIMARY KEY (Store)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE Sales (
  SalesID   VARCHAR(30) NOT NULL DEFAULT '',
  SalesName VARCHAR(60) NOT NULL DEFAULT '',
  PRIMARY KEY (SalesID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE PRD_Sort (
  SortID     VARCHAR(30) NOT NULL DEFAULT '',
  SortName   VARCHAR(60) NOT NULL DEFAULT '',
  CurrNumber INT         NOT NULL DEFAULT 0,
  PRIMARY KEY (SortID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE Fee_Type (
  FeeID   VARCHAR(30) NOT NULL DEFAULT '',
  FeeName VARCHAR(60) NOT NULL DEFAULT '',
  PRIMARY KEY (FeeID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE Cust_List (
  CustName    VARCHAR(60)   NOT NULL DEFAULT '',
  CustAddress VARCHAR(255)  NOT NULL DEFAULT '',
  CustCharge  VARCHAR(60)   NOT NULL DEFAULT '',
  CustTel     VARCHAR(50)   NOT NULL DEFAULT '',
  CustFax     VARCHAR(50)   NOT NULL DEFAULT '',
  CustMobile  VARCHAR(50)   NOT NULL DEFAULT '',
  CreditMoney DECIMAL(20,6) NOT NULL DEFAULT 0,
  bolControl  VARCHAR(1)    NOT NULL DEFAULT '0',
  PRIMARY KEY (CustName)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Goods

-- PRDNo and PRDNo_S are used again after settlement, so neither is unique here.
CREATE TABLE PRD_List (
  ID          VARCHAR(30)   NOT NULL DEFAULT '',
  PID         VARCHAR(30)   NOT NULL DEFAULT '',
  CustID      VARCHAR(10)   NOT NULL DEFAULT '',
  PRDNo       VARCHAR(50)   NOT NULL DEFAULT '',
  PRDNo_S     VARCHAR(50)   NOT NULL DEFAULT '',
  PRDName     VARCHAR(60)   NOT NULL DEFAULT '',
  Num         DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_Sal     DECIMAL(20,6) NOT NULL DEFAULT 0,
  PType       VARCHAR(20)   NOT NULL DEFAULT '',
  MPercent    DECIMAL(20,6) NOT NULL DEFAULT 0,
  CustInDate  VARCHAR(10)   NOT NULL DEFAULT '',
  CustFInDate VARCHAR(10)   NOT NULL DEFAULT '',
  CustInTime  VARCHAR(8)    NOT NULL DEFAULT '',
  Store       VARCHAR(60)   NOT NULL DEFAULT '',
  PArea       VARCHAR(60)   NOT NULL DEFAULT '',
  bolPack     VARCHAR(1)    NOT NULL DEFAULT '0',
  PerForegift DECIMAL(20,6) NOT NULL DEFAULT 0,
  PackNo      VARCHAR(30)   NOT NULL DEFAULT '',
  CustName    VARCHAR(60)   NOT NULL DEFAULT '',
  CardNO      VARCHAR(50)   NOT NULL DEFAULT '',
  VerifyID    VARCHAR(50)   NOT NULL DEFAULT '',
  Address     VARCHAR(255)  NOT NULL DEFAULT '',
  Tel         VARCHAR(50)   NOT NULL DEFAULT '',
  Fax         VARCHAR(50)   NOT NULL DEFAULT '',
  Mobile      VARCHAR(50)   NOT NULL DEFAULT '',
  DebitPrice  DECIMAL(20,6) NOT NULL DEFAULT 0,
  Memo        VARCHAR(255)  NOT NULL DEFAULT '',
  bolFixed    VARCHAR(1)    NOT NULL DEFAULT '0',
  Receiver    VARCHAR(30)   NOT NULL DEFAULT '',
  EReceiver   VARCHAR(30)   NOT NULL DEFAULT '',
  EDate       VARCHAR(10)   NOT NULL DEFAULT '',
  ETime       VARCHAR(8)    NOT NULL DEFAULT '',
  bolCheckOut VARCHAR(1)    NOT NULL DEFAULT '0',
  CheckNo     VARCHAR(30)   NOT NULL DEFAULT '',
  PRIMARY KEY (ID),
  KEY PRDNo (PRDNo, bolCheckOut),
  KEY PRDNo_S (PRDNo_S, bolCheckOut),
  KEY bolCheckOut (bolCheckOut)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Two clerks can write the same ITM, so it is no key.
CREATE TABLE EStore_List (
  ITM        INT           NOT NULL DEFAULT 0,
  EStoreDate VARCHAR(10)   NOT NULL DEFAULT '',
  ID         VARCHAR(30)   NOT NULL DEFAULT '',
  PRDNo      VARCHAR(50)   NOT NULL DEFAULT '',
  PRDName    VARCHAR(60)   NOT NULL DEFAULT '',
  CustName   VARCHAR(60)   NOT NULL DEFAULT '',
  EStoreType VARCHAR(2)    NOT NULL DEFAULT '0',
  Num        DECIMAL(20,6) NOT NULL DEFAULT 0,
  Memo       VARCHAR(255)  NOT NULL DEFAULT '',
  KEY ID (ID, EStoreType, Num),
  KEY EStoreDate (EStoreDate, PRDNo, ITM)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Till

-- ID, Vendee, SaleType, bForegiftRTN and bolCheckOut carry the figures that are summed under them,
-- so that stock, credit and balance sums read the index alone.
CREATE TABLE Sal_List (
  SalNo          VARCHAR(30)   NOT NULL DEFAULT '',
  ListNo         VARCHAR(30)   NOT NULL DEFAULT '',
  ITM            INT           NOT NULL DEFAULT 0,
  ID             VARCHAR(30)   NOT NULL DEFAULT '',
  PRDNo          VARCHAR(50)   NOT NULL DEFAULT '',
  PRDName        VARCHAR(60)   NOT NULL DEFAULT '',
  CustName       VARCHAR(60)   NOT NULL DEFAULT '',
  Store          VARCHAR(60)   NOT NULL DEFAULT '',
  PArea          VARCHAR(60)   NOT NULL DEFAULT '',
  Vendee         VARCHAR(60)   NOT NULL DEFAULT '',
  SaleDate       VARCHAR(10)   NOT NULL DEFAULT '',
  FSaleDate      VARCHAR(10)   NOT NULL DEFAULT '',
  SaleTime       VARCHAR(8)    NOT NULL DEFAULT '',
  Num            DECIMAL(20,6) NOT NULL DEFAULT 0,
  Suttle         DECIMAL(20,6) NOT NULL DEFAULT 0,
  UPR            DECIMAL(20,6) NOT NULL DEFAULT 0,
  PerPack        DECIMAL(20,6) NOT NULL DEFAULT 0,
  PackAmount     DECIMAL(20,6) NOT NULL DEFAULT 0,
  PerForegift    DECIMAL(20,6) NOT NULL DEFAULT 0,
  ForegiftAmount DECIMAL(20,6) NOT NULL DEFAULT 0,
  Amount         DECIMAL(20,6) NOT NULL DEFAULT 0,
  TotalAmount    DECIMAL(20,6) NOT NULL DEFAULT 0,
  Receiver       VARCHAR(30)   NOT NULL DEFAULT '',
  SalesID        VARCHAR(30)   NOT NULL DEFAULT '',
  SaleType       INT           NOT NULL DEFAULT 0,
  bForegiftRTN   VARCHAR(1)    NOT NULL DEFAULT '0',
  bolCheckOut    VARCHAR(1)    NOT NULL DEFAULT '0',
  CheckDate      VARCHAR(10)   NOT NULL DEFAULT '',
  CheckNo        VARCHAR(30)   NOT NULL DEFAULT '',
  bolReturn      VARCHAR(1)    NOT NULL DEFAULT '0',
  ReturnDate     VARCHAR(10)   NOT NULL DEFAULT '',
  EReceiver      VARCHAR(30)   NOT NULL DEFAULT '',
  EDate          VARCHAR(10)   NOT NULL DEFAULT '',
  ETime          VARCHAR(8)    NOT NULL DEFAULT '',
  PRIMARY KEY (SalNo),
  KEY ListNo (ListNo),
  KEY ID (ID, SaleDate, Suttle, Num, Amount),
  KEY SaleDate (SaleDate, SaleTime),
  KEY Vendee (Vendee, SaleType, bolReturn, ReturnDate, TotalAmount),
  KEY SaleType (SaleType, bolReturn, TotalAmount),
  KEY ReturnDate (ReturnDate, bolReturn, TotalAmount),
  KEY bForegiftRTN (bForegiftRTN, ForegiftAmount),
  KEY bolCheckOut (bolCheckOut, PRDNo, Amount),
  KEY Receiver (Receiver, SaleDate),
  KEY SalesID (SalesID, SaleDate),
  KEY Store (Store, SaleDate)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Tickets as they stood before an adjustment. One ticket can be here many times.
CREATE TABLE Sal_List_B (
  SalNo          VARCHAR(30)   NOT NULL DEFAULT '',
  ListNo         VARCHAR(30)   NOT NULL DEFAULT '',
  ITM            INT           NOT NULL DEFAULT 0,
  ID             VARCHAR(30)   NOT NULL DEFAULT '',
  PRDNo          VARCHAR(50)   NOT NULL DEFAULT '',
  PRDName        VARCHAR(60)   NOT NULL DEFAULT '',
  CustName       VARCHAR(60)   NOT NULL DEFAULT '',
  Store          VARCHAR(60)   NOT NULL DEFAULT '',
  PArea          VARCHAR(60)   NOT NULL DEFAULT '',
  Vendee         VARCHAR(60)   NOT NULL DEFAULT '',
  SaleDate       VARCHAR(10)   NOT NULL DEFAULT '',
  FSaleDate      VARCHAR(10)   NOT NULL DEFAULT '',
  SaleTime       VARCHAR(8)    NOT NULL DEFAULT '',
  Num            DECIMAL(20,6) NOT NULL DEFAULT 0,
  Suttle         DECIMAL(20,6) NOT NULL DEFAULT 0,
  UPR            DECIMAL(20,6) NOT NULL DEFAULT 0,
  PerPack        DECIMAL(20,6) NOT NULL DEFAULT 0,
  PackAmount     DECIMAL(20,6) NOT NULL DEFAULT 0,
  PerForegift    DECIMAL(20,6) NOT NULL DEFAULT 0,
  ForegiftAmount DECIMAL(20,6) NOT NULL DEFAULT 0,
  Amount         DECIMAL(20,6) NOT NULL DEFAULT 0,
  TotalAmount    DECIMAL(20,6) NOT NULL DEFAULT 0,
  Receiver       VARCHAR(30)   NOT NULL DEFAULT '',
  SalesID        VARCHAR(30)   NOT NULL DEFAULT '',
  SaleType       INT           NOT NULL DEFAULT 0,
  bForegiftRTN   VARCHAR(1)    NOT NULL DEFAULT '0',
  bolCheckOut    VARCHAR(1)    NOT NULL DEFAULT '0',
  CheckDate      VARCHAR(10)   NOT NULL DEFAULT '',
  CheckNo        VARCHAR(30)   NOT NULL DEFAULT '',
  bolReturn      VARCHAR(1)    NOT NULL DEFAULT '0',
  ReturnDate     VARCHAR(10)   NOT NULL DEFAULT '',
  EReceiver      VARCHAR(30)   NOT NULL DEFAULT '',
  EDate          VARCHAR(10)   NOT NULL DEFAULT '',
  ETime          VARCHAR(8)    NOT NULL DEFAULT '',
  KEY SalNo (SalNo),
  KEY ID (ID),
  KEY SaleDate (SaleDate)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE Foregift_RTN (
  RForegiftDate    VARCHAR(10)   NOT NULL DEFAULT '',
  SalNo            VARCHAR(30)   NOT NULL DEFAULT '',
  PRDNo            VARCHAR(50)   NOT NULL DEFAULT '',
  PRDName          VARCHAR(60)   NOT NULL DEFAULT '',
  CustName         VARCHAR(60)   NOT NULL DEFAULT '',
  SaleDate         VARCHAR(10)   NOT NULL DEFAULT '',
  Num              DECIMAL(20,6) NOT NULL DEFAULT 0,
  PerForegift      DECIMAL(20,6) NOT NULL DEFAULT 0,
  ForegiftAmount   DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_R            DECIMAL(20,6) NOT NULL DEFAULT 0,
  ForegiftAmount_R DECIMAL(20,6) NOT NULL DEFAULT 0,
  Memo             VARCHAR(255)  NOT NULL DEFAULT '',
  KEY SalNo (SalNo),
  KEY RForegiftDate (RForegiftDate)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Crates

CREATE TABLE DFN_Pack (
  PackNo    VARCHAR(30)   NOT NULL DEFAULT '',
  PackName  VARCHAR(60)   NOT NULL DEFAULT '',
  PackStyle VARCHAR(2)    NOT NULL DEFAULT '0',
  Num_BGN   DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_PUR   DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_PACK  DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_Back  DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_LST   DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_RTN   DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_Loan  DECIMAL(20,6) NOT NULL DEFAULT 0,
  PRIMARY KEY (PackNo)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Crate counters as they stood when a crate type was closed off.
CREATE TABLE DFN_Pack_B (
  PackNo    VARCHAR(30)   NOT NULL DEFAULT '',
  PackName  VARCHAR(60)   NOT NULL DEFAULT '',
  PackStyle VARCHAR(2)    NOT NULL DEFAULT '0',
  Num_BGN   DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_PUR   DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_PACK  DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_Back  DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_LST   DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_RTN   DECIMAL(20,6) NOT NULL DEFAULT 0,
  Num_Loan  DECIMAL(20,6) NOT NULL DEFAULT 0,
  CheckDate VARCHAR(10)   NOT NULL DEFAULT '',
  CheckITM  INT           NOT NULL DEFAULT 0,
  KEY CheckDate (CheckDate, PackNo, CheckITM)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE Pack_List (
  ITM            INT           NOT NULL DEFAULT 0,
  PackDate       VARCHAR(10)   NOT NULL DEFAULT '',
  PackNo         VARCHAR(30)   NOT NULL DEFAULT '',
  PackName       VARCHAR(60)   NOT NULL DEFAULT '',
  PackType       VARCHAR(2)    NOT NULL DEFAULT '0',
  SalNo          VARCHAR(30)   NOT NULL DEFAULT '',
  Num            DECIMAL(20,6) NOT NULL DEFAULT 0,
  PerForegift    DECIMAL(20,6) NOT NULL DEFAULT 0,
  ForegiftAmount DECIMAL(20,6) NOT NULL DEFAULT 0,
  Memo           VARCHAR(255)  NOT NULL DEFAULT '',
  bolCheck       VARCHAR(1)    NOT NULL DEFAULT '0',
  CheckDate      VARCHAR(10)   NOT NULL DEFAULT '',
  KEY PackNo (PackNo, bolCheck),
  KEY PackDate (PackDate, PackNo, ITM)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Settlement and money

-- The Per_ rates are text: they are kept as typed, and a rate not used is empty, which is not 0.
CREATE TABLE CheckOut (
  ID               VARCHAR(30)   NOT NULL DEFAULT '',
  CheckNo          VARCHAR(30)   NOT NULL DEFAULT '',
  CheckDate        VARCHAR(10)   NOT NULL DEFAULT '',
  PRDNo            VARCHAR(50)   NOT NULL DEFAULT '',
  PRDName          VARCHAR(60)   NOT NULL DEFAULT '',
  Num              DECIMAL(20,6) NOT NULL DEFAULT 0,
  Suttle           DECIMAL(20,6) NOT NULL DEFAULT 0,
  Amount           DECIMAL(20,6) NOT NULL DEFAULT 0,
  ListNum          DECIMAL(20,6) NOT NULL DEFAULT 0,
  CustName         VARCHAR(60)   NOT NULL DEFAULT '',
  Store            VARCHAR(60)   NOT NULL DEFAULT '',
  LManagePrice     DECIMAL(20,6) NOT NULL DEFAULT 0,
  LPackPrice       DECIMAL(20,6) NOT NULL DEFAULT 0,
  LUnloadPrice     DECIMAL(20,6) NOT NULL DEFAULT 0,
  LExpendPrice     DECIMAL(20,6) NOT NULL DEFAULT 0,
  LSanitationPrice DECIMAL(20,6) NOT NULL DEFAULT 0,
  LElectPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  LRecoupPrice     DECIMAL(20,6) NOT NULL DEFAULT 0,
  LChillPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  LFieldPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  LOtherPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  LTotalPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  GTotalPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  CheckUser        VARCHAR(60)   NOT NULL DEFAULT '',
  PayUser          VARCHAR(60)   NOT NULL DEFAULT '',
  Receiver         VARCHAR(30)   NOT NULL DEFAULT '',
  Per_LManage      VARCHAR(30)   NOT NULL DEFAULT '',
  Per_LElect       VARCHAR(30)   NOT NULL DEFAULT '',
  Per_LUnload      VARCHAR(30)   NOT NULL DEFAULT '',
  Per_LSani        VARCHAR(30)   NOT NULL DEFAULT '',
  PRIMARY KEY (CheckNo),
  KEY ID (ID),
  KEY CheckDate (CheckDate, Store)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Settlements as they stood before an adjustment or a reversal, with the columns of CheckOut.
CREATE TABLE CheckOut_B (
  ID               VARCHAR(30)   NOT NULL DEFAULT '',
  CheckNo          VARCHAR(30)   NOT NULL DEFAULT '',
  CheckDate        VARCHAR(10)   NOT NULL DEFAULT '',
  PRDNo            VARCHAR(50)   NOT NULL DEFAULT '',
  PRDName          VARCHAR(60)   NOT NULL DEFAULT '',
  Num              DECIMAL(20,6) NOT NULL DEFAULT 0,
  Suttle           DECIMAL(20,6) NOT NULL DEFAULT 0,
  Amount           DECIMAL(20,6) NOT NULL DEFAULT 0,
  ListNum          DECIMAL(20,6) NOT NULL DEFAULT 0,
  CustName         VARCHAR(60)   NOT NULL DEFAULT '',
  Store            VARCHAR(60)   NOT NULL DEFAULT '',
  LManagePrice     DECIMAL(20,6) NOT NULL DEFAULT 0,
  LPackPrice       DECIMAL(20,6) NOT NULL DEFAULT 0,
  LUnloadPrice     DECIMAL(20,6) NOT NULL DEFAULT 0,
  LExpendPrice     DECIMAL(20,6) NOT NULL DEFAULT 0,
  LSanitationPrice DECIMAL(20,6) NOT NULL DEFAULT 0,
  LElectPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  LRecoupPrice     DECIMAL(20,6) NOT NULL DEFAULT 0,
  LChillPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  LFieldPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  LOtherPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  LTotalPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  GTotalPrice      DECIMAL(20,6) NOT NULL DEFAULT 0,
  CheckUser        VARCHAR(60)   NOT NULL DEFAULT '',
  PayUser          VARCHAR(60)   NOT NULL DEFAULT '',
  Receiver         VARCHAR(30)   NOT NULL DEFAULT '',
  Per_LManage      VARCHAR(30)   NOT NULL DEFAULT '',
  Per_LElect       VARCHAR(30)   NOT NULL DEFAULT '',
  Per_LUnload      VARCHAR(30)   NOT NULL DEFAULT '',
  Per_LSani        VARCHAR(30)   NOT NULL DEFAULT '',
  KEY CheckNo (CheckNo),
  KEY CheckDate (CheckDate)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- DebitAmount is an advance paid later and is what every sum reads. DebitPrice is the advance
-- booked at intake and enters no sum.
CREATE TABLE CustDebit (
  ID          VARCHAR(30)   NOT NULL DEFAULT '',
  PRDNo       VARCHAR(50)   NOT NULL DEFAULT '',
  CustName    VARCHAR(60)   NOT NULL DEFAULT '',
  PRDName     VARCHAR(60)   NOT NULL DEFAULT '',
  Store       VARCHAR(60)   NOT NULL DEFAULT '',
  DebitAmount DECIMAL(20,6) NOT NULL DEFAULT 0,
  DebitPrice  DECIMAL(20,6) NOT NULL DEFAULT 0,
  DebitDate   VARCHAR(10)   NOT NULL DEFAULT '',
  Receiver    VARCHAR(30)   NOT NULL DEFAULT '',
  Memo        VARCHAR(255)  NOT NULL DEFAULT '',
  bolCheckOut VARCHAR(1)    NOT NULL DEFAULT '0',
  CheckDate   VARCHAR(10)   NOT NULL DEFAULT '',
  CheckNo     VARCHAR(30)   NOT NULL DEFAULT '',
  KEY ID (ID, DebitAmount),
  KEY DebitDate (DebitDate),
  KEY bolCheckOut (bolCheckOut, DebitAmount)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE Fee_List (
  FeeNo   VARCHAR(30)   NOT NULL DEFAULT '',
  FeeDate VARCHAR(10)   NOT NULL DEFAULT '',
  ITM     INT           NOT NULL DEFAULT 0,
  FeeID   VARCHAR(30)   NOT NULL DEFAULT '',
  FeeName VARCHAR(60)   NOT NULL DEFAULT '',
  DSC     VARCHAR(255)  NOT NULL DEFAULT '',
  Amount  DECIMAL(20,6) NOT NULL DEFAULT 0,
  KEY FeeNo (FeeNo, ITM),
  KEY FeeDate (FeeDate, FeeID, Amount)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;
