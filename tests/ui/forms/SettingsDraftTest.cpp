#include "ui/SettingsDraft.h"

#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class SettingsDraftTest : public testing::Test
{
protected:
    TemporaryHome home;
    std::shared_ptr<BlogViewModel> store = BlogViewModel::create();
    SettingsDraft draft;
};

const QString settingsFile = QStringLiteral("rss_settings.json");

TEST_F(SettingsDraftTest, takesOverTheStoresSettings)
{
    draft.seed(store.get());
    EXPECT_EQ(draft.property("title").toString(), QStringLiteral("My Tavlo"));
    EXPECT_EQ(draft.property("link").toString(), store->blogLink());
    EXPECT_EQ(draft.property("description").toString(), store->blogDescription());
}

TEST_F(SettingsDraftTest, changesNothingBeforeItIsSaved)
{
    draft.seed(store.get());
    draft.setProperty("title", QStringLiteral("Another"));
    EXPECT_EQ(store->blogTitle(), QStringLiteral("My Tavlo"));
    EXPECT_EQ(home.read(settingsFile), std::nullopt);
}

TEST_F(SettingsDraftTest, savesTheTextsAsTheyStand)
{
    draft.setProperty("title", QStringLiteral(" \u00a0A\r\nB "));
    draft.setProperty("link", QStringLiteral("bare"));
    draft.setProperty("description", QString());
    draft.saveTo(store.get());

    const auto again = BlogViewModel::create();
    EXPECT_EQ(again->blogTitle(), QStringLiteral(" \u00a0A\r\nB "));
    EXPECT_EQ(again->blogLink(), QStringLiteral("bare"));
    EXPECT_EQ(again->blogDescription(), QString());
}

TEST_F(SettingsDraftTest, announcesEachOfTheThreeSettings)
{
    draft.seed(store.get());
    QSignalSpy changes(store.get(), &BlogViewModel::objectWillChange);
    draft.saveTo(store.get());
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(SettingsDraftTest, writesTheFileWithoutAnyChangeToo)
{
    draft.seed(store.get());
    draft.saveTo(store.get());
    EXPECT_NE(home.read(settingsFile), std::nullopt);
}

TEST_F(SettingsDraftTest, savesALoneSurrogateAsAReplacementCharacter)
{
    draft.setProperty("title", QString(QChar(0xd800)));
    draft.saveTo(store.get());
    EXPECT_EQ(store->blogTitle(), QStringLiteral("\ufffd"));
}

} // namespace
