#include "screens/panels/ChangeList.h"

#include "screens/panels/ElidedLabel.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/VerdictSigns.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

#include <algorithm>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>

namespace dravik {

namespace {

constexpr int ToneRole = entry::AsideRole + 20;
constexpr int OwnRole = ToneRole + 1;
constexpr int SubjectRole = ToneRole + 2;
constexpr int WordsRole = ToneRole + 3;
constexpr int LeastRows = 2;
constexpr int RowPadding = 8;        // as entries of all lists have it
constexpr int FrameWidth = 4;        // above and below the entries together
constexpr double SubjectPart = 0.34; // of the width, at the most
constexpr int SubjectLetters = 34;   // likewise

// Where the parts of an entry stand, from left to right.
struct Parts {
    QRect Sign, Subject, Words, Crested, Team;
};

QFont SubjectFont(const QFont& font, const QModelIndex& index)
{
    QFont bold = font;
    bold.setBold(index.data(OwnRole).toBool());
    return bold;
}

// The width of the longest name of the list.
int WidestSubject(const QFont& font, const QAbstractItemModel& entries)
{
    int widest = 0;
    for (int row = 0; row < entries.rowCount(); ++row) {
        const QModelIndex entry = entries.index(row, 0);
        const QString subject = entry.data(SubjectRole).toString();
        widest = std::max(widest, QFontMetrics(SubjectFont(font, entry)).horizontalAdvance(subject));
    }
    return widest;
}

Parts PartsOf(const QStyleOptionViewItem& option, const QModelIndex& index, int widestSubject)
{
    const QRect area = option.rect.adjusted(Gap / 2, 0, -Gap, 0);
    const int sign = option.fontMetrics.height();
    const QString team = index.data(entry::AsideRole).toStringList().join(' ');
    const int aside = team.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(team) + Gap;
    const int most =
        std::min(static_cast<int>(area.width() * SubjectPart), SubjectLetters * option.fontMetrics.averageCharWidth());
    const int subject = std::min(most, widestSubject); // what names leave is for the words
    Parts parts;
    parts.Sign = QRect(area.left(), area.top() + (area.height() - sign) / 2, sign, sign);
    parts.Subject = QRect(parts.Sign.right() + Gap, area.top(), subject, area.height());
    parts.Team = QRect(area.right() - aside, area.top(), aside, area.height());
    // Crests stand below each other, left of the widest abbreviation.
    const int side = CrestSide(option.fontMetrics);
    const int widest = std::max(aside, option.fontMetrics.horizontalAdvance("WWW") + Gap);
    parts.Crested = QRect(area.right() - widest - side + Gap / 2, area.top() + (area.height() - side) / 2, side, side);
    const int words = parts.Subject.right() + Gap;
    const int end = team.isEmpty() ? parts.Team.left() : parts.Crested.left() - Gap / 2;
    parts.Words = QRect(words, area.top(), std::max(0, end - words), area.height());
    return parts;
}

// Draws entries in columns: the sign, who, what, and his team.
class ChangeDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        item.text.clear();
        const bool isSelected = (item.state & QStyle::State_Selected) != 0;
        const auto group = (item.state & QStyle::State_Active) == 0 ? QPalette::Inactive : QPalette::Active;
        if (isSelected)
            item.palette.setColor(group, QPalette::Highlight,
                                  ChosenGround(item.palette.color(group, QPalette::Highlight),
                                               item.palette.color(group, QPalette::HighlightedText)));
        const QStyle* style = item.widget != nullptr ? item.widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
        const bool isAlternate = (item.features & QStyleOptionViewItem::Alternate) != 0;
        const QColor front = item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
        const QColor ground = item.palette.color(group, isSelected    ? QPalette::Highlight
                                                        : isAlternate ? QPalette::AlternateBase
                                                                      : QPalette::Base);
        const Parts parts = PartsOf(item, index, Widest);
        painter->save();
        PaintTone(*painter, static_cast<DifferenceTone>(index.data(ToneRole).toInt()), parts.Sign, front, ground);
        painter->setPen(front);
        const auto draw = [&](const QRect& area, const QFont& font, const QString& text, Qt::AlignmentFlag side) {
            painter->setFont(font);
            painter->drawText(area, side | Qt::AlignVCenter | Qt::TextSingleLine,
                              QFontMetrics(font).elidedText(text, Qt::ElideRight, area.width()));
        };
        draw(parts.Subject, SubjectFont(item.font, index), index.data(SubjectRole).toString(), Qt::AlignLeft);
        draw(parts.Words, item.font, index.data(WordsRole).toString(), Qt::AlignLeft);
        painter->setPen(Muted(front, ground));
        draw(parts.Team, item.font, index.data(entry::AsideRole).toStringList().join(' '), Qt::AlignRight);
        PaintCrest(*painter, parts.Crested, index.data(entry::CrestRole).value<Crest>());
        painter->restore();
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.setHeight(option.fontMetrics.height() + RowPadding);
        return size;
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override
    {
        const Parts parts = PartsOf(option, index, Widest);
        const auto isCut = [](const QFont& font, const QString& text, const QRect& area) {
            return QFontMetrics(font).horizontalAdvance(text) > area.width();
        };
        if (event->type() == QEvent::ToolTip &&
            (isCut(SubjectFont(option.font, index), index.data(SubjectRole).toString(), parts.Subject) ||
             isCut(option.font, index.data(WordsRole).toString(), parts.Words))) {
            QToolTip::showText(event->globalPos(), Qt::convertFromPlainText(index.data().toString()), view,
                               option.rect);
            return true;
        }
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }

    int Widest = 0; // of the subjects of all entries
};

QPolygonF Triangle(const QRectF& area, bool isUp)
{
    const double tip = isUp ? area.top() : area.bottom();
    const double base = isUp ? area.bottom() : area.top();
    return QPolygonF({QPointF(area.center().x(), tip), QPointF(area.right(), base), QPointF(area.left(), base)});
}

} // namespace

void PaintTone(QPainter& painter, DifferenceTone tone, const QRectF& area, const QColor& front, const QColor& ground)
{
    constexpr double part = 0.22; // of the side that stays free around a shape
    const double margin = area.width() * part;
    const QRectF shape = area.adjusted(margin, margin, -margin, -margin);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const auto stroke = [&](const QColor& colour) {
        painter.setPen(QPen(colour, std::max(1.6, area.width() / 8), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
    };
    const auto fill = [&](const QColor& colour) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
    };
    switch (tone) {
    case DifferenceTone::Bad:
        stroke(Alarming(ground));
        painter.drawLine(shape.topLeft(), shape.bottomRight());
        painter.drawLine(shape.topRight(), shape.bottomLeft());
        break;
    case DifferenceTone::Good:
        PaintTick(painter, area, Muted(front, ground));
        break;
    case DifferenceTone::Up:
        fill(front);
        painter.drawPolygon(Triangle(shape, true));
        break;
    case DifferenceTone::Down:
        fill(Cautioning(ground));
        painter.drawPolygon(Triangle(shape, false));
        break;
    case DifferenceTone::Money:
        stroke(Muted(front, ground));
        painter.drawEllipse(shape);
        painter.drawLine(QPointF(shape.center().x(), shape.top() + margin),
                         QPointF(shape.center().x(), shape.bottom() - margin));
        break;
    case DifferenceTone::News:
        fill(Muted(front, ground));
        painter.drawEllipse(shape.center(), shape.width() / 4, shape.height() / 4);
        break;
    }
    painter.restore();
}

ChangeList::ChangeList(const QString& name, int mostRows, QWidget* parent) :
    QWidget(parent), lblHeading(MakeHeading({}, this)), list(new EntryList(this)), most(mostRows)
{
    setObjectName(name);
    lblHeading->setObjectName("lbl" + name);
    list->setObjectName("lst" + name);
    list->GiveWay();
    list->setItemDelegate(new ChangeDelegate(list));
    QVBoxLayout* column = MakeColumn(this, Gap / 2);
    column->addWidget(lblHeading);
    column->addWidget(list, 1);
    const auto opened = [this] {
        if (const auto number = NumberOf(list->Chosen()); number && open)
            open(*number);
    };
    connect(list, &QListWidget::itemDoubleClicked, this, opened);
    connect(list, &EntryList::EnterPressed, this, opened);
    hide();
}

void ChangeList::Tell(const QString& heading, const std::vector<ChangeEntry>& entries)
{
    lblHeading->setText(heading);
    list->setAccessibleName(heading);
    list->clear();
    int number = 0;
    for (const ChangeEntry& change : entries) {
        list->Add(change.Subject + ": " + change.Words, number++,
                  change.Team.isEmpty() ? QStringList() : QStringList(change.Team));
        QListWidgetItem* item = list->item(list->count() - 1);
        item->setData(ToneRole, static_cast<int>(change.Tone));
        item->setData(OwnRole, change.IsOwn);
        item->setData(entry::CrestRole, QVariant::fromValue(change.Crested));
        item->setData(SubjectRole, change.Subject);
        item->setData(WordsRole, change.Words);
    }
    FitRows();
    setVisible(!entries.empty());
}

void ChangeList::FitRows()
{
    static_cast<ChangeDelegate*>(list->itemDelegate())->Widest = WidestSubject(list->font(), *list->model());
    const int row = list->fontMetrics().height() + RowPadding;
    list->setMinimumHeight(std::min(list->count(), LeastRows) * row + FrameWidth);
    list->setMaximumHeight(std::min(list->count(), most) * row + FrameWidth);
}

void ChangeList::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        FitRows();
}

std::vector<ChangeEntry> EntriesOf(const Tables& league, const std::vector<Difference>& told, int team)
{
    std::vector<ChangeEntry> entries;
    for (const Difference& difference : told)
        entries.push_back(
            {.Tone = RowOf(difference.Kind).Tone,
             .IsOwn = CircleOf(league, difference, team) == Circle::Own,
             .Subject = ToQString(SubjectOf(difference)),
             .Words = ToQString(WordsOf(league, Machine(), difference)),
             .Team =
                 TeamTable::Has(difference.Team) ? ToQString(league.Teams[difference.Team].Abbre.Trimmed()) : QString(),
             .Crested = TeamTable::Has(difference.Team) ? CrestOf(league.Teams[difference.Team]) : Crest()});
    return entries;
}

} // namespace dravik
