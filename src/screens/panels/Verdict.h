#pragma once

#include <QLabel>
#include <QStringList>

namespace dravik {

// What a judge found, in a word with its sign: a tick in the accent's colour, or the warning sign with the words in red.
// A screen reader is told of every new one.
class VerdictLabel : public QLabel {
public:
    explicit VerdictLabel(QWidget* parent = nullptr);

    // Keeps room for the widest of all words that may be told, so that what stands beside it does not move.
    void KeepRoomFor(const QStringList& all);
    void Tell(const QString& words, bool isGood);
    [[nodiscard]] bool IsGood() const { return good; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStringList room;
    bool good = false;
};

} // namespace dravik
