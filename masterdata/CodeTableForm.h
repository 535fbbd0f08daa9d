#pragma once

#include "core/forms/FormWindow.h"

class QLineEdit;

/// The edit window of a small code table: a key, a name, and nothing else. Typing the key looks it up; a
/// key that exists is updated, another inserted.
class CodeTableForm : public FormWindow {
    Q_OBJECT

public:
    void SetKey(const QString& key) override;

protected:
    struct Table {
        QString table;
        QString keyColumn;
        QString nameColumn;
        QString keyMissing;  ///< what is said when the key is empty
        QString nameMissing; ///< what is said when the name is empty
        QString errorLabel;  ///< source of the ErrInfo row of a failed save
    };
    struct Controls {
        QLineEdit* key;
        QLineEdit* name;
        LabelButton* submit;
        LabelButton* cancel;
    };

    CodeTableForm(QWidget* owner, Table table);

    void Wire(const Controls& controls);

private:
    void LookUp();
    void Save();

    Table m_table;
    Controls m_controls{};
    bool m_isFound = false; ///< the key names an existing row
};
