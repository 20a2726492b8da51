#pragma once

#include <QLineEdit>

namespace dravik {

// A text box that acts when it loses the focus to another control. A window in front, a menu of its own or another
// program does not count: the text is still being typed.
class EditBox : public QLineEdit {
    Q_OBJECT
public:
    explicit EditBox(QWidget* parent = nullptr);

    // Acts now if the box has had the focus since it acted last. True when the text was taken, or there was none to take;
    // false when the box asked for the focus again.
    bool Settle();
    // Takes the focus again, since its text was refused. Whoever calls this holds the events back meanwhile.
    void TakeFocusBack();
    // While it is closed, the box reads like a label: no frame, no ground of its own, its text in full colour. For what is
    // closed only because it is there to be read.
    void ReadAsLabelWhenClosed();

signals:
    void LostFocus();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // A box that is only shown stays as readable as secondary words are.
    void ShadeDisabledText();

    bool readsAsLabel = false;
    bool owesAction = false;
    bool acting = false;
};

} // namespace dravik
