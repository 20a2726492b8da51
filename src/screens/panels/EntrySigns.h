#pragma once

#include "rules/PersonSigns.h"

#include <functional>
#include <QFontMetrics>
#include <QObject>
#include <QPainter>
#include <QRect>
#include <QStringList>
#include <vector>

Q_DECLARE_METATYPE(dravik::PersonSigns)

namespace dravik {

class EntryList;

namespace entry {
// Where an entry tells its signs (a PersonSigns). They are no part of its text and of its secondary words.
inline constexpr int SignsRole = Qt::UserRole + 2;
} // namespace entry

// Gives the entries of a list their signs, which are asked for at every drawing, so that they are never behind the tables.
class EntrySigns : public QObject {
public:
    using OfEntry = std::function<PersonSigns(int number)>;

    // `signs` tells those of the entry with a number. Belongs to the list.
    EntrySigns(EntryList* list, OfEntry signs);

    // Those of a list, or none.
    static const EntrySigns* On(const QObject* list);
    [[nodiscard]] PersonSigns Of(int number) const { return ofEntry(number); }

private:
    OfEntry ofEntry;
};

// What the signs say, in order of importance.
QStringList WordsOf(const PersonSigns& signs);

// Which signs of an entry are drawn, left of its secondary words. Signs of trouble have a name give way as secondary words do;
// all others are drawn only beside a whole name.
struct SignStrip {
    struct Drawn {
        PersonSign Sign;
        int Width;
        bool IsShort;
    };
    std::vector<Drawn> Signs; // from left to right
    int Room = 0;             // that they take, the gap to the name included
};

// `room` is the width for name and signs, `name` that of the whole name, `leastName` what is left to it at least.
SignStrip FitSigns(const PersonSigns& signs, const QFontMetrics& metrics, int room, int name, int leastName);
// What the signs of trouble take, with the gap to the name.
int RoomForTrouble(const PersonSigns& signs, const QFontMetrics& metrics);
// Draws them at the right end of `area`.
void PaintSigns(QPainter& painter, const SignStrip& strip, const QRect& area, const QColor& front,
                const QColor& ground);

} // namespace dravik
