#include "screens/panels/WhyClosed.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QStringList>
#include <QTextDocument>
#include <QWidget>
#include <utility>

namespace dravik {

namespace {

constexpr auto Property = "whyClosed"; // of a part: the reason that it tells now

// Goes with a part and keeps its words true.
class PartReason : public QObject {
public:
    PartReason(QWidget* itsPart, std::function<QString()> itsWhy) :
        QObject(itsPart), part(itsPart), why(std::move(itsWhy)), tip(part->toolTip()),
        description(part->accessibleDescription()), told(description)
    {
        part->installEventFilter(this);
        Tell();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::EnabledChange:
        case QEvent::ToolTip:
            Tell();
            break;
        case QEvent::ToolTipChange: // somebody gives the part other words of its own
            if (!isTelling) {
                tip = part->toolTip();
                Tell();
            }
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void Tell()
    {
        const QString reason = part->isEnabled() ? QString() : why();
        const QString words = Qt::convertFromPlainText(reason, Qt::WhiteSpaceNormal);
        if (part->accessibleDescription() != told) // somebody has told other words of its own meanwhile
            description = part->accessibleDescription();
        told = Behind(description, reason);
        isTelling = true;
        part->setProperty(Property, reason);
        part->setToolTip(reason.isEmpty() ? tip : tip.isEmpty() ? words : Rich(tip) + words);
        part->setAccessibleDescription(told);
        isTelling = false;
    }
    static QString Behind(const QString& words, const QString& reason)
    {
        if (words.isEmpty() || reason.isEmpty())
            return words + reason;
        return words + (words.endsWith('.') ? " " : ", ") + reason;
    }
    static QString Rich(const QString& words)
    {
        return Qt::mightBeRichText(words) ? words : Qt::convertFromPlainText(words);
    }

    QWidget* const part;
    const std::function<QString()> why;
    QString tip;
    QString description; // its own
    QString told;
    bool isTelling = false;
};

} // namespace

void TellWhyClosed(std::initializer_list<QWidget*> parts, const std::function<QString()>& why)
{
    for (QWidget* part : parts)
        new PartReason(part, why);
}

void TellWhyClosed(std::initializer_list<QWidget*> parts, const QString& why)
{
    TellWhyClosed(parts, [why] { return why; });
}

void TellWhyClosed(QAction* item, const std::function<QString()>& why)
{
    for (QObject* holder : item->associatedObjects())
        if (auto* menu = qobject_cast<QMenu*>(holder))
            menu->setToolTipsVisible(true);
    const auto tell = [item, why] {
        const QString reason = item->isEnabled() ? QString() : why();
        if (item->property(Property).toString() == reason)
            return;
        item->setProperty(Property, reason);
        item->setToolTip(reason.isEmpty() ? QString() : Qt::convertFromPlainText(reason, Qt::WhiteSpaceNormal));
    };
    tell();
    QObject::connect(item, &QAction::changed, item, tell);
}

QString ReasonOf(const QObject& part) { return part.property(Property).toString(); }

} // namespace dravik
