#include "screens/platform/BoxIcon.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace dravik {

namespace {

// All in a square of side 1.
QPainterPath Disc()
{
    QPainterPath path;
    path.addEllipse(QRectF(0.04, 0.04, 0.92, 0.92));
    return path;
}

QPainterPath Triangle()
{
    QPainterPath path;
    path.addPolygon(QPolygonF{{0.5, 0.1}, {0.94, 0.88}, {0.06, 0.88}, {0.5, 0.1}});
    return path;
}

// A stroke and a dot: "!" from above, "i" from below.
void DrawStrokeAndDot(QPainter& painter, double from, double to, double dot)
{
    painter.drawLine(QPointF(0.5, from), QPointF(0.5, to));
    painter.drawPoint(QPointF(0.5, dot));
}

void DrawCross(QPainter& painter)
{
    painter.drawLine(QPointF(0.34, 0.34), QPointF(0.66, 0.66));
    painter.drawLine(QPointF(0.66, 0.34), QPointF(0.34, 0.66));
}

void DrawQuestion(QPainter& painter)
{
    QPainterPath path(QPointF(0.37, 0.38));
    path.cubicTo(0.37, 0.20, 0.64, 0.20, 0.64, 0.38);
    path.cubicTo(0.64, 0.49, 0.5, 0.48, 0.5, 0.61);
    painter.drawPath(path);
    painter.drawPoint(QPointF(0.5, 0.76));
}

void DrawInformation(QPainter& painter) { DrawStrokeAndDot(painter, 0.47, 0.73, 0.28); }

void DrawExclamation(QPainter& painter) { DrawStrokeAndDot(painter, 0.39, 0.61, 0.76); }

} // namespace

QPixmap BoxIcon(QMessageBox::Icon icon, const QPalette& palette, int size, double ratio)
{
    struct Sign {
        QMessageBox::Icon Icon = QMessageBox::NoIcon;
        QPainterPath (*Shape)() = nullptr;
        void (*Draw)(QPainter&) = nullptr;
        QColor Fill;
        QColor Ink;
    };
    const QColor accent = palette.color(QPalette::Highlight);
    const QColor onAccent = palette.color(QPalette::HighlightedText);
    const std::array signs{
        Sign{QMessageBox::Critical, Disc, DrawCross, QColor("#c0392b"), Qt::white},
        Sign{QMessageBox::Warning, Triangle, DrawExclamation, QColor("#e5a50a"), QColor("#241f14")},
        Sign{QMessageBox::Information, Disc, DrawInformation, accent, onAccent},
        Sign{QMessageBox::Question, Disc, DrawQuestion, accent, onAccent},
    };
    const auto* sign = std::find_if(signs.begin(), signs.end(), [icon](const Sign& row) { return row.Icon == icon; });
    if (sign == signs.end())
        return {};

    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size, size);
    // A stroke of the fill's own colour rounds the corners of the shape.
    painter.setPen(QPen(sign->Fill, 0.06, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(sign->Fill);
    painter.drawPath(sign->Shape());
    painter.setPen(QPen(sign->Ink, 0.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    sign->Draw(painter);
    return pixmap;
}

bool NeedsOwnBoxIcons()
{
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return false;
#else
    const auto names = {"dialog-error", "dialog-warning", "dialog-information", "dialog-question"};
    return !std::all_of(names.begin(), names.end(), [](const char* name) { return QIcon::hasThemeIcon(name); });
#endif
}

} // namespace dravik
