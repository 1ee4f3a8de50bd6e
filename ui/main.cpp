#include "ui/Translations.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQuickStyle>

#include <csignal>

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
    QApplication::setLayoutDirection(directionOfMessages());
    QQuickStyle::setStyle(QStringLiteral("Basic"));

    QQmlApplicationEngine engine;
    engine.load(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Tavlo/TavloApp.qml")));
    return engine.rootObjects().isEmpty() ? EXIT_FAILURE : QApplication::exec();
}
