#include "model/BlogPost.h"

#include "tests/support/Generators.h"
#include "tests/support/Posts.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

TEST(BlogPost, madeWithoutAnId_getsAFreshRandomOne)
{
    const BlogPost one = postTitled(u"One"_s);
    const BlogPost other = postTitled(u"One"_s);
    EXPECT_NE(one.id, other.id);
    EXPECT_FALSE(one == other);
    EXPECT_EQ(one.id.version(), QUuid::Random);
    EXPECT_EQ(one.id.variant(), QUuid::DCE);
}

TEST(BlogPost, madeWithAnId_keepsIt)
{
    const QUuid id = QUuid::fromString(u"6f9619ff-8b86-4011-b42d-00c04fc964ff"_s);
    const BlogPost post{
        .id = id, .title = {}, .content = {}, .date = {}, .description = {}, .permalink = {}};
    EXPECT_EQ(post.id, id);
}

TEST(BlogPost, copy_isEqual_andAPostOfItsOwn)
{
    const BlogPost post = postTitled(u"Original"_s);
    BlogPost copy = post;
    EXPECT_EQ(copy, post);
    EXPECT_EQ(copy.id, post.id);
    copy.title = u"Changed"_s;
    EXPECT_EQ(post.title, u"Original"_s);
    EXPECT_FALSE(copy == post);
}

TEST(BlogPost, equality_seesEveryField)
{
    const BlogPost post = postTitled(u"Post"_s);
    const auto differs = [&post](auto change) {
        BlogPost changed = post;
        change(changed);
        return !(changed == post) && !(post == changed);
    };
    EXPECT_TRUE(differs([](BlogPost &changed) { changed.id = QUuid::createUuid(); }));
    EXPECT_TRUE(differs([](BlogPost &changed) { changed.title += u'x'; }));
    EXPECT_TRUE(differs([](BlogPost &changed) { changed.content += u'x'; }));
    EXPECT_TRUE(differs([](BlogPost &changed) { changed.date = Date(1); }));
    EXPECT_TRUE(differs([](BlogPost &changed) { changed.description += u'x'; }));
    EXPECT_TRUE(differs([](BlogPost &changed) { changed.permalink += u'x'; }));
}

TEST(BlogPost, equality_ofTexts_isCanonicalEquivalence)
{
    const auto equalAs = [](auto field, const QString &left, const QString &right) {
        BlogPost one = postTitled(u"Post"_s);
        BlogPost other = one;
        one.*field = left;
        other.*field = right;
        return one == other && other == one;
    };
    for (const auto field :
         {&BlogPost::title, &BlogPost::content, &BlogPost::description, &BlogPost::permalink}) {
        EXPECT_TRUE(equalAs(field, u"caf\u00e9"_s, u"cafe\u0301"_s));
        // The angstrom sign, the letter, and the letter in two code points.
        EXPECT_TRUE(equalAs(field, u"\u212b"_s, u"\u00c5"_s));
        EXPECT_TRUE(equalAs(field, u"\u212b"_s, u"A\u030a"_s));
        // A syllable and its jamo; marks of different classes in either order.
        EXPECT_TRUE(equalAs(field, u"\ud55c"_s, u"\u1112\u1161\u11ab"_s));
        EXPECT_TRUE(equalAs(field, u"q\u0307\u0323"_s, u"q\u0323\u0307"_s));

        EXPECT_FALSE(equalAs(field, u"\u00e9"_s, u"e"_s));
        EXPECT_FALSE(equalAs(field, u"\u00e9"_s, u"\u00c9"_s));
        // Equivalent by compatibility only.
        EXPECT_FALSE(equalAs(field, u"\ufb01"_s, u"fi"_s));
        EXPECT_FALSE(equalAs(field, u"a\u00a0b"_s, u"a b"_s));
        // Ignorable, but there.
        EXPECT_FALSE(equalAs(field, u"\ufeffa"_s, u"a"_s));
        EXPECT_FALSE(equalAs(field, u"a\u0000b"_s, u"a"_s));
        EXPECT_FALSE(equalAs(field, u"a"_s, u""_s));
    }
}

TEST(BlogPost, equality_ofDates_isOfExactInstants)
{
    const auto equalWith = [](double left, double right) {
        BlogPost one = postTitled(u"Post"_s, Date(left));
        BlogPost other = one;
        other.date = Date(right);
        return one == other;
    };
    EXPECT_TRUE(equalWith(0.0, -0.0));
    EXPECT_FALSE(equalWith(788918400, std::nextafter(788918400, 0)));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(equalWith(nan, nan));
}

RC_GTEST_PROP(BlogPost, equality_holdsInEveryNormalizationForm, (const BlogPost &post))
{
    for (const auto form : {QString::NormalizationForm_C, QString::NormalizationForm_D}) {
        BlogPost other = post;
        other.title = post.title.normalized(form);
        other.content = post.content.normalized(form);
        other.description = post.description.normalized(form);
        other.permalink = post.permalink.normalized(form);
        RC_ASSERT(other == post);
    }
}

RC_GTEST_PROP(BlogPost, equality_ofTexts_isEqualityOfTheirDecompositions,
              (const BlogPost &post, const QString &title))
{
    BlogPost other = post;
    other.title = title;
    const auto decomposed = [](const QString &text) {
        return text.normalized(QString::NormalizationForm_D);
    };
    RC_ASSERT((other == post) == (decomposed(title) == decomposed(post.title)));
}
