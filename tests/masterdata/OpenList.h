#pragma once

#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"

#include <QWidget>

/// Stands in for the list window behind an edit window: counts how often it was told to rebuild, with a
/// statement of its own that can fail.
class OpenList : public QWidget, public Form {
public:
    explicit OpenList(QWidget* owner) : QWidget(owner) {}

    QWidget* Widget() override { return this; }

    void RefreshList() override
    {
        ++refreshes;
        Gateway().SelectRows(QStringLiteral("Sys_Define"), QStringLiteral("PRD_Order"), QString());
    }

    /// Opens it as `frmDataList`.
    static OpenList* Open()
    {
        Windows().Register(QStringLiteral("frmDataList"), [](QWidget* owner) { return new OpenList(owner); });
        return static_cast<OpenList*>(Windows().Load(QStringLiteral("frmDataList"), nullptr));
    }

    int refreshes = 0;
};
