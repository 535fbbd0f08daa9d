#pragma once

#include "printing/DrawingSurface.h"

class ctlPreview;
class DrawingLog;
class SystemPrinter;

/// All printed output. A document chooses its target once, in PrintStartDoc, and draws by the same calls
/// whether that is the printer or the preview. Coordinates are twips of the page on both.
class clsPrint {
public:
    /// `printer` also gives the preview its measures. It outlives this object.
    explicit clsPrint(SystemPrinter& printer) : m_printer(printer) {}

    /// Tells every drawing call to `log` from now on, beside drawing it; nullptr ends that.
    void Record(DrawingLog* log) { m_log = log; }

    /// The pen to the start of the next line: down by the height of "AA", to the left margin.
    void NewLine();
    /// The same, lower by the line gap and by `extra` twips.
    void NewLineBG(double extra);
    /// Margins that centre a block of `width` twips, and the pen to their corner. A width that is not
    /// above 0 gives margins of 50, one beyond the target gives none.
    void CenterPrn(double width);
    /// The page of the next document: "A4" and "A5" upright, by any case; with any other name `width`
    /// and `height` as they stand, in twips.
    void PrintSetPsize(const QString& paper, double width, double height);

    /// Starts a document on the printer. Its job opens at once; one that an earlier document left open is
    /// dropped.
    /// @throws RunTimeError when no job can be opened
    void PrintStartDoc(SystemPrinter& target, double scale);
    /// Starts a document on the preview, blank, at the zoom `scale`.
    void PrintStartDoc(ctlPreview& target, double scale);

    void PrintSet(float x, float y, ColorValue color);
    /// Twips.
    float TextWidth(const QString& text) const;
    float TextHeight(const QString& text) const;
    /// A text at the pen. Where the pen is afterwards is the target's affair.
    void PrintPrint(const QString& text);
    /// The same, the letters narrowed as far as `text` is wider than `width` twips, to half of their width
    /// at most: a text is never cut, and one that is wider still runs over. Blanks at its end may run over.
    void PrintFitted(const QString& text, double width);
    void PrintLine(float x1, float y1, float x2, float y2);
    void PrintBox(float x1, float y1, float x2, float y2);
    void PrintFilledBox(float x1, float y1, float x2, float y2, ColorValue color);
    void PrintCircle(float x, float y, float radius);
    /// The next sheet; the preview is wiped instead.
    void NewPage();
    void PrintPicture(const QImage& picture, float x, float y, float width, float height);
    /// Closes the printer's job; nothing on the preview. Answers as PrintJob::HandOver.
    /// @throws KeptAsFileError, RunTimeError as SystemPrinter::EndDoc
    QString EndDoc();

    float CurrentX() const;
    float CurrentY() const;
    void SetCurrentX(float x);
    void SetCurrentY(float y);
    ColorValue BackColor() const;
    ColorValue ForeColor() const;
    void SetBackColor(ColorValue color);
    void SetForeColor(ColorValue color);
    const QFont& Font() const;
    void SetFont(const QFont& font);
    void SetFontName(const QString& name);
    /// Points on paper, whatever the preview's zoom.
    float FontSize() const;
    void SetFontSize(float points);
    bool FontBold() const;
    bool FontItalic() const;
    bool FontStrikethru() const;
    bool FontUnderline() const;
    void SetFontBold(bool on);
    void SetFontItalic(bool on);
    void SetFontStrikethru(bool on);
    void SetFontUnderline(bool on);
    int DrawWidth() const;
    int DrawStyle() const;
    int DrawMode() const;
    void SetDrawWidth(int width);
    void SetDrawStyle(int style);
    void SetDrawMode(int mode);
    /// Size of the page, twips.
    float PaperWidth() const;
    float PaperHeight() const;

    /// A framed cell whose upper left corner is the pen. `text` is shortened to what fits into `width`
    /// twips; a width of 0 cuts nothing. `align`: "R", "C", anything else is left. The cell is one line
    /// and `height` twips high. `sides` are the widths of the left, top, right and bottom edge, a digit
    /// each. The pen goes to the cell's upper right corner.
    void BoxOut(QString& text, double width, const QString& align, double height, const QString& sides);
    /// The same with all four edges of width 1.
    void BoxOutA(QString& text, double width, const QString& align, double height);

private:
    struct Cell {
        float left, top, right, bottom;
    };

    void SelectTarget(ctlPreview& preview);
    void CopyPrinterMetrics(ctlPreview& preview);
    DrawingSurface& Target() const;
    Cell CellAtPen(double width, double height) const;
    void DrawEdges(const Cell& cell, const QString& sides);
    void FillCell(const Cell& cell, QString& text, double width, QChar align, double height);

    SystemPrinter& m_printer;
    ctlPreview* m_preview = nullptr; ///< set when the target is the preview
    DrawingLog* m_log = nullptr;
    bool IsPrinter = true;
    double Scale = 1;
    double PageWidth = 0;
    double PageHeight = 0;
    double TopMargin = 0;
    double LeftMargin = 0;
    double LineGap = 0; ///< 10 on the preview, 0 on paper
};
