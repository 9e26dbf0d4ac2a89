#include "data_file_reader.h"
#include "data_file_writer.h"
#include "dictionary_loader.h"
#include "run_time_error.h"
#include "sealed_text.h"

#include <cstdlib>

namespace {
// A file that is taken must be the same after it has been saved and opened again.
void load(const Dictionary &dictionary, const QByteArray &text) {
    const DataFileReader reader(dictionary, QStringLiteral("fuzz.k4p"));
    std::optional<DataDocument> document;
    try {
        document.emplace(reader.read(text));
    } catch (const RunTimeError &) {
        return;
    }
    const DataFileWriter writer(*document);
    const DataDocument again = reader.read(writer.write(writer.header(QStringLiteral("1.00"), QString())));
    for (qint32 tier = 0; tier < qint32(dictionary.tiers().size()); ++tier)
        if (!again.data.tier(TierIndex(tier)).sameValues(document->data.tier(TierIndex(tier))))
            std::abort();
}
} // namespace

// The text as it stands, and with a checksum that fits.
extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size) {
    static const std::unique_ptr<const Dictionary> kDictionary = DictionaryLoader::loadCompiledIn();
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    load(*kDictionary, text);
    load(*kDictionary, SealedText::seal(text));
    return 0;
}
