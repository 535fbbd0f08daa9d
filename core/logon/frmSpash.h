#pragma once

#include "core/forms/FormWindow.h"

class QTimer;

/// The picture between logon and main window. When its time is over it shows the main window; a click
/// closes it without doing so.
class frmSpash : public FormWindow {
    Q_OBJECT

public:
    explicit frmSpash(QWidget* owner = nullptr);

    void OnLoad() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void TimeIsOver();

    QTimer* ShowTimer;
};
