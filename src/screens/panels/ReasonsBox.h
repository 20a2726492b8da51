#pragma once

#include <QPlainTextEdit>

namespace dravik {

// What a judge found, in his own words, to be read and copied. It keeps its room when there is nothing to tell, and says so:
// what stands below it does not move while people are moved.
class ReasonsBox : public QPlainTextEdit {
    Q_OBJECT
public:
    // `judged` is what he judges: "this roster".
    explicit ReasonsBox(const QString& judged, QWidget* parent = nullptr);

    // Shows the findings, one a line. A text that stands there already keeps its place and what is chosen in it.
    void Tell(const QString& findings);

protected:
    void changeEvent(QEvent* event) override;

private:
    // Gives the box the height of its lines, no more: it scrolls by whole lines, so none is ever cut.
    void FitLines();
};

} // namespace dravik
