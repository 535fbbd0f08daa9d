#include "shell/frmParameter.h"

#include "core/base/IniFile.h"
#include "core/base/Numbers.h"
#include "core/base/ProgramFiles.h"
#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/gateway/DataGateway.h"
#include "core/session/SessionControl.h"
#include "printing/PrintQueue.h"
#include "shell/WorkArea.h"

#include "ui_frmParameter.h"

#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

constexpr int DeadlineWidth = 8; // characters of the column
constexpr int NumberWidth = 20;

enum Page { PrintingPage, BackgroundPage, RulesPage };

/// DFN_CheckFee.CountID: every value but "0" is by pieces.
constexpr int ByWeight = 0;
constexpr int ByPieces = 1;

const QString PictureFilter =
    u"Bitmaps （*.bmp）|*.bmp|GIF Images （*.gif）|*.gif|JPEG Images （*.jpg）|*.jpg"_s;

QString Flag(const QAbstractButton* box)
{
    return box->isChecked() ? u"1"_s : u"0"_s;
}

QString CoverIniPath()
{
    return ProgramPath(u"\\Data\\BCover.ini"_s);
}

/// The list's index of DFN_Paper.PrintStyle: what is neither of the two that print does not print.
int StyleIndex(const QString& printStyle)
{
    return printStyle == u"1" || printStyle == u"2" ? printStyle.toInt() : 0;
}

QString Offset(const Field& centimetres)
{
    return RoundedText(NullToZero(centimetres.Value), 2, false);
}

} // namespace

frmParameter::frmParameter(QWidget* owner)
    : FormWindow(owner, SlotUse::Frees), ui(std::make_unique<Ui::frmParameter>())
{
    ui->setupUi(this);
    const auto open = [this] { ChoosePicture(); };
    const auto save = [this] { Save(); };

    Chain().Combo(ui->cmbPaperSize);
    Chain().Check(ui->chkPrintType);
    Chain().Check(ui->optPortrait);
    Chain().Check(ui->optLandScape); // the documents' lines follow, as the table has them

    Chain().Check(ui->chkPicStatus);
    Chain()
        .Field(ui->txtFileName)
        .AtMost(IniValueLength)
        .TakesQuotes()
        .OnChange([this] { ShowPicture(); })
        .OnDoubleClick(open)
        .OnKey(Qt::Key_F2, open)
        .OnEnter([this] { ShowPage(RulesPage); });

    Chain().Check(ui->chkControl_Sale);
    Chain().Check(ui->chkVerify);
    Chain().Field(ui->txtDeadline).AtMost(DeadlineWidth);
    Chain().Check(ui->chkRound_Sale);
    Chain().Check(ui->chkRound_CheckOut);
    Chain().Combo(ui->cmbCountID_0);
    Chain().Combo(ui->cmbCountID_1).OnEnter(save);

    OnPress(ui->cmdOpen, open, QKeySequence(u"Alt+O"_s));
    OnPress(ui->cmdSubmit, save);
    OnPress(ui->cmdCancel, [this] { close(); });
    WirePages();
}

frmParameter::~frmParameter() = default;

void frmParameter::WirePages()
{
    for (const QString& caption : {u"打印"_s, u"背景"_s, u"控制"_s}) {
        const int page = ui->TabTitle->addTab(caption);
        const QKeySequence key(u"Alt+%1"_s.arg(page + 1));
        ui->TabTitle->setTabToolTip(page, key.toString(QKeySequence::NativeText));
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this, page] { ShowPage(page); });
    }
    connect(ui->TabTitle, &QTabBar::currentChanged, this, &frmParameter::ShowPage);
    const auto turn = [this](const QString& key, int step) {
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, [this, step] {
            const int pages = ui->TabTitle->count();
            ShowPage((ui->TabTitle->currentIndex() + step + pages) % pages);
        });
    };
    turn(u"Ctrl+Tab"_s, 1);
    turn(u"Ctrl+Shift+Tab"_s, -1);
}

void frmParameter::ShowPage(int page)
{
    ui->TabTitle->setCurrentIndex(page);
    ui->stkPages->setCurrentIndex(page);
    if (!ui->TabTitle->hasFocus()) // where the arrow keys are still turning pages
        Chain().FocusFirst();
}

void frmParameter::OnLoad()
{
    ui->cmbCountID_0->addItems({u"按顿数"_s, u"按件数"_s});
    ui->cmbCountID_1->addItems({u"按顿数"_s, u"按件数"_s});
    LoadDefine();
    ToldAfterwards([this] { LoadBackground(); });
    QString paperSize;
    ToldAfterwards([&paperSize] { paperSize = ReadIniValue(ConfigIniPath(), u"Define"_s, u"PaperSize"_s); });
    LoadPapers();
    LoadRounds();
    ui->cmbCountID_0->setCurrentIndex(GetFeeCountID(u"F01"_s) == u"0" ? ByWeight : ByPieces);
    ui->cmbCountID_1->setCurrentIndex(GetFeeCountID(u"F02"_s) == u"0" ? ByWeight : ByPieces);
    ListPaperSizes(paperSize);
}

void frmParameter::LoadDefine()
{
    const RecordSet define = Gateway().SelectRows(
        u"Sys_Define"_s, u"PrintType,Orientation,bolVerify,Deadline,Control_Sale"_s, QString());
    ui->optPortrait->setChecked(true);
    if (define.Eof())
        return;
    ui->chkPrintType->setChecked(define.Text(0) == u"1");
    ui->optLandScape->setChecked(define.Text(1) != u"1");
    ui->chkVerify->setChecked(define.Text(2) == u"1");
    ui->txtDeadline->setText(define.Text(3));
    ui->chkControl_Sale->setChecked(define.Text(4) == u"1");
}

void frmParameter::LoadBackground()
{
    const QString ini = CoverIniPath();
    if (!FileExists(ini))
        return;
    ui->chkPicStatus->setChecked(ReadIniValue(ini, u"Pic"_s, u"PicStatus"_s) == u"1");
    WriteText(ui->txtFileName, ReadIniValue(ini, u"Pic"_s, u"FileName"_s));
}

void frmParameter::LoadPapers()
{
    FieldRule* last = nullptr;
    for (RecordSet papers = Gateway().SelectRows(
             u"DFN_Paper"_s, u"PaperID,PaperName,LeftArea,TopArea,PrintStyle"_s, u" Order By PaperID ASC"_s);
         !papers.Eof(); papers.MoveNext())
        last = &AddPaperLine(papers);
    if (last)
        last->OnEnter([this] { ShowPage(BackgroundPage); });
}

FieldRule& frmParameter::AddPaperLine(const RecordSet& paper)
{
    const int row = static_cast<int>(m_papers.size());
    const auto name = [row](const QString& control) { return control + u'_' + QString::number(row); };
    const auto box = [&](const QString& control, const QString& text, int column) {
        auto* made = new QLineEdit(text, ui->Frame1);
        made->setObjectName(name(control));
        ui->layPapers->addWidget(made, row + 1, column);
        return made;
    };
    PaperLine line{};
    line.id = box(u"txtPaperID"_s, paper.Text(0), 0);
    auto* title = box(u"txtPaperName"_s, paper.Text(1), 1);
    for (QLineEdit* fixed : {line.id, title}) {
        Lock(fixed);
        fixed->setFocusPolicy(Qt::ClickFocus);
    }
    line.id->setMaximumWidth(70);
    line.left = box(u"txtLeftArea"_s, Offset(paper.Fields(2)), 2);
    line.top = box(u"txtTopArea"_s, Offset(paper.Fields(3)), 3);
    for (QLineEdit* offset : {line.left, line.top}) {
        offset->setAlignment(Qt::AlignRight);
        Chain().Field(offset).AtMost(NumberWidth);
    }
    line.style = new QComboBox(ui->Frame1);
    line.style->setObjectName(name(u"cmbPrintStyle"_s));
    line.style->addItems({u"不打印"_s, u"套打"_s, u"带框打印"_s});
    line.style->setCurrentIndex(StyleIndex(paper.Text(4)));
    ui->layPapers->addWidget(line.style, row + 1, 4);
    m_papers.push_back(line);
    return Chain().Combo(line.style);
}

void frmParameter::LoadRounds()
{
    for (RecordSet rounds =
             Gateway().SelectRows(u"DFN_Round"_s, u"CountID,bolRound"_s, u" Order By CountID"_s);
         !rounds.Eof(); rounds.MoveNext()) {
        const bool isOn = rounds.Text(1) != u"0";
        if (rounds.Text(0) == u"C01")
            ui->chkRound_Sale->setChecked(isOn);
        else if (rounds.Text(0) == u"C02")
            ui->chkRound_CheckOut->setChecked(isOn);
    }
}

void frmParameter::ListPaperSizes(const QString& chosenCode)
{
    const QList<PaperSize> sizes = PaperSizes();
    for (const PaperSize& size : sizes)
        ui->cmbPaperSize->addItem(size.name, size.code);
    ui->cmbPaperSize->setCurrentIndex(-1);
    const double code = LeadingNumber(chosenCode);
    for (int i = 0; i < ui->cmbPaperSize->count(); ++i) {
        if (ui->cmbPaperSize->itemData(i).toInt() == code) {
            ui->cmbPaperSize->setCurrentIndex(i);
            break;
        }
    }
    if (sizes.isEmpty())
        ShowInfo(u"该打印机无有效的打印纸张大小！"_s, u"软件提示"_s);
}

void frmParameter::ChoosePicture()
{
    const QString chosen =
        AskFile({.title = u"选择背景图案"_s, .filter = PictureFilter, .start = ui->txtFileName->text()});
    if (chosen.isEmpty())
        return;
    if (chosen.size() > IniValueLength) {
        ShowInfo(u"文件的路径太长，最多%1个字，请把图案放到别的文件夹！"_s.arg(IniValueLength));
        return;
    }
    WriteText(ui->txtFileName, chosen);
}

void frmParameter::ShowPicture()
{
    const QString file = ui->txtFileName->text();
    const QPixmap picture = LoadPicture(file);
    if (picture.isNull()) {
        ui->ImageView->setText(file.isEmpty() ? QString() : u"没有这个图案，或者不是图片"_s);
        return;
    }
    const QSize room = ui->PicFrame->minimumSize() - QSize(10, 10); // within the frame and its margins
    ui->ImageView->setPixmap(picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void frmParameter::Save()
{
    Guarded(u"保存或修改基本参数"_s, [this] {
        if (!OffsetsAreNumbers())
            return;
        SaveDefine();
        SaveBackground();
        SavePaperSize();
        SavePapers();
        SaveRounds();
        SaveFees();
        close();
    });
}

bool frmParameter::OffsetsAreNumbers()
{
    for (const PaperLine& paper : m_papers) {
        for (QLineEdit* offset : {paper.left, paper.top}) {
            const auto goThere = [this, offset] {
                ShowPage(PrintingPage);
                FocusAndSelect(offset);
            };
            const auto number = ParseNumber(offset->text());
            if (!number) {
                ShowInfo(u"纸张偏移的值设置错误！"_s);
                goThere();
                return false;
            }
            try {
                SqlNumber(*number);
            } catch (const OverflowError&) {
                goThere();
                throw;
            }
        }
    }
    return true;
}

void frmParameter::SaveDefine()
{
    const QString orientation = ui->optPortrait->isChecked() ? u"1"_s : u"2"_s;
    Gateway().UpdateRows(u"Sys_Define"_s,
                         u"PrintType="_s + Quoted(Flag(ui->chkPrintType)) + u",Orientation="_s +
                             Quoted(orientation) + u",bolVerify="_s + Quoted(Flag(ui->chkVerify)) +
                             u",Deadline="_s + Quoted(ui->txtDeadline->text()) + u",Control_Sale="_s +
                             Quoted(Flag(ui->chkControl_Sale)),
                         QString());
}

void frmParameter::SaveBackground()
{
    const QString ini = CoverIniPath();
    if (!FileExists(ini))
        return;
    WriteIniValue(ini, u"Pic"_s, u"FileName"_s, ui->txtFileName->text());
    WriteIniValue(ini, u"Pic"_s, u"PicStatus"_s, Flag(ui->chkPicStatus));
}

void frmParameter::SavePaperSize()
{
    // Without a printer there is nothing to choose, and what stands in the file stays.
    if (FileExists(ConfigIniPath()) && ui->cmbPaperSize->currentIndex() >= 0)
        WriteIniValue(ConfigIniPath(), u"Define"_s, u"PaperSize"_s,
                      QString::number(ui->cmbPaperSize->currentData().toInt()));
}

void frmParameter::SavePapers()
{
    for (const PaperLine& paper : m_papers)
        Gateway().UpdateRows(u"DFN_Paper"_s,
                             u"LeftArea="_s + Quoted(paper.left->text()) + u",TopArea="_s +
                                 Quoted(paper.top->text()) + u",PrintStyle="_s +
                                 Quoted(QString::number(paper.style->currentIndex())),
                             u"PaperID="_s + Quoted(paper.id->text()));
}

void frmParameter::SaveRounds()
{
    Gateway().UpdateRows(u"DFN_Round"_s, u"bolRound="_s + Quoted(Flag(ui->chkRound_Sale)),
                         u"CountID='C01'"_s);
    Gateway().UpdateRows(u"DFN_Round"_s, u"bolRound="_s + Quoted(Flag(ui->chkRound_CheckOut)),
                         u"CountID='C02'"_s);
}

void frmParameter::SaveFees()
{
    Gateway().UpdateRows(u"DFN_CheckFee"_s,
                         u"CountID="_s + Quoted(QString::number(ui->cmbCountID_0->currentIndex())),
                         u"FeeID='F01'"_s);
    Gateway().UpdateRows(u"DFN_CheckFee"_s,
                         u"CountID="_s + Quoted(QString::number(ui->cmbCountID_1->currentIndex())),
                         u"FeeID='F02'"_s);
}
