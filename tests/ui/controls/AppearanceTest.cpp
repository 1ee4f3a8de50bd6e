#include "ui/Appearance.h"

#include <QDBusConnection>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr uint noPreference = 0;
constexpr uint preferDark = 1;
constexpr uint preferLight = 2;

void setPalette(Qt::GlobalColor window, Qt::GlobalColor text)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    QGuiApplication::setPalette(palette);
}

const char portalName[] = "org.freedesktop.portal.Desktop";

} // namespace

// The portal's settings, with one setting in them.
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
    Q_DISABLE_COPY_MOVE(FakePortal)

public:
    FakePortal()
        : m_bus(
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal")))
    {
        m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                             QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        m_bus.registerService(QLatin1String(portalName));
    }

    ~FakePortal() override
    {
        m_bus.unregisterService(QLatin1String(portalName));
        QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
    }

    void change(const QVariant &value, const char *key = "color-scheme")
    {
        setting = value;
        emit SettingChanged(QStringLiteral("org.freedesktop.appearance"), QLatin1String(key),
                            QDBusVariant(value));
    }

    QVariant setting = preferDark;
    int reads = 0;

public slots:
    // NOLINTNEXTLINE(readability-identifier-naming): the name on the bus
    QDBusVariant Read(const QString &group, const QString &key)
    {
        ++reads;
        EXPECT_EQ(group, QStringLiteral("org.freedesktop.appearance"));
        EXPECT_EQ(key, QStringLiteral("color-scheme"));
        return QDBusVariant(QVariant::fromValue(QDBusVariant(setting)));
    }

signals:
    // NOLINTNEXTLINE(readability-*): the name on the bus, and moc's names of the arguments
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QDBusConnection m_bus;
};

namespace {

// Long enough for an answer, or for none.
void settle()
{
    QTest::qWait(300);
}

} // namespace

TEST(Palette, aWindowDarkerThanItsText_isDark)
{
    setPalette(Qt::black, Qt::white);
    EXPECT_TRUE(Appearance().dark());
    setPalette(Qt::white, Qt::black);
    EXPECT_FALSE(Appearance().dark());
}

TEST(Palette, isFollowedLive)
{
    setPalette(Qt::white, Qt::black);
    const Appearance appearance;
    QSignalSpy changes(&appearance, &Appearance::darkChanged);
    setPalette(Qt::black, Qt::white);
    EXPECT_TRUE(QTest::qWaitFor([&] { return appearance.dark(); }));
    setPalette(Qt::white, Qt::black);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !appearance.dark(); }));
    EXPECT_EQ(changes.count(), 2);
    settle();
    EXPECT_FALSE(appearance.dark());
}

TEST(Font, aSizeInPoints_isGivenInPixels)
{
    QFont font;
    font.setPointSizeF(12);
    QGuiApplication::setFont(font);
    const qreal dotsPerInch = QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    EXPECT_DOUBLE_EQ(Appearance().fontSize(), 12 * dotsPerInch / 72);
}

TEST(Font, isFollowedLive)
{
    QFont font;
    font.setPixelSize(13);
    QGuiApplication::setFont(font);
    const Appearance appearance;
    EXPECT_EQ(appearance.fontSize(), 13);
    font.setPixelSize(26);
    QGuiApplication::setFont(font);
    EXPECT_TRUE(QTest::qWaitFor([&] { return appearance.fontSize() == 26; }));
}

TEST(Direction, isFollowedLive)
{
    const Appearance appearance;
    EXPECT_FALSE(appearance.rightToLeft());
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(QTest::qWaitFor([&] { return appearance.rightToLeft(); }));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !appearance.rightToLeft(); }));
}

TEST(Portal, saysDarkOverALightPalette)
{
    setPalette(Qt::white, Qt::black);
    const FakePortal portal;
    const Appearance appearance;
    EXPECT_TRUE(QTest::qWaitFor([&] { return appearance.dark(); }));
    EXPECT_EQ(portal.reads, 1);
}

TEST(Portal, saysLightOverADarkPalette)
{
    setPalette(Qt::black, Qt::white);
    FakePortal portal;
    portal.setting = preferLight;
    const Appearance appearance;
    EXPECT_TRUE(QTest::qWaitFor([&] { return !appearance.dark(); }));
}

TEST(Portal, withoutAPreference_leavesItToThePalette)
{
    setPalette(Qt::black, Qt::white);
    FakePortal portal;
    portal.setting = noPreference;
    const Appearance appearance;
    settle();
    EXPECT_EQ(portal.reads, 1);
    EXPECT_TRUE(appearance.dark());
}

TEST(Portal, isFollowedLive)
{
    setPalette(Qt::white, Qt::black);
    FakePortal portal;
    portal.setting = preferLight;
    const Appearance appearance;
    settle();
    EXPECT_FALSE(appearance.dark());

    portal.change(preferDark);
    EXPECT_TRUE(QTest::qWaitFor([&] { return appearance.dark(); }));
    portal.change(preferLight);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !appearance.dark(); }));
    portal.change(preferDark);
    EXPECT_TRUE(QTest::qWaitFor([&] { return appearance.dark(); }));
    portal.change(noPreference);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !appearance.dark(); }));
}

TEST(Portal, aChangeOfAnotherSettingOrAnUnknownValue_isNoPreference)
{
    setPalette(Qt::white, Qt::black);
    FakePortal portal;
    portal.setting = preferLight;
    const Appearance appearance;
    settle();
    portal.change(preferDark, "accent-color");
    settle();
    EXPECT_FALSE(appearance.dark());
    portal.change(7U);
    portal.change(QStringLiteral("dark"));
    settle();
    EXPECT_FALSE(appearance.dark());
}

TEST(Portal, overridesAPaletteThatChangesLater)
{
    setPalette(Qt::white, Qt::black);
    const FakePortal portal;
    const Appearance appearance;
    EXPECT_TRUE(QTest::qWaitFor([&] { return appearance.dark(); }));
    setPalette(Qt::gray, Qt::black);
    settle();
    EXPECT_TRUE(appearance.dark());
}

#include "AppearanceTest.moc"
