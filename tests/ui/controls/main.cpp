// These tests need documents and fonts, and so an application with a screen. Any warning fails the
// test in which it comes.
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace {

void failOnWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        ADD_FAILURE() << qPrintable(message);
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(failOnWarnings);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
