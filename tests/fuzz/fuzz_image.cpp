#include "dictionary_loader.h"
#include "image_decoder.h"
#include "image_encoder.h"

#include <cstdlib>

// The first byte chooses tier and version, the rest is the image, filled with zeros. What is taken must survive another
// way to the radio and back.
extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size) {
    static const std::unique_ptr<const Dictionary> kDictionary = DictionaryLoader::loadCompiledIn();
    if (size == 0)
        return 0;
    RadioIdentity radio;
    radio.tier = quint8(data[0] % kDictionary->tiers().size());
    radio.databaseLevel = quint8(1 + data[0] / 128);
    radio.band = 1;
    QByteArray image(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    image.resize(kDictionary->layout().imageSize(TierIndex(radio.tier)));
    for (qsizetype at = qsizetype(size) - 1; at < image.size(); ++at)
        image[at] = '\0';
    ImageDecoder decoder(*kDictionary);
    const auto decoded = decoder.decode(radio, image);
    if (!decoded)
        return 0;
    const auto again = decoder.decode(radio, ImageEncoder(*decoded, radio.databaseLevel).encode(image));
    if (!again || !again->sameValues(*decoded))
        std::abort();
    return 0;
}
