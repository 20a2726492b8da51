#include "screens/panels/KeySheet.h"

#include "league/RatingNames.h"
#include "league/RatingWords.h"
#include "screens/panels/KeptPlace.h"
#include "screens/panels/KeyTable.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/SignShapes.h"
#include "screens/panels/VerdictSigns.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

#include <functional>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace dravik {

namespace {

constexpr QSize UsualSize(560, 620);

// A table of two columns, the first no wider than it needs to be.
QString TableOf(const QList<std::pair<QString, QString>>& rows)
{
    QString html = "<table cellspacing=\"0\" cellpadding=\"3\">";
    for (const auto& [left, right] : rows)
        html += "<tr><td><b>" + left.toHtmlEscaped() + "</b></td><td>&nbsp;&nbsp;</td><td>" + right.toHtmlEscaped() +
                "</td></tr>";
    return html + "</table>";
}

QString Heading(const QString& words) { return "<h3>" + words.toHtmlEscaped() + "</h3>"; }

QString KeysOn(const QString& screen)
{
    QList<std::pair<QString, QString>> keys;
    for (const KeyRow& row : KeyTable())
        if (IsOn(row, screen) && !KeysOf(row).isEmpty())
            keys.emplaceBack(KeysOf(row).replace(" / ", ", "),
                             *row.Where == 0 ? QString(row.Does) : "On " + QString(row.Where) + ": " + row.Does);
    return TableOf(keys);
}

// A picture in a line of text, as sharp as the display.
class Pictures {
public:
    explicit Pictures(QTextBrowser& shown) : sheet(shown) {}

    using Paint = std::function<void(QPainter&, const QRect&)>;
    QString Add(int width, const Paint& paint)
    {
        const double ratio = sheet.devicePixelRatioF();
        const int height = sheet.fontMetrics().height();
        QImage image(static_cast<int>(width * ratio), static_cast<int>(height * ratio),
                     QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setFont(sheet.font());
        paint(painter, QRect(0, 0, width, height));
        painter.end();
        const QString name = QString("sign:%1").arg(++count);
        sheet.document()->addResource(QTextDocument::ImageResource, QUrl(name), image);
        return QString("<img src=\"%1\" width=\"%2\" height=\"%3\">").arg(name).arg(width).arg(height);
    }

private:
    QTextBrowser& sheet;
    int count = 0;
};

// On which of the screens with lists of people a sign may stand. Whoever takes offers or is drafted has no contract, and all of them
// lack the sign of it.
const char* ScreensWith(const SignRow& row)
{
    constexpr auto lines = "frmLine frmFarmLine";
    constexpr auto own = "frmRoster frmLine frmFarmLine";
    constexpr auto all = "frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft";
    if (row.Kind == Sign::NoContract)
        return own;
    return row.Place == SignPlace::Lines ? lines : row.Place == SignPlace::Own ? own : all;
}

bool HasSign(const QString& screen, const SignRow& row)
{
    return QString(ScreensWith(row)).split(' ').contains(screen);
}

bool HasDays(const QString& screen) { return screen == "frmLine" || screen == "frmFarmLine"; }

// A number for a sign that has one.
PersonSign ExampleOf(Sign kind)
{
    constexpr int condition = 87;
    constexpr int games = 2;
    constexpr int held = 7;
    return {kind, kind == Sign::Injured     ? condition
                  : kind == Sign::Suspended ? games
                  : kind == Sign::InSlots   ? held
                                            : 0};
}

// The signs of a screen, each drawn as it stands there. Empty on one without.
QString SignsOn(const QString& screen, QTextBrowser& sheet)
{
    Pictures pictures(sheet);
    const QColor front = sheet.palette().color(QPalette::Active, QPalette::Text);
    const QColor ground = sheet.palette().color(QPalette::Active, QPalette::Base);
    QString rows;
    const auto add = [&](const QString& picture, const QString& words) {
        rows += "<tr><td>" + picture + "</td><td>&nbsp;&nbsp;</td><td>" + words.toHtmlEscaped() + "</td></tr>";
    };
    for (const SignRow& row : SignTable)
        if (HasSign(screen, row)) {
            const PersonSign sign = ExampleOf(row.Kind);
            add(pictures.Add(
                    WidthOf(sign, sheet.fontMetrics()),
                    [&](QPainter& painter, const QRect& area) { PaintSign(painter, sign, area, front, ground); }),
                ToQString(row.Meaning));
        }
    if (HasDays(screen)) {
        const int side = sheet.fontMetrics().height();
        add(pictures.Add(side, [&](QPainter& painter, const QRect& area) { PaintTick(painter, area, front); }),
            "A day whose lines are complete");
        add(pictures.Add(side, [&](QPainter& painter,
                                   const QRect& area) { PaintCount(painter, area, 3, sheet.font(), ground); }),
            "How much the judge holds against a day");
        add(pictures.Add(side, [&](QPainter& painter, const QRect& area) { PaintWarningSign(painter, area, ground); }),
            "What is wrong, or a day that cannot be judged");
    }
    return rows.isEmpty() ? rows : Heading("Signs") + "<table cellspacing=\"0\" cellpadding=\"3\">" + rows + "</table>";
}

template <class Captions, class Words>
QString RatingsOf(const Captions& captions, const Words& words)
{
    QList<std::pair<QString, QString>> ratings;
    const auto last = static_cast<int>(Captions::last) - (LeagueData.ShowOverall ? 0 : 1);
    for (int number = Captions::first; number <= last; ++number)
        ratings.emplaceBack(ToQString(captions[number]), ToQString(words[number]));
    return TableOf(ratings);
}

} // namespace

KeySheet::KeySheet(const QString& screen, QWidget* parent) : QDialog(parent), about(screen)
{
    setObjectName("KeySheet");
    setWindowTitle("Keys, Signs and Ratings");
    txtSheet = new QTextBrowser(this);
    txtSheet->setObjectName("txtSheet");
    txtSheet->setAccessibleName("Keys, signs and ratings");
    txtSheet->installEventFilter(this);
    auto* column = MakeColumn(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->addWidget(txtSheet);
    resize(UsualSize);
    new KeptPlace(*this);
}

void KeySheet::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1)
        close();
    else
        QDialog::keyPressEvent(event);
}

bool KeySheet::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && isVisible()) {
        const int place = txtSheet->verticalScrollBar()->value();
        Fill();
        txtSheet->verticalScrollBar()->setValue(place);
    }
    return QDialog::eventFilter(watched, event);
}

void KeySheet::Open()
{
    Fill();
    if (!isVisible())
        PutKept(*this);
    show();
    raise();
    activateWindow();
}

void KeySheet::Fill()
{
    const bool areAllShown = static_cast<bool>(LeagueData.ShowAllRatings);
    QString html = Heading("Keys") + KeysOn(about) + SignsOn(about, *txtSheet);
    html += Heading("Ratings of a skater");
    html += areAllShown ? RatingsOf(SkaterStatName, SkaterStatWords) : RatingsOf(SkaterGroupName, SkaterGroupWords);
    html += Heading("Ratings of a goalie");
    html += areAllShown ? RatingsOf(GoalieStatName, GoalieStatWords) : RatingsOf(GoalieGroupName, GoalieGroupWords);
    txtSheet->setHtml(html);
}

} // namespace dravik
