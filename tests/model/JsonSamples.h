#pragma once

#include <QByteArray>

#include <utility>
#include <vector>

// Documents to read, put together from the raw text of their values.

/// A record in the making: keys, and the raw JSON that stands for their values.
using JsonFields = std::vector<std::pair<QByteArray, QByteArray>>;

inline QByteArray jsonObject(const JsonFields &fields)
{
    QByteArray json = "{";
    for (const auto &[key, value] : fields) {
        if (json.size() > 1)
            json += ',';
        json += '"' + key + "\":" + value;
    }
    return json + '}';
}

inline JsonFields goodPostFields()
{
    return {{"id", R"("6F9619FF-8B86-4011-B42D-00C04FC964FF")"},
            {"title", R"("A title")"},
            {"content", R"("Some content")"},
            {"date", "788918400"},
            {"description", R"("A description")"},
            {"permalink", R"("https:\/\/example.com\/1")"}};
}

inline JsonFields goodSettingsFields()
{
    return {{"title", R"("A blog")"},
            {"link", R"("https:\/\/example.com")"},
            {"description", R"("About it")"}};
}

/// The fields with one of them holding another value.
inline JsonFields with(JsonFields fields, const QByteArray &key, const QByteArray &value)
{
    for (auto &field : fields) {
        if (field.first == key)
            field.second = value;
    }
    return fields;
}

inline JsonFields without(JsonFields fields, const QByteArray &key)
{
    std::erase_if(fields, [&key](const auto &field) { return field.first == key; });
    return fields;
}

/// The fields with another one behind them.
inline JsonFields followedBy(JsonFields fields, const QByteArray &key, const QByteArray &value)
{
    fields.emplace_back(key, value);
    return fields;
}

/// The fields with another one before them.
inline JsonFields ledBy(JsonFields fields, const QByteArray &key, const QByteArray &value)
{
    fields.insert(fields.begin(), {key, value});
    return fields;
}

/// A document of one post.
inline QByteArray postsDocument(const JsonFields &fields)
{
    return '[' + jsonObject(fields) + ']';
}

/// Arrays and objects by turns, `depth` of them one in another.
inline QByteArray nested(int depth)
{
    QByteArray opening;
    QByteArray closing;
    for (int level = 0; level < depth; ++level) {
        opening += level % 2 == 0 ? "[" : R"({"k":)";
        closing.prepend(level % 2 == 0 ? ']' : '}');
    }
    return opening + (depth % 2 == 0 ? "0" : "") + closing;
}
