#include "masterdata/frmGetCustList.h"

#include "core/common/Handlers.h"
#include "core/forms/MenuTable.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "masterdata/NameMatch.h"

#include "ui_frmGetCustList.h"

#include <QFocusEvent>
#include <QShortcut>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

frmGetCustList::frmGetCustList(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmGetCustList>())
{
    ui->setupUi(this);
    Chain().Field(ui->txtCustName).AtMost(60).OnChange([this] { ShowMatch(); }).OnEnter([this] { Submit(); });
    Chain().List(ui->lstCustList).OnEnter([this] { Submit(); });
    OnPress(ui->cmdSubmit, [this] { Submit(); });
    OnPress(ui->cmdCancel, [this] { close(); });

    ui->lstCustList->installEventFilter(this);
    connect(ui->lstCustList, &QListWidget::itemSelectionChanged, this, &frmGetCustList::TakeSelected);
    connect(ui->lstCustList, &QListWidget::itemClicked, this, &frmGetCustList::TakeSelected);
    connect(ui->lstCustList, &QListWidget::itemDoubleClicked, this,
            [this] { RunHandler([this] { Submit(); }); });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
}

frmGetCustList::~frmGetCustList() = default;

void frmGetCustList::OnLoad()
{
    for (RecordSet rows = Gateway().SelectRows(u"Cust_List"_s, u"CustName"_s, u" Order By CustName"_s);
         !rows.Eof(); rows.MoveNext())
        m_names << rows.Text(0);
    ui->lstCustList->addItems(m_names);
}

// Going into the list by key takes the entry that is shown selected; an arrow takes the first where none
// is. The wheel and the scroll bar take nothing.
bool frmGetCustList::eventFilter(QObject* watched, QEvent* event)
{
    const bool handled = FormWindow::eventFilter(watched, event);
    if (watched == ui->lstCustList && event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::OtherFocusReason && ui->lstCustList->selectedItems().isEmpty())
            ui->lstCustList->setCurrentRow(0);
        else if (reason == Qt::OtherFocusReason || reason == Qt::TabFocusReason ||
                 reason == Qt::BacktabFocusReason)
            TakeSelected();
    }
    return handled;
}

void frmGetCustList::ShowMatch()
{
    const qsizetype row = FirstMatch(m_names, ui->txtCustName->text());
    const QSignalBlocker keepsTypedText(ui->lstCustList);
    ui->lstCustList->setCurrentRow(static_cast<int>(row));
}

void frmGetCustList::TakeSelected()
{
    const QList<QListWidgetItem*> selected = ui->lstCustList->selectedItems();
    if (selected.isEmpty() || selected[0]->text() == ui->txtCustName->text())
        return;
    // The list already shows this very row; the first match could be another.
    const QSignalBlocker noMatching(ui->txtCustName);
    ui->txtCustName->setText(selected[0]->text());
}

void frmGetCustList::Submit()
{
    const QString name = ui->txtCustName->text();
    if (!name.isEmpty()) {
        const MenuEntry* entry = MenuEntryOf(Session::CurrentMenuKey);
        if (Form* asking = entry ? Windows().Find(entry->takesBuyer) : nullptr)
            asking->TakeName(name);
    }
    close();
}
