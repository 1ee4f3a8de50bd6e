#include "ui/FileLocations.h"

#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

TEST(FileLocations, findTheDesktopWhereTheUsersTableHasIt)
{
    const TemporaryHome home;
    home.writeUserDirectories("XDG_DESKTOP_DIR=\"$HOME/Bureau # 1\"\n");
    EXPECT_EQ(FileLocations().onDesktop(QStringLiteral("feed.xml")),
              home.path(QStringLiteral("Bureau # 1/feed.xml")));
}

TEST(FileLocations, findTheUsualDesktopWithoutATable)
{
    const TemporaryHome home;
    QDir().mkdir(home.path(QStringLiteral("Desktop")));
    EXPECT_EQ(FileLocations().onDesktop(QStringLiteral("feed.xml")),
              home.path(QStringLiteral("Desktop/feed.xml")));
}

TEST(FileLocations, lookTheDesktopUpAnewEachTime)
{
    const TemporaryHome home;
    const FileLocations locations;
    home.writeUserDirectories("XDG_DESKTOP_DIR=\"$HOME/One\"\n");
    EXPECT_EQ(locations.onDesktop(QStringLiteral("f")), home.path(QStringLiteral("One/f")));
    home.writeUserDirectories("XDG_DESKTOP_DIR=\"$HOME/Two\"\n");
    EXPECT_EQ(locations.onDesktop(QStringLiteral("f")), home.path(QStringLiteral("Two/f")));
}

} // namespace
