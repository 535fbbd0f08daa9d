#pragma once

#include "core/common/Sheet.h"
#include "core/forms/FormWindow.h"
#include "core/forms/WindowRegistry.h"
#include "core/session/Session.h"
#include "reports/ReportView.h"

#include <functional>

/// Stands in for the report window: keeps what it was told, builds nothing.
class ReportProbe : public FormWindow, public ReportView {
public:
    explicit ReportProbe(QWidget* owner) : FormWindow(owner, SlotUse::Takes) { setMinimumSize(300, 200); }

    void SetCondition(const ReportCondition& told) override { condition = told; }
    void ShowData(bool useColStatus) override
    {
        ++shown;
        usedColStatus = useColStatus;
        caption = Session::ConditionCaption;
        if (onShow)
            onShow();
    }
    QString Caption(Line /*line*/) const override { return caption; }
    const Sheet& Content() const override { return m_content; }
    bool IsWhole() const override { return true; }

    ReportCondition condition;
    QString caption; ///< the session's, as it was when the report was built
    int shown = 0;
    bool usedColStatus = false;
    static inline std::function<void()> onShow; ///< runs in the middle of the building

private:
    Sheet m_content;
};

inline ReportProbe* Report()
{
    return static_cast<ReportProbe*>(Windows().Find(QStringLiteral("frmReport")));
}
