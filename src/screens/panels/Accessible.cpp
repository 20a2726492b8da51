#include "screens/panels/Accessible.h"

#include "screens/panels/DayStrip.h"
#include "screens/panels/LinkLabel.h"
#include "screens/panels/PersonCard.h"
#include "screens/panels/Plot.h"
#include "screens/panels/SlotLabel.h"
#include "screens/panels/TypedTag.h"
#include "screens/panels/Verdict.h"

#include <functional>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>

namespace dravik {

namespace {

QString TextOf(const QLabel& label) { return label.accessibleName().isEmpty() ? label.text() : label.accessibleName(); }

// A label that is pressed.
class PressInterface : public QAccessibleWidget {
public:
    PressInterface(QLabel* pressed, QAccessible::Role role, std::function<void()> onPress) :
        QAccessibleWidget(pressed, role), label(pressed), press(std::move(onPress))
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? TextOf(*label) : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (label->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    // As a press by hand does, it takes the focus first: a box whose text is refused keeps it, and nothing is pressed.
    void doAction(const QString& name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        if (!label->isEnabled())
            return;
        label->setFocus(Qt::OtherFocusReason);
        if (label->window()->focusWidget() == label)
            press();
    }

private:
    QLabel* label;
    std::function<void()> press;
};

// A bar that only shows.
class GaugeInterface : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    GaugeInterface(QWidget* bar, const Gauge& shown) : QAccessibleWidget(bar, QAccessible::ProgressBar), gauge(shown) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? gauge.InWords() : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State shown = QAccessibleWidget::state();
        shown.readOnly = true;
        return shown;
    }

    [[nodiscard]] QVariant currentValue() const override { return gauge.Shown(); }
    void setCurrentValue(const QVariant& /*value*/) override {}
    [[nodiscard]] QVariant maximumValue() const override { return gauge.Full(); }
    [[nodiscard]] QVariant minimumValue() const override { return 0.0; }
    [[nodiscard]] QVariant minimumStepSize() const override { return {}; }

private:
    const Gauge& gauge;
};

class DayInterface : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit DayInterface(DayStrip* shown) : QAccessibleWidget(shown, QAccessible::Slider), strip(shown) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
        case QAccessible::Value:
            return strip->InWords();
        case QAccessible::Description:
            return strip->WordsOfAllDays();
        default:
            return QAccessibleWidget::text(kind);
        }
    }

    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QVariant currentValue() const override { return strip->value(); }
    void setCurrentValue(const QVariant& value) override { strip->setValue(value.toInt()); }
    [[nodiscard]] QVariant maximumValue() const override { return strip->maximum(); }
    [[nodiscard]] QVariant minimumValue() const override { return strip->minimum(); }
    [[nodiscard]] QVariant minimumStepSize() const override { return strip->singleStep(); }

private:
    DayStrip* strip;
};

class MessageInterface : public QAccessibleWidget {
public:
    explicit MessageInterface(QLabel* shown) : QAccessibleWidget(shown, QAccessible::AlertMessage), label(shown) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? TextOf(*label) : QAccessibleWidget::text(kind);
    }

private:
    QLabel* label;
};

// The toolkit asks with the name of every class that an object is of; what the object is tells more.
QAccessibleInterface* InterfaceOf(const QString& /*className*/, QObject* object)
{
    if (auto* pressed = dynamic_cast<PressLabel*>(object))
        return new PressInterface(pressed, QAccessible::Button, [pressed] { emit pressed->Pressed(); });
    if (auto* link = dynamic_cast<LinkLabel*>(object))
        return new PressInterface(link, QAccessible::Link, [link] { emit link->Clicked(); });
    if (auto* verdict = dynamic_cast<VerdictLabel*>(object))
        return new MessageInterface(verdict);
    if (auto* typed = dynamic_cast<TypedTag*>(object))
        return new MessageInterface(typed);
    if (auto* card = dynamic_cast<PersonCard*>(object))
        return new QAccessibleWidget(card, QAccessible::ToolTip, card->InWords());
    if (auto* plot = dynamic_cast<Plot*>(object))
        return new QAccessibleWidget(plot, QAccessible::Chart);
    if (auto* days = dynamic_cast<DayStrip*>(object))
        return new DayInterface(days);
    if (const auto* gauge = dynamic_cast<Gauge*>(object))
        return new GaugeInterface(static_cast<QWidget*>(object), *gauge);
    return nullptr;
}

} // namespace

void DescribePanelsToScreenReaders() { QAccessible::installFactory(&InterfaceOf); }

void Announce(QObject& widget, [[maybe_unused]] const QString& words)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent news(&widget, words);
#else
    QAccessibleEvent news(&widget, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&news);
}

} // namespace dravik
