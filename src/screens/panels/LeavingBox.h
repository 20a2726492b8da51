#pragma once

#include <Qt>

namespace dravik {

// What the text boxes have in common: a box acts when it loses the focus to another control. A window in front, a menu of
// its own or another program does not count: the text is still being typed.
class LeavingBox {
public:
    LeavingBox() = default;
    LeavingBox(const LeavingBox&) = delete;
    LeavingBox& operator=(const LeavingBox&) = delete;

    // Acts now if the box has had the focus since it acted last. True when the text was taken, or there was none to take;
    // false when the box asked for the focus again.
    bool Settle();
    // Takes the focus again, since its text was refused. Whoever calls this holds the events back meanwhile.
    void TakeFocusBack();

protected:
    virtual ~LeavingBox() = default;

    // What the box does, and how it gets the focus.
    virtual void Act() = 0;
    virtual void Focus() = 0;

    // Whether the box has had the focus since it acted last.
    [[nodiscard]] bool OwesAction() const { return owesAction; }
    void FocusCame();
    void FocusWent(Qt::FocusReason reason);

private:
    bool owesAction = false;
    bool acting = false;
};

} // namespace dravik
