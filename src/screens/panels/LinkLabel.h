#pragma once

#include <QLabel>

namespace dravik {

// A label that leads somewhere: underlined in the palette's colour of links, as far as it can be read. A click acts, and so
// do Enter and Space while it has the focus.
class LinkLabel : public QLabel {
    Q_OBJECT
public:
    explicit LinkLabel(const QString& text, QWidget* parent = nullptr);

signals:
    void Clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace dravik
