#include "till/SaleLot.h"

#include "core/common/LotStock.h"
#include "core/gateway/DataGateway.h"

using namespace Qt::StringLiterals;

std::optional<SaleLot> FindSaleLot(const QString& number)
{
    enum Column { PRDNo, ID, PRDName, CustName, PArea, Store, PerForegift };
    const RecordSet lot = Gateway().SelectRows(
        u"PRD_List"_s, u"PRDNo,ID,PRDName,CustName,PArea,Store,PerForegift"_s,
        u"(PRDNo="_s + Quoted(number) + u" Or PRDNo_S="_s + Quoted(number) + u") And bolCheckOut='0'"_s);
    if (lot.Eof())
        return std::nullopt;
    return SaleLot{.prdNo = lot.Text(PRDNo),
                   .id = lot.Text(ID),
                   .prdName = lot.Text(PRDName),
                   .custName = lot.Text(CustName),
                   .pArea = lot.Text(PArea),
                   .store = lot.Text(Store),
                   .perForegift = lot.Text(PerForegift)};
}

bool LotIsOpen(const QString& lotId)
{
    return !Gateway()
                .SelectRows(u"PRD_List"_s, u"PRDNo"_s, u"ID="_s + Quoted(lotId) + u" And bolCheckOut='0'"_s)
                .Eof();
}

double StockLimit(const QString& lotId)
{
    LotStock stock = ReadStockChanges(lotId, SumDelivered(lotId));
    stock.sold = SumSold(lotId);
    return stock.Left();
}

QString CrateTypeOf(const QString& lotId)
{
    const RecordSet pack =
        Gateway().SelectRows(u"PRD_List"_s, u"PackNo"_s, u"ID="_s + Quoted(lotId) + u" And PackNo<>''"_s);
    return pack.Eof() ? QString() : pack.Text(0);
}
