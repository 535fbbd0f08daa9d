#include "shell/ToolbarTable.h"

using namespace Qt::StringLiterals;

const std::vector<ToolbarButton>& Toolbar()
{
    static const std::vector<ToolbarButton> buttons{
        {u"mnuNew"_s, u"新建"_s, u"Ctrl+N"_s},     {u"mnuSave"_s, u"保存"_s, QString()},
        {u"mnuPreview"_s, u"预览"_s, u"Ctrl+R"_s}, {u"mnuPrint"_s, u"打印"_s, u"Ctrl+P"_s},
        {u"mnuEdit"_s, u"修改"_s, u"Ctrl+E"_s},    {u"mnuSearch"_s, u"查询"_s, u"Ctrl+F"_s},
        {u"mnuDelete"_s, u"删除"_s, u"Ctrl+D"_s},  {u"mnuExport"_s, u"导出"_s, u"Ctrl+T"_s},
        {u"mnuHelp"_s, u"帮助"_s, u"F1"_s},        {u"mnuExit"_s, u"退出"_s, u"Ctrl+Q"_s},
    };
    return buttons;
}
