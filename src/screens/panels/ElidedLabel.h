#pragma once

#include <QLabel>

class QEvent;

namespace dravik {

// A label of one line that gives way: where its text has no room it is cut with a sign, and told whole by a tooltip. It asks
// for the room of the whole text and is content with a few letters, so that no name widens a window. text() stays whole.
class ElidedLabel : public QLabel {
public:
    // In the colour of text, or in that of secondary words.
    enum class Words { Plain, Muted };
    explicit ElidedLabel(QWidget* parent = nullptr, Words words = Words::Plain);
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;
    // Whether the whole text has no room.
    [[nodiscard]] bool IsCut() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Words words;
};

// How a label shows the "&" in its text: as the letter that leads to its buddy, if it has one. A value of Qt::TextFlag.
int MnemonicFlags(const QLabel& label);

// Shows `text` as the tooltip of `widget` when `event` asks for one and the widget has none of its own. True when it did.
bool TellWhole(const QString& text, QEvent* event, QWidget* widget);

} // namespace dravik
