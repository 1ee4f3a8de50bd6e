#include "model/Utf8.h"

#include "tests/support/Generators.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

QByteArray asUtf8(QStringView text)
{
    Utf8Document document;
    document.appendText(text);
    return document.take();
}

constexpr Escapes angleBrackets = [] {
    Escapes escapes;
    escapes.replace('<', "&lt;");
    escapes.replace('>', "&gt;");
    return escapes;
}();

} // namespace

TEST(TextFromUtf8, keepsByteOrderMarks_whereverTheyStand)
{
    EXPECT_EQ(textFromUtf8("\xEF\xBB\xBF"), u"\ufeff"_s);
    EXPECT_EQ(textFromUtf8("\xEF\xBB\xBFtext"), u"\ufefftext"_s);
    EXPECT_EQ(textFromUtf8("\xEF\xBB\xBF\xEF\xBB\xBFtext"), u"\ufeff\ufefftext"_s);
    EXPECT_EQ(textFromUtf8("te\xEF\xBB\xBFxt\xEF\xBB\xBF"), u"te\ufeffxt\ufeff"_s);
}

TEST(TextFromUtf8, keepsEveryCharacter)
{
    EXPECT_EQ(textFromUtf8(""), QString());
    EXPECT_EQ(textFromUtf8({"a\0b\0", 4}), u"a\0b\0"_s);
    EXPECT_EQ(textFromUtf8("\r\n\t\x7f"), u"\r\n\t\u007f"_s);
    EXPECT_EQ(textFromUtf8("\xEF\xBF\xBE\xEF\xBF\xBF"), u"\ufffe\uffff"_s);
    EXPECT_EQ(textFromUtf8("\xF4\x8F\xBF\xBF"), u"\U0010ffff"_s);
}

TEST(Utf8Document, writesTheEdgesOfEachEncodedLength)
{
    EXPECT_EQ(asUtf8(u"\u0001\u007f"), "\x01\x7f");
    EXPECT_EQ(asUtf8(u"\u0080\u07ff"), "\xC2\x80\xDF\xBF");
    EXPECT_EQ(asUtf8(u"\u0800\ud7ff\ue000\uffff"),
              "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF");
    EXPECT_EQ(asUtf8(u"\U00010000\U0010ffff"), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
    EXPECT_EQ(asUtf8(QStringView(u"\0", 1)), QByteArray(1, '\0'));
    EXPECT_EQ(asUtf8(QStringView()), QByteArray());
}

TEST(Utf8Document, writesEveryCharacterOfEveryPlaneAsQtDoes)
{
    for (char32_t plane = 0; plane <= 0x10; ++plane) {
        std::vector<char32_t> characters;
        for (char32_t character = plane << 16; character < (plane + 1) << 16; ++character) {
            if (!QChar::isSurrogate(character))
                characters.push_back(character);
        }
        const QString text = QString::fromUcs4(characters.data(), qsizetype(characters.size()));
        const QByteArray utf8 = asUtf8(text);
        EXPECT_TRUE(utf8 == text.toUtf8()) << "plane " << unsigned(plane);
        EXPECT_TRUE(textFromUtf8(utf8) == text) << "plane " << unsigned(plane);
    }
}

TEST(Utf8Document, writesALoneSurrogate_asTheReplacementCharacter)
{
    const QChar high(0xd83d);
    const QChar low(0xde00);
    const auto written = [](std::initializer_list<QChar> units) {
        return textFromUtf8(asUtf8(QString(units.begin(), qsizetype(units.size()))));
    };
    EXPECT_EQ(written({high}), u"\ufffd"_s);
    EXPECT_EQ(written({low}), u"\ufffd"_s);
    EXPECT_EQ(written({low, high}), u"\ufffd\ufffd"_s);
    EXPECT_EQ(written({high, high, low}), u"\ufffd\U0001f600"_s);
    EXPECT_EQ(written({high, low, low}), u"\U0001f600\ufffd"_s);
    EXPECT_EQ(written({high, u'a'}), u"\ufffda"_s);
}

TEST(Utf8Document, wellFormed_replacesLoneSurrogatesOnly)
{
    const QChar high(0xd83d);
    const QChar low(0xde00);
    const QString good = u"\ufeffa\0b\U0001f600"_s;
    EXPECT_EQ(wellFormed(good), good);
    EXPECT_EQ(wellFormed(good + high), good + u'\ufffd');
    EXPECT_EQ(wellFormed(low + good), u'\ufffd' + good);
    EXPECT_EQ(wellFormed(QString()), QString());
}

TEST(Utf8Document, escapesTheCharactersOfItsTable_andNoOther)
{
    Utf8Document document;
    document.appendEscaped(u"<\u00e9>&\U0001f600\"<<", angleBrackets);
    EXPECT_EQ(document.take(), "&lt;\xC3\xA9&gt;&\xF0\x9F\x98\x80\"&lt;&lt;");
}

TEST(Utf8Document, escapesNothing_byAnEmptyTable)
{
    QString ascii;
    for (char16_t code = 0; code < 0x80; ++code)
        ascii += code;
    Utf8Document document;
    document.appendEscaped(ascii, Escapes());
    EXPECT_EQ(document.take(), ascii.toLatin1());
}

TEST(Utf8Document, take_leavesAnEmptyDocument)
{
    Utf8Document document;
    document.append("first");
    EXPECT_EQ(document.take(), "first");
    EXPECT_EQ(document.take(), "");
    document.append("second");
    EXPECT_EQ(document.take(), "second");
}

TEST(Utf8Document, growsOverManyAppends)
{
    // The longest escape and the longest character by unit, beyond any first allocation.
    const QString unit = u"<>\uffff"_s;
    const QByteArray piece = "&lt;&gt;\xEF\xBF\xBF";
    Utf8Document document;
    QByteArray expected;
    for (int count = 0; count < 300; ++count) {
        document.appendEscaped(unit.repeated(count), angleBrackets);
        document.append("|");
        document.appendText(unit);
        expected += piece.repeated(count) + "|<>\xEF\xBF\xBF";
    }
    EXPECT_TRUE(document.take() == expected);
}

TEST(Utf8Document, hasRoomForATextOfNothingButItsLongestEscape)
{
    Escapes escapes;
    escapes.replace('\0', "\\u0000");
    constexpr qsizetype count = 100'000;
    Utf8Document document;
    document.appendEscaped(QString(count, QChar::Null), escapes);
    EXPECT_TRUE(document.take() == QByteArray("\\u0000").repeated(count));
}

RC_GTEST_PROP(Utf8Document, isReadBackAsTheSameText, (const QString &text))
{
    RC_ASSERT(textFromUtf8(asUtf8(text)) == text);
    RC_ASSERT(asUtf8(text) == text.toUtf8());
    RC_ASSERT(wellFormed(text) == text);
}

RC_GTEST_PROP(Utf8Document, anyUnits_areWrittenAsValidUtf8_withOneReplacementForEachLoneSurrogate,
              ())
{
    const auto units = *rc::gen::container<std::vector<char16_t>>(rc::gen::oneOf(
        rc::gen::inRange<char16_t>(0xd7fe, 0xe002), rc::gen::inRange<char16_t>(0, 0xffff)));
    const QString text = QString::fromUtf16(units.data(), qsizetype(units.size()));
    const QByteArray utf8 = asUtf8(text);
    RC_ASSERT(QUtf8StringView(utf8).isValidUtf8());
    const auto expected = text.toUcs4();
    RC_ASSERT(
        QString::fromUcs4(reinterpret_cast<const char32_t *>(expected.constData()), expected.size())
        == textFromUtf8(utf8));
}
