// Whole feeds, imported, exported and imported again: our own, and real ones where they are.
#include "model/BlogViewModel.h"
#include "tests/references/FeedPatterns.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStringDecoder>

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

struct SampleFeed
{
    const char *folder;
    const char *name;
    std::size_t items;

    QString path() const { return QString::fromUtf8(folder) + u'/' + QString::fromUtf8(name); }

    friend std::ostream &operator<<(std::ostream &out, const SampleFeed &feed)
    {
        return out << feed.name;
    }
};

QString textOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::ConvertInitialBom
                               | QStringDecoder::Flag::Stateless);
    QString text = decoder(file.readAll());
    EXPECT_FALSE(decoder.hasError()) << path.toStdString();
    return text;
}

} // namespace

class SampleFeeds : public testing::TestWithParam<SampleFeed>
{
protected:
    void SetUp() override
    {
        const QString folder = QString::fromUtf8(GetParam().folder);
        if (folder.isEmpty() || !QDir(folder).exists())
            GTEST_SKIP() << "The folder of real feeds is not there: "
                            "set TAVLO_FEEDS_DIR to one that has "
                         << GetParam().name << '.';
    }

    void import(const QString &path) const
    {
        store->importRSSFeed(path);
        QCoreApplication::processEvents();
    }

    const TemporaryHome home;
    const std::shared_ptr<BlogViewModel> store = BlogViewModel::create();
};

TEST_P(SampleFeeds, anImport_isWhatThePatternsFind)
{
    import(GetParam().path());
    const auto found = itemsByPatterns(textOf(GetParam().path()));
    EXPECT_EQ(found.size(), GetParam().items);
    EXPECT_EQ(itemsOf(store->posts()), found);
}

TEST_P(SampleFeeds, anExport_comesBackWithItsDescriptionsEscaped)
{
    import(GetParam().path());
    auto expected = itemsOf(store->posts());
    for (FoundItem &item : expected)
        item.description = escaped(item.description);

    store->exportRSS(home.path(u"feed.xml"_s));
    store->setPosts({});
    import(home.path(u"feed.xml"_s));
    EXPECT_EQ(expected.size(), GetParam().items);
    EXPECT_EQ(itemsOf(store->posts()), expected);
}

INSTANTIATE_TEST_SUITE_P(OurOwn, SampleFeeds,
                         testing::Values(SampleFeed{TAVLO_TEST_FEEDS_DIR, "by-hand-es.xml", 4},
                                         SampleFeed{TAVLO_TEST_FEEDS_DIR, "character-data-zh.xml",
                                                    2},
                                         SampleFeed{TAVLO_TEST_FEEDS_DIR, "entities-en.xml", 3},
                                         SampleFeed{TAVLO_TEST_FEEDS_DIR, "guid-first-zh.xml", 1}));

INSTANTIATE_TEST_SUITE_P(Real, SampleFeeds,
                         testing::Values(SampleFeed{TAVLO_FEEDS_DIR, "handwritten-es.xml", 10},
                                         SampleFeed{TAVLO_FEEDS_DIR, "hugo-zh.xml", 3},
                                         SampleFeed{TAVLO_FEEDS_DIR, "theme-zh.xml", 1},
                                         SampleFeed{TAVLO_FEEDS_DIR, "zola-en.xml", 8}));

namespace {

/// The texts of our own feeds' items, as they were written down.
class OurSampleFeeds : public testing::Test
{
protected:
    std::vector<FoundItem> imported(const char *name) const
    {
        store->importRSSFeed(SampleFeed{TAVLO_TEST_FEEDS_DIR, name, 0}.path());
        QCoreApplication::processEvents();
        return itemsOf(store->posts());
    }

    const TemporaryHome home;
    const std::shared_ptr<BlogViewModel> store = BlogViewModel::create();
};

} // namespace

TEST_F(OurSampleFeeds, characterData_keepsItsMarkers)
{
    const auto items = imported("character-data-zh.xml");
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].title, u"第一场雪"_s);
    EXPECT_EQ(items[0].permalink, u"https://hut.example/2026/first-snow/"_s);
    EXPECT_EQ(items[1].description, u"<![CDATA[邻居把他的旧自行车借给了我。🚲]]>"_s);
}

TEST_F(OurSampleFeeds, entities_areNotDecoded)
{
    const auto items = imported("entities-en.xml");
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].title, u"Ropes &#38; knots: a sailor&#x27;s list"_s);
    EXPECT_EQ(items[0].permalink, u"https://tide.example/ropes/?from=feed&amp;page=1"_s);
    EXPECT_EQ(items[1].description, u"&lt;p&gt;Open &amp;amp; warm.&lt;/p&gt;\n"_s);
    EXPECT_EQ(items[2], FoundItem());
}

TEST_F(OurSampleFeeds, aGuidAheadOfTheTitle_isPassedOver)
{
    EXPECT_EQ(
        imported("guid-first-zh.xml"),
        (std::vector<FoundItem>{{u"怎样折一只信封"_s, u"https://paper.example/folding"_s,
                                 u"先把纸对折，再把四个角收进去。&amp;nbsp;就这么简单！"_s}}));
}

TEST_F(OurSampleFeeds, theFirstTitleOfAnItem_countsInCommentsAndImagesToo)
{
    const auto items = imported("by-hand-es.xml");
    ASSERT_EQ(items.size(), 4U);
    EXPECT_EQ(items[0].title, u"Borrador"_s);
    EXPECT_EQ(items[1].title, u"Una maceta rota"_s);
    EXPECT_EQ(items[1].permalink, u"https://azotea.example/maceta.png"_s);
    EXPECT_EQ(items[2].title, u"\r\n\r\n\t\t\t\tUn año de lluvia\r\n\r\n\t\t\t"_s);
    EXPECT_EQ(items[2].permalink, QString());
    EXPECT_EQ(items[3], FoundItem());
}
