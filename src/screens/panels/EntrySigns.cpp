#include "screens/panels/EntrySigns.h"

#include "screens/panels/EntryList.h"
#include "screens/panels/SignShapes.h"
#include "screens/Pins.h"
#include "screens/platform/CodePage.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr int SignGap = 6;

// The slots held stand in a column of their own, right of the other signs.
bool IsColumn(const SignStrip::Drawn& drawn)
{
    return drawn.Sign.Kind == Sign::InSlots || drawn.Sign.Kind == Sign::NotUsed;
}

} // namespace

EntrySigns::EntrySigns(EntryList* list, OfEntry signs) : QObject(list), ofEntry(std::move(signs))
{
    connect(&NewsOfPins(), &PinNews::Changed, list, [list] { list->viewport()->update(); });
}

const EntrySigns* EntrySigns::On(const QObject* list)
{
    if (list != nullptr)
        for (const QObject* child : list->children())
            if (const auto* signs = dynamic_cast<const EntrySigns*>(child))
                return signs;
    return nullptr;
}

QStringList WordsOf(const PersonSigns& signs)
{
    QStringList words;
    signs.Each([&words](const PersonSign& sign) { words << ToQString(WordsOf(sign)); });
    return words;
}

SignStrip FitSigns(const PersonSigns& signs, const QFontMetrics& metrics, int room, int name, int leastName)
{
    SignStrip strip;
    bool isFull = false;
    signs.Each([&](const PersonSign& sign) {
        const int free = room - strip.Room - (IsTrouble(sign.Kind) ? leastName : name);
        for (const bool isShort : {false, true}) {
            const int width = WidthOf(sign, metrics, isShort);
            if (isFull || width + SignGap > free)
                continue;
            strip.Signs.push_back({sign, width, isShort});
            strip.Room += width + SignGap;
            return;
        }
        isFull = true;
    });
    std::stable_partition(strip.Signs.begin(), strip.Signs.end(), [](const auto& drawn) { return !IsColumn(drawn); });
    return strip;
}

int RoomForTrouble(const PersonSigns& signs, const QFontMetrics& metrics)
{
    int room = 0;
    if (signs.IsEmpty()) // as with most of thousands
        return room;
    signs.Each([&](const PersonSign& sign) {
        if (IsTrouble(sign.Kind))
            room += WidthOf(sign, metrics) + SignGap;
    });
    return room;
}

void PaintSigns(QPainter& painter, const SignStrip& strip, const QRect& area, const QColor& front, const QColor& ground)
{
    int right = area.right();
    for (auto drawn = strip.Signs.rbegin(); drawn != strip.Signs.rend(); ++drawn) {
        PaintSign(painter, drawn->Sign, QRect(right - drawn->Width + 1, area.top(), drawn->Width, area.height()), front,
                  ground, drawn->IsShort);
        right -= drawn->Width + SignGap;
    }
}

} // namespace dravik
