#include "ui/Appearance.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QScreen>

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString settingsGroup = QStringLiteral("org.freedesktop.appearance");
const QString schemeKey = QStringLiteral("color-scheme");

constexpr uint preferDark = 1;
constexpr uint preferLight = 2;

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightnessF()
        < palette.color(QPalette::WindowText).lightnessF();
}

qreal pixelSize(const QFont &font)
{
    if (font.pixelSize() > 0)
        return font.pixelSize();
    const QScreen *screen = QGuiApplication::primaryScreen();
    const qreal dotsPerInch = screen ? screen->logicalDotsPerInchY() : 96;
    return font.pointSizeF() * dotsPerInch / 72;
}

} // namespace

Appearance::Appearance(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &Appearance::updateDirection);
    updateDark();
    updateFontSize();
    updateDirection();
    askPortal();
}

bool Appearance::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        updateDark();
    else if (event->type() == QEvent::ApplicationFontChange)
        updateFontSize();
    return QObject::eventFilter(watched, event);
}

void Appearance::askPortal()
{
    // The signal's argument must be a known type before the signal is connected to.
    qDBusRegisterMetaType<QDBusVariant>();

    // A machine without a session bus or a portal is an ordinary one: every failure is silent.
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(portalService, portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
                SLOT(takePortalSetting(QString, QString, QDBusVariant)));

    QDBusMessage question = QDBusMessage::createMethodCall(portalService, portalPath,
                                                           portalInterface, QStringLiteral("Read"));
    question << settingsGroup << schemeKey;
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            takeScheme(reply.value().variant());
        answer->deleteLater();
    });
}

void Appearance::takePortalSetting(const QString &group, const QString &key,
                                   const QDBusVariant &value)
{
    if (group == settingsGroup && key == schemeKey)
        takeScheme(value.variant());
}

void Appearance::takeScheme(const QVariant &value)
{
    // Read answers with a variant within a variant, the signal with a single one.
    if (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        takeScheme(value.value<QDBusVariant>().variant());
        return;
    }
    const uint scheme = value.toUInt();
    m_portalDark.reset();
    if (scheme == preferDark || scheme == preferLight)
        m_portalDark = scheme == preferDark;
    updateDark();
}

void Appearance::updateDark()
{
    const bool dark = m_portalDark.value_or(isDark(QGuiApplication::palette()));
    if (dark == m_dark)
        return;
    m_dark = dark;
    emit darkChanged();
}

void Appearance::updateFontSize()
{
    const qreal size = pixelSize(QGuiApplication::font());
    if (size == m_fontSize)
        return;
    m_fontSize = size;
    emit fontSizeChanged();
}

void Appearance::updateDirection()
{
    const bool rightToLeft = QGuiApplication::isRightToLeft();
    if (rightToLeft == m_rightToLeft)
        return;
    m_rightToLeft = rightToLeft;
    emit rightToLeftChanged();
}
