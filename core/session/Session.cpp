#include "core/session/Session.h"

void Session::Reset()
{
    for (QString* text : {&DataIniPath, &ClientFlag, &ServerDate, &CurrentUserID, &CurrentUserName,
                          &SessionCheckID, &SaleStockControl, &CheckOutStyle, &CurrentMenuKey, &ReportKind,
                          &ConditionKey, &ConditionCaption, &SetColName, &FeeLabelKey})
        text->clear();
    PaperSizeCode = 0;
    CreditLeft = 0;
    for (bool* flag : {&WindowSlotFree, &EditMode, &ConditionAll})
        *flag = false;
}
