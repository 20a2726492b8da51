#include "screens/panels/PassingTag.h"

#include "screens/panels/Accessible.h"
#include "screens/panels/Shades.h"

#include <algorithm>
#include <chrono>
#include <QPainter>

namespace dravik {

namespace {

constexpr int Padding = 6; // between the tag's edge and its words
constexpr const char* Name = "lblPassing";
constexpr auto Shown = std::chrono::seconds(8);

} // namespace

PassingTag::PassingTag(QWidget* window) : Tag(window, Name)
{
    end.setSingleShot(true);
    connect(&end, &QTimer::timeout, this, &QWidget::hide);
}

void PassingTag::Say(QWidget& command, const QString& words)
{
    QWidget* window = command.window();
    auto* tag = static_cast<PassingTag*>(window->findChild<QLabel*>(Name, Qt::FindDirectChildrenOnly));
    if (tag == nullptr)
        tag = new PassingTag(window);
    tag->setText(words);
    tag->setAccessibleName(words);
    tag->PlaceAbove(command);
    tag->show();
    tag->raise();
    tag->end.start(Shown);
    Announce(*tag, words);
}

void PassingTag::PlaceAbove(const QWidget& command)
{
    const QRect area = window()->rect().adjusted(Gap, Gap, -Gap, -Gap);
    const QRect place(command.mapTo(window(), QPoint(0, 0)), command.size());
    const int width = std::min(fontMetrics().horizontalAdvance(text()) + 2 * Padding + 1, area.width());
    const int height = fontMetrics().height() + 2 * Padding;
    const int left = std::clamp(place.center().x() - width / 2, area.left(), area.right() + 1 - width);
    setGeometry(left, std::max(area.top(), place.top() - Gap / 2 - height), width, height);
}

void PassingTag::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PaintFrame(painter);
    const QRect line = rect().adjusted(Padding, 0, -Padding, 0);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, line.width()));
}

} // namespace dravik
