#include "masterdata/frmStore.h"

#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/gateway/DataGateway.h"

#include "ui_frmStore.h"

using namespace Qt::StringLiterals;

frmStore::frmStore(QWidget* owner) : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmStore>())
{
    ui->setupUi(this);
    Chain().Field(ui->txtStore).AtMost(60).OnEnter([this] { Save(); });
    Chain().List(ui->lstStore);
    OnPress(ui->cmdSubmit, [this] { Save(); });
    OnPress(
        ui->cmdDel, [this] { DeleteSelected(); }, QKeySequence(u"Alt+D"_s));
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmStore::~frmStore() = default;

void frmStore::OnLoad()
{
    ShowStores();
}

void frmStore::ShowStores()
{
    ui->lstStore->clear();
    for (RecordSet rows = Gateway().SelectRows(u"Store"_s, u"Store"_s, QString()); !rows.Eof();
         rows.MoveNext())
        ui->lstStore->addItem(rows.Text(0));
}

void frmStore::Save()
{
    Guarded(u"保存仓位信息"_s, [this] {
        const QString store = ui->txtStore->text().trimmed();
        if (store.isEmpty())
            return;
        if (StoreExists(store)) {
            Refuse(ui->txtStore, u"仓位重复！"_s);
            return;
        }
        Gateway().InsertRow(u"Store"_s, u"Store"_s, Quoted(store));
        ShowStores();
        WriteText(ui->txtStore, QString());
        FocusAndSelect(ui->txtStore);
    });
}

void frmStore::DeleteSelected()
{
    QStringList stores;
    for (int row = 0; row < ui->lstStore->count(); ++row) {
        if (const QListWidgetItem* item = ui->lstStore->item(row); item->isSelected())
            stores << item->text();
    }
    if (stores.isEmpty())
        return;
    for (const QString& store : stores)
        Gateway().DeleteRows(u"Store"_s, u"Store="_s + Quoted(store));
    ShowStores();
}
