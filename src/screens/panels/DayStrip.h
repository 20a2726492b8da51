#pragma once

#include <QAbstractSlider>
#include <QList>
#include <QStringList>
#include <QStyleOptionButton>

namespace dravik {

// What the judge says of a day: its sign in the strip, and his words.
struct DaySign {
    enum class Kind { None, Good, Findings, Unjudged };

    Kind Shows = Kind::None;
    int Count = 0;      // of the findings
    QString Words = {}; // one finding a line

    bool operator==(const DaySign&) const = default;
};

// The ten game days in a row, each with a word on its game and the sign of its verdict; the value is the chosen day. A click
// or an arrow key goes to another day. Days beyond the maximum are there to be seen, and cannot be chosen.
class DayStrip : public QAbstractSlider {
public:
    static constexpr int Days = 10;

    explicit DayStrip(QWidget* parent = nullptr);

    // The words under the days from 1 on; the days behind have none.
    void SetGames(const QStringList& words);
    // What the judge of the chosen day found, for a screen reader; it is painted elsewhere.
    void SetVerdict(const QString& words);
    // The signs of the days from 1 on, with what a tooltip and a screen reader tell of them; the days behind have none.
    void SetSigns(const QList<DaySign>& all);
    [[nodiscard]] const QList<DaySign>& Signs() const { return signs; }
    // The day, its game and its verdict in words: "Day 3, vs TAR: 2 findings", the findings behind it when asked.
    [[nodiscard]] QString WordsOfDay(int day, bool withFindings) const;
    // The verdicts of all days with their findings in one line, for a screen reader. Empty before there are any.
    [[nodiscard]] QString WordsOfAllDays() const;
    // The accessible name, the chosen day, its game and the verdict.
    [[nodiscard]] QString InWords() const;
    [[nodiscard]] const QStringList& Games() const { return games; }
    // Where a day stands.
    [[nodiscard]] QRect CellOf(int day) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
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

    // The day at a point, 0 for none.
    [[nodiscard]] int DayAt(const QPoint& point) const;
    void PaintSign(QPainter& painter, int day, const QRect& cell, const QColor& quiet) const;

    QStringList games;
    QString verdict;
    QList<DaySign> signs;
};

} // namespace dravik
