#pragma once

#include <QLabel>

namespace dravik {

// What a judge found, in a word with its sign: a tick in the accent's colour, or the warning sign with the words in red.
// A screen reader is told of every new one.
class VerdictLabel : public QLabel {
public:
    explicit VerdictLabel(QWidget* parent = nullptr);

    void Tell(const QString& words, bool isGood);
    [[nodiscard]] bool IsGood() const { return good; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool good = false;
};

} // namespace dravik
