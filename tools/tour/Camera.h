#pragma once

#include <QString>
#include <QWidget>

namespace dravik::tour {

// Takes the pictures of a screen: light and dark, at 100 % and at 200 %.
class Camera {
public:
    // Pictures go to `folder`, which is there.
    explicit Camera(QString folder);

    // Takes the four pictures of `screen` in `size` under `name`, numbered in the order of the visits, and prints
    // their paths. False when one of them cannot be written.
    bool Photograph(QWidget& screen, const QString& name, const QSize& size = {1280, 800});

private:
    QString folder;
    int visits = 0;
};

} // namespace dravik::tour
