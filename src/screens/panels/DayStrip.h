#pragma once

#include <QAbstractSlider>
#include <QStringList>

namespace dravik {

// The ten game days in a row, each with a word on its game; the value is the chosen day. A click or an arrow key goes to
// another day. Days beyond the maximum are there to be seen, and cannot be chosen.
class DayStrip : public QAbstractSlider {
public:
    static constexpr int Days = 10;

    explicit DayStrip(QWidget* parent = nullptr);

    // The words under the days from 1 on; the days behind have none.
    void SetGames(const QStringList& words);
    // Where a day stands.
    [[nodiscard]] QRect CellOf(int day) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QStringList games;
};

} // namespace dravik
