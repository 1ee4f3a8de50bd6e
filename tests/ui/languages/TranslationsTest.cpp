// Which language the program speaks, by what the user's environment says.

#include "ui/Translations.h"

#include "tests/support/EnvironmentVariable.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"
#include "ui/OpenPanel.h"

#include <QApplication>
#include <QFileDialog>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

/// The environment's variables that choose a language; those that are empty here are not set.
struct Environment
{
    const char *language = "";
    const char *all = "";
    const char *messages = "";
    const char *lang = "";
};

class TranslationsTest : public testing::Test
{
protected:
    void TearDown() override { qDeleteAll(qApp->findChildren<QTranslator *>()); }

    void set(const Environment &environment)
    {
        const auto put = [](const EnvironmentVariable &variable, const char *value) {
            variable.set(*value ? std::optional(QByteArray(value)) : std::nullopt);
        };
        put(language, environment.language);
        put(all, environment.all);
        put(messages, environment.messages);
        put(lang, environment.lang);
    }

    /// A text of the window as the program shows it in this environment.
    QString newPostIn(const Environment &environment)
    {
        set(environment);
        installTranslations();
        const QString text = QCoreApplication::translate("HeaderView", "New Post");
        qDeleteAll(qApp->findChildren<QTranslator *>());
        return text;
    }

    /// The same for a button of Qt's own panels.
    QString cancelIn(const Environment &environment)
    {
        set(environment);
        installTranslations();
        return QCoreApplication::translate("QPlatformTheme", "Cancel");
    }

    EnvironmentVariable language{"LANGUAGE", {}};
    EnvironmentVariable all{"LC_ALL", {}};
    EnvironmentVariable messages{"LC_MESSAGES", {}};
    EnvironmentVariable lang{"LANG", {}};
    const QString own = QStringLiteral("New Post");
    const QString pseudo = QStringLiteral("[Ñéŵ Þöšŧöñé~]");
};

TEST_F(TranslationsTest, speaksTheLanguageOfTheLocaleOfMessages)
{
    EXPECT_EQ(newPostIn({.lang = "qps.UTF-8"}), pseudo);
    EXPECT_EQ(newPostIn({.messages = "qps.UTF-8", .lang = "en_GB.UTF-8"}), pseudo);
    EXPECT_EQ(newPostIn({.all = "qps.UTF-8", .messages = "en_GB.UTF-8"}), pseudo);
    EXPECT_EQ(newPostIn({.messages = "en_GB.UTF-8", .lang = "qps.UTF-8"}), own);
}

TEST_F(TranslationsTest, takesTheLanguageWhereThereIsNoneForTheCountry)
{
    EXPECT_EQ(newPostIn({.lang = "qps_DE.UTF-8"}), pseudo);
    EXPECT_EQ(newPostIn({.lang = "qps_DE.UTF-8@latin"}), pseudo);
}

TEST_F(TranslationsTest, keepsItsOwnTextsInALanguageThatItDoesNotHave)
{
    EXPECT_EQ(newPostIn({}), own);
    EXPECT_EQ(newPostIn({.lang = "C.UTF-8"}), own);
    EXPECT_EQ(newPostIn({.lang = "de_DE.UTF-8"}), own);
}

TEST_F(TranslationsTest, triesTheUsersLanguagesInTheirOrder)
{
    EXPECT_EQ(newPostIn({.language = "de:qps:fr", .lang = "de_DE.UTF-8"}), pseudo);
    EXPECT_EQ(newPostIn({.language = "qps", .all = "de_DE.UTF-8"}), pseudo);
    // The program's own language is one that it has.
    EXPECT_EQ(newPostIn({.language = "en_GB:qps", .lang = "en_GB.UTF-8"}), own);
    EXPECT_EQ(newPostIn({.language = "de:en:qps", .lang = "de_DE.UTF-8"}), own);
    EXPECT_EQ(newPostIn({.language = "de", .lang = "qps.UTF-8"}), own);
}

TEST_F(TranslationsTest, leavesAskedLanguagesAloneInTheNeutralLocale)
{
    EXPECT_EQ(newPostIn({.language = "qps", .lang = "C.UTF-8"}), own);
    EXPECT_EQ(newPostIn({.language = "qps", .all = "POSIX", .lang = "de_DE.UTF-8"}), own);
}

TEST_F(TranslationsTest, tellsTheLanguagesBestFirst)
{
    set({.language = "sr_RS@latin::pt_BR", .lang = "de_DE.UTF-8"});
    EXPECT_EQ(languagesOfMessages(),
              QStringList({QStringLiteral("sr_Latn_RS"), QStringLiteral("pt_BR")}));
    set({.lang = "de_DE.UTF-8"});
    EXPECT_EQ(languagesOfMessages(), QStringList(QStringLiteral("de_DE")));
    set({.language = "de", .lang = "C"});
    EXPECT_EQ(languagesOfMessages(), QStringList());
}

TEST_F(TranslationsTest, hasQtsPanelsInTheUsersLanguage)
{
    EXPECT_EQ(cancelIn({.lang = "en_GB.UTF-8"}), QStringLiteral("Cancel"));
    EXPECT_EQ(cancelIn({.lang = "de_AT.UTF-8"}), QStringLiteral("Abbrechen"));
}

TEST_F(TranslationsTest, looksUpTheOpenPanelsFilterAndKeepsItsPatterns)
{
    set({.lang = "qps.UTF-8"});
    installTranslations();
    const TemporaryHome home;
    const auto store = BlogViewModel::create();
    OpenPanel().importInto(store.get());
    const QWidgetList widgets = QApplication::topLevelWidgets();
    const auto *panel = qobject_cast<QFileDialog *>(widgets.value(0));
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->nameFilters(), QStringList(QStringLiteral("[ŘŠŠ ƒééđšöñé~] (*.rss *.xml)")));
    qDeleteAll(widgets);
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
