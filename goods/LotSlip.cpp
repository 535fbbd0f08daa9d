#include "goods/LotSlip.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"
#include "goods/frmTemp.h"
#include "printing/Documents.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

const QString LotSlipPaper = u"P01"_s;

double StockChange(const QString& lotId, const QString& type)
{
    return SumField(u"EStore_List"_s, u"Num"_s, u"ID='"_s + lotId + u"' And EStoreType='"_s + type + u"'"_s);
}

} // namespace

double LotSlipStock(const LotSlip& slip)
{
    const double added = StockChange(slip.lotId, u"0"_s);
    const double movedOut = StockChange(slip.lotId, u"1"_s);
    const double lost = StockChange(slip.lotId, u"2"_s);
    return Settled(slip.num + added - movedOut - lost);
}

void FillLotSlip(const LotSlip& slip)
{
    const double stock = LotSlipStock(slip);
    frmTemp::Load().Fill(slip, stock);
}

bool IsSlipWanted(const QString& printStyle)
{
    return LeadingNumber(printStyle) > 0;
}

void PrintLotSlip(const LotSlip& slip, const QString& printStyle)
{
    if (!IsSlipWanted(printStyle))
        return;
    const auto unload = qScopeGuard([] { frmTemp::Unload(); });
    FillLotSlip(slip);
    PrintDocument(Document::PRDList, printStyle, frmTemp::Load());
}

void ReprintLotSlip(const QString& prdNo)
{
    const QString printStyle = GetPrintStyle(LotSlipPaper);
    if (!IsSlipWanted(printStyle))
        return;
    const RecordSet lot = Gateway().SelectRows(
        u"PRD_List"_s, u"ID,CustName,PRDNo,VerifyID,PRDName,Num,PType,MPercent,PArea,Store,DebitPrice,Memo"_s,
        u"PRDNo='"_s + prdNo + u"' And bolCheckOut='0'"_s);
    if (lot.Eof())
        return;
    PrintLotSlip({.date = Clock::Now().date(),
                  .lotId = lot.Text(0),
                  .custName = lot.Text(1),
                  .prdNo = lot.Text(2),
                  .verifyId = lot.Text(3),
                  .prdName = lot.Text(4),
                  .num = NullToZero(lot.Fields(5).Value),
                  .unit = lot.Text(6),
                  .mPercent = lot.Text(7),
                  .pArea = lot.Text(8),
                  .store = lot.Text(9),
                  .debitPrice = NullToZero(lot.Fields(10).Value),
                  .memo = lot.Text(11)},
                 printStyle);
}
