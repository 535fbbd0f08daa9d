#pragma once

#include "core/forms/Form.h"

#include <QMdiArea>
#include <QPixmap>

/// The frame's work area: it holds the list windows, over the background picture.
class WorkArea : public QMdiArea {
    Q_OBJECT

public:
    explicit WorkArea(QWidget* parent = nullptr);

    /// The picture that covers the area, cut where the shapes differ; a null one brings the plain ground.
    void SetCover(const QPixmap& picture);

    /// Shows a list window filling the area.
    void Hold(Form* list);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_cover;
};

/// The picture in a file, which is named in full or from the program directory on; null where there is no
/// such file or it holds no picture.
QPixmap LoadPicture(const QString& fileName);

/// The background picture of the installation: `Pic`/`FileName` of \Data\BCover.ini, when `PicStatus` is
/// "1" and both files exist; otherwise null.
QPixmap LoadCoverPicture();
