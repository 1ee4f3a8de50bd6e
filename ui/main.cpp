#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>

#include <csignal>

int main(int argc, char **argv)
{
    // The import's line must not end the program when nobody reads its standard output.
    std::signal(SIGPIPE, SIG_IGN);

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tavlo"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tavlo"));
    QApplication::setDesktopFileName(QStringLiteral("org.example.Tavlo"));
    QQuickStyle::setStyle(QStringLiteral("Basic"));

    QQmlApplicationEngine engine;
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreated, &application,
        [](const QObject *window) {
            if (!window)
                QCoreApplication::exit(EXIT_FAILURE);
        },
        Qt::QueuedConnection);
    engine.load(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Tavlo/TavloApp.qml")));
    return QApplication::exec();
}
