// The program around a Qt Quick test. Any warning, whenever it comes, fails the run.

#include "ui/ButtonAccess.h"

#include <QApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QtQuickTest/quicktest.h>

#include <atomic>
#include <cstdio>
#include <memory>

namespace {

std::atomic<int> warnings = 0;
QtMessageHandler nextHandler = nullptr;

void countWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // The platform without a display says this of every window that has a least size.
    if (message.contains(QLatin1String("propagateSizeHints")))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg)
        ++warnings;
    if (nextHandler)
        nextHandler(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

void watchMessages()
{
    const QtMessageHandler handler = qInstallMessageHandler(countWarnings);
    if (handler != countWarnings)
        nextHandler = handler;
}

} // namespace

class QuickTestSetup : public QObject
{
    Q_OBJECT

public slots:
    // Qt Test takes the messages for itself when its log starts. Starting the log here lets us
    // stand in front of it from the first line of QML on.
    static void qmlEngineAvailable(QQmlEngine *engine)
    {
        QQmlComponent component(engine);
        component.setData("import QtTest\nTestResult {}", QUrl());
        const std::unique_ptr<QObject> result(component.create());
        if (!result || !QMetaObject::invokeMethod(result.get(), "startLogging"))
            qFatal("The test log cannot be started: %s", qUtf8Printable(component.errorString()));
        watchMessages();
    }
};

int main(int argc, char **argv)
{
    watchMessages();

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tavlo"));
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    installButtonAccess();

    QuickTestSetup setup;
    const int failures =
        quick_test_main_with_setup(argc, argv, TAVLO_TEST_NAME, TAVLO_TEST_FOLDER, &setup);
    if (warnings > 0)
        std::fprintf(stderr, "%s: %d warnings\n", TAVLO_TEST_NAME, warnings.load());
    return failures != 0 || warnings > 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}

#include "quick_main.moc"
