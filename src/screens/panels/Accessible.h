#pragma once

#include <QString>

class QObject;

namespace dravik {

// What a bar says to a screen reader besides its accessible name: how much of how much it shows, and that in words.
class Gauge {
public:
    virtual ~Gauge() = default;

    [[nodiscard]] virtual double Shown() const = 0;
    [[nodiscard]] virtual double Full() const = 0;
    [[nodiscard]] virtual QString InWords() const = 0;
};

// Has screen readers take the panels for what they are: what is pressed like a button for a button with a press action, a
// bar for a gauge with its figure, the strip of days for a slider that says its day, a verdict and what was typed in a list
// for a message. The application calls it once, before the first window.
void DescribePanelsToScreenReaders();

// Has a screen reader say the words of a widget, wherever the focus is.
void Announce(QObject& widget, const QString& words);

} // namespace dravik
