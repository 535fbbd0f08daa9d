#include "shell/frmUserMenu.h"

#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"
#include "shell/TreeIcons.h"

#include "ui_frmUserMenu.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr int KeyRole = Qt::UserRole;
const QString RootKey = u"Root"_s;
const QString UserPrefix = u"UID"_s;

/// The entry that a line of the list stands for. @throws EndOfDataError when it has gone from the catalogue
QString MenuNameOf(const QString& text)
{
    return Gateway().SelectRows(u"Menu_List"_s, u"MenuName"_s, u"MenuText="_s + Quoted(text)).Text(0);
}

} // namespace

frmUserMenu::frmUserMenu(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmUserMenu>())
{
    ui->setupUi(this);
    Chain().List(ui->tvUserList);
    Chain().List(ui->lstMenuList).OnEnter([this] { Save(); });
    OnPress(ui->cmdSubmit, [this] { Save(); });
    OnPress(ui->cmdCancel, [this] { close(); });

    connect(ui->tvUserList, &UserTree::Chosen, this,
            [this](const QTreeWidgetItem* node) { RunHandler([this, node] { ClickNode(node); }); });
    connect(ui->lstMenuList, &QListWidget::itemChanged, this, [this] { ShowState(u"（未保存）"_s); });
}

frmUserMenu::~frmUserMenu() = default;

void frmUserMenu::OnLoad()
{
    auto* root = new QTreeWidgetItem(ui->tvUserList, {u"所有用户"_s});
    root->setData(0, KeyRole, RootKey);
    root->setIcon(0, AllUsersIcon());
    const QIcon icon = UserIcon();
    for (RecordSet users = Gateway().SelectRows(u"User_List"_s, u"UserID,UserName"_s, u" Order By UserID"_s);
         !users.Eof(); users.MoveNext()) {
        auto* node = new QTreeWidgetItem(root, {users.Text(1)});
        node->setData(0, KeyRole, UserPrefix + users.Text(0));
        node->setIcon(0, icon);
    }
    root->setExpanded(true);
    ui->tvUserList->setCurrentItem(root);
}

void frmUserMenu::ClickNode(const QTreeWidgetItem* node)
{
    const QString key = node->data(0, KeyRole).toString();
    if (key == RootKey)
        return;
    m_userName = node->text(0);
    ShowUserRights(key.mid(UserPrefix.size()));
}

void frmUserMenu::ShowUserRights(const QString& user)
{
    // Until all is read nobody is in hand: half a list that was saved would take rights away.
    m_user.clear();
    ui->lstMenuList->clear();
    ui->lblRights->setText(u"权限"_s);
    QStringList texts;
    for (RecordSet rows = Gateway().SelectRows(u"Menu_List"_s, u"MenuText"_s, u" Order By MenuID"_s);
         !rows.Eof(); rows.MoveNext())
        texts << rows.Text(0);
    QList<bool> granted;
    for (const QString& text : std::as_const(texts))
        granted << HasMenuRight(user, MenuNameOf(text));

    const QSignalBlocker asStored(ui->lstMenuList);
    for (qsizetype i = 0; i < texts.size(); ++i) {
        auto* line = new QListWidgetItem(texts[i], ui->lstMenuList);
        line->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        line->setCheckState(granted[i] ? Qt::Checked : Qt::Unchecked);
    }
    ui->lstMenuList->setCurrentRow(0);
    m_user = user;
    ShowState(QString());
}

void frmUserMenu::Save()
{
    GuardedUnlogged([this] {
        Gateway().DeleteRows(u"User_Menu"_s, u"UserID="_s + Quoted(m_user));
        for (int row = 0; row < ui->lstMenuList->count(); ++row) {
            const QListWidgetItem* line = ui->lstMenuList->item(row);
            if (line->checkState() != Qt::Checked)
                continue;
            const QString name = MenuNameOf(line->text());
            Gateway().InsertRow(u"User_Menu"_s, u"UserID,MenuName"_s, Quoted(m_user) + u',' + Quoted(name));
        }
        if (!m_user.isEmpty())
            ShowState(u"（已保存）"_s);
    });
}

void frmUserMenu::ShowState(const QString& state)
{
    ui->lblRights->setText(m_userName + u" 的权限"_s + state);
}
