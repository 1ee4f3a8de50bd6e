// rss_settings.json: any bytes are read as another strict reader reads them, and what they hold is
// written and read again.
#include "fuzz/Check.h"
#include "fuzz/PlainDocuments.h"
#include "model/RecordsJson.h"
#include "tests/references/RecordsByRapidJson.h"

namespace {

bool identical(const RSSSettings &left, const RSSSettings &right)
{
    return left.title == right.title && left.link == right.link
        && left.description == right.description;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto settings = decodeSettings(json);
    const auto others = settingsByRapidJson(json);
    check(settings.has_value() == others.has_value(), "both readers take the document, or none");
    if (!settings)
        return 0;
    check(identical(*settings, *others), "both readers find the same settings");

    const QByteArray written = encodeSettings(*settings);
    check(written == plainSettings(*settings), "they are written as the plain writer does");
    const auto again = decodeSettings(written);
    check(again && identical(*again, *settings), "what is written is read to the same bits");
    return 0;
}
