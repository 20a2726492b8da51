#pragma once

#include <QAbstractSlider>
#include <QStringList>
#include <QStyleOptionButton>

namespace dravik {

// The ten game days in a row, each with a word on its game; the value is the chosen day. A click or an arrow key goes to
// another day. Days beyond the maximum are there to be seen, and cannot be chosen.
class DayStrip : public QAbstractSlider {
public:
    static constexpr int Days = 10;

    explicit DayStrip(QWidget* parent = nullptr);

    // The words under the days from 1 on; the days behind have none.
    void SetGames(const QStringList& words);
    // What the judge of the chosen day found, for a screen reader; it is painted elsewhere.
    void SetVerdict(const QString& words);
    // The accessible name, the chosen day, its game and the verdict.
    [[nodiscard]] QString InWords() const;
    [[nodiscard]] const QStringList& Games() const { return games; }
    // Where a day stands.
    [[nodiscard]] QRect CellOf(int day) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool IsOpen(int day) const { return isEnabled() && day <= maximum(); }
    [[nodiscard]] QStyleOptionButton OptionOf(int day) const;
    // The colour of secondary words on a day.
    [[nodiscard]] QColor SecondaryOn(int day, const QColor& words) const;
    // Tells a screen reader that the words are others now.
    void TellOfWords();

    QStringList games;
    QString verdict;
};

} // namespace dravik
