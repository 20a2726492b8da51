#pragma once

#include "screens/panels/LeavingBox.h"

#include <QLineEdit>

namespace dravik {

// A text box of one line.
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
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void Act() override { emit LostFocus(); }
    void Focus() override { setFocus(Qt::OtherFocusReason); }

private:
    // A box that is only shown stays as readable as secondary words are.
    void ShadeDisabledText();

    bool readsAsLabel = false;
};

} // namespace dravik
