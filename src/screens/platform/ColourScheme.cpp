#include "screens/platform/ColourScheme.h"

#if defined(Q_OS_WIN)
#include <QGuiApplication>
#include <QSettings>
#elif !defined(Q_OS_MACOS)
#include "screens/platform/PortalScheme.h"
#endif

namespace dravik {

#if defined(Q_OS_WIN)

namespace {

// The registry tells of no change; whoever has changed it comes back to the program afterwards.
class RegistryScheme : public SchemeSource {
public:
    RegistryScheme() : scheme(Read())
    {
        connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this] {
            const ColourScheme now = Read();
            if (now == scheme)
                return;
            scheme = now;
            emit Changed();
        });
    }

    [[nodiscard]] ColourScheme Scheme() const override { return scheme; }

private:
    static ColourScheme Read()
    {
        constexpr int isOn = 1;
        const QSettings contrast("HKEY_CURRENT_USER\\Control Panel\\Accessibility\\HighContrast",
                                 QSettings::NativeFormat);
        if ((contrast.value("Flags").toInt() & isOn) != 0)
            return ColourScheme::Untold; // its colours are the user's own
        const QSettings settings("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                                 QSettings::NativeFormat);
        const QVariant isLight = settings.value("AppsUseLightTheme");
        return !isLight.isValid() ? ColourScheme::Untold : isLight.toBool() ? ColourScheme::Light : ColourScheme::Dark;
    }

    ColourScheme scheme;
};

} // namespace

std::unique_ptr<SchemeSource> DesktopScheme() { return std::make_unique<RegistryScheme>(); }

#elif defined(Q_OS_MACOS)

std::unique_ptr<SchemeSource> DesktopScheme() { return nullptr; }

#else

std::unique_ptr<SchemeSource> DesktopScheme()
{
    constexpr int moment = 250; // milliseconds
    auto portal = std::make_unique<PortalScheme>(QDBusConnection::sessionBus(), "org.freedesktop.portal.Desktop");
    portal->Wait(moment);
    return portal;
}

#endif

} // namespace dravik
