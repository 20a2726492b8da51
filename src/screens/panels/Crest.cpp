#include "screens/panels/Crest.h"

#include "league/Team.h"
#include "machine/Platform.h"
#include "screens/panels/EntryList.h"
#include "screens/panels/Shades.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Palettes.h"
#include "screens/Shown.h"
#include "session/Session.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

namespace dravik {

namespace {

constexpr auto Folder = "Crests";
constexpr auto Ending = ".png";
constexpr int MostPixels = 2048;              // a side
constexpr qint64 MostBytes = 4 * 1024 * 1024; // of a file
constexpr int KeptPixels = 256;               // a side, from which every size is made
constexpr double Corner = 0.22;               // of the side: how round a monogram is
constexpr double LetterPart = 0.54;           // of the side: how high its letters are
constexpr double WidestLetters = 0.96;        // of the side
constexpr double LettersContrast = 5;

// What another system keeps for its devices, whatever the ending.
constexpr std::array DeviceNames{"CON", "PRN", "AUX", "NUL"};

// The pictures that were asked for, and each of the sizes in which they were drawn.
struct Shelf {
    QString Path; // of the folder, once somebody asked
    QHash<QString, QImage> Pictures;
    QHash<std::pair<QString, int>, QImage> Sizes;
};

Shelf& TheShelf()
{
    static Shelf shelf;
    return shelf;
}

QString PathOfCrests()
{
    QString& path = TheShelf().Path;
    if (path.isEmpty())
        try {
            path = PathToDesktop(Machine().ProgramFolder()) + '/' + Folder;
        } catch (const std::exception&) {
            return {}; // pictures are no need
        }
    return path;
}

QImage Read(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > MostBytes)
        return {};
    QImageReader reader(path, "png");
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size(); // as the picture's head tells, before anything of it is made
    if (size.isEmpty() || size.width() > MostPixels || size.height() > MostPixels)
        return {};
    const QImage picture = reader.read();
    if (picture.isNull() || std::max(size.width(), size.height()) <= KeptPixels)
        return picture;
    return picture.scaled(KeptPixels, KeptPixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

const QImage& PictureOf(const QString& abbreviation)
{
    QHash<QString, QImage>& pictures = TheShelf().Pictures;
    auto known = pictures.find(abbreviation);
    if (known == pictures.end()) {
        const QString name = CrestFileName(abbreviation);
        const QString folder = name.isEmpty() ? QString() : PathOfCrests();
        known = pictures.insert(abbreviation, folder.isEmpty() ? QImage() : Read(folder + '/' + name));
    }
    return *known;
}

// The picture at most `side` pixels wide and high.
const QImage& SizedPicture(const QString& abbreviation, const QImage& picture, int side)
{
    QHash<std::pair<QString, int>, QImage>& sizes = TheShelf().Sizes;
    const std::pair key(abbreviation, side);
    auto known = sizes.find(key);
    if (known == sizes.end())
        known = sizes.insert(key, picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    return *known;
}

// The same number for a name in every run and on every system.
quint32 NumberOf(const QString& name)
{
    constexpr quint32 start = 2166136261U;
    constexpr quint32 factor = 16777619U;
    quint32 number = start;
    for (const QChar letter : name)
        number = (number ^ letter.unicode()) * factor;
    return number ^ (number >> 15U);
}

void PaintMonogram(QPainter& painter, const QRectF& square, const Crest& crest)
{
    const double side = square.width();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(MonogramGround(crest));
    painter.drawRoundedRect(square, side * Corner, side * Corner);
    const QString letters = MonogramLetters(crest);
    QFont font = HeadingFont(painter.font());
    font.setPixelSize(std::max(1, static_cast<int>(std::round(side * LetterPart))));
    const double width = QFontMetricsF(font).horizontalAdvance(letters);
    if (width > side * WidestLetters)
        font.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * side * WidestLetters / width)));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(square, Qt::AlignCenter | Qt::TextSingleLine, letters);
}

} // namespace

Crest CrestOf(const Team& team) { return {Shown(team.Abbre), Shown(team.Name)}; }

QString CrestFileName(const QString& abbreviation)
{
    const bool isPlain =
        !abbreviation.isEmpty() && std::all_of(abbreviation.begin(), abbreviation.end(), [](QChar letter) {
            return letter.isLetterOrNumber() || QString("-_&+").contains(letter);
        });
    const bool isDevice = std::any_of(DeviceNames.begin(), DeviceNames.end(), [&abbreviation](const char* device) {
        return abbreviation.compare(QLatin1String(device), Qt::CaseInsensitive) == 0;
    });
    return isPlain && !isDevice ? abbreviation + Ending : QString();
}

QString MonogramLetters(const Crest& crest)
{
    constexpr qsizetype most = 2;
    QString letters;
    for (const QChar letter : crest.Abbreviation)
        if (letter.isLetterOrNumber() && letters.size() < most)
            letters += letter.toUpper();
    if (!letters.isEmpty())
        return letters;
    bool isFirst = true;
    for (const QChar letter : crest.Name) {
        if (isFirst && letter.isLetterOrNumber() && letters.size() < most)
            letters += letter.toUpper();
        isFirst = !letter.isLetterOrNumber();
    }
    return letters;
}

QColor MonogramGround(const Crest& crest)
{
    constexpr int hues = 360;
    constexpr double saturation = 0.55;
    constexpr double lightest = 0.45;
    constexpr double step = 0.01;
    const double hue =
        static_cast<double>(NumberOf(crest.Name.isEmpty() ? crest.Abbreviation : crest.Name) % hues) / hues;
    double lightness = lightest;
    QColor ground =
        QColor::fromHslF(static_cast<float>(hue), static_cast<float>(saturation), static_cast<float>(lightness));
    while (Contrast(Qt::white, ground) < LettersContrast) {
        lightness -= step;
        ground =
            QColor::fromHslF(static_cast<float>(hue), static_cast<float>(saturation), static_cast<float>(lightness));
    }
    return QColor(ground.rgb()); // as it comes out when it is painted
}

void PaintCrest(QPainter& painter, const QRectF& area, const Crest& crest)
{
    if (crest.IsNone())
        return;
    const double side = std::min(area.width(), area.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(area.center());
    painter.save();
    if (const QImage& picture = PictureOf(crest.Abbreviation); !picture.isNull()) {
        const double ratio = painter.device()->devicePixelRatioF();
        const QImage& sized =
            SizedPicture(crest.Abbreviation, picture, std::max(1, static_cast<int>(std::round(side * ratio))));
        QRectF place(QPointF(), QSizeF(sized.size()) / ratio);
        place.moveCenter(square.center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, sized);
    } else {
        PaintMonogram(painter, square, crest);
    }
    painter.restore();
}

void ForgetCrests() { TheShelf() = {}; }

int CrestSide(const QFontMetrics& metrics) { return metrics.height() + 2; }

int CrestRoom(const QFontMetrics& metrics) { return CrestSide(metrics) + Gap * 3 / 4; }

CrestLabel::CrestLabel(std::function<Crest()> asked, QWidget* parent) : QWidget(parent), whose(std::move(asked))
{
    setObjectName("Crest");
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QSize CrestLabel::sizeHint() const { return {CrestSide(fontMetrics()), CrestSide(fontMetrics())}; }

void CrestLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PaintCrest(painter, rect(), whose());
}

CrestLabel* MakeOwnCrest(const QWidget& title, QWidget* parent)
{
    auto* crest = new CrestLabel([] { return TeamTable::Has(CurrentTeam) ? CrestOf(OwnTeam()) : Crest(); }, parent);
    crest->setFont(title.font());
    return crest;
}

EntryCrests::EntryCrests(EntryList* shown, std::function<Crest(int)> asked) :
    QObject(shown), list(shown), whose(std::move(asked))
{
}

EntryCrests* EntryCrests::On(const QObject* list)
{
    if (list != nullptr)
        for (QObject* child : list->children())
            if (auto* crests = dynamic_cast<EntryCrests*>(child))
                return crests;
    return nullptr;
}

void EntryCrests::Fit(int whole)
{
    const int wanted = CrestRoom(list->fontMetrics());
    const int fitting = whole + wanted <= list->viewport()->width() ? wanted : 0;
    if (fitting != room) {
        room = fitting;
        list->viewport()->update(); // also where only a part of it is being painted
    }
}

void EntryCrests::Paint(QPainter& painter, const QRect& words, int number) const
{
    const int side = CrestSide(list->fontMetrics());
    if (room > 0)
        PaintCrest(painter, QRect(words.left() - room, words.top() + (words.height() - side) / 2, side, side),
                   whose(number));
}

} // namespace dravik
