#include "screens/panels/PersonCard.h"

#include "screens/panels/EntrySigns.h"
#include "screens/panels/GhostWords.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/PinParts.h"
#include "screens/panels/RatingRows.h"
#include "screens/panels/SignShapes.h"
#include "screens/Pins.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Palettes.h"

#include <algorithm>
#include <QAccessible>
#include <QPainter>

namespace dravik {

namespace {

constexpr int LeastWidth = 260;
constexpr int MostWidth = 400;     // lines longer than that go on below; a name does not
constexpr double FramePart = 0.45; // how much of the text is in the frame
constexpr double Roundness = 4;

// Red words behind the warning sign.
class RemarkLabel : public QLabel {
public:
    explicit RemarkLabel(QWidget* parent) : QLabel(parent) { setWordWrap(true); }

    [[nodiscard]] int heightForWidth(int width) const override
    {
        return std::max(fontMetrics().height(), WordsIn(QRect(0, 0, width, QWIDGETSIZE_MAX)).height());
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QColor ground = palette().color(QPalette::Window);
        const int side = fontMetrics().height();
        PaintWarningSign(painter, QRect(0, 0, side, side), ground);
        painter.setPen(Alarming(ground));
        painter.drawText(rect().adjusted(SignWidth(), 0, 0, 0), Wrapped, text());
    }

private:
    static constexpr int Wrapped = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

    [[nodiscard]] int SignWidth() const { return fontMetrics().height() + Gap / 2; }
    [[nodiscard]] QRect WordsIn(const QRect& area) const
    {
        return fontMetrics().boundingRect(area.adjusted(SignWidth(), 0, 0, 0), Wrapped, text());
    }
};

QLabel* PlainLabel(QLabel* label, const char* name)
{
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QString InWords(const CardWords& words)
{
    QStringList said{words.Name, words.Aside};
    said << words.Facts << WordsOf(words.Signs) << words.Remarks;
    const auto pinned = PinnedAgainst(words.Who);
    const std::vector<int> others = pinned ? NumbersOf(pinned->Rows) : std::vector<int>();
    std::size_t at = 0;
    for (const StatRow& row : words.Ratings.Ratings) {
        const bool isHeld = at < others.size();
        said << ToQString(row.Label) + ' ' + (isHeld ? GhostWords(row.Value, others[at]) : QString::number(row.Value));
        ++at;
    }
    said.removeAll(QString());
    return said.join(", ");
}

// Has a screen reader say all of a card, wherever the focus is.
void Announce(PersonCard& card)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent news(&card, card.accessibleName());
#else
    QAccessibleEvent news(&card, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&news);
}

} // namespace

// The signs with their words, a line each.
class PersonCard::SignLines : public QWidget {
public:
    using QWidget::QWidget;

    void Show(const PersonSigns& signs)
    {
        shown = signs;
        setVisible(!signs.IsEmpty());
        setAccessibleName(WordsOf(signs).join(", "));
        updateGeometry();
        update();
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        int widest = 0;
        const QStringList all = WordsOf(shown);
        for (const QString& words : all)
            widest = std::max(widest, fontMetrics().horizontalAdvance(words));
        return {SignWidth() + widest + 1, static_cast<int>(all.size()) * fontMetrics().lineSpacing()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QColor ground = palette().color(QPalette::Window);
        const QColor front = palette().color(QPalette::WindowText);
        const int line = fontMetrics().lineSpacing();
        int top = 0;
        shown.Each([&](const PersonSign& sign) {
            const QColor ink = InkOf(sign.Kind, front, ground);
            const int side = fontMetrics().height() - 2;
            PaintShape(painter, sign.Kind, QRectF(1, top + (line - side) / 2.0, side, side), ink, ground);
            painter.setPen(front);
            painter.drawText(QRect(SignWidth(), top, width(), line), Qt::AlignLeft | Qt::AlignVCenter,
                             ToQString(WordsOf(sign)));
            top += line;
        });
    }

private:
    [[nodiscard]] int SignWidth() const { return fontMetrics().height() + Gap / 2; }

    PersonSigns shown;
};

PersonCard::PersonCard(QWidget* window) : QFrame(window)
{
    setObjectName("PersonCard");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    lblName = PlainLabel(new QLabel(this), "lblCardName");
    lblName->setFont(HeadingFont(lblName->font()));
    lblAside = PlainLabel(new MutedLabel(this), "lblCardAside");
    lblFacts = PlainLabel(new QLabel(this), "lblCardFacts");
    lblFacts->setWordWrap(true);
    lblRemarks = PlainLabel(new RemarkLabel(this), "lblCardRemarks");
    signLines = new SignLines(this);

    RatingRows::Numbers shownBy;
    for (int row = RatingRows::Numbers::first; row <= RatingRows::Numbers::last; ++row) {
        auto* number = new QLabel(this);
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        number->setMinimumWidth(fontMetrics().horizontalAdvance("000"));
        numbers << number;
        shownBy[row] = number;
    }
    ratings = new RatingRows(this, shownBy);
    for (QLabel* caption : ratings->Captions)
        caption->setObjectName(caption->objectName().replace("lblStatLabel", "lblCardLabel"));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Gap, Margin, Gap + 2);
    column->setSpacing(Gap / 2);
    QHBoxLayout* heading = MakeRow({lblName});
    heading->addStretch(1);
    heading->addWidget(lblAside);
    column->addLayout(heading);
    column->addWidget(lblFacts);
    column->addWidget(signLines);
    column->addWidget(lblRemarks);
    column->addLayout(ratings);
    lblPinned = new PinLine(this);
    column->addWidget(lblPinned);
    hide();
}

void PersonCard::Fill(const CardWords& words)
{
    lblName->setText(words.Name);
    lblAside->setText(words.Aside);
    for (const auto& [label, lines] : {std::pair{lblFacts, &words.Facts}, std::pair{lblRemarks, &words.Remarks}}) {
        label->setText(lines->join('\n'));
        label->setVisible(!lines->isEmpty());
    }
    signLines->Show(words.Signs);
    ratings->Hide();
    int row = RatingRows::Numbers::first;
    for (const StatRow& shown : words.Ratings.Ratings) {
        numbers[row - 1]->setText(QString::number(shown.Value));
        ratings->Show(row++, ToQString(shown.Label), shown.Value);
    }
    const auto pinned = PinnedAgainst(words.Who);
    lblPinned->Tell(pinned && !words.Ratings.Ratings.empty() ? pinned->Name : QString());
    ratings->ShowGhosts(pinned ? NumbersOf(pinned->Rows) : std::vector<int>());
    setAccessibleName(dravik::InWords(words));
}

void PersonCard::ShowBeside(const QRect& anchor, const QRect& taken, const CardWords& words)
{
    Fill(words);
    layout()->invalidate();
    layout()->activate();
    const int asked = std::min(std::max(WidthOfLines(words.Facts), WidthOfLines(words.Remarks)), MostWidth);
    const int width = std::min(std::max({asked, LeastWidth, minimumSizeHint().width()}), parentWidget()->width());
    const int height = std::min(layout()->totalHeightForWidth(width), parentWidget()->height());
    setGeometry(PlaceFor({width, height}, anchor, taken, parentWidget()->rect()));
    show();
    raise();
    Announce(*this);
}

// What the longest of some lines takes, with the sign that may stand before it.
int PersonCard::WidthOfLines(const QStringList& lines) const
{
    int widest = 0;
    for (const QString& line : lines)
        widest = std::max(widest, fontMetrics().horizontalAdvance(line));
    return widest + fontMetrics().height() + Gap + 2 * Margin;
}

QRect PersonCard::PlaceFor(const QSize& size, const QRect& anchor, const QRect& taken, const QRect& window)
{
    const QRect inside = window.adjusted(Gap / 2, Gap / 2, -Gap / 2, -Gap / 2);
    const auto pushed = [&inside](int from, int length, int low, int high) {
        return std::clamp(from, low, std::max(low, high - length + 1));
    };
    const auto beside = [&](int left) {
        return QRect(QPoint(left, pushed(anchor.top(), size.height(), inside.top(), inside.bottom())), size);
    };
    const auto over = [&](int top) {
        return QRect(QPoint(pushed(anchor.left(), size.width(), inside.left(), inside.right()), top), size);
    };
    QRect both = anchor; // what is not to be covered, where it stands beside the anchor
    if (taken.isValid())
        both |= taken;
    const QRect right = beside(anchor.right() + Gap);
    for (const QRect& place : {right, beside(anchor.left() - Gap - size.width() + 1), over(anchor.bottom() + Gap),
                               over(anchor.top() - Gap - size.height() + 1), beside(both.right() + Gap),
                               beside(both.left() - Gap - size.width() + 1)})
        if (inside.contains(place) && !place.intersects(anchor) && !place.intersects(taken))
            return place;
    return {{pushed(right.left(), size.width(), inside.left(), inside.right()), right.top()}, size};
}

void PersonCard::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = palette().color(QPalette::Window);
    painter.fillRect(rect(), ground);
    painter.setPen(Mixed(ground, palette().color(QPalette::WindowText), FramePart));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Roundness, Roundness);
}

} // namespace dravik
