#include "screens/panels/KeptPlace.h"

#include "screens/platform/CodePage.h"
#include "screens/Remembered.h"

#include <algorithm>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSplitter>
#include <QStringList>
#include <QStyle>
#include <QWidget>
#include <utility>

namespace dravik {

namespace {

constexpr auto KeyPrefix = "Place.";
constexpr auto SplitterPrefix = "Splitters.";
constexpr auto Moved = "movedByHand"; // of a splitter
constexpr auto Maximized = "maximized";
constexpr int Numbers = 4;           // of a place: left, top, width, height
constexpr int FarthestAway = 100000; // no desktop reaches so far

long long AreaOf(const QRect& part)
{
    return part.isEmpty() ? 0 : static_cast<long long>(part.width()) * part.height();
}

} // namespace

QSize FrameSizeOf(const QWidget& window)
{
    const QSize frame = window.frameGeometry().size() - window.size();
    return frame.isEmpty() ? QSize(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window)) : frame;
}

QRect FittedInto(const QRect& place, const QList<QRect>& displays, const QSize& frame)
{
    const auto seenOn = [&place](const QRect& display) { return AreaOf(display.intersected(place)); };
    const QRect& area =
        *std::max_element(displays.begin(), displays.end(),
                          [&seenOn](const QRect& left, const QRect& right) { return seenOn(left) < seenOn(right); });
    const QSize size = place.size().boundedTo(area.size() - frame);
    const QSize outer = size + frame;
    return {QPoint(std::clamp(place.left(), area.left(), area.left() + area.width() - outer.width()),
                   std::clamp(place.top(), area.top(), area.top() + area.height() - outer.height())),
            size};
}

KeptPlace::KeptPlace(QWidget& itsWindow) : QObject(&itsWindow), window(itsWindow) { window.installEventFilter(this); }

// As a child of its window it is known by its kind alone.
KeptPlace* KeptPlace::On(const QWidget& window)
{
    for (QObject* child : window.children())
        if (auto* place = dynamic_cast<KeptPlace*>(child))
            return place;
    return nullptr;
}

std::string KeptPlace::Key() const { return KeyPrefix + FromQString(window.objectName()); }

KeptPlace::Place KeptPlace::Standing() const
{
    if (window.isMaximized() || window.isFullScreen())
        return {last.isNull() ? QRect(window.pos(), window.size()) : last, true};
    return {QRect(window.pos(), window.size()), false};
}

void KeptPlace::Notice()
{
    if (!isNew && placed && Standing() != *placed)
        wished = Standing();
}

void KeptPlace::Settle()
{
    placed = Standing();
    if (!placed->IsMaximized)
        last = placed->Area;
    isNew = !window.isActiveWindow();
}

void KeptPlace::ByProgram(const std::function<void()>& change)
{
    Notice();
    change();
    Settle();
}

std::optional<KeptPlace::Place> KeptPlace::Kept() const
{
    if (wished)
        return wished;
    const QStringList words = ToQString(Remembered(Key())).split(' ', Qt::SkipEmptyParts);
    if (words.size() < Numbers)
        return std::nullopt;
    int numbers[Numbers];
    for (int at = 0; at < Numbers; ++at) {
        bool isNumber = false;
        numbers[at] = words[at].toInt(&isNumber);
        if (!isNumber || numbers[at] < -FarthestAway || numbers[at] > FarthestAway)
            return std::nullopt;
    }
    const QRect area(numbers[0], numbers[1], numbers[2], numbers[3]);
    if (area.isEmpty())
        return std::nullopt;
    return Place{area, words.size() > Numbers && words[Numbers] == Maximized};
}

bool KeptPlace::Put()
{
    const std::optional<Place> kept = Kept();
    if (!kept || QGuiApplication::screens().isEmpty())
        return false;
    QList<QRect> displays;
    for (const QScreen* display : QGuiApplication::screens())
        displays << display->availableGeometry();
    // It may need more by now, as in larger letters, and is to be seen whole all the same.
    const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
    const QRect place =
        FittedInto({kept->Area.topLeft(), kept->Area.size().expandedTo(least)}, displays, FrameSizeOf(window));
    window.resize(place.size());
    window.move(place.topLeft());
    last = place;
    if (kept->IsMaximized && !window.isMaximized())
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    Settle();
    return true;
}

void KeptPlace::Write()
{
    if (!wished)
        return;
    const QRect& area = wished->Area;
    QStringList words;
    for (const int number : {area.left(), area.top(), area.width(), area.height()})
        words << QString::number(number);
    if (wished->IsMaximized)
        words << Maximized;
    Remember(Key(), FromQString(words.join(' ')));
}

void KeptPlace::PutSplitters()
{
    const QStringList kept = ToQString(Remembered(SplitterPrefix + FromQString(window.objectName()))).split(';');
    const QList<QSplitter*> splitters = window.findChildren<QSplitter*>();
    for (qsizetype at = 0; at < splitters.size(); ++at) {
        QSplitter* splitter = splitters[at];
        connect(splitter, &QSplitter::splitterMoved, this, [splitter] { splitter->setProperty(Moved, true); });
        QList<int> sizes;
        for (const QString& word : kept.value(at).split(' ', Qt::SkipEmptyParts))
            sizes << word.toInt();
        const bool isUsed = sizes.size() == splitter->count() &&
                            std::all_of(sizes.begin(), sizes.end(), [](int size) { return size > 0; });
        if (isUsed)
            splitter->setSizes(sizes);
    }
}

void KeptPlace::WriteSplitters()
{
    const QList<QSplitter*> splitters = window.findChildren<QSplitter*>();
    if (std::none_of(splitters.begin(), splitters.end(),
                     [](const QSplitter* splitter) { return splitter->property(Moved).toBool(); }))
        return;
    QStringList all;
    for (const QSplitter* splitter : splitters) {
        QStringList sizes;
        for (const int size : splitter->sizes())
            sizes << QString::number(size);
        all << sizes.join(' ');
    }
    Remember(SplitterPrefix + FromQString(window.objectName()), FromQString(all.join(';')));
}

bool KeptPlace::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (window.isVisible() && !window.isMaximized() && !window.isFullScreen() && !window.isMinimized()) {
            const QRect now(window.pos(), window.size());
            // A layout that wants more room, or some code: no event of the desktop's.
            if (!event->spontaneous() && placed && placed->Area == last)
                placed->Area = now;
            last = now;
        }
        break;
    case QEvent::WindowActivate: // the desktop has placed it by now
        if (isNew) {
            Settle();
            isNew = false;
        }
        break;
    case QEvent::Show:
        if (!std::exchange(hasSplitters, true))
            PutSplitters();
        break;
    case QEvent::Hide:
        if (!event->spontaneous()) {
            WriteSplitters();
            Notice();
            Write();
            if (wished)
                placed = wished;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PlaceByProgram(QWidget& window, const std::function<void()>& change)
{
    if (KeptPlace* place = KeptPlace::On(window))
        place->ByProgram(change);
    else
        change();
}

bool PutKept(QWidget& window)
{
    KeptPlace* place = KeptPlace::On(window);
    return place != nullptr && place->Put();
}

} // namespace dravik
