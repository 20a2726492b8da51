#include "screens/panels/StrengthBars.h"

#include "screens/platform/Palettes.h"

#include <algorithm>
#include <limits>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace dravik {

namespace {

constexpr double BarPart = 0.62; // how much of the highlight is in a bar
constexpr int BarGap = 2;
constexpr int GroupGap = 6;  // between lines, pairs and goalie
constexpr int SideGap = 6;   // of a day
constexpr int RoomBelow = 4; // of the scale under the weakest bar, which is still seen

// The groups whose bars stand together, with their words and how many they are.
struct Group {
    const char* Words;
    std::size_t Count;
};
constexpr Group Groups[] = {{"lines ", 4}, {"pairs ", 4}, {"goalie ", 1}};

// How many gaps between groups lie in front of a bar.
int GroupsBefore(std::size_t place)
{
    int before = 0;
    std::size_t behind = 0;
    for (const Group& group : Groups) {
        behind += group.Count;
        before += place >= behind ? 1 : 0;
    }
    return before;
}

} // namespace

StrengthBars::StrengthBars(const DayStrip& days, QWidget* parent) : QWidget(parent), strip(days)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName("Strength of the lines");
    connect(&strip, &QAbstractSlider::valueChanged, this, qOverload<>(&QWidget::update));
}

void StrengthBars::SetStrengths(const QList<LineStrength>& all)
{
    if (strengths == all)
        return;
    strengths = all;
    least = std::numeric_limits<int>::max();
    most = std::numeric_limits<int>::min();
    for (const LineStrength& day : strengths)
        for (const auto& bar : day)
            if (bar) {
                least = std::min(least, *bar - RoomBelow);
                most = std::max(most, *bar);
            }
    QStringList words;
    for (int day = 1; day <= strengths.size(); ++day)
        words << WordsOfDay(day);
    setAccessibleDescription(words.join("; "));
    update();
}

QString StrengthBars::WordsOfDay(int day) const
{
    if (day < 1 || day > strengths.size())
        return {};
    const LineStrength& bars = strengths[day - 1];
    QStringList groups;
    std::size_t place = 0;
    for (const Group& group : Groups) {
        QStringList numbers;
        for (std::size_t count = 0; count < group.Count; ++count, ++place)
            numbers << (bars[place] ? QString::number(*bars[place]) : QString("-"));
        QString words = numbers.takeLast();
        if (!numbers.isEmpty())
            words = numbers.join(", ") + " and " + words;
        groups << group.Words + words;
    }
    return QString("Day %1: ").arg(day) + groups.join(", ");
}

QRect StrengthBars::BarOf(int day, int place) const
{
    const std::optional<int> strength = strengths.value(day - 1)[static_cast<std::size_t>(place)];
    if (!strength)
        return {};
    const int count = static_cast<int>(StrengthPlaces.size());
    const QRect cell = strip.CellOf(day);
    const int gaps = (count - 1) * BarGap + (static_cast<int>(std::size(Groups)) - 1) * GroupGap;
    const int width = std::max(1, (cell.width() - 2 * SideGap - gaps) / count);
    const int left = (cell.width() - count * width - gaps) / 2;
    const int tall = std::max(1, height() * (*strength - least) / std::max(1, most - least));
    return QRect(cell.left() + left + place * (width + BarGap) +
                     GroupsBefore(static_cast<std::size_t>(place)) * GroupGap,
                 height() - tall, width, tall);
}

QSize StrengthBars::sizeHint() const { return {strip.sizeHint().width(), 3 * fontMetrics().height() / 2}; }

bool StrengthBars::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QString words;
    for (int day = 1; day <= DayStrip::Days; ++day)
        if (const QRect cell = strip.CellOf(day); help->pos().x() >= cell.left() && help->pos().x() <= cell.right())
            words = WordsOfDay(day);
    QToolTip::showText(help->globalPos(), words, this);
    return true;
}

void StrengthBars::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QColor back = palette().color(QPalette::Active, QPalette::Window);
    const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
    for (int day = 1; day <= DayStrip::Days; ++day)
        for (int place = 0; place < static_cast<int>(StrengthPlaces.size()); ++place)
            painter.fillRect(BarOf(day, place), day == strip.value() ? accent : Mixed(back, accent, BarPart));
}

} // namespace dravik
