#include "Camera.h"

#include "screens/platform/Palettes.h"

#include <iostream>
#include <QApplication>
#include <QPixmap>
#include <utility>

namespace dravik::tour {

namespace {

QPixmap Picture(QWidget& screen, int scale, const QSize& size)
{
    QPixmap picture(size * scale);
    picture.setDevicePixelRatio(scale);
    screen.render(&picture);
    return picture;
}

} // namespace

Camera::Camera(QString pictures) : folder(std::move(pictures)) {}

bool Camera::Photograph(QWidget& screen, const QString& name, const QSize& size)
{
    const std::pair<void (*)(), const char*> looks[] = {{&UseDarkLook, "dark"}, {&UseLightLook, "light"}};
    const std::pair<int, const char*> scales[] = {{1, ""}, {2, "@2x"}};
    ++visits;
    bool allWritten = true;
    for (const auto& [use, look] : looks) {
        use();
        screen.resize(size);
        QApplication::processEvents();
        for (const auto& [scale, suffix] : scales) {
            const QString path = QString("%1/%2-%3-%4%5.png").arg(folder).arg(visits).arg(name, look, suffix);
            if (Picture(screen, scale, size).save(path))
                std::cout << "picture " << path.toStdString() << '\n';
            else
                allWritten = false;
        }
    }
    return allWritten;
}

} // namespace dravik::tour
