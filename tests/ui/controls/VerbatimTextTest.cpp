#include "ui/VerbatimText.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTextCursor>

#include <gtest/gtest.h>

#include <memory>

namespace {

// A text area as the forms have it, with a text that is shown and remembered as they do it.
class VerbatimTextTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nTextEdit { textFormat: TextEdit.PlainText }", QUrl());
        m_area.reset(qobject_cast<QQuickItem *>(component.create()));
        ASSERT_TRUE(m_area) << qPrintable(component.errorString());
        m_verbatim.setDocument(m_area->property("textDocument").value<QQuickTextDocument *>());
    }

    void show(const QString &source)
    {
        m_area->setProperty("text", QString());
        m_area->setProperty("text", source);
        m_verbatim.remember(source);
    }

    QTextDocument *document() const { return m_verbatim.document()->textDocument(); }

    // Types at the end, as keys would.
    void append(const QString &text)
    {
        QTextCursor cursor(document());
        cursor.movePosition(QTextCursor::End);
        cursor.insertText(text);
    }

    QQmlEngine m_engine;
    std::unique_ptr<QQuickItem> m_area;
    VerbatimText m_verbatim;
};

struct Sample
{
    const char *name;
    QString source;
    // The source once "!" was typed behind it.
    QString edited;
};

const QList<Sample> samples = {
    {"empty", QString(), QStringLiteral("!")},
    {"plain", QStringLiteral("plain"), QStringLiteral("plain!")},
    {"noBreakSpace", QStringLiteral("a\u00a0b"), QStringLiteral("a\u00a0b!")},
    {"carriageReturn", QStringLiteral("a\rb"), QStringLiteral("a\nb!")},
    {"carriageReturnAndLineFeed", QStringLiteral("a\r\nb"), QStringLiteral("a\nb!")},
    {"lineFeed", QStringLiteral("a\nb\n"), QStringLiteral("a\nb\n!")},
    {"lineSeparator", QStringLiteral("a\u2028b"), QStringLiteral("a\u2028b!")},
    {"paragraphSeparator", QStringLiteral("a\u2029b"), QStringLiteral("a\nb!")},
    {"noncharacter", QStringLiteral("a\ufdd0b"), QStringLiteral("a\nb!")},
    {"null", QString(QStringLiteral("a0b")).replace(u'0', QChar::Null),
     QString(QStringLiteral("a0b!")).replace(u'0', QChar::Null)},
    {"byteOrderMark", QStringLiteral("\ufeffa"), QStringLiteral("\ufeffa!")},
    {"objectReplacement", QStringLiteral("a\ufffcb"), QStringLiteral("a\ufffcb!")},
    {"tab", QStringLiteral("a\tb"), QStringLiteral("a\tb!")},
    {"markup", QStringLiteral("<b>a</b> &amp;"), QStringLiteral("<b>a</b> &amp;!")},
    {"beyondThePlane", QStringLiteral("\U0001f600"), QStringLiteral("\U0001f600!")},
};

} // namespace

TEST_F(VerbatimTextTest, aTextThatIsNotChanged_isGivenBackAsItWas)
{
    for (const Sample &sample : samples) {
        show(sample.source);
        EXPECT_EQ(m_verbatim.exactText(), sample.source) << sample.name;
    }
}

TEST_F(VerbatimTextTest, anEditedText_hasLineFeedsForLineEnds_andKeepsAllElse)
{
    for (const Sample &sample : samples) {
        show(sample.source);
        append(QStringLiteral("!"));
        EXPECT_EQ(m_verbatim.exactText(), sample.edited) << sample.name;
    }
}

TEST_F(VerbatimTextTest, aTextThatWasChangedBack_isGivenBackAsItWas)
{
    for (const Sample &sample : samples) {
        show(sample.source);
        append(QStringLiteral("!"));
        EXPECT_NE(m_verbatim.exactText(), sample.source) << sample.name;
        QMetaObject::invokeMethod(m_area.get(), "undo");
        EXPECT_EQ(m_verbatim.exactText(), sample.source) << sample.name;
        append(QStringLiteral("!"));
        QTextCursor cursor(document());
        cursor.movePosition(QTextCursor::End);
        cursor.deletePreviousChar();
        EXPECT_EQ(m_verbatim.exactText(), sample.source) << sample.name;
    }
}

TEST_F(VerbatimTextTest, aTextThatLooksLikeTheOneBefore_isTakenInAnew)
{
    show(QStringLiteral("a\u00a0b"));
    show(QStringLiteral("a b"));
    append(QStringLiteral("!"));
    EXPECT_EQ(m_verbatim.exactText(), QStringLiteral("a b!"));
}

TEST_F(VerbatimTextTest, eachChangeOfTheDocumentIsAnnounced)
{
    show(QStringLiteral("a"));
    QSignalSpy changes(&m_verbatim, &VerbatimText::exactTextChanged);
    append(QStringLiteral("b"));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(m_verbatim.exactText(), QStringLiteral("ab"));
}

TEST_F(VerbatimTextTest, withoutADocument_theTextIsWhatWasRemembered)
{
    VerbatimText verbatim;
    EXPECT_EQ(verbatim.exactText(), QString());
    verbatim.remember(QStringLiteral("a"));
    EXPECT_EQ(verbatim.exactText(), QStringLiteral("a"));
    m_verbatim.setDocument(nullptr);
    EXPECT_EQ(m_verbatim.exactText(), QString());
}

TEST_F(VerbatimTextTest, aTextOfAMegabyte_isKeptThroughEditAndUndo)
{
    const QString source = QStringLiteral("Words\u00a0and words,\r\n").repeated(60'000);
    show(source);
    EXPECT_EQ(m_verbatim.exactText(), source);
    append(QStringLiteral("!"));
    EXPECT_EQ(m_verbatim.exactText(),
              QString(source).replace(QStringLiteral("\r\n"), QStringLiteral("\n")) + u'!');
    QMetaObject::invokeMethod(m_area.get(), "undo");
    EXPECT_EQ(m_verbatim.exactText(), source);
}
