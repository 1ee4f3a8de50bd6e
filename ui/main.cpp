#include "ui/ButtonAccess.h"
#include "ui/Translations.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickStyle>

#include <csignal>
#include <memory>

namespace {

/// The direction in which the language of the user's messages is written.
Qt::LayoutDirection directionOfMessages()
{
    return QLocale(languagesOfMessages().value(0, QStringLiteral("C"))).textDirection();
}

} // namespace

int main(int argc, char **argv)
{
    // The import's line must not end the program when nobody reads its standard output.
    std::signal(SIGPIPE, SIG_IGN);

    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tavlo"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tavlo"));
    QApplication::setDesktopFileName(QStringLiteral("org.example.Tavlo"));
    QApplication::setWindowIcon(
        QIcon(QStringLiteral(":/qt-project.org/imports/Tavlo/rss-logo.svg")));
    installTranslations();
    installButtonAccess();
    QApplication::setLayoutDirection(directionOfMessages());
    QQuickStyle::setStyle(QStringLiteral("Basic"));

    // A plain engine: QQmlApplicationEngine would look for variants of every file.
    QQmlEngine engine;
    QQmlComponent app(&engine,
                      QUrl(QStringLiteral("qrc:/qt-project.org/imports/Tavlo/TavloApp.qml")));
    const std::unique_ptr<QObject> window(app.create());
    if (!window)
        qFatal("The window cannot be made: %s", qUtf8Printable(app.errorString()));
    return QApplication::exec();
}
