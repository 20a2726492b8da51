#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>
#include <QWidget>

namespace dravik {

// The guide to the program, which is a part of it: its chapters, its text with pictures, and a search through all of it. It
// stands for itself and can stay open beside any screen. Escape closes it.
class GuideWindow : public QWidget {
    Q_OBJECT
public:
    GuideWindow();

    // Comes to the front, at the first time where it was left the last time, or in the middle of the display that `beside` stands on.
    void Open(const QWidget& beside);
    // Goes to the chapter whose heading reads so in a link ("an-evening-in-ten-steps"), and says whether there is one.
    bool GoTo(const QString& anchor);
    // Marks the next place that holds what is searched, round from the end to the beginning, and says whether there is
    // one, in words too.
    bool FindNext(bool backwards);

    QListWidget* lstChapters;
    QTextBrowser* txtGuide;
    QLineEdit* txtFind;
    QPushButton *cmdNext, *cmdBefore;
    QLabel* lblFound;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // Makes the text anew, in the colours and at the sharpness of the display at hand.
    void Fill();
    void ListChapters();
    void ShowChapterAtHand();
    void TellFound(const QString& words);

    bool hasStood = false;
};

} // namespace dravik
