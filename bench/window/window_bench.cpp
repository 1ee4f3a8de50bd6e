// What the window costs the main thread with a blog of a given size: changing a post, which the
// save is the floor of, and going down a page. Prints one JSON object; times are in seconds.
//
//   tavlo_window_bench POSTS
#include "bench/Measure.h"
#include "bench/SampleBlog.h"
#include "model/BlogViewModel.h"
#include "model/RecordsJson.h"
#include "tests/support/TemporaryHome.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int repetitions = 9;
constexpr int pages = 30;

/// Longer than any of the window's animations.
constexpr auto movement = 700ms;

void runEventsFor(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The program's window, its store and its list.
class Window
{
public:
    Window()
    {
        m_engine.load(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Tavlo/TavloApp.qml")));
        m_window = qobject_cast<QQuickWindow *>(m_engine.rootObjects().value(0));
        if (!m_window)
            qFatal("The window cannot be made.");
        runEventsFor(movement);
        m_list = m_window->findChild<QQuickItem *>(QStringLiteral("postList"));
        if (!m_list)
            qFatal("There is no list in the window.");
        m_store = m_list->property("viewModel").value<BlogViewModel *>();
        m_list->forceActiveFocus();
        QObject::connect(m_window, &QQuickWindow::afterAnimating, m_list, [this] { countCards(); });
    }

    BlogViewModel *store() const { return m_store; }

    /// The main thread's time for an action and for the first frame that shows it. The movement
    /// that follows is waited for.
    double timeToFirstFrame(const std::function<void()> &action)
    {
        const double start = threadSeconds();
        action();
        QEventLoop untilFrame;
        QObject::connect(m_window, &QQuickWindow::frameSwapped, &untilFrame, &QEventLoop::quit);
        m_window->update();
        untilFrame.exec();
        const double time = threadSeconds() - start;
        runEventsFor(movement);
        return time;
    }

    /// The main thread's time for a key and all the movement that it brings about.
    double timeOfKey(Qt::Key key)
    {
        const double start = threadSeconds();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &release);
        runEventsFor(movement);
        return threadSeconds() - start;
    }

    double place() const { return m_list->property("contentY").toDouble(); }

    /// The most cards that were alive in one frame, as the height of them all in heights of the
    /// list.
    double mostScreensOfCards() const { return m_mostScreensOfCards; }

private:
    void countCards()
    {
        double height = 0;
        const auto *content = m_list->property("contentItem").value<QQuickItem *>();
        const QList<QQuickItem *> items = content->childItems();
        for (const QQuickItem *item : items) {
            if (QByteArray(item->metaObject()->className()).startsWith("PostRow"))
                height += item->height() + m_list->property("spacing").toDouble();
        }
        m_mostScreensOfCards = std::max(m_mostScreensOfCards, height / m_list->height());
    }

    QQmlApplicationEngine m_engine;
    QQuickWindow *m_window = nullptr;
    QQuickItem *m_list = nullptr;
    BlogViewModel *m_store = nullptr;
    double m_mostScreensOfCards = 0;
};

struct ChangeTimes
{
    std::vector<double> save, add, change, remove;
};

/// Saves, adds, changes and deletes in turn, so that a change of the machine's pace hits all alike.
ChangeTimes timesOfChanges(Window &window)
{
    ChangeTimes times;
    for (int i = 0; i < repetitions; ++i) {
        BlogPost post = sampleBlog(1).first();
        post.id = randomUuid();
        const double start = threadSeconds();
        window.store()->savePosts();
        times.save.push_back(threadSeconds() - start);
        times.add.push_back(window.timeToFirstFrame([&] { window.store()->addPost(post); }));
        post.title += u'!';
        times.change.push_back(window.timeToFirstFrame([&] { window.store()->updatePost(post); }));
        times.remove.push_back(window.timeToFirstFrame([&] { window.store()->deletePost({0}); }));
    }
    return times;
}

double timeOfPageDown(Window &window)
{
    std::vector<double> times;
    for (int page = 0; page < pages; ++page) {
        const double before = window.place();
        times.push_back(window.timeOfKey(Qt::Key_PageDown));
        if (window.place() == before)
            qFatal("The page did not move.");
    }
    return median(times);
}

} // namespace

int main(int argc, char **argv)
{
    const TemporaryHome home;
    const qsizetype count = argc == 2 ? QByteArray(argv[1]).toLongLong() : 0;
    if (count < 1) {
        std::fputs("usage: tavlo_window_bench POSTS\n", stderr);
        return 2;
    }
    home.write(QStringLiteral("posts.json"), *encodePosts(sampleBlog(count)));

    const QApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    Window window;
    if (window.store()->posts().size() != count)
        qFatal("The posts were not loaded.");

    const ChangeTimes changes = timesOfChanges(window);
    const double pageDown = timeOfPageDown(window);
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_Home})
        window.timeOfKey(key);

    std::printf(
        "{\"posts\": %lld, \"save\": %.9f, \"add\": %.9f, \"change\": %.9f, \"remove\": %.9f, "
        "\"pageDown\": %.9f, \"mostScreensOfCards\": %.3f}\n",
        static_cast<long long>(count), median(changes.save), median(changes.add),
        median(changes.change), median(changes.remove), pageDown, window.mostScreensOfCards());
    return 0;
}
