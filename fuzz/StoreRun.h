#pragma once

#include "fuzz/Choices.h"
#include "fuzz/StoreModel.h"
#include "model/BlogViewModel.h"
#include "tests/support/TemporaryHome.h"

#include <memory>
#include <vector>

/// What the process prints on standard output, taken and kept in memory.
class TakenOutput
{
public:
    TakenOutput();

    /// What has been printed since it was last asked for.
    QByteArray text();

private:
    int m_descriptor;
};

/// A store and its model, led through the same operations in an empty home. Whatever can be seen of
/// the two is compared after each.
class StoreRun
{
public:
    StoreRun(const TemporaryHome &home, TakenOutput &output, Choices &choices);
    StoreRun(const StoreRun &) = delete;
    StoreRun &operator=(const StoreRun &) = delete;
    ~StoreRun();

    /// One operation, as the input chooses.
    void step();

    /// What is under way comes to its end.
    void finish();

private:
    /// An import whose list is not in place yet: the texts that it has to have, the store that it
    /// belongs to, and when it was made.
    struct Import
    {
        BlogPosts posts;
        int store;
        Date earliest;
        Date latest;
    };

    void restart();
    void changePosts();
    void setProperty();
    void saveOrLoad();
    void exportFeed();
    void importFeed();
    void spin();
    void putFile();
    void moveDocuments();

    BlogPost anyPost(const QUuid &id);
    QUuid anyId();
    std::set<qsizetype> anyPositions();
    QByteArray anyDocument();
    QString anyDataFile();

    QString path(const QString &name) const { return m_home.path(name); }
    BlogPosts completed(const Import &import, const BlogPosts &seen) const;
    void compare();

    const TemporaryHome &m_home;
    TakenOutput &m_output;
    Choices &m_choices;

    std::shared_ptr<BlogViewModel> m_store;
    int m_storeNumber = 0;
    std::vector<StoreSignal> m_log; ///< what this store has sent since the last comparison
    StoreModel m_model;
    std::vector<Import> m_imports;
    QByteArray m_expectedOutput;
};
