#pragma once

#include "screens/platform/ColourScheme.h"

#include <QDBusConnection>
#include <QDBusVariant>

namespace dravik {

// The colour scheme as the desktop's portal tells it, over the bus of the session. A desktop without bus or portal says
// nothing.
class PortalScheme : public SchemeSource {
    Q_OBJECT
public:
    // Asks `service`, and listens for changes from then on.
    PortalScheme(QDBusConnection bus, const QString& service);

    [[nodiscard]] ColourScheme Scheme() const override { return scheme; }
    // Handles what comes in until the first answer is there, for so many milliseconds at most.
    void Wait(int milliseconds);

private slots:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void Take(QVariant value);

    ColourScheme scheme = ColourScheme::Untold;
    bool isAsked = false; // and not answered yet
};

} // namespace dravik
