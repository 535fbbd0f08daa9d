#include "goods/LotList.h"

#include "core/base/Numbers.h"
#include "core/common/Formats.h"
#include "core/common/Lookups.h"
#include "core/common/LotStock.h"
#include "core/gateway/DataGateway.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = SheetColumn::Kind;

const QString Fields =
    u"PRDNo,PRDNo_S,PRDName,CustName,CustInDate,Num,Num_Sal,MPercent,bolPack,bolFixed,ID"_s;
enum Position {
    PRDNo,
    PRDNo_S,
    PRDName,
    CustName,
    CustInDate,
    Num,
    Num_Sal,
    MPercent,
    BolPack,
    BolFixed,
    ID
};

/// One line of the list: what stands under a heading is worked out from this.
struct LotLine {
    const RecordSet& lot;
    LotStock stock;
};

enum class Shown { Always, Short, Detailed };

/// A heading, and what stands under it.
struct LotColumn {
    QString header;
    int widthTwips;
    Kind kind;
    Shown shown;
    QString (*value)(const LotLine&);
};

template <Position Column>
QString Stored(const LotLine& line)
{
    return line.lot.Text(Column);
}

template <Position Column>
QString Marked(const LotLine& line)
{
    return CheckMark(line.lot.Text(Column));
}

template <double LotStock::*Movement>
QString Moved(const LotLine& line)
{
    return NumberText(line.stock.*Movement);
}

template <double (LotStock::*Sum)() const>
QString Summed(const LotLine& line)
{
    return NumberText((line.stock.*Sum)());
}

// Widths in twips, for the list's font: a Chinese character takes 225, a Latin one 125, and the cell's
// margins 180.
constexpr int LotNumber = 1230;
constexpr int Name = 1440;
constexpr int Date = 1440;
constexpr int Quantity = 1170;
constexpr int WideQuantity = 1440;
constexpr int Weight = 900;
constexpr int Mark = 810;

/// 库存 of the short form is the figure kept with the lot, that of the detailed form comes from the
/// movements: the two agree as long as no save broke off between them.
const std::vector<LotColumn>& AllColumns()
{
    static const std::vector<LotColumn> columns{
        {u"编号"_s, LotNumber, Kind::Text, Shown::Always, Stored<PRDNo>},
        {u"快捷编号"_s, Quantity, Kind::Text, Shown::Always, Stored<PRDNo_S>},
        {u"品名"_s, Name, Kind::Text, Shown::Always, Stored<PRDName>},
        {u"姓名"_s, Name, Kind::Text, Shown::Always, Stored<CustName>},
        {u"到货日期"_s, Date, Kind::Text, Shown::Always, Stored<CustInDate>},
        {u"首次到货量"_s, WideQuantity, Kind::Number, Shown::Short, Stored<Num>},
        {u"总到货量"_s, WideQuantity, Kind::Number, Shown::Short, Summed<&LotStock::Arrived>},
        {u"库存"_s, WideQuantity, Kind::Number, Shown::Short, Stored<Num_Sal>},
        {u"首次到货"_s, Quantity, Kind::Number, Shown::Detailed, Stored<Num>},
        {u"累计进货"_s, Quantity, Kind::Number, Shown::Detailed, Moved<&LotStock::added>},
        {u"总到货量"_s, Quantity, Kind::Number, Shown::Detailed, Summed<&LotStock::Arrived>},
        {u"累计转出"_s, Quantity, Kind::Number, Shown::Detailed, Moved<&LotStock::movedOut>},
        {u"累计损耗"_s, Quantity, Kind::Number, Shown::Detailed, Moved<&LotStock::lost>},
        {u"实到货量"_s, Quantity, Kind::Number, Shown::Detailed, Summed<&LotStock::StayedForSale>},
        {u"累计销售"_s, Quantity, Kind::Number, Shown::Detailed, Moved<&LotStock::sold>},
        {u"库存"_s, Quantity, Kind::Number, Shown::Detailed, Summed<&LotStock::Left>},
        {u"折算"_s, Weight, Kind::Number, Shown::Always, Stored<MPercent>},
        {u"押包"_s, Mark, Kind::Flag, Shown::Always, Marked<BolPack>},
        {u"锁定"_s, Mark, Kind::Flag, Shown::Always, Marked<BolFixed>},
    };
    return columns;
}

std::vector<LotColumn> ColumnsOf(const LotView& view)
{
    std::vector<LotColumn> columns;
    for (const LotColumn& column : AllColumns()) {
        if (column.shown == Shown::Always || (column.shown == Shown::Detailed) == view.isDetailed)
            columns.push_back(column);
    }
    return columns;
}

/// The short form asks for no more than it shows.
LotStock ReadStock(const RecordSet& lot, const LotView& view)
{
    const QString id = lot.Text(ID);
    const double delivered = NullToZero(lot.Fields(Num).Value);
    if (!view.isDetailed)
        return {.delivered = delivered, .added = SumAdded(id)};
    LotStock stock = ReadStockChanges(id, delivered);
    stock.sold = SumSold(id);
    return stock;
}

} // namespace

LotView ReadLotView()
{
    const RecordSet settings = Gateway().SelectRows(u"Sys_Define"_s, u"PRD_Order,bolShowEStore"_s, QString());
    if (settings.Eof())
        return {};
    return {.order = settings.Text(0), .isDetailed = settings.Text(1) == u"1"};
}

ListContents ReadLots(const QString& filter)
{
    const LotView view = ReadLotView();
    const std::vector<LotColumn> columns = ColumnsOf(view);
    ListContents contents;
    for (const LotColumn& column : columns)
        contents.columns.push_back({column.header, column.widthTwips, column.kind});
    for (RecordSet lots =
             Gateway().SelectRows(u"PRD_List"_s, Fields, u"bolCheckOut='0'"_s + filter + view.order);
         !lots.Eof(); lots.MoveNext()) {
        const LotLine line{lots, ReadStock(lots, view)};
        QStringList texts;
        for (const LotColumn& column : columns)
            texts << column.value(line);
        contents.rows.push_back({texts});
    }
    return contents;
}
