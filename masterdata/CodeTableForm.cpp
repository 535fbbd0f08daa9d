#include "masterdata/CodeTableForm.h"

#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/LabelButton.h"
#include "core/gateway/DataGateway.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {
// Characters that the columns hold: the server would cut a longer text without a word.
constexpr int KeyWidth = 30;
constexpr int NameWidth = 60;
} // namespace

CodeTableForm::CodeTableForm(QWidget* owner, Table table)
    : FormWindow(owner, SlotUse::Takes), m_table(std::move(table))
{}

void CodeTableForm::Wire(const Controls& controls)
{
    m_controls = controls;
    Chain().Field(controls.key).AtMost(KeyWidth).OnChange([this] { LookUp(); });
    Chain().Field(controls.name).AtMost(NameWidth).OnEnter([this] { Save(); });
    OnPress(controls.submit, [this] { Save(); });
    OnPress(controls.cancel, [this] { close(); });
}

void CodeTableForm::SetKey(const QString& key)
{
    WriteText(m_controls.key, key);
}

void CodeTableForm::LookUp()
{
    // Also when the lookup fails: an update of a missing row would save nothing, and the name on the
    // screen would go in under the new key.
    m_isFound = false;
    m_controls.name->clear();
    const RecordSet row =
        Gateway().SelectRows(m_table.table, m_table.nameColumn,
                             m_table.keyColumn + u'=' + Quoted(m_controls.key->text().trimmed()));
    m_isFound = !row.Eof();
    if (m_isFound)
        m_controls.name->setText(row.Text(0));
}

void CodeTableForm::Save()
{
    Guarded(m_table.errorLabel, [this] {
        const QString key = m_controls.key->text().trimmed();
        const QString name = m_controls.name->text().trimmed();
        if (key.isEmpty()) {
            Refuse(m_controls.key, m_table.keyMissing);
            return;
        }
        if (name.isEmpty()) {
            Refuse(m_controls.name, m_table.nameMissing);
            return;
        }
        if (m_isFound) {
            Gateway().UpdateRows(m_table.table, m_table.nameColumn + u'=' + Quoted(name),
                                 m_table.keyColumn + u'=' + Quoted(key));
        } else {
            Gateway().InsertRow(m_table.table, m_table.keyColumn + u',' + m_table.nameColumn,
                                Quoted(key) + u',' + Quoted(name));
        }
        WriteText(m_controls.key, QString());
        WriteText(m_controls.name, QString());
        FocusAndSelect(m_controls.key);
        RefreshOpenList();
    });
}
