#pragma once

#include <functional>
#include <QMetaType>
#include <QString>
#include <QWidget>

class QPainter;

namespace dravik {

class EntryList;
struct Team;

// Whose crest it is: what a team's picture is called after, and what its monogram is made of. None where both are empty.
struct Crest {
    QString Abbreviation;
    QString Name;

    [[nodiscard]] bool IsNone() const { return Abbreviation.isEmpty() && Name.isEmpty(); }
    bool operator==(const Crest&) const = default;
};
Crest CrestOf(const Team& team);

namespace entry {
// Where a cell of a table or an entry of a list keeps the crest (a Crest) that is drawn beside its words.
inline constexpr int CrestRole = Qt::UserRole + 60;
} // namespace entry

// Paints a crest into the middle of `area`: the manager's own picture, `Crests/<abbreviation>.png` in the program's folder, or else a
// monogram, which is read on its own ground in any look. A picture that is missing, broken, above 2048 pixels a side or above 4 MiB is
// none, and so is one of an abbreviation that could not be the plain name of a file: nothing outside of that folder is read. Nothing for
// a crest of nobody.
void PaintCrest(QPainter& painter, const QRectF& area, const Crest& crest);

// The ground of a monogram, reckoned from the team's name: white letters on it have a contrast of 4.5 at least. The letters, two at
// the most.
QColor MonogramGround(const Crest& crest);
QString MonogramLetters(const Crest& crest);

// The file of a picture within the folder of crests; nothing where the abbreviation cannot name one.
QString CrestFileName(const QString& abbreviation);

// Has pictures looked for anew, since a league was opened or the manager may have put others there.
void ForgetCrests();

// How large a crest is beside words of that font, in pixels, and what it takes of their room.
int CrestSide(const QFontMetrics& metrics);
int CrestRoom(const QFontMetrics& metrics);

// The crest of a team beside its name in the font at hand. `whose` is asked whenever it is painted. The name tells a screen reader
// already what it shows.
class CrestLabel : public QWidget {
    Q_OBJECT
public:
    CrestLabel(std::function<Crest()> whose, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<Crest()> whose;
};

// That of the chosen team, as large as its title.
CrestLabel* MakeOwnCrest(const QWidget& title, QWidget* parent);

// Gives the entries of a list the crests of their teams, left of the names. They change no text and widen no list: where the widest
// entry would lose some of its words for it, no entry has one.
class EntryCrests : public QObject {
public:
    // `whose` gives that of the entry with a number. Belongs to the list.
    EntryCrests(EntryList* list, std::function<Crest(int number)> whose);

    // Those of a list, or none.
    static EntryCrests* On(const QObject* list);

    // Finds out whether there is room beside entries of which the widest takes `whole` pixels; to be called before the list is painted.
    void Fit(int whole);
    // What they take from the left end of every entry, in pixels.
    [[nodiscard]] int Room() const { return room; }
    // Draws that of an entry in front of `words`, where its words stand.
    void Paint(QPainter& painter, const QRect& words, int number) const;

private:
    EntryList* list;
    std::function<Crest(int number)> whose;
    int room = 0;
};

} // namespace dravik

Q_DECLARE_METATYPE(dravik::Crest)
