#pragma once

#include <QString>
#include <QWidget>
#include <string>
#include <vector>

namespace dravik {

// What a window and all that stands on it are like, a line each: where it stands, and a digest of its properties, of what it
// keeps beside its widgets (layouts, commands, keys) and of what it paints.
class WidgetRecording {
public:
    // Takes `window` under the words `state`. Of a state behind the first what has not changed is left out.
    void Take(QWidget& window, const std::string& state);
    // Takes all of `window` as a single line.
    void TakeInOne(QWidget& window, const std::string& state);
    // Words that stand for something else each time.
    void Mask(const std::string& words) { masked = QString::fromStdString(words); }
    // All lines, in the order in which they were taken.
    [[nodiscard]] const std::vector<std::string>& Lines() const { return lines; }
    // What the digests are of, in the same order.
    [[nodiscard]] const QString& Whole() const { return whole; }

    // What the digests depend on besides this program: the toolkit, the system, and the measures of the font.
    [[nodiscard]] static std::string Toolkit();

private:
    void TakeAll(QWidget& widget, const QString& above, const QString& name, std::vector<std::string>& now);

    std::vector<std::string> lines;
    std::vector<std::string> last;
    QString whole;
    QString masked;
};

} // namespace dravik
