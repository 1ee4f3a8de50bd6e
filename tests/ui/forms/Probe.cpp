#include "tests/ui/forms/Probe.h"

#include "model/NotificationCenter.h"

#include <QAccessible>
#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMetaEnum>
#include <QQmlEngine>
#include <QTest>
#include <QtQml/qqml.h>

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <bit>
#include <stdexcept>

namespace {

QString inHome(const QString &path)
{
    return QDir(Probe::home()).filePath(path);
}

QVariantMap asMap(const BlogPost &post)
{
    const auto bits = std::bit_cast<quint64>(post.date.secondsSinceReferenceDate());
    return {{QStringLiteral("id"), post.id.toString(QUuid::WithoutBraces)},
            {QStringLiteral("title"), post.title},
            {QStringLiteral("content"), post.content},
            {QStringLiteral("date"), QString::number(bits, 16)},
            {QStringLiteral("description"), post.description},
            {QStringLiteral("permalink"), post.permalink}};
}

void registerProbe()
{
    qmlRegisterSingletonType<Probe>("TavloTest", 1, 0, "Probe",
                                    [](QQmlEngine *, QJSEngine *) { return new Probe; });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(registerProbe)

QString Probe::home()
{
    return QDir::homePath();
}

BlogViewModel *Probe::newStore()
{
    m_stores.push_back(BlogViewModel::create());
    QQmlEngine::setObjectOwnership(m_stores.back().get(), QQmlEngine::CppOwnership);
    return m_stores.back().get();
}

void Probe::forgetAll()
{
    m_stores.clear();
    for (const char *name : {"posts.json", "rss_settings.json"}) {
        const QString path = inHome(QLatin1String(name));
        if (!QFile::remove(path))
            QDir().rmdir(path);
    }
}

BlogPost Probe::post(const QVariantMap &fields) const
{
    const auto text = [&fields](const char *name) {
        return fields.value(QLatin1String(name)).toString();
    };
    BlogPost post{.title = text("title"),
                  .content = text("content"),
                  .date = Date(fields.value(QStringLiteral("seconds")).toDouble()),
                  .description = text("description"),
                  .permalink = text("permalink")};
    if (fields.contains(QStringLiteral("id")))
        post.id = QUuid(text("id"));
    return post;
}

void Probe::setPosts(BlogViewModel *store, const QVariantList &posts) const
{
    BlogPosts list;
    for (const QVariant &fields : posts)
        list.append(post(fields.toMap()));
    store->setPosts(list);
    store->savePosts();
}

BlogPost Probe::postAt(const BlogViewModel *store, int row) const
{
    return store->posts().at(row);
}

QVariantList Probe::posts(const BlogViewModel *store) const
{
    QVariantList list;
    for (const BlogPost &post : store->posts())
        list.append(asMap(post));
    return list;
}

QVariant Probe::fields(const QVariant &post) const
{
    if (post.metaType() != QMetaType::fromType<BlogPost>())
        return {};
    return asMap(post.value<BlogPost>());
}

QString Probe::bits(double number) const
{
    return QString::number(std::bit_cast<quint64>(number), 16);
}

double Probe::now() const
{
    return Date::now().secondsSinceReferenceDate();
}

double Probe::secondsOf(const QVariant &post) const
{
    return post.value<BlogPost>().date.secondsSinceReferenceDate();
}

void Probe::write(const QString &path, const QString &text) const
{
    QFile file(inHome(path));
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("a test's file cannot be written");
}

QString Probe::read(const QString &path) const
{
    QFile file(inHome(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool Probe::exists(const QString &path) const
{
    return QFile::exists(inHome(path));
}

void Probe::makeFolder(const QString &path) const
{
    QDir().mkpath(inHome(path));
}

QString Probe::stateOf(const QString &path) const
{
    struct stat state = {};
    if (stat(QFile::encodeName(inHome(path)).constData(), &state) != 0)
        return QStringLiteral("absent");
    return QStringLiteral("%1 %2.%3 %4")
        .arg(state.st_ino)
        .arg(state.st_mtim.tv_sec)
        .arg(state.st_mtim.tv_nsec)
        .arg(read(path));
}

bool Probe::wasRead(const QString &path) const
{
    struct stat state = {};
    return stat(QFile::encodeName(inHome(path)).constData(), &state) == 0
        && state.st_atim.tv_sec != 0;
}

void Probe::forgetReading(const QString &path) const
{
    // An access time before that of the last change is renewed by every common way of mounting.
    const std::array<timespec, 2> times{timespec{0, 0}, timespec{0, UTIME_OMIT}};
    utimensat(AT_FDCWD, QFile::encodeName(inHome(path)).constData(), times.data(), 0);
}

QString Probe::feed(const BlogViewModel *store) const
{
    return QString::fromUtf8(store->generateRSSFeed());
}

void Probe::notify(const QString &name, const QVariant &object) const
{
    NotificationCenter::defaultCenter()->post(name, object);
}

void Probe::hold(QWindow *window, int key, int modifiers, int repeats) const
{
    const Qt::KeyboardModifiers held(modifiers);
    const QString text =
        key == Qt::Key_Return || key == Qt::Key_Enter ? QStringLiteral("\r") : QString();
    QTest::simulateEvent(window, true, key, held, text, false);
    for (int i = 0; i < repeats; ++i) {
        QTest::simulateEvent(window, true, key, held, text, true);
        QTest::qWait(10);
    }
    QTest::simulateEvent(window, false, key, held, text, false);
}

void Probe::compose(const QString &text) const
{
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
}

void Probe::commit(const QString &text) const
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
}

void Probe::setClipboard(const QString &text) const
{
    QGuiApplication::clipboard()->setText(text);
}

void Probe::setRightToLeft(bool rightToLeft) const
{
    QGuiApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

void Probe::setTextSize(int pixels) const
{
    static const QFont first = QGuiApplication::font();
    QFont font = first;
    if (pixels > 0)
        font.setPixelSize(pixels);
    QGuiApplication::setFont(font);
}

QVariantMap Probe::accessible(QObject *item) const
{
    const QAccessibleInterface *face = QAccessible::queryAccessibleInterface(item);
    if (!face)
        return {};
    const QAccessible::State state = face->state();
    QStringList states;
    const auto add = [&states](bool set, const char *word) {
        if (set)
            states.append(QLatin1String(word));
    };
    add(state.disabled, "disabled");
    add(state.focusable, "focusable");
    add(state.focused, "focused");
    add(state.editable, "editable");
    add(state.multiLine, "multiLine");
    add(state.invisible, "invisible");
    add(state.defaultButton, "default");
    const auto roles = QMetaEnum::fromType<QAccessible::Role>();
    return {{QStringLiteral("role"), QString::fromLatin1(roles.valueToKey(face->role()))},
            {QStringLiteral("name"), face->text(QAccessible::Name)},
            {QStringLiteral("description"), face->text(QAccessible::Description)},
            {QStringLiteral("states"), states}};
}

void Probe::startAssistiveTools() const
{
    QAccessible::setActive(true);
}

bool Probe::pressAccessibly(QObject *item) const
{
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(item);
    QAccessibleActionInterface *actions = face ? face->actionInterface() : nullptr;
    if (!actions || !actions->actionNames().contains(QAccessibleActionInterface::pressAction()))
        return false;
    actions->doAction(QAccessibleActionInterface::pressAction());
    return true;
}
