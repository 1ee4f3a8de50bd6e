// The store as a whole: any sequence of operations does to the list, to the files and to those who
// listen what it does to a naive model of them.
#include "fuzz/StoreRun.h"

#include <QCoreApplication>

#include <cstdlib>

namespace {

/// What all runs of the process share. The home is removed as the process ends.
struct Surroundings
{
    TemporaryHome home;
    EnvironmentVariable locale{"LC_ALL", "C"};
    EnvironmentVariable zone{"TZ", "UTC"};
    TakenOutput output;
};

Surroundings &surroundings()
{
    static Surroundings all;
    return all;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    surroundings();
    // As long as the process: libFuzzer ends it without a return to here.
    static const QCoreApplication application(*argc, *argv);
    // An import that is done would ask for the program's end otherwise.
    QCoreApplication::setQuitLockEnabled(false);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    Choices choices(data, size);
    StoreRun run(surroundings().home, surroundings().output, choices);
    while (!choices.atEnd())
        run.step();
    run.finish();
    return 0;
}
