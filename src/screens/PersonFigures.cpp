#include "screens/PersonFigures.h"

#include "machine/Platform.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "session/Session.h"

namespace dravik {

namespace {

// What every figure is made of, for skaters and goalies alike.
struct Facts {
    long long Condition = 0;
    long long Age = 0;
    long long Salary = 0;
    long long Contract = 0;
};

struct FigureRow {
    const char* Heading;
    const char* Meaning;
    QString (*Figure)(const Facts& facts);
    const char* Words;       // "#" stands for the figure
    const char* WordsOfOne;  // where the figure is 1
    const char* WordsOfNone; // where it is 0
};

QString Money(long long amount) { return ToQString(Machine().CurrencyNoDecimals(static_cast<double>(amount))); }

constexpr FigureRow Rows[] = {
    {"Cond.", "Condition", [](const Facts& facts) { return Shown(facts.Condition) + "%"; }, "condition #", nullptr,
     nullptr},
    {"Age", "Age", [](const Facts& facts) { return Shown(facts.Age); }, "# years old", "# year old", nullptr},
    {"Salary", "Salary", [](const Facts& facts) { return Money(facts.Salary); }, "salary #", nullptr, nullptr},
    {"Years", "Years of contract", [](const Facts& facts) { return Shown(facts.Contract); }, "contract for # years",
     "contract for # year", "no years of contract"},
};

QString WordsOf(const FigureRow& row, const Facts& facts)
{
    const QString figure = row.Figure(facts);
    const char* words = figure == "1" && row.WordsOfOne != nullptr    ? row.WordsOfOne
                        : figure == "0" && row.WordsOfNone != nullptr ? row.WordsOfNone
                                                                      : row.Words;
    return QString(words).replace('#', figure);
}

template <class Tell>
QString Told(PersonId who, const Tell& tell)
{
    if (!who.HasSlot() || who.Slot == 0)
        return {};
    return OnPerson(OpenLeague, who, [&tell](const auto& person) {
        return person.InUse ? tell(Facts{person.Condition, person.Age, person.Salary, person.Contract}) : QString();
    });
}

} // namespace

std::vector<FigureColumn> PersonFigures(const std::function<PersonId(int number)>& person)
{
    std::vector<FigureColumn> columns;
    for (const FigureRow& row : Rows)
        columns.push_back({row.Heading, row.Meaning,
                           [&row, person](int number) { return Told(person(number), row.Figure); },
                           [&row, person](int number) {
                               return Told(person(number), [&row](const Facts& facts) { return WordsOf(row, facts); });
                           }});
    return columns;
}

} // namespace dravik
