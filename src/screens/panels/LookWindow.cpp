#include "screens/panels/LookWindow.h"

#include "screens/panels/KeptPlace.h"

#include <algorithm>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <utility>

namespace dravik {

LookWindow::LookWindow(QWidget* screen, const QString& name, const QSize& usualSize) :
    QWidget(screen, Qt::Tool), usual(usualSize)
{
    setObjectName(name);
    screen->installEventFilter(this);
    new KeptPlace(*this);
}

void LookWindow::Open()
{
    ShowAnew();
    if (!std::exchange(hasStood, true) && !PutKept(*this))
        PlaceByProgram(*this, [this] { Stand(); });
    show();
    raise();
    activateWindow();
}

void LookWindow::Stand()
{
    const QRect area = parentWidget()->screen()->availableGeometry();
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    resize(usual.expandedTo(minimumSizeHint()).boundedTo(area.size() - QSize(0, title)));
    const QPoint middle = parentWidget()->frameGeometry().center() - QPoint(width() / 2, (height() + title) / 2);
    move(std::clamp(middle.x(), area.left(), std::max(area.left(), area.right() + 1 - width())),
         std::clamp(middle.y(), area.top(), std::max(area.top(), area.bottom() + 1 - title - height())));
}

void LookWindow::SetTitle(const QString& title) { setWindowTitle(QString(title).replace("[*]", "[*][*]")); }

bool LookWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Hide)
        close();
    return QWidget::eventFilter(watched, event);
}

void LookWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace dravik
