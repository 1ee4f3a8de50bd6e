#include "model/UserLocale.h"

#include "tests/support/EnvironmentVariable.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

struct LocaleName
{
    const char *posix;
    const char *icu;

    // NOLINTNEXTLINE(readability-identifier-naming): the name is GoogleTest's.
    friend void PrintTo(const LocaleName &name, std::ostream *out) { *out << name.posix; }
};

class IcuLocaleName : public testing::TestWithParam<LocaleName>
{
};

} // namespace

TEST_P(IcuLocaleName, isLanguageScriptAndCountryOfThePosixName)
{
    EXPECT_EQ(icuLocaleName(GetParam().posix), GetParam().icu);
}

INSTANTIATE_TEST_SUITE_P(
    PosixNames, IcuLocaleName,
    testing::Values(LocaleName{"de_DE.UTF-8", "de_DE"}, LocaleName{"de_DE.UTF-8@euro", "de_DE"},
                    LocaleName{"de_DE@euro", "de_DE"}, LocaleName{"ja_JP.eucJP", "ja_JP"},
                    LocaleName{"en", "en"}, LocaleName{"fil_PH", "fil_PH"},
                    LocaleName{"sr_RS", "sr_RS"}, LocaleName{"sr_RS@latin", "sr_Latn_RS"},
                    LocaleName{"sr_RS.UTF-8@latin", "sr_Latn_RS"},
                    LocaleName{"sr@latin", "sr_Latn"}, LocaleName{"uz_UZ@cyrillic", "uz_Cyrl_UZ"},
                    LocaleName{"uz_UZ.UTF-8@cyrillic", "uz_Cyrl_UZ"},
                    LocaleName{"sd_IN@devanagari", "sd_Deva_IN"},
                    LocaleName{"ca_ES@valencia", "ca_ES"}, LocaleName{"C", "en_US_POSIX"},
                    LocaleName{"POSIX", "en_US_POSIX"}, LocaleName{"C.UTF-8", "en_US_POSIX"},
                    LocaleName{"C.utf8", "en_US_POSIX"}, LocaleName{"", "en_US_POSIX"},
                    LocaleName{".UTF-8", "en_US_POSIX"}, LocaleName{"@euro", "en_US_POSIX"}));

TEST(UserLocale, isTheFirstOfAllCategoryAndLanguageThatIsNotEmpty)
{
    const EnvironmentVariable all("LC_ALL", "de_DE.UTF-8");
    const EnvironmentVariable time("LC_TIME", "ja_JP.UTF-8");
    const EnvironmentVariable language("LANG", "fa_IR");
    EXPECT_EQ(userLocale("LC_TIME"), "de_DE");

    all.set({});
    EXPECT_EQ(userLocale("LC_TIME"), "ja_JP");

    // Set but empty counts as unset.
    all.set("");
    EXPECT_EQ(userLocale("LC_TIME"), "ja_JP");

    time.set("");
    EXPECT_EQ(userLocale("LC_TIME"), "fa_IR");

    language.set("");
    EXPECT_EQ(userLocale("LC_TIME"), "en_US_POSIX");
    language.set({});
}

TEST(UserLocale, ofACategory_doesNotFollowAnother)
{
    const EnvironmentVariable all("LC_ALL", {});
    const EnvironmentVariable messages("LC_MESSAGES", "de_DE.UTF-8");
    const EnvironmentVariable time("LC_TIME", {});
    const EnvironmentVariable language("LANG", "th_TH.UTF-8");
    EXPECT_EQ(userLocale("LC_TIME"), "th_TH");
    EXPECT_EQ(userLocale("LC_MESSAGES"), "de_DE");
}
