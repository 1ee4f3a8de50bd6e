// Exports the feed of the store in the user's documents directory to the file that is named.
#include "model/BlogViewModel.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2)
        return 2;
    BlogViewModel::create()->exportRSS(QCoreApplication::arguments().at(1));
}
