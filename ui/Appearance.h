#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// How the desktop wants programs to look: dark or light, the size of text, and the direction of
/// reading. All are followed while the program runs.
///
/// Dark or light is the desktop portal's `color-scheme`. Where there is no portal, or it has no
/// preference, the application's palette decides.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
    Q_PROPERTY(qreal fontSize READ fontSize NOTIFY fontSizeChanged)
    Q_PROPERTY(bool rightToLeft READ rightToLeft NOTIFY rightToLeftChanged)

public:
    explicit Appearance(QObject *parent = nullptr);

    bool dark() const { return m_dark; }

    /// The size of the application's font in device-independent pixels.
    qreal fontSize() const { return m_fontSize; }

    /// Whether the language of the program reads from right to left.
    bool rightToLeft() const { return m_rightToLeft; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void darkChanged();
    void fontSizeChanged();
    void rightToLeftChanged();

private slots:
    void takePortalSetting(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void askPortal();
    void takeScheme(const QVariant &value);
    void updateDark();
    void updateFontSize();
    void updateDirection();

    std::optional<bool> m_portalDark;
    bool m_dark = false;
    qreal m_fontSize = 0;
    bool m_rightToLeft = false;
};
