// The program's window and its open panels in one process, as main() starts them.

#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace {

QStringList warnings;

void keepWarning(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    // The platform without a display says this of every window that has a least size.
    const bool ofThePlatform = message.contains(u"propagateSizeHints");
    if (type != QtDebugMsg && type != QtInfoMsg && !ofThePlatform)
        warnings.append(message);
}

QQuickItem *findItem(QQuickItem *in, const QString &name)
{
    if (in->objectName() == name)
        return in;
    const QList<QQuickItem *> children = in->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findItem(child, name))
            return found;
    }
    return nullptr;
}

/// What the panel offers to choose from, in alphabetical order.
QStringList namesIn(const QFileDialog *panel)
{
    const auto *view = panel->findChild<QListView *>(QStringLiteral("listView"));
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
        names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
    names.sort();
    return names;
}

class ProgramTest : public testing::Test
{
protected:
    void SetUp() override
    {
        warnings.clear();
        qInstallMessageHandler(keepWarning);
    }

    void TearDown() override
    {
        for (QFileDialog *panel : panels())
            delete panel;
        engine.reset();
        qInstallMessageHandler(nullptr);
        EXPECT_TRUE(warnings.isEmpty()) << warnings.join(u'\n').toStdString();
    }

    void start()
    {
        engine = std::make_unique<QQmlApplicationEngine>();
        engine->load(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Tavlo/TavloApp.qml")));
        ASSERT_EQ(engine->rootObjects().size(), 1);
        window = qobject_cast<QQuickWindow *>(engine->rootObjects().first());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    }

    const QObject *view() const
    {
        return window->property("contentItem").value<QQuickItem *>()->childItems().first();
    }

    void press(const QString &button) const
    {
        const QQuickItem *item = findItem(window->contentItem(), button);
        const QPointF middle(item->width() / 2, item->height() / 2);
        QTest::mouseClick(window, Qt::LeftButton, {}, item->mapToScene(middle).toPoint());
    }

    /// Presses "Import RSS" and waits for the panel.
    QFileDialog *openPanel() const
    {
        const QList<QFileDialog *> before = panels();
        press(QStringLiteral("importButton"));
        for (QFileDialog *panel : panels()) {
            if (!before.contains(panel)) {
                EXPECT_TRUE(QTest::qWaitForWindowExposed(panel));
                return panel;
            }
        }
        throw std::runtime_error("no panel has opened");
    }

    static QList<QFileDialog *> panels()
    {
        QList<QFileDialog *> found;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *panel = qobject_cast<QFileDialog *>(widget); panel && panel->isVisible())
                found.append(panel);
        }
        return found;
    }

    void writeFeed(const QString &name, const QByteArray &title) const
    {
        home.write(
            name,
            "<rss><channel><item><title>" + title
                + "</title><link>l</link><description>d</description></item></channel></rss>");
    }

    /// Names the file in the panel's field, as a user can, and opens it.
    static void choose(const QFileDialog *panel, const QString &path)
    {
        auto *field = panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        field->setText(path);
        QTest::keyClick(field, Qt::Key_Return);
    }

    QByteArray posts() const
    {
        return home.read(QStringLiteral("posts.json")).value_or(QByteArray());
    }

    /// The program's exit code, or -1 when it does not end by itself.
    static int runToEnd()
    {
        QTimer::singleShot(5000, qApp, [] { QApplication::exit(-1); });
        return QApplication::exec();
    }

    TemporaryHome home;
    std::unique_ptr<QQmlApplicationEngine> engine;
    QQuickWindow *window = nullptr;
};

TEST_F(ProgramTest, opensOneFreeStandingPanelForEachPress)
{
    start();
    QFileDialog *first = openPanel();
    EXPECT_FALSE(first->isModal());
    EXPECT_EQ(first->parentWidget(), nullptr);
    EXPECT_EQ(first->windowHandle()->transientParent(), nullptr);
    EXPECT_EQ(first->fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(first->acceptMode(), QFileDialog::AcceptOpen);
    const QFileDialog *second = openPanel();
    EXPECT_NE(first, second);
    EXPECT_EQ(panels().size(), 2);

    press(QStringLiteral("settingsButton"));
    EXPECT_TRUE(view()->property("showingSettings").toBool());
}

TEST_F(ProgramTest, offersFeedsInAnyLetterCaseAndFoldersAlone)
{
    for (const char *name : {"a.rss", "b.xml", "c.XML", "D.RSS", "e.Xml", "f.txt", "g.rss.bak",
                             "posts.json", "folder/inside.rss"})
        home.write(QString::fromLatin1(name), "x");
    start();
    QFileDialog *panel = openPanel();
    panel->setDirectory(home.path());
    const QStringList offered{QStringLiteral("D.RSS"), QStringLiteral("a.rss"),
                              QStringLiteral("b.xml"), QStringLiteral("c.XML"),
                              QStringLiteral("e.Xml"), QStringLiteral("folder")};
    EXPECT_TRUE(QTest::qWaitFor([&] { return namesIn(panel) == offered; }))
        << namesIn(panel).join(u' ').toStdString();
}

TEST_F(ProgramTest, importsTheChosenFile)
{
    writeFeed(QStringLiteral("chosen.rss"), "Chosen");
    start();
    choose(openPanel(), home.path(QStringLiteral("chosen.rss")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return posts().contains("Chosen"); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return panels().isEmpty(); }));
}

TEST_F(ProgramTest, doesNothingWhenThePanelIsCancelled)
{
    writeFeed(QStringLiteral("chosen.rss"), "Chosen");
    start();
    QFileDialog *panel = openPanel();
    panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))
        ->setText(home.path(QStringLiteral("chosen.rss")));
    QTest::keyClick(panel, Qt::Key_Escape);
    QTest::qWait(50);
    EXPECT_TRUE(panels().isEmpty());
    EXPECT_EQ(posts(), QByteArray());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ProgramTest, importsFromTwoPanelsOneAfterTheOther)
{
    writeFeed(QStringLiteral("one.rss"), "One");
    writeFeed(QStringLiteral("two.xml"), "Two");
    start();
    QFileDialog *first = openPanel();
    QFileDialog *second = openPanel();
    choose(second, home.path(QStringLiteral("two.xml")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return posts().contains("Two"); }));
    choose(first, home.path(QStringLiteral("one.rss")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return posts().contains("One"); }));
    EXPECT_FALSE(posts().contains("Two"));
}

TEST_F(ProgramTest, leavesEverythingElseOfAPanelAsItIsByItself)
{
    start();
    const QFileDialog plain;
    const QFileDialog *panel = openPanel();
    EXPECT_EQ(panel->directory(), plain.directory());
    EXPECT_EQ(panel->windowTitle(), plain.windowTitle());
    EXPECT_EQ(panel->labelText(QFileDialog::Accept), plain.labelText(QFileDialog::Accept));
    EXPECT_EQ(panel->options(), plain.options());
    EXPECT_EQ(panel->sidebarUrls(), plain.sidebarUrls());
}

TEST_F(ProgramTest, opensAPanelByNoKey)
{
    start();
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key) {
        for (const Qt::KeyboardModifiers modifiers :
             {Qt::KeyboardModifiers(Qt::AltModifier), Qt::ControlModifier | Qt::ShiftModifier,
              Qt::ControlModifier | Qt::AltModifier})
            QTest::keyClick(window, Qt::Key(key), modifiers);
        // These two open sheets, which would take the keys after them.
        if (key != Qt::Key_N && key != Qt::Key_E)
            QTest::keyClick(window, Qt::Key(key), Qt::ControlModifier);
    }
    EXPECT_TRUE(panels().isEmpty());
    EXPECT_FALSE(view()->property("sheetOnScreen").toBool());
}

TEST_F(ProgramTest, staysWhenAPanelIsClosed)
{
    start();
    bool ended = false;
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, window, [&] { ended = true; });
    openPanel()->close();
    QTest::qWait(100);
    EXPECT_FALSE(ended);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ProgramTest, endsWithItsWindowAndTakesThePanelsAlong)
{
    start();
    openPanel();
    openPanel();
    QTimer::singleShot(0, window, [this] { window->close(); });
    EXPECT_EQ(runToEnd(), 0);
    EXPECT_TRUE(panels().isEmpty());
}

TEST_F(ProgramTest, savesAnImportThatWasUnderWayWhenTheWindowClosed)
{
    writeFeed(QStringLiteral("late.rss"), "Late");
    start();
    QFileDialog *panel = openPanel();
    QTimer::singleShot(0, window, [&] {
        choose(panel, home.path(QStringLiteral("late.rss")));
        window->close();
    });
    EXPECT_EQ(runToEnd(), 0);
    EXPECT_TRUE(posts().contains("Late"));
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    return RUN_ALL_TESTS();
}
