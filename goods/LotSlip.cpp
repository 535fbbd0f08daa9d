#include "goods/LotSlip.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Lookups.h"
#include "core/common/LotStock.h"
#include "core/gateway/DataGateway.h"
#include "goods/frmTemp.h"
#include "printing/Documents.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

const QString LotSlipPaper = u"P01"_s;

} // namespace

void FillLotSlip(const LotSlip& slip)
{
    // What came and stayed; the slip goes to the owner, and sales are not taken off on it.
    const double stock = ReadStockChanges(slip.lotId, slip.num).StayedForSale();
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
        u"PRDNo="_s + Quoted(prdNo) + u" And bolCheckOut='0'"_s);
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
