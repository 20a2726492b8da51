#pragma once

#include "session/OpenLeagueClient.h"

#include <QLabel>
#include <vector>

namespace dravik {

// The lines at the foot of the main screen that say, without a box, what the user ought to know for as long as it holds: one
// for each kind, muted, cut with a sign where the window is too narrow for it and then whole in its tooltip. A kind with
// nothing to say takes no room.
class QuietLines : public QWidget {
public:
    explicit QuietLines(QWidget* parent = nullptr);

    // Says `text` in the line of its kind until it is told another; the empty text takes the line away.
    void Tell(QuietLine line, const QString& text);
    // Puts commands behind the words of a kind, there as long as these are.
    void AddCommands(QuietLine line, const std::vector<QWidget*>& commands);

private:
    // In the order of the kinds.
    std::vector<QLabel*> labels;
    std::vector<QWidget*> rows;
};

} // namespace dravik
