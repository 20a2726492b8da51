#pragma once

#include "screens/panels/LeavingBox.h"

#include <QLineEdit>

namespace dravik {

// A text box of one line. Whoever comes to it, by key or with the mouse, finds its content selected, so that what he types
// replaces it; a press that draws a selection of its own keeps that one. Without the focus, a text wider than the box is
// shown from its beginning with a sign of the cut, and told whole by a tooltip.
class EditBox : public QLineEdit, public LeavingBox {
    Q_OBJECT
public:
    explicit EditBox(QWidget* parent = nullptr);

    // While it is closed, the box reads like a label: no frame, no ground of its own, its text in full colour. For what is
    // closed only because it is there to be read.
    void ReadAsLabelWhenClosed();

signals:
    void LostFocus();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void Act() override { emit LostFocus(); }
    void Focus() override;

private:
    // Where the text stands, and whether it is wider than that.
    [[nodiscard]] QRect TextArea() const;
    [[nodiscard]] bool IsCut() const;
    // A box that is only shown stays as readable as secondary words are.
    void ShadeDisabledText();

    bool readsAsLabel = false;
    bool selectsAtRelease = false; // the mouse brought the focus, and its button is still down
};

} // namespace dravik
