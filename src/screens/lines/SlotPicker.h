#pragma once

#include "rules/PersonSigns.h"
#include "screens/panels/EntryList.h"
#include "screens/panels/SlotLabel.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace dravik {

// Somebody whom the picker offers.
struct PickRow {
    QString Name;
    QStringList Aside; // position, and the overall where it is shown
    PersonSigns Signs;
};

// A small panel at a slot that offers those who may stand there. Typing any part of a name filters, arrows choose, Enter or a
// click places; Escape, or leaving it, closes it and nothing happens. It shows and reports; what placing means is up to its
// screen.
class SlotPicker : public QFrame {
    Q_OBJECT
public:
    explicit SlotPicker(QWidget* screen);

    // Opens at `slot`, inside the window, with `typed` as the beginning of what is typed. `at` is the row that stands there
    // now, or -1.
    void OpenAt(SlotLabel& slot, const QList<PickRow>& people, int at, const QString& typed);
    // Closes without a word, and gives the focus back to the slot.
    void Close();
    [[nodiscard]] bool IsOpen() const { return isVisible(); }

    QLineEdit* txtName = nullptr;
    EntryList* lstPick = nullptr;
    QPushButton* cmdShowPlayer = nullptr;
    QLabel* lblSlot = nullptr;
    QLabel* lblNobody = nullptr; // stands where nobody fits what was typed

signals:
    // A row of the people was chosen: to be placed, or to be looked at.
    void Placed(int row);
    void Looked(int row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // Lists those whose name fits what is typed, those first in whom a word begins with it.
    void Filter();
    void Place();
    void Look();
    void Stand();
    [[nodiscard]] int ChosenRow() const;

    QPointer<SlotLabel> anchor;
    QList<PickRow> rows;
};

} // namespace dravik
