// Lets the store read one file as the program would, and prints what that has cost.
//
//   read_hostile start          the home directory's data files, as at a start
//   read_hostile import PATH    a feed, until its posts are in place and saved
#include "model/BlogViewModel.h"

#include <QCoreApplication>
#include <QFile>

#include <sys/resource.h>

#include <cstdio>

namespace {

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
}

void printCost(const char *stage, const BlogViewModel &store)
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    // Linux has it in KiB.
    std::printf("%s posts %lld user %.3f system %.3f peak %lld\n", stage,
                static_cast<long long>(store.posts().size()), seconds(usage.ru_utime),
                seconds(usage.ru_stime), static_cast<long long>(usage.ru_maxrss) * 1024);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setQuitLockEnabled(false);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 2 && arguments[1] == QStringLiteral("start")) {
        printCost("started", *BlogViewModel::create());
        return 0;
    }
    if (arguments.size() == 3 && arguments[1] == QStringLiteral("import")) {
        const auto store = BlogViewModel::create();
        store->importRSSFeed(arguments[2]);
        printCost("read", *store);
        QCoreApplication::processEvents();
        printCost("saved", *store);
        return 0;
    }
    std::fputs("usage: read_hostile start | read_hostile import PATH\n", stderr);
    return 2;
}
