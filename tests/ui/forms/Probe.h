#pragma once

#include "model/BlogPost.h"
#include "model/BlogViewModel.h"

#include <QObject>
#include <QVariant>
#include <QWindow>

#include <memory>
#include <vector>

/// What tests written in QML cannot do by themselves: stores and posts to the last bit, files,
/// notifications, held keys, and the view that assistive tools have of the window. QML knows it as
/// the singleton Probe of the module TavloTest.
class Probe : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString home READ home CONSTANT)

public:
    using QObject::QObject;

    static QString home();

    // Stores

    /// A store over the files that there are now. It lives until forgetAll().
    Q_INVOKABLE BlogViewModel *newStore();

    /// Drops all stores and removes the two data files, or what stands in their place.
    Q_INVOKABLE void forgetAll();

    /// A post of the fields id, title, content, description, permalink and seconds, all optional.
    Q_INVOKABLE BlogPost post(const QVariantMap &fields) const;

    /// Puts posts of those fields into the store, and saves them.
    Q_INVOKABLE void setPosts(BlogViewModel *store, const QVariantList &posts) const;

    /// One post of a store.
    Q_INVOKABLE BlogPost postAt(const BlogViewModel *store, int row) const;

    /// The posts of a store, each as an object of texts; "date" holds the bits of the date.
    Q_INVOKABLE QVariantList posts(const BlogViewModel *store) const;

    /// The same for one post, and undefined for anything else.
    Q_INVOKABLE QVariant fields(const QVariant &post) const;

    /// The bits of a number, in the form that fields() gives dates.
    Q_INVOKABLE QString bits(double number) const;

    /// The present moment in seconds since the reference date.
    Q_INVOKABLE double now() const;
    Q_INVOKABLE double secondsOf(const QVariant &post) const;

    // Files, by path or by a name in the home directory

    Q_INVOKABLE void write(const QString &path, const QString &text) const;
    Q_INVOKABLE QString read(const QString &path) const;
    Q_INVOKABLE bool exists(const QString &path) const;
    Q_INVOKABLE void makeFolder(const QString &path) const;

    /// Everything that tells one state of a file from another, the time of its last change too.
    Q_INVOKABLE QString stateOf(const QString &path) const;

    /// Whether a file has been read since the last call of forgetReading() for it.
    Q_INVOKABLE bool wasRead(const QString &path) const;
    Q_INVOKABLE void forgetReading(const QString &path) const;

    /// The feed that the store would export now.
    Q_INVOKABLE QString feed(const BlogViewModel *store) const;

    // The program's surroundings

    /// Posts a notification; without a third argument it carries nothing.
    Q_INVOKABLE void notify(const QString &name, const QVariant &object = {}) const;

    /// Presses a key, holds it for so many repeats, and releases it.
    Q_INVOKABLE void hold(QWindow *window, int key, int modifiers, int repeats) const;

    /// Has an input method compose a text in the item that has the focus, or give it one for good.
    Q_INVOKABLE void compose(const QString &text) const;
    Q_INVOKABLE void commit(const QString &text) const;

    Q_INVOKABLE void setClipboard(const QString &text) const;
    Q_INVOKABLE void setRightToLeft(bool rightToLeft) const;

    /// Gives applications a text size in pixels, as the user's desktop does; 0 for the first one.
    Q_INVOKABLE void setTextSize(int pixels) const;

    // What assistive tools are told of an item: role, name, description, and those of its states
    // that are set, in words

    Q_INVOKABLE QVariantMap accessible(QObject *item) const;

    /// Tells the program that there is an assistive tool, as the desktop does.
    Q_INVOKABLE void startAssistiveTools() const;

    /// Carries out an item's press action as an assistive tool does; false if it has none.
    Q_INVOKABLE bool pressAccessibly(QObject *item) const;

private:
    std::vector<std::shared_ptr<BlogViewModel>> m_stores;
};
