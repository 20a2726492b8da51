#include "screens/panels/KeySheet.h"

#include "league/RatingNames.h"
#include "league/RatingWords.h"
#include "screens/panels/KeyTable.h"
#include "screens/panels/Layouts.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

#include <QKeyEvent>

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
    auto* column = MakeColumn(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->addWidget(txtSheet);
    resize(UsualSize);
}

void KeySheet::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1)
        close();
    else
        QDialog::keyPressEvent(event);
}

void KeySheet::Open()
{
    const bool areAllShown = static_cast<bool>(LeagueData.ShowAllRatings);
    QString html = Heading("Keys") + KeysOn(about);
    html += Heading("Ratings of a skater");
    html += areAllShown ? RatingsOf(SkaterStatName, SkaterStatWords) : RatingsOf(SkaterGroupName, SkaterGroupWords);
    html += Heading("Ratings of a goalie");
    html += areAllShown ? RatingsOf(GoalieStatName, GoalieStatWords) : RatingsOf(GoalieGroupName, GoalieGroupWords);
    txtSheet->setHtml(html);
    show();
    raise();
    activateWindow();
}

} // namespace dravik
