#include "tests/ui/languages/PseudoLanguage.h"

#include "ui/Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QQmlEngine>
#include <QXmlStreamReader>

namespace {

void speakPseudoLanguage()
{
    qunsetenv("LC_ALL");
    qputenv("LC_TIME", "ko_KR.UTF-8");
    qputenv("LC_MESSAGES", "qps.UTF-8");
    installTranslations();
    qmlRegisterSingletonType<PseudoLanguage>(
        "TavloTest", 1, 0, "PseudoLanguage",
        [](QQmlEngine *, QJSEngine *) { return new PseudoLanguage; });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(speakPseudoLanguage)

QStringList PseudoLanguage::texts()
{
    QFile file(QStringLiteral(TAVLO_PSEUDO_CATALOGUE));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The catalogue cannot be read");

    QStringList found;
    QString context;
    for (QXmlStreamReader reader(&file); !reader.atEnd(); reader.readNext()) {
        if (!reader.isStartElement())
            continue;
        if (reader.name() == u"name")
            context = reader.readElementText();
        else if (reader.name() == u"translation" && context != u"OpenPanel")
            found += reader.readElementText();
    }
    found.removeDuplicates();
    return found;
}
