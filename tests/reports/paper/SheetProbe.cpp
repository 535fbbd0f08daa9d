#include "tests/reports/paper/SheetProbe.h"

#include "reports/ReportListMenu.h"
#include "reports/ReportPrinting.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

SheetProbe::SheetProbe(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), m_company(new QLabel(this)), m_list(new ListGrid(this))
{
    m_company->setObjectName(u"lblCompName"_s);
    m_company->setFont(QFont(u"Noto Serif CJK SC"_s, 14, QFont::Bold));
    m_list->setObjectName(u"lvReport"_s);
    m_list->setFont(QFont(u"Noto Serif CJK SC"_s, 9));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_company);
    layout->addWidget(m_list);
    resize(900, 500);
    setFocusProxy(m_list);
    new ReportListMenu(m_list);
}

SheetProbe::~SheetProbe() = default;

void SheetProbe::ShowData(bool useColStatus)
{
    shown << useColStatus;
    if (onShowData)
        onShowData();
}

void SheetProbe::ToolbarPreview()
{
    PrintReport(false);
}

void SheetProbe::ToolbarPrint()
{
    PrintReport(true);
}
