#pragma once

#include "printing/Documents.h"

#include <QFont>
#include <QString>

#include <functional>
#include <vector>

class QWidget;
class clsPrint;

/// How a height of the form becomes a height on paper: times `factor`, and shifted by the document's
/// TopArea or not.
struct Drop {
    double factor = 1;
    bool takesTopArea = false;
};

/// Which lines of a form print.
enum class Ruling {
    None,
    All,
    Named, ///< those whose name, without the number of the array, is `lineName`, case included
};

/// What of a form prints, and where. One for stationery, one for a blank sheet.
struct PageRules {
    using Choice = std::function<bool(const QString& controlName)>;

    Choice printsLabel{};
    Drop label{};
    Choice printsText{};
    Drop text{};
    /// A combo box that prints its shown text as a text box does; "" for none.
    QString comboName{};
    Ruling ruling = Ruling::None;
    QString lineName{};
    Drop line{};
    bool hasBlankBehind = false; ///< one blank behind each text box's text
    bool skipsHidden = true;     ///< what the form hides stays off the paper
    double userIdDrop = 0;       ///< twips by which txtUserID stands lower than on the form
    bool endsWithNewPage = true;
};

/// How one of the documents prints.
struct DocumentRules {
    QString paperId;    ///< DFN_Paper.PaperID
    QString title;      ///< its name in the queue
    QString errorLabel; ///< ErrInfo.ErrSource of a failure
    PageRules stationery;
    PageRules sheet;
};

const DocumentRules& RulesOf(Document document);

/// What a form has on paper: one text or one line, twips.
struct FormMark {
    bool isLine = false;
    float x1 = 0; ///< of a text its upper left corner
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;
    QString text{};
    int room = 0; ///< that a text has across
    QFont font{};
};

/// The controls of a form in their order, each where it stands, moved by the offsets (twips). A text box
/// prints 120 twips lower than its top, where the labels beside it have their text.
std::vector<FormMark> ReadForm(const QWidget& form, const PageRules& rules, double left, double top);

/// @throws RunTimeError when the printer refuses
void DrawMarks(clsPrint& page, const std::vector<FormMark>& marks);
