#include "bench/SampleBlog.h"

#include <array>
#include <random>

namespace {

constexpr int wordsOfTitle = 6;
constexpr qsizetype bytesOfDescription = 760;

/// Words of eight languages, some with characters that a document must escape.
using Words = std::array<QStringView, 16>;

constexpr std::array<Words, 8> languages{{
    {u"garden", u"the", u"of", u"morning", u"notebook", u"walked", u"rain", u"a", u"quietly",
     u"and", u"window", u"letters", u"\"so\"", u"salt & pepper", u"either/or", u"that's"},
    {u"Garten", u"früh", u"über", u"die", u"Straße", u"Gemüse", u"schön", u"Bücher", u"und",
     u"größer", u"„leise“", u"Äpfel & Birnen", u"Frühling", u"der", u"müde", u"nur"},
    {u"jardin", u"été", u"à", u"forêt", u"où", u"déjà", u"garçon", u"naïve", u"l'hiver", u"cœur",
     u"et", u"<em>très</em>", u"pêche", u"noël", u"la", u"près"},
    {u"утро", u"сад", u"дождь", u"письмо", u"тихо", u"окно", u"и", u"дорога", u"зимой", u"книга",
     u"«слово»", u"хлеб & соль", u"над", u"рекой", u"вечер", u"свет"},
    {u"حديقة", u"صباح", u"مطر", u"رسالة", u"كتاب", u"نافذة", u"في", u"الطريق", u"هادئ", u"شتاء",
     u"ليل", u"نور", u"و", u"البيت", u"قمر", u"شجرة"},
    {u"बगीचा", u"सुबह", u"बारिश", u"चिट्ठी", u"किताब", u"खिड़की", u"और", u"रास्ता", u"शांत", u"सर्दी",
     u"रात", u"रोशनी", u"घर", u"चाँद", u"पेड़", u"में"},
    {u"花园", u"早晨", u"下雨", u"书信", u"安静", u"窗户", u"道路", u"冬天", u"夜里", u"灯光",
     u"回家", u"月亮", u"树木", u"河边", u"今天，", u"春天。"},
    {u"tea 🍵", u"walk 🚶🏽", u"sea 🌊", u"family 👨‍👩‍👧", u"and", u"sun ☀️",
     u"night 🌙", u"book 📚", u"cat 🐈", u"rain ☔", u"so", u"far", u"home 🏡", u"bread 🍞", u"one",
     u"two"},
}};

using Random = std::mt19937_64;

QStringView someWord(const Words &words, Random &random)
{
    return words[random() % words.size()];
}

QString titleIn(const Words &words, Random &random)
{
    QString text;
    for (int word = 0; word < wordsOfTitle; ++word) {
        text += someWord(words, random);
        text += u' ';
    }
    return text;
}

QString descriptionIn(const Words &words, Random &random)
{
    QString text;
    qsizetype bytes = 0;
    while (bytes < bytesOfDescription) {
        const QStringView word = someWord(words, random);
        text += word;
        text += random() % 40 == 0 ? u'\n' : u' ';
        bytes += word.toUtf8().size() + 1;
    }
    return text;
}

QUuid someUuid(Random &random)
{
    constexpr ushort version4 = 0x4000;
    constexpr uchar variant = 0x80;
    return {uint(random()), ushort(random()), version4, variant, 0, 0, 0, 0, 0, 0, uchar(random())};
}

} // namespace

BlogPosts sampleBlog(qsizetype count)
{
    constexpr double newest = 820'000'000.25;
    constexpr double apart = 3 * 3600 + 17 * 60 + 5.125;

    Random random(20'010'101);
    BlogPosts posts;
    posts.reserve(count);
    for (qsizetype number = 0; number < count; ++number) {
        const Words &words = languages[std::size_t(number) % languages.size()];
        posts.append({.id = someUuid(random),
                      .title = titleIn(words, random),
                      .content = QStringLiteral(" "),
                      .date = Date(newest - double(number) * apart),
                      .description = descriptionIn(words, random),
                      .permalink = QStringLiteral("https://example.com/notes/%1").arg(number)});
    }
    return posts;
}

RSSSettings sampleChannel()
{
    return {.title = QStringLiteral("Field Notes"),
            .link = QStringLiteral("https://example.com"),
            .description = QStringLiteral("Short posts about small things")};
}
