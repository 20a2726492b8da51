#pragma once

#include "screens/panels/Accessible.h"

#include <optional>
#include <QFontMetrics>
#include <QPainter>
#include <QWidget>

namespace dravik {

// How high the bar of a rating is beside such letters.
int HeightOfRatingBar(const QFontMetrics& metrics);
// Draws the bar of a pinned one into `area`: hatched within an outline, so that no colour is needed to tell it from a full one.
void PaintGhost(QPainter& painter, const QRectF& area, const QPalette& palette);

// A rating as a small bar, 0 to 99, in the palette's highlight on a faint ground. The number itself stands beside it;
// what is rated is its accessible name. Behind it may stand the ghost of a pinned one's rating, higher than the bar itself so that
// each is seen whole.
class RatingBar : public QWidget, public Gauge {
public:
    explicit RatingBar(QWidget* parent = nullptr);

    // Values beyond 0 to 99 show an empty and a full bar.
    void SetValue(int rating);
    [[nodiscard]] int Value() const { return value; }
    void SetGhost(std::optional<int> rating);
    [[nodiscard]] std::optional<int> Ghost() const { return ghost; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] double Shown() const override { return value; }
    [[nodiscard]] double Full() const override;
    [[nodiscard]] QString InWords() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int value = 0;
    std::optional<int> ghost;
};

} // namespace dravik
