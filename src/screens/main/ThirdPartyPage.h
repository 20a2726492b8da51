#pragma once

#include <QDialog>
#include <QPlainTextEdit>

namespace dravik {

// What others wrote and this program is made with, and under which licences: the page that lies in every package, to be read,
// chosen from and copied. Esc closes it.
class ThirdPartyPage : public QDialog {
public:
    explicit ThirdPartyPage(QWidget* parent);

    // Shows the page, at the size it was left at; at the first time wide enough for its lines, as far as the display goes.
    void Open();

    QPlainTextEdit* txtPage;
};

} // namespace dravik
