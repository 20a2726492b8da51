#pragma once

#include <functional>
#include <QWidget>

namespace dravik {

// A window that stands beside a screen and goes with it: figures that a manager looks at while he works. Escape closes it, and so
// does whatever hides the screen; the screen's keys go on working while it is in front.
class LookWindow : public QWidget {
    Q_OBJECT
public:
    LookWindow(QWidget* screen, const QString& name, const QSize& usualSize);

    // Shows the tables once more.
    virtual void ShowAnew() = 0;
    // Comes up, at the first time where it was left the last time, or at its usual size in the middle of the screen, as far as the
    // display goes.
    void Open();
    // The title, as it stands, whatever signs a team's name holds.
    void SetTitle(const QString& title);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Stand();

    QSize usual;
    bool hasStood = false;
};

} // namespace dravik
