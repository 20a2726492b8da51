#include "WidgetRecording.h"
#include "PaintCommands.h"

#include <algorithm>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCryptographicHash>
#include <QFontMetricsF>
#include <QLayout>
#include <QMetaProperty>
#include <QShortcut>
#include <QSysInfo>
#include <unordered_set>

namespace dravik {

namespace {

QString DigestOf(const QString& words)
{
    constexpr int digits = 8;
    return QCryptographicHash::hash(words.toUtf8(), QCryptographicHash::Md5).toHex().left(digits);
}

// Places are told by themselves, and those of what is not shown are nobody's; which window is in front is the desktop's.
const QStringList& LeftOut()
{
    static const QStringList names{"pos",
                                   "x",
                                   "y",
                                   "geometry",
                                   "frameGeometry",
                                   "frameSize",
                                   "size",
                                   "width",
                                   "height",
                                   "normalGeometry",
                                   "childrenRect",
                                   "rect",
                                   "visible",
                                   "isActiveWindow",
                                   "focus",
                                   "locale",
                                   "windowOpacity",
                                   "updatesEnabled",
                                   "minimized",
                                   "maximized",
                                   "fullScreen",
                                   "acceptDrops",
                                   "inputMethodHints"};
    return names;
}

// The words of a property; none of one that is no plain value.
QString WordsOf(const QVariant& value)
{
    if (value.metaType().flags().testFlag(QMetaType::IsEnumeration))
        return QString::number(value.toInt());
    if (value.metaType() == QMetaType::fromType<QMargins>()) {
        const auto margins = value.value<QMargins>();
        return QString("%1 %2 %3 %4").arg(margins.left()).arg(margins.top()).arg(margins.right()).arg(margins.bottom());
    }
    switch (value.typeId()) {
    case QMetaType::QSize:
        return QString("%1x%2").arg(value.toSize().width()).arg(value.toSize().height());
    case QMetaType::QSizePolicy: {
        const auto policy = value.value<QSizePolicy>();
        return QString("%1 %2 %3 %4 %5")
            .arg(policy.horizontalPolicy())
            .arg(policy.verticalPolicy())
            .arg(policy.horizontalStretch())
            .arg(policy.verticalStretch())
            .arg(static_cast<int>(policy.hasHeightForWidth()));
    }
    case QMetaType::QKeySequence:
        return value.value<QKeySequence>().toString(QKeySequence::PortableText);
    case QMetaType::QFont:
        return value.value<QFont>().toString();
    case QMetaType::QStringList:
        return value.toStringList().join('\n');
    default:
        return value.canConvert<QString>() ? value.toString() : QString();
    }
}

QString PropertiesOf(const QObject& object)
{
    QString words;
    const QMetaObject& kind = *object.metaObject();
    for (int place = 0; place < kind.propertyCount(); ++place) {
        const QMetaProperty property = kind.property(place);
        if (property.isReadable() && !LeftOut().contains(property.name()))
            words += QString(property.name()) + '=' + WordsOf(property.read(&object)) + '\n';
    }
    return words;
}

bool IsPart(const QObject& object)
{
    return qobject_cast<const QLayout*>(&object) != nullptr || qobject_cast<const QAction*>(&object) != nullptr ||
           qobject_cast<const QShortcut*>(&object) != nullptr;
}

// Layouts, commands and keys, with what they hold themselves.
QString PartsOf(const QObject& object)
{
    QString words;
    for (const QObject* part : object.children())
        if (IsPart(*part))
            words += QString(part->metaObject()->className()) + '\n' + PropertiesOf(*part) + PartsOf(*part);
    return words;
}

// What no property tells: what kind of window it is, what comes behind it by Tab, what becomes of the mouse.
QString HabitsOf(QWidget& widget)
{
    QString words = QString::number(static_cast<int>(widget.windowFlags())) + ' ';
    for (const auto attribute :
         {Qt::WA_DeleteOnClose, Qt::WA_QuitOnClose, Qt::WA_TransparentForMouseEvents, Qt::WA_NoMouseReplay,
          Qt::WA_OpaquePaintEvent, Qt::WA_StyledBackground, Qt::WA_AlwaysShowToolTips, Qt::WA_ShowWithoutActivating})
        words += QString::number(static_cast<int>(widget.testAttribute(attribute)));
    return words + ' ' + widget.nextInFocusChain()->objectName() + '\n';
}

// What a screen reader is told of a widget.
QString ReadAs(QWidget& widget)
{
    const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&widget);
    if (reader == nullptr)
        return {};
    QString words = QString::number(reader->role());
    for (const auto what : {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
        words += '|' + reader->text(what);
    return words + '\n';
}

// What the first rows of a list or a table hold.
QString RowsOf(const QWidget& widget)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    if (view == nullptr || view->model() == nullptr)
        return {};
    constexpr int most = 40;
    QString words;
    for (int row = 0; row < std::min(view->model()->rowCount(), most); ++row)
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            const QModelIndex cell = view->model()->index(row, column);
            for (const int role :
                 {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole, Qt::AccessibleDescriptionRole})
                words += '|' + cell.data(role).toString();
            words += ' ' + QString::number(cell.flags()) + '\n';
        }
    return words;
}

QString NameOf(const QWidget& widget, int place)
{
    if (!widget.objectName().isEmpty())
        return widget.objectName();
    return QString(widget.metaObject()->className()).remove("dravik::") + '#' + QString::number(place);
}

// The toolkit's own, round a view.
bool IsScrollBar(const QWidget& widget)
{
    return widget.objectName() == "qt_scrollarea_hcontainer" || widget.objectName() == "qt_scrollarea_vcontainer";
}

} // namespace

std::string WidgetRecording::Toolkit()
{
    QString words = QString(qVersion()) + ' ' + QApplication::platformName() + ' ' + QSysInfo::kernelType();
    for (const char* sample : {"Wave Tilton 0123456789", "fi ff \u2013 \u25b2"}) {
        const QFontMetricsF measures{QApplication::font()};
        words += ' ' + QString::number(measures.horizontalAdvance(sample)) + ' ' + QString::number(measures.height());
    }
    return words.toStdString();
}

void WidgetRecording::Take(QWidget& window, const std::string& state)
{
    std::vector<std::string> now;
    whole += "== " + QString::fromStdString(state) + '\n';
    TakeAll(window, {}, window.objectName(), now);
    lines.push_back("== " + state);
    const std::unordered_set<std::string> before(last.begin(), last.end());
    for (const std::string& line : now)
        if (!before.contains(line))
            lines.push_back(line);
    last = std::move(now);
}

void WidgetRecording::TakeInOne(QWidget& window, const std::string& state)
{
    std::vector<std::string> now;
    whole += "== " + QString::fromStdString(state) + '\n';
    TakeAll(window, {}, window.objectName(), now);
    QString all;
    for (const std::string& line : now)
        all += QString::fromStdString(line) + '\n';
    lines.push_back("== " + state + ": " + DigestOf(all).toStdString());
}

void WidgetRecording::TakeAll(QWidget& widget, const QString& above, const QString& name, std::vector<std::string>& now)
{
    const QString kind = QString(widget.metaObject()->className()) + '\n';
    QString held = kind + PropertiesOf(widget) + PartsOf(widget) + HabitsOf(widget) + ReadAs(widget) + RowsOf(widget);
    QString painted = widget.isVisible() ? PaintCommandsOf(widget) : QString();
    if (!masked.isEmpty()) {
        held.replace(masked, "FOLDER");
        painted.replace(masked, "FOLDER");
    }
    const QPoint corner = widget.isWindow() ? QPoint() : widget.pos();
    QString line = above + name + ' ';
    if (widget.isVisible())
        line += QString("%1,%2 %3x%4 ").arg(corner.x()).arg(corner.y()).arg(widget.width()).arg(widget.height());
    else
        line += "hidden ";
    whole += line + '\n' + held + painted;
    line += DigestOf(held);
    if (!painted.isEmpty())
        line += ' ' + DigestOf(painted);
    now.push_back(line.toStdString());
    const bool isNamed = !widget.isWindow() && !widget.objectName().isEmpty() && !widget.objectName().startsWith("qt_");
    const QString below = isNamed ? above + name + '/' : above;
    int number = 0;
    for (QObject* child : widget.children())
        if (auto* part = qobject_cast<QWidget*>(child); part != nullptr && !part->isWindow() && !IsScrollBar(*part))
            TakeAll(*part, below, NameOf(*part, ++number), now);
}

} // namespace dravik
