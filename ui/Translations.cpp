#include "ui/Translations.h"

#include "model/UserLocale.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace {

bool isLanguageOfTheSource(const QString &language)
{
    return language == u"en" || language.startsWith(u"en_");
}

/// Installs the first catalogue of a family, "tavlo" say, that a folder has in one of these
/// languages. One without its country will do.
void installFirst(const QString &family, const QString &folder, const QStringList &languages)
{
    auto translator = std::make_unique<QTranslator>();
    for (const QString &language : languages) {
        if (isLanguageOfTheSource(language))
            return;
        if (translator->load(family + u'_' + language, folder)) {
            translator->setParent(QCoreApplication::instance());
            QCoreApplication::installTranslator(translator.release());
            return;
        }
    }
}

} // namespace

QStringList languagesOfMessages()
{
    const std::string locale = userLocale("LC_MESSAGES");
    if (locale == icuLocaleName("C"))
        return {};

    QStringList languages;
    const QString names = qEnvironmentVariable("LANGUAGE");
    for (const QString &name : names.split(u':', Qt::SkipEmptyParts))
        languages += QString::fromStdString(icuLocaleName(name.toStdString()));
    if (languages.isEmpty())
        languages += QString::fromStdString(locale);
    return languages;
}

void installTranslations()
{
    const QStringList languages = languagesOfMessages();
    installFirst(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                 languages);
    installFirst(QStringLiteral("tavlo"), QStringLiteral(":/i18n"), languages);
}
