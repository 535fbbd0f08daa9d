#include "shell/ToolbarTable.h"

using namespace Qt::StringLiterals;

const std::vector<ToolbarButton>& Toolbar()
{
    static const std::vector<ToolbarButton> buttons{
        {2, u"mnuNew"_s, u"新建"_s, u"Ctrl+N"_s, &Form::ToolbarNew},
        {4, u"mnuSave"_s, u"保存"_s, QString()}, // no action: each window saves by its own button
        {6, u"mnuPreview"_s, u"预览"_s, u"Ctrl+R"_s, &Form::ToolbarPreview},
        {8, u"mnuPrint"_s, u"打印"_s, u"Ctrl+P"_s, &Form::ToolbarPrint},
        {10, u"mnuEdit"_s, u"修改"_s, u"Ctrl+E"_s, &Form::ToolbarEdit},
        {12, u"mnuSearch"_s, u"查询"_s, u"Ctrl+F"_s, &Form::ToolbarSearch},
        {14, u"mnuDelete"_s, u"删除"_s, u"Ctrl+D"_s, &Form::ToolbarDelete},
        {16, u"mnuExport"_s, u"导出"_s, u"Ctrl+T"_s, &Form::ToolbarExport},
        {18, u"mnuHelp"_s, u"帮助"_s, u"F1"_s},
        {20, u"mnuExit"_s, u"退出"_s, u"Ctrl+Q"_s},
    };
    return buttons;
}
