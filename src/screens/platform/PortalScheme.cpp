#include "screens/platform/PortalScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEventLoop>
#include <QTimer>

namespace dravik {

namespace {

constexpr const char* Path = "/org/freedesktop/portal/desktop";
constexpr const char* Interface = "org.freedesktop.portal.Settings";
constexpr const char* Group = "org.freedesktop.appearance";
constexpr const char* Key = "color-scheme";

} // namespace

PortalScheme::PortalScheme(QDBusConnection bus, const QString& service)
{
    if (!bus.isConnected())
        return;
    qRegisterMetaType<QDBusVariant>(); // by whose name the slot is found
    bus.connect(service, Path, Interface, "SettingChanged", this, SLOT(SettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(service, Path, Interface, "Read");
    question << QString(Group) << QString(Key);
    isAsked = true;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        isAsked = false;
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError())
            Take(reply.value().variant());
        answer->deleteLater();
    });
}

void PortalScheme::Wait(int milliseconds)
{
    QEventLoop waiting;
    QTimer timeout;
    timeout.setSingleShot(true);
    timeout.start(milliseconds);
    while (isAsked && timeout.isActive())
        waiting.processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
}

void PortalScheme::SettingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == Group && key == Key)
        Take(value.variant());
}

// The answer to a question comes wrapped once more than a change does.
void PortalScheme::Take(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    constexpr unsigned prefersDark = 1;
    constexpr unsigned prefersLight = 2;
    const unsigned told = value.toUInt();
    const ColourScheme now = told == prefersDark    ? ColourScheme::Dark
                             : told == prefersLight ? ColourScheme::Light
                                                    : ColourScheme::Untold;
    if (now == scheme)
        return;
    scheme = now;
    emit Changed();
}

} // namespace dravik
