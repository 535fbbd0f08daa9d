#pragma once

#include <QKeySequence>
#include <QLabel>

/// A label that works as a button. It takes no focus, so that a click leaves no field; a double click
/// presses it once, so that a nervous hand does not save twice; a key of its own
/// presses it from anywhere in the window, and stands in small letters beside the caption.
class LabelButton : public QLabel {
    Q_OBJECT

public:
    explicit LabelButton(QWidget* parent = nullptr);

    /// The key that presses it. The caption itself stays as it is.
    void SetKey(const QKeySequence& key);
    QKeySequence Key() const { return m_key; }

    QSize sizeHint() const override;

signals:
    void Pressed();
    /// Pressed by its key.
    void PressedByKey();
    /// The mouse came over the label (true) or left it.
    void Hovered(bool over);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QKeySequence m_key;
    bool m_isDown = false;
};
