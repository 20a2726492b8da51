#include "screens/platform/PortalScheme.h"

#include <gtest/gtest.h>
#include <optional>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace dravik {

// A desktop's portal, on a bus between two.
class PlayedPortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    unsigned Told = 0;

public slots:
    QDBusVariant Read(const QString& group, const QString& key)
    {
        EXPECT_EQ(group, "org.freedesktop.appearance");
        EXPECT_EQ(key, "color-scheme");
        return QDBusVariant(QVariant::fromValue(QDBusVariant(Told)));
    }

signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

namespace {

class PortalSchemeTest : public ::testing::Test {
protected:
    PortalSchemeTest() : Server("unix:path=" + QUrl::toPercentEncoding(Folder.filePath("bus"), "/"))
    {
        Server.setAnonymousAuthenticationAllowed(true);
        QObject::connect(&Server, &QDBusServer::newConnection, &Server, [this](const QDBusConnection& connection) {
            PortalsEnd = connection;
            PortalsEnd->registerObject("/org/freedesktop/portal/desktop", &Portal, QDBusConnection::ExportAllContents);
        });
    }
    ~PortalSchemeTest() override
    {
        QDBusConnection::disconnectFromPeer("desk");
        if (PortalsEnd)
            QDBusConnection::disconnectFromPeer(PortalsEnd->name());
    }

    // The program's end of the bus. The portal is there before anybody asks it.
    QDBusConnection Bus()
    {
        QDBusConnection bus = QDBusConnection::connectToPeer(Server.address(), "desk");
        EXPECT_TRUE(bus.isConnected()) << bus.lastError().message().toStdString();
        EXPECT_TRUE(QTest::qWaitFor([this] { return PortalsEnd.has_value(); }));
        return bus;
    }

    // The portal tells of a change, and the program hears whatever is under way.
    void Change(const QString& group, const QString& key, unsigned value)
    {
        emit Portal.SettingChanged(group, key, QDBusVariant(value));
    }

    QTemporaryDir Folder;
    PlayedPortal Portal;
    QDBusServer Server;
    std::optional<QDBusConnection> PortalsEnd;
    static constexpr int Long = 5000;
};

TEST_F(PortalSchemeTest, TheFirstAnswerIsWhatThePortalHolds)
{
    QDBusConnection bus = Bus();
    for (const auto& [told, scheme] : {std::pair(1U, ColourScheme::Dark),
                                       {2U, ColourScheme::Light},
                                       {0U, ColourScheme::Untold},
                                       {7U, ColourScheme::Untold}}) {
        Portal.Told = told;
        PortalScheme source(bus, "");
        source.Wait(Long);
        EXPECT_EQ(source.Scheme(), scheme) << told;
    }
}

TEST_F(PortalSchemeTest, AChangeIsTakenAndTold)
{
    PortalScheme source(Bus(), "");
    source.Wait(Long);
    QSignalSpy changes(&source, &SchemeSource::Changed);
    Change("org.freedesktop.appearance", "color-scheme", 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return changes.count() == 1; }));
    EXPECT_EQ(source.Scheme(), ColourScheme::Dark);
    Change("org.freedesktop.appearance", "accent-color", 2);
    Change("org.freedesktop.other", "color-scheme", 2);
    Change("org.freedesktop.appearance", "color-scheme", 1); // as it is
    Change("org.freedesktop.appearance", "color-scheme", 2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return source.Scheme() == ColourScheme::Light; }));
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(PortalSchemeTest, ADesktopWithoutABusSaysNothingAndCostsNoWait)
{
    PortalScheme source(QDBusConnection("nobody"), "org.freedesktop.portal.Desktop");
    source.Wait(Long);
    EXPECT_EQ(source.Scheme(), ColourScheme::Untold);
}

TEST_F(PortalSchemeTest, ABusWithoutAPortalSaysNothing)
{
    QDBusConnection bus = Bus();
    PortalsEnd->unregisterObject("/org/freedesktop/portal/desktop");
    PortalScheme source(bus, "");
    source.Wait(Long);
    EXPECT_EQ(source.Scheme(), ColourScheme::Untold);
}

} // namespace
} // namespace dravik

#include "PortalSchemeTest.moc"
