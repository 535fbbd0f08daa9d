#include "app/StartProgram.h"

#include "core/base/IniFile.h"
#include "core/base/Numbers.h"
#include "core/base/ProgramFiles.h"
#include "core/base/RunTimeError.h"
#include "core/common/Messages.h"
#include "core/forms/ProgressWindow.h"
#include "core/forms/WindowRegistry.h"
#include "core/logon/frmDBC.h"
#include "core/logon/frmLogon.h"
#include "core/logon/frmMultiLogon.h"
#include "core/logon/frmSpash.h"
#include "core/session/SessionControl.h"
#include "goods/frmPRDList.h"
#include "goods/frmSearchPRD.h"
#include "lists/frmDataList.h"
#include "masterdata/frmCustList.h"
#include "masterdata/frmFeeType.h"
#include "masterdata/frmGetCustList.h"
#include "masterdata/frmPRDSort.h"
#include "masterdata/frmSales.h"
#include "masterdata/frmStore.h"
#include "printing/frmPrint.h"
#include "reports/frmExport.h"
#include "reports/frmReport.h"
#include "reports/frmSearchCond.h"
#include "reports/frmSetCol.h"
#include "reports/frmSetField.h"
#include "settlement/frmCheckOut.h"
#include "settlement/frmCheckOutA.h"
#include "settlement/frmSetFeeLabel.h"
#include "shell/frmAbout.h"
#include "shell/frmChangePWD.h"
#include "shell/frmDataClear.h"
#include "shell/frmMain.h"
#include "shell/frmParameter.h"
#include "shell/frmUserList.h"
#include "shell/frmUserMenu.h"
#include "till/frmSale.h"

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

template <typename Window>
void Add(const QString& name)
{
    // Of a window with a LoadBill of its own the function is that class's member, otherwise Form's.
    constexpr bool loadsBills = !std::is_same_v<decltype(&Window::LoadBill), decltype(&Form::LoadBill)>;
    Windows().Register(
        name, [](QWidget* owner) -> Form* { return new Window(owner); }, loadsBills);
}

} // namespace

void RegisterWindows()
{
    Add<frmLogon>(u"frmLogon"_s);
    Add<frmMultiLogon>(u"frmMultiLogon"_s);
    Add<frmDBC>(u"frmDBC"_s);
    Add<frmSpash>(u"frmSpash"_s);
    Add<frmMain>(u"frmMain"_s);
    Add<frmAbout>(u"frmAbout"_s);
    Add<frmUserList>(u"frmUserList"_s);
    Add<frmUserMenu>(u"frmUserMenu"_s);
    Add<frmChangePWD>(u"frmChangePWD"_s);
    Add<frmDataClear>(u"frmDataClear"_s);
    Add<ProgressWindow>(u"frmScroll"_s);
    Add<frmParameter>(u"frmParameter"_s);
    Add<frmSetFeeLabel>(u"frmSetFeeLabel"_s);
    Add<frmStore>(u"frmStore"_s);
    Add<frmSales>(u"frmSales"_s);
    Add<frmPRDSort>(u"frmPRDSort"_s);
    Add<frmFeeType>(u"frmFeeType"_s);
    Add<frmCustList>(u"frmCustList"_s);
    Add<frmGetCustList>(u"frmGetCustList"_s);
    Add<frmDataList>(u"frmDataList"_s);
    Add<frmSearchPRD>(u"frmSearchPRD"_s);
    Add<frmPRDList>(u"frmPRDList"_s);
    Add<frmSale>(u"frmSale"_s);
    Add<frmCheckOut>(u"frmCheckOut"_s);
    Add<frmCheckOutA>(u"frmCheckOutA"_s);
    Add<frmExport>(u"frmExport"_s);
    Add<frmReport>(u"frmReport"_s);
    Add<ProgressWindow>(u"frmProgress"_s);
    Add<frmPrint>(u"frmPrint"_s);
    Add<frmSearchCond>(u"frmSearchCond"_s);
    Add<frmSetField>(u"frmSetField"_s);
    Add<frmSetCol>(u"frmSetCol"_s);
}

bool StartProgram()
{
    try {
        if (!FileExists(ConfigIniPath())) {
            ShowInfo(u"系统配置文件未找到，程序中止。"_s);
            return false;
        }
        const auto sets = ToInt16(LeadingNumber(ReadIniValue(ConfigIniPath(), u"Define"_s, u"AccNum"_s)));
        return Windows().Show(sets < 2 ? u"frmLogon"_s : u"frmMultiLogon"_s, nullptr) != nullptr ||
               Windows().Find(u"frmDBC"_s) != nullptr;
    } catch (const RunTimeError& error) {
        ShowErrorMessage(error);
        return false;
    }
}
