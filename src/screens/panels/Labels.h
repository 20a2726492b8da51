#pragma once

#include "screens/panels/ElidedLabel.h"

#include <QLabel>

namespace dravik {

// A label of secondary words, faded into the background at paint time. Its mnemonic leads to its buddy as usual.
class MutedLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// The small sign that stands before whatever is wrong: a triangle with an exclamation mark, as high as the text.
class WarningSign : public QWidget {
public:
    explicit WarningSign(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// Paints that sign into `area`, in the colours that fit `background`.
void PaintWarningSign(QPainter& painter, const QRectF& area, const QColor& background);

// A label in the font of titles or headings, which gives way where names are long.
QLabel* MakeTitle(QWidget* parent = nullptr);
QLabel* MakeHeading(const QString& text, QWidget* parent = nullptr);

} // namespace dravik
