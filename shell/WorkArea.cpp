#include "shell/WorkArea.h"

#include "core/base/IniFile.h"
#include "core/base/ProgramFiles.h"

#include <QAction>
#include <QFileInfo>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPainter>

using namespace Qt::StringLiterals;

WorkArea::WorkArea(QWidget* parent) : QMdiArea(parent)
{
    setBackground(QColor(0x8d, 0x9b, 0xa8));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void WorkArea::SetCover(const QPixmap& picture)
{
    m_cover = picture;
    viewport()->update();
}

namespace {

/// The frame's own close entry, which follows the desktop's key for closing, gets the key the handbook
/// names on every desktop.
void CloseByKey(QMdiSubWindow* frame)
{
    const auto entries = frame->systemMenu()->actions();
    for (QAction* entry : entries) {
        if (entry->shortcuts() == QKeySequence::keyBindings(QKeySequence::Close))
            entry->setShortcut(QKeySequence(u"Ctrl+F4"_s));
    }
}

} // namespace

void WorkArea::Hold(Form* list)
{
    QWidget* widget = list->Widget();
    auto* frame = qobject_cast<QMdiSubWindow*>(widget->parentWidget());
    if (!frame) {
        frame = addSubWindow(widget);
        frame->setAttribute(Qt::WA_DeleteOnClose);
        // A list may close itself; its frame goes with it.
        connect(widget, &QObject::destroyed, frame, &QMdiSubWindow::close);
        CloseByKey(frame);
    }
    // The area scrolls where the window needs more room than there is.
    frame->setMinimumSize(widget->minimumSizeHint().expandedTo(widget->minimumSize()));
    frame->showMaximized();
    widget->show();
    setActiveSubWindow(frame);
    widget->setFocus();
}

void WorkArea::paintEvent(QPaintEvent* event)
{
    QMdiArea::paintEvent(event);
    if (m_cover.isNull())
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect area = viewport()->rect();
    QRect target(QPoint(), m_cover.size().scaled(area.size(), Qt::KeepAspectRatioByExpanding));
    target.moveCenter(area.center());
    painter.drawPixmap(target, m_cover);
}

QPixmap LoadPicture(const QString& fileName)
{
    const QString path = QFileInfo(fileName).isAbsolute() ? fileName : ProgramPath(fileName);
    return FileExists(path) ? QPixmap(path) : QPixmap();
}

QPixmap LoadCoverPicture()
{
    const QString ini = ProgramPath(u"\\Data\\BCover.ini"_s);
    if (!FileExists(ini) || ReadIniValue(ini, u"Pic"_s, u"PicStatus"_s) != u"1")
        return {};
    return LoadPicture(ReadIniValue(ini, u"Pic"_s, u"FileName"_s));
}
