#pragma once

#include "screens/panels/Accessible.h"

#include <QWidget>

namespace dravik {

// A rating as a small bar, 0 to 99, in the palette's highlight on a faint ground. The number itself stands beside it;
// what is rated is its accessible name.
class RatingBar : public QWidget, public Gauge {
public:
    explicit RatingBar(QWidget* parent = nullptr);

    // Values beyond 0 to 99 show an empty and a full bar.
    void SetValue(int rating);
    [[nodiscard]] int Value() const { return value; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] double Shown() const override { return value; }
    [[nodiscard]] double Full() const override;
    [[nodiscard]] QString InWords() const override { return QString::number(value); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int value = 0;
};

} // namespace dravik
