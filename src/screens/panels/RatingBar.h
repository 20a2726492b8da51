#pragma once

#include <QWidget>

namespace dravik {

// A rating as a small bar, 0 to 99, in the palette's highlight on a faint ground. The number itself stands beside it.
class RatingBar : public QWidget {
public:
    explicit RatingBar(QWidget* parent = nullptr);

    // Values beyond 0 to 99 show an empty and a full bar.
    void SetValue(int rating);
    [[nodiscard]] int Value() const { return value; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int value = 0;
};

} // namespace dravik
