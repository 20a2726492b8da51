#pragma once

#include <QDialog>
#include <QTextBrowser>

namespace dravik {

// The keys of a screen, the signs and the ratings in words on one sheet, in a window beside the screen that can stay open. Esc
// and F1 close it.
class KeySheet : public QDialog {
public:
    // `screen` is the name of the screen that it is about, and owns it.
    KeySheet(const QString& screen, QWidget* parent);

    // Fills the sheet anew, since a league decides which ratings it shows, and shows it.
    void Open();

    QTextBrowser* txtSheet = nullptr;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // The signs are pictures in the colours of the sheet.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Fill();

    QString about;
};

} // namespace dravik
