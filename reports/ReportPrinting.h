#pragma once

/// What the toolbar's 预览 (false) and 打印 (true) do with the report on the screen: its captions, columns
/// and rows as they stand go to the print window; nothing is read anew. A report that was stopped while it
/// was built is refused in a box. Nothing happens without a report.
/// @throws RunTimeError when the preview cannot be shown
void PrintReport(bool toPrinter);
